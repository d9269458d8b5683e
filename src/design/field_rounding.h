// SPDX-License-Identifier: MIT
/// What a result field makes of a number: the field shows it, and its change rule stores what it shows.
/// The same as writing the text and reading it back strictly, without making the text.
#pragma once

#include "design/quantity.h"

namespace mero::design {

/// The Single that a field stores back which shows 1 or 2 decimals: strictSingle(fixed(value, decimals)), or
/// the pattern "0.0E+00" (kScientific): strictSingle(scientific(value, 1)).
[[nodiscard]] float throughField(float value, int decimals);

}  // namespace mero::design
