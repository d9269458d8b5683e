// SPDX-License-Identifier: MIT
/// How the text of a numeric field becomes its stored value, shared by all fields of the main window.
/// Bad typing is answered silently: the field is emptied, and the emptying stores 0.
#pragma once

#include <cstdint>
#include <string>

#include "platform/controls/text_box.h"

namespace mero::forms {

/// Numeric field: empty stores 0, a number is stored, a text that is no number empties the field, a number
/// out of range leaves the stored value as it was.
void storeNumber(platform::TextBox& box, float& stored);
/// The same for a whole number (halves to even).
void storeNumber(platform::TextBox& box, std::int16_t& stored);

/// Filtration coefficient: as a number, but a text with a lower-case "e" that is not yet a number stays as
/// typed and stores its leading number ("1e-" on the way to "1e-5").
void storeFiltration(platform::TextBox& box, float& stored);

/// Leaving a filtration coefficient: a text above 0 becomes the stored value as "0.0E+00".
void formatFiltration(platform::TextBox& box, const float& stored);

}  // namespace mero::forms
