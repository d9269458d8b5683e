// SPDX-License-Identifier: MIT
/// The C library's own number texts, for libraries that use it: always with a decimal point.
#pragma once

namespace mero::numbers {

/// Sets the numeric category of the C library's locale to "C". To be called again after anything that takes
/// the user's locale over for the process, such as creating the window system's application object.
void useNumericCLocale();

}  // namespace mero::numbers
