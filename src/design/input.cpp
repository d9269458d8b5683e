// SPDX-License-Identifier: MIT
/// Looks up inputs in the table.
#include "design/input.h"

#include "platform/numbers/number_text.h"

namespace mero::design {

std::span<const PanelInput> panelInputs(FacilityType type) {
    return data::withType(type,
                          []<FacilityType of>() -> std::span<const PanelInput> { return table::kPanel<of>; });
}

numbers::NumberField fieldOf(Input input) {
    if (info(input).kind == InputKind::WholeNumber) {
        return numbers::NumberField::Whole;
    }
    const bool filtration = input == Input::Filtration || input == Input::SwaleFiltration;
    return filtration ? numbers::NumberField::WithExponent : numbers::NumberField::Plain;
}

std::string openingText(const PanelInput& input) {
    const InputInfo& row = info(input.input);
    const float opening = row.given == nullptr || input.opens_empty ? 0.0F : row.given(Facility());
    return opening == 0.0F ? "" : numbers::general(opening);
}

}  // namespace mero::design
