// SPDX-License-Identifier: MIT
/// The numeric category of the C library's locale is reset after the process's locale was set to the user's.
#include "platform/numbers/numeric_locale.h"

#include <gtest/gtest.h>

#include <clocale>

namespace mero::numbers {
namespace {

TEST(NumericLocale, IsTheCLibrarysOwnWhateverWasSetBefore) {
    // Every system has this locale, and its name differs from "C".
    ASSERT_NE(std::setlocale(LC_NUMERIC, "C.UTF-8"), nullptr);
    ASSERT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C.UTF-8");
    useNumericCLocale();
    EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
}

}  // namespace
}  // namespace mero::numbers
