// SPDX-License-Identifier: MIT
/// Scales: round steps, whole decades, and where a value lies on them.
#include "picture/scale.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mero::picture {
namespace {

using ::testing::DoubleEq;
using ::testing::ElementsAre;
using ::testing::Pointwise;

std::vector<double> ticksOf(const std::vector<double>& values, bool from_zero = false) {
    return Scale(values, {.from_zero = from_zero}).ticks();
}

std::vector<double> decadesOf(const std::vector<double>& values) {
    return Scale(values, {.logarithmic = true}).ticks();
}

TEST(Scale, StepsAreOneTwoOrFiveTimesAPowerOfTen) {
    EXPECT_THAT(ticksOf({0.6, 2.0}), ElementsAre(0.5, 1.0, 1.5, 2.0));
    EXPECT_THAT(ticksOf({0.0, 100.0}), ElementsAre(0.0, 20.0, 40.0, 60.0, 80.0, 100.0));
    EXPECT_THAT(ticksOf({0.0, 48.0}), ElementsAre(0.0, 10.0, 20.0, 30.0, 40.0, 50.0));
    EXPECT_THAT(ticksOf({0.0, 6.0}), ElementsAre(0.0, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0));
    EXPECT_THAT(ticksOf({1000.0, 4000.0}),
                ElementsAre(1000.0, 1500.0, 2000.0, 2500.0, 3000.0, 3500.0, 4000.0));
}

TEST(Scale, AMultipleThatRoundingMovedStaysTheEnd) {
    EXPECT_THAT(ticksOf({static_cast<double>(0.1F), static_cast<double>(0.7F)}),
                Pointwise(DoubleEq(), {0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7}));
}

TEST(Scale, TheZeroIsTakenInOnEitherSide) {
    EXPECT_THAT(ticksOf({20.0, 30.0}, true), ElementsAre(0.0, 5.0, 10.0, 15.0, 20.0, 25.0, 30.0));
    EXPECT_THAT(ticksOf({-40.0, -10.0}, true), ElementsAre(-40.0, -30.0, -20.0, -10.0, 0.0));
    EXPECT_THAT(ticksOf({20.0, 30.0}), ElementsAre(20.0, 22.0, 24.0, 26.0, 28.0, 30.0));
}

TEST(Scale, ASingleValueStandsInTheMiddle) {
    EXPECT_THAT(ticksOf({0.0}), ElementsAre(-1.0, -0.5, 0.0, 0.5, 1.0));
    EXPECT_DOUBLE_EQ(*Scale({0.0}).share(0.0), 0.5);
    // A tenth of 5 to both sides, rounded outwards to fifths: -5.6 to -4.4.
    EXPECT_NEAR(*Scale({-5.0, -5.0}).share(-5.0), 0.5, 1e-12);
    EXPECT_EQ(Scale({3.0, 3.0}, {.from_zero = true}).share(0.0), 0.0);
    EXPECT_EQ(Scale({3.0, 3.0}, {.from_zero = true}).share(3.0), 1.0);
}

TEST(Scale, WithoutValuesThereIsStillAScale) {
    EXPECT_EQ(Scale({}, {.from_zero = true}).share(0.0), 0.0);
    EXPECT_EQ(Scale({}, {.from_zero = true}).share(1.0), 1.0);
    EXPECT_THAT(decadesOf({}), ElementsAre(1.0, 10.0));
    EXPECT_THAT(decadesOf({0.0, -3.0}), ElementsAre(1.0, 10.0));
}

TEST(Scale, LogarithmicScalesAreWholeDecades) {
    EXPECT_THAT(decadesOf({0.5, 20.0}), Pointwise(DoubleEq(), {0.1, 1.0, 10.0, 100.0}));
    EXPECT_THAT(decadesOf({20.0, -1.0, 0.5}), Pointwise(DoubleEq(), {0.1, 1.0, 10.0, 100.0}));
    EXPECT_THAT(decadesOf({1.0}), ElementsAre(1.0, 10.0));
    // The Single of 1e-6 lies below 1e-6, that of 1e-3 above 1e-3.
    EXPECT_THAT(decadesOf({static_cast<double>(1e-6F), static_cast<double>(1e-3F)}),
                Pointwise(DoubleEq(), {1e-6, 1e-5, 1e-4, 1e-3}));
}

TEST(Scale, AShareIsTakenOnTheScaleItself) {
    EXPECT_DOUBLE_EQ(*Scale({0.0, 100.0}).share(25.0), 0.25);
    EXPECT_DOUBLE_EQ(*Scale({1.0, 100.0}, {.logarithmic = true}).share(10.0), 0.5);
    EXPECT_FALSE(Scale({1.0, 100.0}, {.logarithmic = true}).share(0.0).has_value());
    EXPECT_FALSE(Scale({1.0, 100.0}, {.logarithmic = true}).share(-1.0).has_value());
    EXPECT_TRUE(Scale({1.0, 100.0}).share(0.0).has_value());
}

TEST(Scale, AsManyStepsAsThereIsRoomFor) {
    EXPECT_THAT(Scale({0.0, 43.0}, {.most_steps = 1}).ticks(), ElementsAre(0.0, 50.0));
    EXPECT_THAT(Scale({0.0, 43.0}, {.most_steps = 3}).ticks(), ElementsAre(0.0, 20.0, 40.0, 60.0));
    EXPECT_THAT(Scale({0.0, 43.0}, {.most_steps = 5}).ticks(),
                ElementsAre(0.0, 10.0, 20.0, 30.0, 40.0, 50.0));
}

TEST(Scale, WithoutAToleranceNoValueLiesBeyondTheLastTick) {
    constexpr double kSlightlyMore = 40.0000006;
    EXPECT_EQ(Scale({kSlightlyMore}, {.from_zero = true, .most_steps = 4}).ticks().back(), 40.0);
    EXPECT_EQ(Scale({kSlightlyMore}, {.from_zero = true, .most_steps = 4, .tolerance = 0.0}).ticks().back(),
              60.0);
}

TEST(Scale, BetweenTwoValuesThereAreNoTicks) {
    const Scale scale = Scale::between(5.0, 20.0, true);
    EXPECT_DOUBLE_EQ(*scale.share(5.0), 0.0);
    EXPECT_DOUBLE_EQ(*scale.share(10.0), 0.5);
    EXPECT_DOUBLE_EQ(*scale.share(20.0), 1.0);
    EXPECT_TRUE(scale.ticks().empty());
    EXPECT_DOUBLE_EQ(*Scale::between(5.0, 5.0, true).share(5.0), 0.5)
        << "a single value stands in the middle";
}

TEST(Scale, DecadesAreDividedIntoNine) {
    EXPECT_THAT(Scale({1.0, 100.0}, {.logarithmic = true}).fineTicks(),
                ElementsAre(2, 3, 4, 5, 6, 7, 8, 9, 20, 30, 40, 50, 60, 70, 80, 90));
    EXPECT_TRUE(Scale({1.0, 100.0}).fineTicks().empty());
}

std::string textOf(double tick, bool logarithmic) {
    return Scale({}, {.logarithmic = logarithmic}).tickText(tick);
}

TEST(TickText, OnlyFarDecadesArePowersOfTen) {
    EXPECT_EQ(textOf(1e-6, true), "1E-06");
    EXPECT_EQ(textOf(1e-3, true), "1E-03");
    EXPECT_EQ(textOf(0.01, true), "0.01");
    EXPECT_EQ(textOf(0.1, true), "0.1");
    EXPECT_EQ(textOf(1e4, true), "10000");
    EXPECT_EQ(textOf(1e5, true), "1E+05");
    EXPECT_EQ(textOf(0.0005, false), "0.0005");
    EXPECT_EQ(textOf(123456.0, false), "123456");
    EXPECT_EQ(textOf(3 * 0.1, false), "0.3");
}

}  // namespace
}  // namespace mero::picture
