// SPDX-License-Identifier: MIT
/// Numbers as people write and copy them.
#include "platform/numbers/entered_number.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/numbers/number_text.h"
#include "platform/numbers/printed_entries.h"

namespace mero::numbers {
namespace {

const Entered kEmpty = NotTaken::Empty;
const Entered kNoNumber = NotTaken::NoNumber;
const Entered kSeveral = NotTaken::SeveralNumbers;
const Entered kTwoSeparators = NotTaken::TwoSeparators;
const Entered kPowerOfTen = NotTaken::PowerOfTen;
const Entered kOtherUnit = NotTaken::OtherUnit;

Entered number(const char* text) {
    return std::string(text);
}

struct Case {
    const char* text;
    const char* number;
};

void expectAll(const std::vector<Case>& cases, std::string_view unit = {}) {
    for (const Case& each : cases) {
        EXPECT_EQ(enteredNumber(each.text, unit), number(each.number)) << each.text;
    }
}

void expectNone(const std::vector<const char*>& texts, const Entered& reason, std::string_view unit = {}) {
    for (const char* text : texts) {
        EXPECT_EQ(enteredNumber(text, unit), reason) << text;
    }
}

TEST(EnteredNumber, LeavesPlainNumbersAsTheyAre) {
    expectAll({{"0", "0"}, {"12.5", "12.5"}, {"007", "007"}, {"1200.50", "1200.50"}, {"1.200", "1.200"}});
}

TEST(EnteredNumber, TakesADecimalComma) {
    expectAll(
        {{"0,0001", "0.0001"}, {"0,8", "0.8"}, {"1,5", "1.5"}, {",5", "0.5"}, {".5", "0.5"}, {"5,", "5"}});
}

TEST(EnteredNumber, ASingleCommaIsDecimalBeforeThreeDigitsToo) {
    expectAll({{"1,200", "1.200"}, {"0,250", "0.250"}, {"12,345", "12.345"}});
}

TEST(EnteredNumber, DropsBlanksOfAnyKindThatGroupDigits) {
    expectAll({{"1 200", "1200"},
               {"1\u00A0200", "1200"},
               {"1\u202F200", "1200"},
               {"1\u2009200", "1200"},
               {"1\u2007200,5", "1200.5"},
               {"12 345 678", "12345678"},
               {"1 200,5 m²", "1200.5"}},
              "m²");
}

TEST(EnteredNumber, DropsWhatSurroundsANumber) {
    expectAll({{"  7 ", "7"},
               {"\u00A07\u00A0", "7"},
               {"\t7\t", "7"},
               {"7\n", "7"},
               {"7\r\n", "7"},
               {"\r\n7\r\n\r\n", "7"},
               {"\uFEFF7\u200B", "7"}});
}

TEST(EnteredNumber, TakesSigns) {
    expectAll({{"+3", "3"}, {"-3", "-3"}, {"\u22123,5", "-3.5"}, {"\u20133", "-3"}, {"+1 200", "1200"}});
}

TEST(EnteredNumber, TakesExponents) {
    expectAll({{"1E-4", "1e-4"},
               {"1,5e-4", "1.5e-4"},
               {"2.0E-04", "2.0e-04"},
               {"1e+3", "1e3"},
               {"1e3", "1e3"},
               {"1,5e\u22124", "1.5e-4"}});
}

TEST(EnteredNumber, TakesPowersOfTenThatSayThatTheyAre) {
    expectAll({{"2×10⁻⁵", "2e-5"},
               {"2·10⁻⁵", "2e-5"},
               {"1,5 × 10⁻⁴", "1.5e-4"},
               {"2*10^-5", "2e-5"},
               {"2x10^-5", "2e-5"},
               {"10⁻⁵", "1e-5"},
               {"2×10⁻⁵ m/s", "2e-5"}},
              "m/s");
}

TEST(EnteredNumber, RefusesPowersThatMayHaveLostTheirSuperscript) {
    expectNone({"2.10-5", "2,10-5", "2×10-5", "2·10-5", "2x10-5", "2.10^-5", "2.10⁻⁵", "10-5", "2×105"},
               kPowerOfTen);
}

TEST(EnteredNumber, DropsTheFieldsUnitInAnySpelling) {
    expectAll({{"1200 m²", "1200"}, {"1200m2", "1200"}, {"1200 m^2", "1200"}, {"1\u00A0200\u00A0m²", "1200"}},
              "m²");
    expectAll({{"434 l/(s.ha)", "434"},
               {"434 l/s.ha", "434"},
               {"434 l/(s·ha)", "434"},
               {"434 l/s/ha", "434"},
               {"434 l·s⁻¹·ha⁻¹", "434"}},
              "l/s.ha");
    expectAll({{"434 l/s.ha", "434"}}, "l/(s.ha)");
    expectAll({{"2,5e-4 m/s", "2.5e-4"}, {"2,5e-4 m·s⁻¹", "2.5e-4"}, {"0.0002 m.s⁻¹", "0.0002"}}, "m/s");
    expectAll({{"50 cm²/m", "50"}, {"50 cm2/m", "50"}}, "cm²/m");
    expectAll({{"15 min", "15"}, {"15 min.", "15"}}, "min");
    expectAll({{"5 l/s", "5"}, {"5 L/s", "5"}}, "l/s");
    expectAll({{"0,5 m", "0.5"}, {"0.5m", "0.5"}}, "m");
    expectAll({{"160 mm", "160"}}, "mm");
    expectAll({{"12 m3", "12"}, {"12 m³", "12"}}, "m³");
}

TEST(EnteredNumber, RefusesAUnitThatIsNotTheFields) {
    expectNone({"500 mm", "50 cm", "5 m²", "5 m/s"}, kOtherUnit, "m");
    expectNone({"0,5 m"}, kOtherUnit, "mm");
    expectNone({"50 %", "5 m"}, kOtherUnit);
    expectNone({"0,12 ha"}, kOtherUnit, "m²");
}

TEST(EnteredNumber, TakesTheRatioOfASlope) {
    expectAll({{"1:2", "2"}, {"1 : 2,5", "2.5"}, {"2", "2"}, {"1", "1"}}, "1 : n");
    expectNone({"1:2"}, kNoNumber);
}

TEST(EnteredNumber, RefusesTwoSeparators) {
    expectNone({"1.200,5", "1,200.5", "1.200.000", "1,200,000", "1..5", "0,,5", "1.2.3"}, kTwoSeparators);
}

TEST(EnteredNumber, RefusesSeveralNumbers) {
    expectNone(
        {"434\n320\n253", "434\r\n320", "434\t320", "12 34", "1  200", "1200 300", "0.9 100", "0,125 300"},
        kSeveral);
}

TEST(EnteredNumber, RefusesWhatIsNoNumber) {
    expectNone({"x", "12abc", "-", ".", ",", "+", "1e", "1e-", "e5", "--5", "1'200", "5 kusů", "=A1", "inf",
                "nan", "12-5", "1/2"},
               kNoNumber);
}

TEST(EnteredNumber, RefusesNothingAtAll) {
    expectNone({"", " ", "\n", "\t\r\n", "\u00A0"}, kEmpty);
}

TEST(EnteredNumber, RefusesWhatASingleDoesNotHold) {
    expectNone({"1e39", "400000000000000000000000000000000000000", "-1e39", "1e999999999999"},
               NotTaken::TooLarge);
    expectNone({"1e-60", "0,0000000000000000000000000000000000000000000000000001"}, NotTaken::TooSmall);
    expectAll({{"0e-60", "0e-60"}, {"0,000", "0.000"}});
}

TEST(EnteredNumber, GivesANumberThatIsReadStrictly) {
    for (const char* text : {"1 200,5", "+,5", "5,", "1,5E-4", "2×10⁻⁵", "-0,5"}) {
        EXPECT_NO_THROW((void)strictSingle(std::get<std::string>(enteredNumber(text)))) << text;
    }
}

TEST(WithoutExponent, MovesThePoint) {
    const auto expect = [](const char* number, const char* plain) {
        EXPECT_EQ(withoutExponent(number), plain);
    };
    expect("12.5", "12.5");
    expect("1.5e-4", "0.00015");
    expect("1e-7", "0.0000001");
    expect("1.25e1", "12.5");
    expect("1.25e2", "125");
    expect("1e3", "1000");
    expect("0.5e1", "5");
    expect("120e-1", "12.0");
    expect("-2.5e-1", "-0.25");
    expect("0e5", "0");
    expect("0.0e-999999999", "0");
    expect("2.0e00", "2.0");
}

TEST(Unit, IsKnownInItsSpellings) {
    for (const char* unit : {"m", "m²", "m2", "m^2", "m³", "mm", "m/s", "m³/s", "l/s", "l/(s.ha)", "l/s.ha",
                             "min", "h", "cm²/m", "%"}) {
        EXPECT_TRUE(isUnit(unit)) << unit;
    }
    for (const char* text : {"", "kusů", "m4", "e", "l/"}) {
        EXPECT_FALSE(isUnit(text)) << text;
    }
}

}  // namespace
}  // namespace mero::numbers
