// SPDX-License-Identifier: MIT
/// Keeps the decimal point in number texts of the C library, for libraries that use it.
#pragma once

namespace mero::numbers {

/// Sets the numeric category of the C library's locale to "C". Call it again after anything that sets the
/// process's locale to the user's, such as creating Qt's application object.
void useNumericCLocale();

}  // namespace mero::numbers
