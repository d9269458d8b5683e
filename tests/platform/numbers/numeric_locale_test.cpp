// SPDX-License-Identifier: MIT
/// The C library's number texts, set back after somebody has taken the user's locale over.
#include "platform/numbers/numeric_locale.h"

#include <gtest/gtest.h>

#include <clocale>

namespace mero::numbers {
namespace {

TEST(NumericLocale, IsTheCLibrarysOwnWhateverWasSetBefore) {
    // Every system has this one, and it goes by a name of its own.
    ASSERT_NE(std::setlocale(LC_NUMERIC, "C.UTF-8"), nullptr);
    ASSERT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C.UTF-8");
    useNumericCLocale();
    EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
}

}  // namespace
}  // namespace mero::numbers
