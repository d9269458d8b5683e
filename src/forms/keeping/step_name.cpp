// SPDX-License-Identifier: MIT
/// Looks controls up by their names, as the tables of inputs and results have them.
#include "forms/keeping/step_name.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "design/input.h"
#include "design/quantity.h"
#include "design/text_input.h"

namespace mero::forms {
namespace {

using design::Input;

std::string withoutColon(std::string_view caption) {
    return std::string(caption.substr(0, caption.find(':')));
}

/// Captions of the controls that neither table has.
struct Other {
    std::string_view control;
    std::string_view caption;
};
constexpr Other kOthers[] = {
    {"txtOdvodNepPlocha", "Celková odvodňovaná plocha"},
    {"txtSelIntDeste", "Intenzita trvání deště"},
    {"txtOdtokDoVsak", "Odtok do vsakovacího zařízení"},
    {"updSacht", "Počet šachet"},
    {"wbShowPopisTech", "Popis technologie"},
    {"wbShowResults", "Výsledky"},
};

std::optional<std::string> captionOnPanel(const std::string& control, FacilityType type) {
    for (const design::PanelInput& row : design::panelInputs(type)) {
        if (control == design::controlName(info(row.input).box, type)) {
            return withoutColon(row.caption == nullptr ? info(row.input).caption : row.caption);
        }
    }
    for (const design::ResultBox& row : design::resultBoxes(type)) {
        if (control == design::controlName(row.box, type)) {
            return withoutColon(design::captionOf(row.quantity, type));
        }
    }
    return std::nullopt;
}

/// The caption of a field, empty for a control that is none.
std::string captionOf(const std::string& control) {
    for (const Other& other : kOthers) {
        if (control == other.control) {
            return std::string(other.caption);
        }
    }
    for (const design::TextInputInfo& row : design::textInputs()) {
        if (control == row.box) {
            return withoutColon(row.caption);
        }
    }
    for (const design::InputInfo& row : design::inputs()) {
        if (control == row.box) {
            return withoutColon(row.caption);
        }
    }
    for (const FacilityType type : data::kFacilityTypes) {
        if (auto caption = captionOnPanel(control, type)) {
            return *caption;
        }
    }
    return {};
}

template <typename T>
bool holds(const platform::ControlArray<T>& array, const platform::Control& control) {
    return control.name().starts_with(array.name() + "(");
}

/// What the options of a group choose, empty for the groups of types, whose options say it themselves.
std::string groupOf(const frmCalc& window, const platform::Control& option) {
    if (holds(window.optSelTypPudy2, option) || holds(window.optSelTypPudy3, option)) {
        return withoutColon(info(Input::Soil).caption);
    }
    if (holds(window.optSelTypPudy5, option)) {
        return withoutColon(info(Input::Variant).caption);
    }
    return holds(window.optSelTypSachty, option) ? withoutColon(info(Input::Shape).caption) : "";
}

/// The sub-panel that a button opens or closes.
std::string subPanel(const frmCalc& window, const platform::Button& button) {
    const std::string& name = button.name();
    const std::string index = name.substr(name.find('('));
    const auto* check = dynamic_cast<const platform::CheckBox*>(window.find("chkSelPretok" + index));
    return check == nullptr ? button.text() : check->text() + " – " + button.text();
}

std::string buttonName(const frmCalc& window, const platform::Button& button) {
    if (&button == &window.cmdEdit[0]) {
        return window.intDialog.title();
    }
    if (&button == &window.cmdEdit[1]) {
        return window.areaDialog.title();
    }
    if (&button == &window.cmdEdit[2]) {
        return window.coefDialog.title();
    }
    if (holds(window.cmdEdit, button) || holds(window.cmdOK, button)) {
        return subPanel(window, button);
    }
    return holds(window.cmdCalcul, button) ? "Výpočet" : button.text();
}

std::string joined(const std::string& what, const std::string& choice) {
    return what.empty() || choice.empty() ? what + choice : what + ": " + choice;
}

}  // namespace

std::string stepName(const frmCalc& window, const platform::Control& control) {
    if (&control.form() != &window) {
        return control.form().title();
    }
    if (const auto* button = dynamic_cast<const platform::Button*>(&control)) {
        return buttonName(window, *button);
    }
    if (const auto* option = dynamic_cast<const platform::OptionButton*>(&control)) {
        return joined(groupOf(window, *option), option->text());
    }
    if (const auto* list = dynamic_cast<const platform::DropList*>(&control)) {
        return joined(captionOf(list->name()), list->text());
    }
    const std::string caption = captionOf(control.name());
    const auto* captioned = dynamic_cast<const platform::Captioned*>(&control);
    return caption.empty() && captioned != nullptr ? captioned->text() : caption;
}

}  // namespace mero::forms
