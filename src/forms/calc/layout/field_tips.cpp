// SPDX-License-Identifier: MIT
/// Takes tooltips from the table of inputs.
#include "forms/calc/layout/field_tips.h"

#include "design/input_guide.h"
#include "qt/texts.h"

namespace mero::forms {
namespace {

using design::Input;

QString tip(const design::PanelInput& input) {
    return qt::shown(design::explanation(input));
}

void give(const qt::WidgetKit& kit, const platform::Control& control, const QString& text) {
    QWidget* widget = kit.find(control);
    // One box may serve two inputs: the first one's tooltip stays.
    if (widget != nullptr && widget->toolTip().isEmpty()) {
        widget->setToolTip(text);
    }
}

void give(const qt::WidgetKit& kit, const platform::ControlArray<platform::OptionButton>& options,
          const QString& text) {
    options.forEach([&](int, const platform::OptionButton& option) { give(kit, option, text); });
}

}  // namespace

void giveSiteTips(const qt::WidgetKit& kit, const frmCalc& form) {
    for (const Input input : {Input::DesignDuration, Input::Filtration, Input::Groundwater}) {
        give(kit, form.textBox(info(input).box), tip({input}));
    }
}

void givePanelTips(const qt::WidgetKit& kit, const frmCalc& form, FacilityType type) {
    for (const design::PanelInput& row : design::panelInputs(type)) {
        const QString text = tip(row);
        switch (row.input) {
            case Input::Soil:
                give(kit, type == FacilityType::Swale ? form.optSelTypPudy2 : form.optSelTypPudy3, text);
                break;
            case Input::Shape:
                give(kit, form.optSelTypSachty, text);
                break;
            case Input::Variant:
                give(kit, form.optSelTypPudy5, text);
                break;
            default:
                if (const platform::Control* control =
                        form.find(design::controlName(info(row.input).box, type))) {
                    give(kit, *control, text);
                }
        }
    }
}

}  // namespace mero::forms
