// SPDX-License-Identifier: MIT
// This program's separators: the initial ones come from the environment, and setting them does not affect it.
#include "platform/locale_settings.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <string>
#include <vector>

#include "support/errors.h"

namespace mero::platform {
namespace {

std::string read(ProgramLocale& locale, LocaleItem item) {
    std::vector<char> buffer(locale.read(0, item, {}), 'x');
    EXPECT_EQ(locale.read(0, item, buffer), buffer.size());
    EXPECT_EQ(buffer.back(), '\0');
    return {buffer.begin(), buffer.end() - 1};
}

TEST(ProgramLocale, TheIdentifiersAreThePlatforms) {
    EXPECT_EQ(static_cast<int>(LocaleItem::DecimalSeparator), 14);
    EXPECT_EQ(static_cast<int>(LocaleItem::ThousandsSeparator), 15);
    EXPECT_EQ(static_cast<int>(LocaleItem::ListSeparator), 12);
}

TEST(ProgramLocale, ASizeIsToldWithTheClosingZero) {
    ProgramLocale locale(",", "", "; ");
    EXPECT_EQ(locale.read(0, LocaleItem::DecimalSeparator, {}), 2U);
    EXPECT_EQ(locale.read(0, LocaleItem::ThousandsSeparator, {}), 1U);
    EXPECT_EQ(locale.read(0, LocaleItem::ListSeparator, {}), 3U);
}

TEST(ProgramLocale, GivesBackWhatWasWritten) {
    ProgramLocale locale(",", "\xC2\xA0", ";");
    EXPECT_EQ(read(locale, LocaleItem::ThousandsSeparator), "\xC2\xA0");
    locale.write(0, LocaleItem::ThousandsSeparator, "");
    EXPECT_EQ(read(locale, LocaleItem::ThousandsSeparator), "");
    EXPECT_EQ(locale.text(LocaleItem::DecimalSeparator), ",");
}

TEST(ProgramLocale, ABufferThatIsTooSmallIsAnError) {
    ProgramLocale locale("::", "", ";");
    std::vector<char> small(2);
    EXPECT_EQ(test::errorNumberOf([&] { return locale.read(0, LocaleItem::DecimalSeparator, small); }), 5);
}

TEST(ProgramLocale, TheIdentifierFitsIn16Bits) {
    EXPECT_GT(ProgramLocale().userDefaultLocale(), 0);
    EXPECT_LE(ProgramLocale().userDefaultLocale(), 32767);
}

TEST(ProgramLocale, StartsAsTheUsersEnvironmentHasIt) {
    const char* before = std::getenv("LC_ALL");
    const std::string kept = before == nullptr ? "" : before;
    ::setenv("LC_ALL", "C", 1);
    const ProgramLocale plain;
    ::setenv("LC_ALL", "cs_CZ.UTF-8", 1);
    const ProgramLocale czech;
    if (before == nullptr) {
        ::unsetenv("LC_ALL");
    } else {
        ::setenv("LC_ALL", kept.c_str(), 1);
    }
    EXPECT_EQ(plain.text(LocaleItem::DecimalSeparator), ".");
    EXPECT_EQ(plain.text(LocaleItem::ListSeparator), ",");
    // If the machine does not have that locale, its separators are unknown and the defaults are used.
    if (czech.text(LocaleItem::DecimalSeparator) == ",") {
        EXPECT_EQ(czech.text(LocaleItem::ListSeparator), ";");
        EXPECT_NE(czech.text(LocaleItem::ThousandsSeparator), "");
    } else {
        EXPECT_EQ(czech.text(LocaleItem::DecimalSeparator), ".");
    }
}

TEST(ProgramLocale, LeavesTheProcesssLocaleAlone) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    ProgramLocale locale;
    locale.write(0, LocaleItem::DecimalSeparator, "!");
    EXPECT_EQ(std::setlocale(LC_ALL, nullptr), before);
}

}  // namespace
}  // namespace mero::platform
