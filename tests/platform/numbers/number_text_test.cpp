// SPDX-License-Identifier: MIT
/// Tests of the texts of numbers: strict and lenient reading, fixed, scientific and general texts.
#include "platform/numbers/number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "platform/numbers/runtime_error.h"
#include "support/errors.h"

namespace mero::numbers {
namespace {

using test::errorNumberOf;

TEST(StrictSingle, ReadsPlainNumbers) {
    EXPECT_EQ(strictSingle("0"), 0.0F);
    EXPECT_EQ(strictSingle("12.5"), 12.5F);
    EXPECT_EQ(strictSingle("-3"), -3.0F);
    EXPECT_EQ(strictSingle("-1"), -1.0F);
    EXPECT_EQ(strictSingle("+3"), 3.0F);
    EXPECT_EQ(strictSingle("1."), 1.0F);
    EXPECT_EQ(strictSingle(".5"), 0.5F);
    EXPECT_EQ(strictSingle("-.5"), -0.5F);
    EXPECT_EQ(strictSingle("  7  "), 7.0F);
}

TEST(StrictSingle, ReadsExponentsInBothCases) {
    EXPECT_EQ(strictSingle("1e-5"), 1e-5F);
    EXPECT_EQ(strictSingle("1.0E-05"), 1e-5F);
    EXPECT_EQ(strictSingle("2.5e+2"), 250.0F);
    EXPECT_EQ(strictSingle("1.e3"), 1000.0F);
}

TEST(StrictSingle, ReadsGroupsThatResultFieldsShow) {
    EXPECT_EQ(strictSingle("1 234.5"), 1234.5F);
    EXPECT_EQ(strictSingle("1 2"), 12.0F);
    EXPECT_EQ(strictSingle("-12 345 678"), -12345678.0F);
    EXPECT_EQ(strictSingle(" 1 000 "), 1000.0F);
}

TEST(StrictSingle, RefusesWhatIsNoNumber) {
    const std::vector<std::string> refused = {"",     " ",    "-",     "+",    ".",       "-.",    "e",
                                              "1e",   "1e-",  "1,5",   "1,",   "1:",      "/1",    "x",
                                              "1x",   "1  2", "- 1",   "1 .5", "1. 5",    "1.5 6", "1 e5",
                                              "1e 5", "1e5.", "1.2.3", "0x10", "inf",     "nan",   "--1",
                                              "1-",   "\t1",  "1\n",   "1e5e", "\u00A01", "1e1 0"};
    for (const auto& text : refused) {
        EXPECT_EQ(errorNumberOf([&] { return strictSingle(text); }), 13) << '"' << text << '"';
    }
}

TEST(StrictSingle, OverflowsBeyondTheLargestSingle) {
    EXPECT_EQ(strictSingle("3.4028235e38"), std::numeric_limits<float>::max());
    EXPECT_EQ(errorNumberOf([] { return strictSingle("3.5e38"); }), 6);
    EXPECT_EQ(errorNumberOf([] { return strictSingle("-1e39"); }), 6);
    EXPECT_EQ(errorNumberOf([] { return strictSingle("1e99999999999999999999"); }), 6);
    EXPECT_EQ(errorNumberOf([] { return strictSingle("100000000000000000000000000000000000000000"); }), 6);
    EXPECT_EQ(errorNumberOf([] { return strictSingle("0.001e45"); }), 6);
    EXPECT_EQ(errorNumberOf([] { return strictSingle("." + std::string(60, '0') + "1e120"); }), 6);
    EXPECT_EQ(errorNumberOf([] { return strictSingle("1" + std::string(60, '0') + ".5e-2"); }), 6);
}

TEST(StrictSingle, TakesWhatIsTooSmallForASingleAsZero) {
    EXPECT_EQ(strictSingle("1e-60"), 0.0F);
    EXPECT_EQ(strictSingle("." + std::string(60, '0') + "1"), 0.0F);
    EXPECT_EQ(strictSingle("1" + std::string(60, '0') + "e-120"), 0.0F);
    EXPECT_EQ(strictSingle("1e-99999999999999999999"), 0.0F);
    EXPECT_EQ(strictSingle("0e999"), 0.0F);
    EXPECT_EQ(strictSingle("0.000e99999999999999999999"), 0.0F);
    EXPECT_FALSE(std::signbit(strictSingle("-0")));
    EXPECT_FALSE(std::signbit(strictSingle("-1e-60")));
}

TEST(StrictInteger, RoundsHalvesToEven) {
    EXPECT_EQ(strictInteger("2.5"), 2);
    EXPECT_EQ(strictInteger("3.5"), 4);
    EXPECT_EQ(strictInteger("-2.5"), -2);
    EXPECT_EQ(strictInteger("0.5"), 0);
    EXPECT_EQ(strictInteger("2.500001"), 3);
    EXPECT_EQ(strictInteger("1 000"), 1000);
}

TEST(StrictInteger, KnowsItsRange) {
    EXPECT_EQ(strictInteger("32767"), 32767);
    EXPECT_EQ(strictInteger("32767.4"), 32767);
    EXPECT_EQ(strictInteger("-32768"), -32768);
    EXPECT_EQ(errorNumberOf([] { return strictInteger("32767.5"); }), 6);
    EXPECT_EQ(errorNumberOf([] { return strictInteger("-32769"); }), 6);
    EXPECT_EQ(errorNumberOf([] { return strictInteger("1e400"); }), 6);
    EXPECT_EQ(errorNumberOf([] { return strictInteger("x"); }), 13);
}

TEST(LeadingNumber, TakesTheLongestNumericPart) {
    EXPECT_EQ(leadingNumber("2e"), 2.0);
    EXPECT_EQ(leadingNumber("2e-"), 2.0);
    EXPECT_EQ(leadingNumber("2e-3"), 0.002);
    EXPECT_EQ(leadingNumber("12abc"), 12.0);
    EXPECT_EQ(leadingNumber("12:30"), 12.0);
    EXPECT_EQ(leadingNumber("x"), 0.0);
    EXPECT_EQ(leadingNumber(""), 0.0);
    EXPECT_EQ(leadingNumber("e"), 0.0);
    EXPECT_EQ(leadingNumber("."), 0.0);
    EXPECT_EQ(leadingNumber("-"), 0.0);
    EXPECT_EQ(leadingNumber("1.2.3"), 1.2);
    EXPECT_EQ(leadingNumber("1e5e"), 100000.0);
    EXPECT_EQ(leadingNumber("1,5"), 1.0);
    EXPECT_EQ(leadingNumber("1 234"), 1.0);
    EXPECT_EQ(leadingNumber("  -4.5 m"), -4.5);
    EXPECT_EQ(leadingNumber("0x10"), 0.0);
    EXPECT_EQ(leadingNumber("inf"), 0.0);
}

TEST(LeadingNumber, OverflowsBeyondADouble) {
    EXPECT_EQ(leadingNumber("1e300"), 1e300);
    EXPECT_EQ(errorNumberOf([] { return leadingNumber("1e999"); }), 6);
    EXPECT_EQ(leadingNumber("1e-999"), 0.0);
}

TEST(LeadingNumber, KnowsLargeFromSmallAtTheLimitsOfTheExponentToo) {
    EXPECT_EQ(errorNumberOf([] { return leadingNumber("21e9223372036854775807"); }), 6);
    EXPECT_EQ(leadingNumber("0.01e-9223372036854775808"), 0.0);
}

TEST(Fixed, RoundsHalfAwayFromZeroAsOnPaper) {
    EXPECT_EQ(fixed(2.675F, 2), "2.68");
    EXPECT_EQ(fixed(2.675, 2), "2.68");
    EXPECT_EQ(fixed(-2.675F, 2), "-2.68");
    EXPECT_EQ(fixed(0.25F, 1), "0.3");
    EXPECT_EQ(fixed(0.35F, 1), "0.4");
    EXPECT_EQ(fixed(0.5F, 0), "1");
    EXPECT_EQ(fixed(1.5F, 0), "2");
    EXPECT_EQ(fixed(0.05F, 1), "0.1");
    EXPECT_EQ(fixed(0.04F, 1), "0.0");
    EXPECT_EQ(fixed(9.95F, 1), "10.0");
    EXPECT_EQ(fixed(99.999F, 2), "100.00");
    EXPECT_EQ(fixed(0.96F, 1), "1.0");
}

TEST(Fixed, GroupsByBlanksAndLeadsWithZero) {
    EXPECT_EQ(fixed(1234.5F, 1), "1 234.5");
    EXPECT_EQ(fixed(1234567.0F, 2), "1 234 567.00");
    EXPECT_EQ(fixed(-123456.0F, 0), "-123 456");
    EXPECT_EQ(fixed(999.96F, 1), "1 000.0");
    EXPECT_EQ(fixed(0.1F, 2), "0.10");
    EXPECT_EQ(fixed(12.5F, 2), "12.50");
}

TEST(Fixed, NeverShowsANegativeZero) {
    EXPECT_EQ(fixed(-0.001F, 2), "0.00");
    EXPECT_EQ(fixed(-0.0F, 1), "0.0");
    EXPECT_EQ(fixed(-0.005F, 2), "-0.01");
    EXPECT_EQ(fixed(1e-30F, 2), "0.00");
    EXPECT_EQ(fixed(-1e-30F, 2), "0.00");
    EXPECT_EQ(fixed(0.004F, 1), "0.0");
    EXPECT_EQ(fixed(-0.04F, 1), "0.0");
}

TEST(Fixed, WritesLargeValuesInFull) {
    EXPECT_EQ(fixed(1e10F, 0), "10 000 000 000");
    EXPECT_EQ(fixed(3e38F, 1), "300 000 000 000 000 000 000 000 000 000 000 000 000.0");
}

TEST(Scientific, FollowsThePatterns) {
    EXPECT_EQ(scientific(0.00001F, 1), "1.0E-05");
    EXPECT_EQ(scientific(0.00002F, 2), "2.00E-05");
    EXPECT_EQ(scientific(7e-4, 1), "7.0E-04");
    EXPECT_EQ(scientific(0.00104F, 1), "1.0E-03");
    EXPECT_EQ(scientific(0.00105F, 1), "1.1E-03");
    EXPECT_EQ(scientific(9.96e-5F, 1), "1.0E-04");
    EXPECT_EQ(scientific(1.0F, 1), "1.0E+00");
    EXPECT_EQ(scientific(0.0F, 2), "0.00E+00");
    EXPECT_EQ(scientific(-0.5F, 1), "-5.0E-01");
    EXPECT_EQ(scientific(123456.0F, 1), "1.2E+05");
    EXPECT_EQ(scientific(1e100, 1), "1.0E+100");
    EXPECT_EQ(scientific(1.5e10, 1), "1.5E+10");
    EXPECT_EQ(scientific(0.00104F, 0), "1E-03");
    EXPECT_EQ(scientific(-0.0F, 1), "0.0E+00");
}

TEST(General, IsTheShortestTextThatReadsBack) {
    EXPECT_EQ(general(100.0F), "100");
    EXPECT_EQ(general(0.75F), "0.75");
    EXPECT_EQ(general(131.2F), "131.2");
    EXPECT_EQ(general(0.1F), "0.1");
    EXPECT_EQ(general(-2.5F), "-2.5");
    EXPECT_EQ(general(0.0F), "0");
    EXPECT_EQ(general(-0.0F), "0");
    EXPECT_EQ(general(1234567.0F), "1234567");
}

TEST(General, HasNoExponentForWhatPeopleEnter) {
    EXPECT_EQ(general(0.00001F), "0.00001");
    EXPECT_EQ(general(10000000.0F), "10000000");
    EXPECT_EQ(general(0.0000012F), "1.2E-06");
    EXPECT_EQ(general(1e-7F), "1E-07");
    EXPECT_EQ(general(12000000.0F), "1.2E+07");
    EXPECT_EQ(general(20000000.0F), "2E+07");
    EXPECT_EQ(general(3e38F), "3E+38");
    EXPECT_EQ(general(1.25e-10), "1.25E-10");
}

TEST(NumberTexts, RefuseWhatIsNotFinite) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(errorNumberOf([] { return fixed(kInfinity, 2); }), 6);
    EXPECT_EQ(errorNumberOf([] { return scientific(-kInfinity, 2); }), 6);
    EXPECT_EQ(errorNumberOf([] { return general(kNaN); }), 6);
}

TEST(General, ReadsBackToTheSameSingle) {
    for (const float value : {1.0F / 3.0F, 428.5714F, 1e-38F, 3.4028235e38F, 16777217.0F, 7.0e-5F}) {
        EXPECT_EQ(strictSingle(general(value)), value);
    }
}

TEST(General, WritesIntegersAsPlainDigits) {
    EXPECT_EQ(general(0), "0");
    EXPECT_EQ(general(-32768), "-32768");
    EXPECT_EQ(general(1000000), "1000000");
}

}  // namespace
}  // namespace mero::numbers
