// SPDX-License-Identifier: MIT
/// Sets the numeric category of the C library's locale.
#include "platform/numbers/numeric_locale.h"

#include <clocale>

namespace mero::numbers {

void useNumericCLocale() {
    // Called at the start, before there is a second thread.
    std::setlocale(LC_NUMERIC, "C");  // NOLINT(concurrency-mt-unsafe)
}

}  // namespace mero::numbers
