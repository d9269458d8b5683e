// SPDX-License-Identifier: MIT
/// Switching the C library's number texts.
#include "platform/numbers/numeric_locale.h"

#include <clocale>

namespace mero::numbers {

void useNumericCLocale() {
    // Called at the start, before there is a second thread.
    std::setlocale(LC_NUMERIC, "C");  // NOLINT(concurrency-mt-unsafe)
}

}  // namespace mero::numbers
