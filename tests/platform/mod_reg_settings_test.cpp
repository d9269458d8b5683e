// SPDX-License-Identifier: MIT
// The locale guard: the order of the items, exact restoring, and the three error texts.
#include "platform/mod_reg_settings.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/fake_locale.h"
#include "support/recording_desk.h"

namespace mero::platform {
namespace {

using Lines = std::vector<std::string>;

struct ModRegSettingsTest : testing::Test {
    test::FakeLocale locale;
    test::RecordingDesk desk;
    modRegSettings settings{locale, desk};
};

TEST_F(ModRegSettingsTest, GetAsksSizeAndTextOfDecimalThousandsListInThisOrder) {
    settings.Get_locale();
    EXPECT_EQ(locale.calls, (Lines{"locale", "size 1029 14", "read 1029 14", "size 1029 15", "read 1029 15",
                                   "size 1029 12", "read 1029 12"}));
    EXPECT_EQ(settings.localeIdentifier(), 1029);
    EXPECT_EQ(settings.savedDecimal(), ",");
    EXPECT_EQ(settings.savedThousands(), "\xC2\xA0");
    EXPECT_EQ(settings.savedList(), ";");
    EXPECT_TRUE(desk.lines.empty());
}

TEST_F(ModRegSettingsTest, SetAndRestoreWriteInTheSameOrder) {
    settings.Get_locale();
    locale.calls.clear();
    settings.Set_locale();
    EXPECT_EQ(locale.calls, (Lines{"write 1029 14 '.'", "write 1029 15 ' '", "write 1029 12 ','"}));
    locale.calls.clear();
    settings.Restore_Locale();
    EXPECT_EQ(locale.calls, (Lines{"write 1029 14 ','", "write 1029 15 '\xC2\xA0'", "write 1029 12 ';'"}));
}

TEST_F(ModRegSettingsTest, SymbolsOfSeveralCharactersAndEmptyOnesComeBackExactly) {
    const std::map<LocaleItem, std::string> users{{LocaleItem::DecimalSeparator, ",,"},
                                                  {LocaleItem::ThousandsSeparator, " ' "},
                                                  {LocaleItem::ListSeparator, ""}};
    locale.texts = users;
    settings.Get_locale();
    settings.Set_locale();
    EXPECT_EQ(locale.texts.at(LocaleItem::DecimalSeparator), ".");
    EXPECT_EQ(locale.texts.at(LocaleItem::ThousandsSeparator), " ");
    EXPECT_EQ(locale.texts.at(LocaleItem::ListSeparator), ",");
    settings.Restore_Locale();
    EXPECT_EQ(locale.texts, users);
}

TEST_F(ModRegSettingsTest, ATextIsCutAtItsFirstZero) {
    locale.texts[LocaleItem::ThousandsSeparator] = std::string("a\0b", 3);
    settings.Get_locale();
    EXPECT_EQ(settings.savedThousands(), "a");
}

TEST_F(ModRegSettingsTest, AFailureOfGetIsShownAndLeavesTheRestUnread) {
    locale.fails_at = 4;  // the size of the thousands separator
    settings.Get_locale();
    EXPECT_EQ(desk.takeBoxes(),
              std::vector{test::plain("Error 5 (nejde to) in procedure Get_locale of Module Module1")});
    EXPECT_EQ(settings.savedDecimal(), ",");
    EXPECT_EQ(settings.savedThousands(), "");
    EXPECT_EQ(settings.savedList(), "");
    EXPECT_EQ(locale.calls.size(), 4U);
}

TEST_F(ModRegSettingsTest, AFailureOfSetIsShownAndLeavesTheRestUnset) {
    settings.Get_locale();
    locale.fails_at = 9;  // the thousands separator
    settings.Set_locale();
    EXPECT_EQ(desk.lines, (Lines{"none: Error 5 (nejde to) in procedure Set_locale of Module Module1"}));
    EXPECT_EQ(locale.texts.at(LocaleItem::DecimalSeparator), ".");
    EXPECT_EQ(locale.texts.at(LocaleItem::ThousandsSeparator), "\xC2\xA0");
    EXPECT_EQ(locale.texts.at(LocaleItem::ListSeparator), ";");
}

TEST_F(ModRegSettingsTest, AFailureOfRestoreIsShownUnderItsOwnName) {
    settings.Get_locale();
    settings.Set_locale();
    locale.fails_at = 11;
    settings.Restore_Locale();
    EXPECT_EQ(desk.lines, (Lines{"none: Error 5 (nejde to) in procedure Restore_Locale of Module Module1"}));
    EXPECT_EQ(locale.texts.at(LocaleItem::DecimalSeparator), ".");
}

TEST_F(ModRegSettingsTest, AnIdentifierThatNeedsMoreThan16BitsOverflows) {
    locale.identifier = 32768;
    settings.Get_locale();
    EXPECT_EQ(desk.lines, (Lines{"none: Error 6 (Přetečení: hodnota je mimo rozsah) in procedure Get_locale "
                                 "of Module Module1"}));
    EXPECT_EQ(locale.calls, (Lines{"locale"}));
}

TEST_F(ModRegSettingsTest, TheLargestIdentifierOf16BitsIsKept) {
    locale.identifier = 32767;
    settings.Get_locale();
    EXPECT_EQ(settings.localeIdentifier(), 32767);
    EXPECT_TRUE(desk.lines.empty());
}

}  // namespace
}  // namespace mero::platform
