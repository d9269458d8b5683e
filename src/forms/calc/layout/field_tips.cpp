// SPDX-License-Identifier: MIT
/// Writes tooltips from the table of inputs.
#include "forms/calc/layout/field_tips.h"

#include <algorithm>

#include "design/input_guide.h"
#include "qt/texts.h"

namespace mero::forms {
namespace {

using design::Input;

void give(const qt::WidgetKit& kit, const platform::Control& control, const QString& tip) {
    QWidget* widget = kit.find(control);
    // One box may serve two inputs: the first one's tooltip stays.
    if (widget != nullptr && widget->toolTip().isEmpty()) {
        widget->setToolTip(tip);
    }
}

void give(const qt::WidgetKit& kit, const platform::ControlArray<platform::OptionButton>& options,
          const QString& tip) {
    options.forEach([&](int, const platform::OptionButton& option) { give(kit, option, tip); });
}

}  // namespace

QString tipOf(const design::PanelInput& input) {
    const design::InputInfo& row = info(input.input);
    const design::InputGuide& about = design::guide(input.input);
    QString meaning = QString::fromUtf8(about.meaning);
    if (!meaning.isEmpty()) {
        meaning[0] = meaning[0].toUpper();
    }
    QStringList lines{meaning};
    const bool number = row.kind == design::InputKind::Number || row.kind == design::InputKind::WholeNumber;
    if (*row.unit != '\0') {
        lines += QStringLiteral("Jednotka: ") + QString::fromUtf8(row.unit);
    }
    if (*about.usual != '\0') {
        lines += QStringLiteral("Obvykle: ") + QString::fromUtf8(about.usual);
    }
    if (number) {
        const std::string opening = design::openingText(input);
        lines +=
            QStringLiteral("Výchozí: ") + (opening.empty() ? QStringLiteral("prázdné") : qt::shown(opening));
    }
    return lines.join(QLatin1Char('\n'));
}

void giveSiteTips(const qt::WidgetKit& kit, const frmCalc& form) {
    for (const Input input : {Input::DesignDuration, Input::Filtration, Input::Groundwater}) {
        give(kit, form.textBox(info(input).box), tipOf({input}));
    }
}

void givePanelTips(const qt::WidgetKit& kit, const frmCalc& form, FacilityType type) {
    for (const design::PanelInput& row : design::panelInputs(type)) {
        const QString tip = tipOf(row);
        switch (row.input) {
            case Input::Soil:
                give(kit, type == FacilityType::Swale ? form.optSelTypPudy2 : form.optSelTypPudy3, tip);
                break;
            case Input::Shape:
                give(kit, form.optSelTypSachty, tip);
                break;
            case Input::Variant:
                give(kit, form.optSelTypPudy5, tip);
                break;
            default:
                if (const platform::Control* control =
                        form.find(design::controlName(info(row.input).box, type))) {
                    give(kit, *control, tip);
                }
        }
    }
}

}  // namespace mero::forms
