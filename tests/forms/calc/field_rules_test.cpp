// SPDX-License-Identifier: MIT
// From the text of a field to its stored value: numbers, refused texts, overflow, filtration coefficients.
#include "forms/calc/field_rules.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/controls/form.h"
#include "support/errors.h"

namespace mero::forms {
namespace {

struct FieldRulesTest : testing::Test {
    FieldRulesTest() {
        box.changed = [this] {
            ++changes;
            rule();
        };
    }
    /// The text that the field shows after the user made it `text`.
    std::string enter(const std::string& text) {
        box.userEdit(text);
        return box.text();
    }

    platform::Form form{"frm", "Form"};
    platform::TextBox box{form, "txt"};
    int changes = 0;
    std::function<void()> rule;
};

struct NumberFieldTest : FieldRulesTest {
    NumberFieldTest() {
        rule = [this] { storeNumber(box, stored); };
    }
    float stored = 7;
};

TEST_F(NumberFieldTest, ANumberIsStored) {
    EXPECT_EQ(enter("2.5"), "2.5");
    EXPECT_EQ(stored, 2.5F);
    enter("-3");
    EXPECT_EQ(stored, -3.0F) << "there is no range check";
    enter("1e3");
    EXPECT_EQ(stored, 1000.0F);
    enter("1 234.5");
    EXPECT_EQ(stored, 1234.5F) << "results come back grouped";
}

TEST_F(NumberFieldTest, EmptyStoresZero) {
    enter("2");
    enter("");
    EXPECT_EQ(stored, 0.0F);
    EXPECT_EQ(changes, 2);
}

TEST_F(NumberFieldTest, WhatIsNoNumberEmptiesTheFieldWhichStoresZero) {
    for (const char* text : {"1,", "x", "-", ".", "1,5", "1 234,5", "1e", "--1", "1.2.3", "🌧️", " ",
                             "nan", "inf", "0x10"}) {
        enter("7");
        changes = 0;
        EXPECT_EQ(enter(text), "") << text;
        EXPECT_EQ(stored, 0.0F) << text;
        EXPECT_EQ(changes, 2) << text << ": once as typed, once for the emptying";
    }
}

TEST_F(NumberFieldTest, OverflowIsIgnoredAndKeepsTheStoredValue) {
    enter("12");
    EXPECT_EQ(enter("1e39"), "1e39");
    EXPECT_EQ(stored, 12.0F);
    EXPECT_EQ(enter(std::string(300, '9')), std::string(300, '9'));
    EXPECT_EQ(stored, 12.0F);
}

TEST_F(NumberFieldTest, AVerySmallNumberIsZeroNotAnError) {
    enter("1e-60");
    EXPECT_EQ(stored, 0.0F);
    EXPECT_EQ(box.text(), "1e-60");
}

struct CountFieldTest : FieldRulesTest {
    CountFieldTest() {
        rule = [this] { storeNumber(box, stored); };
    }
    std::int16_t stored = 7;
};

TEST_F(CountFieldTest, HalvesGoToTheEvenNeighbour) {
    enter("2.5");
    EXPECT_EQ(stored, 2);
    enter("3.5");
    EXPECT_EQ(stored, 4);
    enter("-0.5");
    EXPECT_EQ(stored, 0);
}

TEST_F(CountFieldTest, OutOfSixteenBitsKeepsTheStoredValue) {
    enter("32767");
    EXPECT_EQ(stored, 32767);
    EXPECT_EQ(enter("32768"), "32768");
    EXPECT_EQ(stored, 32767);
    enter("-32768");
    EXPECT_EQ(stored, -32768);
}

TEST_F(CountFieldTest, ALetterEmptiesIt) {
    EXPECT_EQ(enter("3x"), "");
    EXPECT_EQ(stored, 0);
}

struct FiltrationFieldTest : FieldRulesTest {
    FiltrationFieldTest() {
        rule = [this] { storeFiltration(box, stored); };
    }
    float stored = 7;
};

TEST_F(FiltrationFieldTest, AnExponentIsTypedKeyByKey) {
    EXPECT_EQ(enter("1"), "1");
    EXPECT_EQ(stored, 1.0F);
    EXPECT_EQ(enter("1e"), "1e");
    EXPECT_EQ(stored, 1.0F);
    EXPECT_EQ(enter("1e-"), "1e-");
    EXPECT_EQ(stored, 1.0F);
    EXPECT_EQ(enter("1e-5"), "1e-5");
    EXPECT_EQ(stored, 1e-5F);
    EXPECT_EQ(changes, 4);
}

TEST_F(FiltrationFieldTest, OnlyTheSmallEKeepsAnUnfinishedText) {
    EXPECT_EQ(enter("1.0E-05"), "1.0E-05");
    EXPECT_EQ(stored, 1e-5F);
    EXPECT_EQ(enter("1.0E-0"), "1.0E-0");
    EXPECT_EQ(stored, 1.0F);
    EXPECT_EQ(enter("1.0E-"), "") << "the capital E is not searched for";
    EXPECT_EQ(stored, 0.0F);
    EXPECT_EQ(enter("1.0e-"), "1.0e-");
    EXPECT_EQ(stored, 1.0F);
}

TEST_F(FiltrationFieldTest, TextsWithAnEAreKeptWithTheirLeadingNumber) {
    EXPECT_EQ(enter("e"), "e");
    EXPECT_EQ(stored, 0.0F);
    EXPECT_EQ(enter("písek jemný"), "písek jemný");
    EXPECT_EQ(stored, 0.0F);
    EXPECT_EQ(enter("2.5e-4 m/s"), "2.5e-4 m/s");
    EXPECT_EQ(stored, 2.5e-4F);
    EXPECT_EQ(enter("1,5e-4"), "1,5e-4");
    EXPECT_EQ(stored, 1.0F);
}

TEST_F(FiltrationFieldTest, TextsWithoutAnEEmptyTheField) {
    for (const char* text : {"x", "1,", "-", "1.2.3"}) {
        enter("3");
        EXPECT_EQ(enter(text), "") << text;
        EXPECT_EQ(stored, 0.0F) << text;
    }
}

TEST_F(FiltrationFieldTest, OverflowIsIgnored) {
    enter("2");
    EXPECT_EQ(enter("1e39"), "1e39");
    EXPECT_EQ(stored, 2.0F);
    EXPECT_EQ(enter("1e39e"), "1e39e") << "also in the leading number of an unfinished text";
    EXPECT_EQ(stored, 2.0F);
}

TEST_F(FiltrationFieldTest, LeavingFormatsWhatIsAboveZero) {
    enter("0.00001");
    formatFiltration(box, stored);
    EXPECT_EQ(box.text(), "1.0E-05");
    EXPECT_EQ(stored, 1e-5F);
    enter("0.000256");
    changes = 0;
    formatFiltration(box, stored);
    EXPECT_EQ(box.text(), "2.6E-04");
    EXPECT_EQ(changes, 1) << "the new text passes through the rule again";
    EXPECT_EQ(stored, 2.6e-4F);
    enter("5e");
    formatFiltration(box, stored);
    EXPECT_EQ(box.text(), "5.0E+00");
}

TEST_F(FiltrationFieldTest, LeavingChangesNothingAtZeroOrBelow) {
    for (const char* text : {"e", "-1", "0", "0.0", "-2e-5", "ne"}) {
        enter(text);
        changes = 0;
        formatFiltration(box, stored);
        EXPECT_EQ(box.text(), text);
        EXPECT_EQ(changes, 0) << text;
    }
    enter("");
    formatFiltration(box, stored);
    EXPECT_EQ(box.text(), "");
}

TEST_F(FiltrationFieldTest, LeavingAsksTheTextNotTheStoredValue) {
    // Another member, or the soil dialog, may have stored a value that this field does not show.
    box.showText("");
    stored = 5;
    formatFiltration(box, stored);
    EXPECT_EQ(box.text(), "");
    box.showText("0");
    formatFiltration(box, stored);
    EXPECT_EQ(box.text(), "0");
    box.showText("1e39");
    stored = 0;
    formatFiltration(box, stored);
    EXPECT_EQ(box.text(), "0.0E+00") << "above zero, but never stored";
}

}  // namespace
}  // namespace mero::forms
