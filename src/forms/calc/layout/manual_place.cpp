// SPDX-License-Identifier: MIT
/// Rows are found by the captions of the tables of inputs; chapters have numbers in the order of the types.
#include "forms/calc/layout/manual_place.h"

#include <algorithm>
#include <string_view>

#include "design/input.h"
#include "design/quantity.h"
#include "design/text_input.h"

namespace mero::forms {
namespace {

QString inManual(std::string_view caption) {
    const std::string_view text = design::withoutColon(caption);
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// The caption of a box of the first tab, empty for another control.
QString captionOnFirstTab(const std::string& control) {
    if (control.empty()) {  // as the boxes of inputs that the window does not have
        return {};
    }
    for (const design::TextInputInfo& row : design::textInputs()) {
        if (control == row.box) {
            return inManual(row.caption);
        }
    }
    for (const design::InputInfo& row : design::inputs()) {
        if (control == row.box) {
            return inManual(row.caption);
        }
    }
    return {};
}

/// The caption of an input's box on the panel of the type.
QString captionOnPanel(const std::string& control, FacilityType type) {
    const auto panel = design::panelInputs(type);
    const auto found = std::ranges::find_if(panel, [&](const design::PanelInput& row) {
        return design::controlName(info(row.input).box, type) == control;
    });
    if (control.empty() || found == panel.end()) {
        return {};
    }
    return inManual(found->caption == nullptr ? info(found->input).caption : found->caption);
}

/// Surface infiltration has no chapter of its own: it has no inputs.
QString chapterOfType(FacilityType type) {
    const int number = static_cast<int>(type) - 1;
    return number < 1 ? QStringLiteral("6") : QStringLiteral("6.%1").arg(number);
}

}  // namespace

qt::ManualPlace manualPlace(const frmCalc& main, const platform::Form& form, const std::string& control) {
    if (&form == &main.areaDialog) {
        return {QStringLiteral("4.2")};
    }
    if (&form == &main.intDialog) {
        return {QStringLiteral("4.3")};
    }
    if (&form == &main.coefDialog) {
        return {QStringLiteral("4.4")};
    }
    switch (main.SSTab1.position()) {
        case kTabInputs:
            return {QStringLiteral("4.1"), captionOnFirstTab(control)};
        case kTabDesign:
            return {chapterOfType(main.SelectedType), captionOnPanel(control, main.SelectedType)};
        case kTabTechnology:
            return {QStringLiteral("10")};
        default:
            return {QStringLiteral("9")};
    }
}

}  // namespace mero::forms
