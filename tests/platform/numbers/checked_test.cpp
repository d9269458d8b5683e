// SPDX-License-Identifier: MIT
/// Tests of the checked arithmetic and of the run-time errors that it raises.
#include "platform/numbers/checked.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "support/errors.h"

namespace mero::numbers {
namespace {

using test::errorNumberOf;

TEST(ToSingle, RoundsToTheNearestSingle) {
    EXPECT_EQ(toSingle(0.1), 0.1F);
    EXPECT_EQ(toSingle(16777217.0), 16777216.0F);
}

TEST(ToSingle, OverflowsInsteadOfInfinity) {
    EXPECT_EQ(errorNumberOf([] { return toSingle(1e39); }), 6);
    EXPECT_EQ(errorNumberOf([] { return toSingle(-1e39); }), 6);
    EXPECT_EQ(errorNumberOf([] { return toSingle(std::numeric_limits<double>::infinity()); }), 6);
    EXPECT_EQ(errorNumberOf([] { return toSingle(std::numeric_limits<double>::quiet_NaN()); }), 6);
}

TEST(Divide, RefusesAZeroDivisor) {
    EXPECT_EQ(divide(1.0, 4.0), 0.25);
    EXPECT_EQ(errorNumberOf([] { return divide(1.0, 0.0); }), 11);
    EXPECT_EQ(errorNumberOf([] { return divide(0.0, -0.0); }), 11);
    EXPECT_EQ(errorNumberOf([] { return divide(1e300, 1e-300); }), 6);
}

TEST(DivideOfSingles, RefusesAZeroDivisorAndNeedsNoMore) {
    EXPECT_EQ(divideOfSingles(1.0, 4.0), 0.25);
    EXPECT_EQ(errorNumberOf([] { return divideOfSingles(1.0, 0.0); }), 11);
    EXPECT_EQ(errorNumberOf([] { return divideOfSingles(0.0, -0.0); }), 11);
    // The largest product of three Singles over the smallest of two is still a double.
    constexpr double kLargest = std::numeric_limits<float>::max();
    constexpr double kSmallest = std::numeric_limits<float>::denorm_min();
    EXPECT_TRUE(std::isfinite(divideOfSingles(kLargest * kLargest * kLargest, kSmallest * kSmallest)));
}

TEST(SquareRoot, RefusesNegativeValues) {
    EXPECT_EQ(squareRoot(6.25), 2.5);
    EXPECT_EQ(squareRoot(0.25), 0.5);
    EXPECT_EQ(squareRoot(0.0), 0.0);
    EXPECT_EQ(errorNumberOf([] { return squareRoot(-1e-9); }), 5);
    EXPECT_EQ(errorNumberOf([] { return squareRoot(std::numeric_limits<double>::quiet_NaN()); }), 5);
}

TEST(ToInteger, RoundsHalvesToEvenWithinSixteenBits) {
    EXPECT_EQ(toInteger(0.4), 0);
    EXPECT_EQ(toInteger(2.5), 2);
    EXPECT_EQ(toInteger(3.5), 4);
    EXPECT_EQ(toInteger(32767.4), 32767);
    EXPECT_EQ(toInteger(-32768.0), -32768);
    EXPECT_EQ(errorNumberOf([] { return toInteger(-32769.0); }), 6);
    EXPECT_EQ(errorNumberOf([] { return toInteger(32768.0); }), 6);
    EXPECT_EQ(errorNumberOf([] { return toInteger(std::numeric_limits<double>::quiet_NaN()); }), 6);
}

TEST(RuntimeErrors, EachNumberHasItsDescription) {
    EXPECT_STREQ(describe(ErrorNumber::InvalidCall), "Neplatná hodnota argumentu");
    EXPECT_STREQ(describe(ErrorNumber::Overflow), "Přetečení: hodnota je mimo rozsah");
    EXPECT_STREQ(describe(ErrorNumber::SubscriptOutOfRange), "Index je mimo rozsah");
    EXPECT_STREQ(describe(ErrorNumber::DivisionByZero), "Dělení nulou");
    EXPECT_STREQ(describe(ErrorNumber::TypeMismatch), "Text není číslo");
    EXPECT_STREQ(describe(ErrorNumber::FileNotFound), "Soubor nebyl nalezen");
}

TEST(RuntimeErrors, TheNumbersAreThoseThatUsersAndTracesSee) {
    EXPECT_EQ(RuntimeError(ErrorNumber::InvalidCall).number(), 5);
    EXPECT_EQ(RuntimeError(ErrorNumber::Overflow).number(), 6);
    EXPECT_EQ(RuntimeError(ErrorNumber::SubscriptOutOfRange).number(), 9);
    EXPECT_EQ(RuntimeError(ErrorNumber::DivisionByZero).number(), 11);
    EXPECT_EQ(RuntimeError(ErrorNumber::TypeMismatch).number(), 13);
    EXPECT_EQ(RuntimeError(ErrorNumber::FileNotFound).number(), 53);
    EXPECT_TRUE(RuntimeError(ErrorNumber::Overflow).is(ErrorNumber::Overflow));
    EXPECT_FALSE(RuntimeError(ErrorNumber::Overflow).is(ErrorNumber::TypeMismatch));
}

TEST(RuntimeErrors, AnErrorOfItsOwnMayEndTheProgram) {
    const RuntimeError ends(3024, "no such table", RuntimeError::Effect::EndsProgram);
    EXPECT_EQ(ends.number(), 3024);
    EXPECT_EQ(ends.description(), "no such table");
    EXPECT_TRUE(ends.endsProgram());
    EXPECT_FALSE(RuntimeError(70, "denied").endsProgram());
}

TEST(RuntimeErrors, CarryNumberAndDescription) {
    const RuntimeError error(ErrorNumber::DivisionByZero);
    EXPECT_EQ(error.number(), 11);
    EXPECT_EQ(error.description(), "Dělení nulou");
    EXPECT_FALSE(error.endsProgram());
}

}  // namespace
}  // namespace mero::numbers
