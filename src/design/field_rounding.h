// SPDX-License-Identifier: MIT
/// What a result field makes of a number: the field shows it, and its change rule stores what it shows.
/// The same as writing the text and reading it back strictly, without making the text.
#pragma once

#include "design/quantity.h"

namespace mero::design {

/// The Single that a field with one or two decimals stores back: strictSingle(fixed(value, decimals)).
[[nodiscard]] float throughField1(float value);
[[nodiscard]] float throughField2(float value);

/// The same for the pattern "0.0E+00": strictSingle(scientific(value, 1)).
[[nodiscard]] float throughScientificField(float value);

/// What a field stores back that shows 1 or 2 decimals, or the scientific pattern (kScientific).
[[nodiscard]] inline float throughField(float value, int decimals) {
    if (decimals == kScientific) {
        return throughScientificField(value);
    }
    return decimals == 1 ? throughField1(value) : throughField2(value);
}

}  // namespace mero::design
