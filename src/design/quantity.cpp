// SPDX-License-Identifier: MIT
/// Looks up results in the table, and writes their numbers as the boxes do.
#include "design/quantity.h"

#include "platform/numbers/number_text.h"

namespace mero::design {

const ResultBox* resultBox(Quantity quantity, FacilityType type) {
    const auto boxes = resultBoxes(type);
    const auto found =
        std::ranges::find_if(boxes, [&](const ResultBox& box) { return box.quantity == quantity; });
    return found == boxes.end() ? nullptr : &*found;
}

std::string controlName(std::string_view box, FacilityType type) {
    std::string name(box);
    if (const std::size_t at = name.find('#'); at != std::string::npos) {
        name.replace(at, 1, numbers::general(static_cast<int>(type)));
    }
    return name;
}

const char* captionOf(Quantity quantity, FacilityType type) {
    const ResultBox* box = resultBox(quantity, type);
    return box != nullptr && box->caption != nullptr ? box->caption : info(quantity).caption;
}

const char* reportLabel(Quantity quantity, FacilityType type) {
    const ResultBox* box = resultBox(quantity, type);
    if (box != nullptr && box->reported != nullptr) {
        return box->reported;
    }
    const char* reported = info(quantity).reported;
    return reported != nullptr ? reported : captionOf(quantity, type);
}

std::string boxText(Quantity quantity, FacilityType type, float value) {
    switch (const int decimals = table::kDecimals[data::index(type)][index(quantity)]) {
        case kGeneral:
        case kNoResult:
            return numbers::general(value);
        case kScientific:
            return numbers::scientific(value, 1);
        default:
            return numbers::fixed(value, decimals);
    }
}

}  // namespace mero::design
