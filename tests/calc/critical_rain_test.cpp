// SPDX-License-Identifier: MIT
/// Tests of the search for the critical rain.
/// Ties, tables without a positive value, and which rows are used.
#include "calc/critical_rain.h"

#include <gtest/gtest.h>

#include "calc/samples.h"
#include "support/errors.h"

namespace mero::calc {
namespace {

using mero::test::errorNumberOf;
using test::kEmptyTable;
using test::kStorms;
using test::tableOf;

double intensityOf(const Rain& rain) {
    return rain.intensity_l_s_ha;
}

TEST(CriticalRain, IsTheRowOfTheLargestValue) {
    const auto depth = [](const Rain& rain) {
        return static_cast<double>(rain.duration_min) * static_cast<double>(rain.intensity_l_s_ha);
    };
    // 120 * 28 = 3360 is the largest product of the table; 90 * 36 = 3240 comes next.
    const CriticalRain found = findCriticalRain<Rows::All>(kStorms, depth);
    EXPECT_EQ(found.maximum, 3360.0);
    EXPECT_EQ(found.rain, kStorms[8]);
}

TEST(CriticalRain, EarlierOfEqualRowsWins) {
    const auto table = tableOf(Rain{5.0F, 1.0F}, Rain{10.0F, 7.0F}, Rain{15.0F, 7.0F}, Rain{20.0F, 6.0F});
    const CriticalRain found = findCriticalRain<Rows::All>(table, intensityOf);
    EXPECT_EQ(found.rain, (Rain{10.0F, 7.0F}));
}

TEST(CriticalRain, NoPositiveValueLeavesZeroAndNoRain) {
    const auto negative = [](const Rain& rain) { return -intensityOf(rain); };
    const CriticalRain found = findCriticalRain<Rows::All>(kStorms, negative);
    EXPECT_EQ(found.maximum, 0.0);
    EXPECT_FALSE(found.rain.has_value());
}

TEST(CriticalRain, ZeroIsNotPositive) {
    const auto zero = [](const Rain& rain) { return 0.0 * intensityOf(rain); };
    EXPECT_FALSE(findCriticalRain<Rows::All>(kStorms, zero).rain.has_value());
}

TEST(CriticalRain, RowsWithoutAPositiveDurationCanBeLeftOut) {
    const auto table = tableOf(Rain{0.0F, 900.0F}, Rain{-10.0F, 800.0F}, Rain{10.0F, 5.0F});
    EXPECT_EQ(findCriticalRain<Rows::PositiveDuration>(table, intensityOf).rain, (Rain{10.0F, 5.0F}));
    EXPECT_EQ(findCriticalRain<Rows::All>(table, intensityOf).rain, (Rain{0.0F, 900.0F}));
    EXPECT_EQ(findCriticalRain<Rows::PositiveDuration>(tableOf(Rain{0.5F, 7.0F}), intensityOf).rain,
              (Rain{0.5F, 7.0F}));
}

TEST(CriticalRain, EmptyTableAsksForNothing) {
    int calls = 0;
    const auto counting = [&calls](const Rain&) {
        ++calls;
        return 1.0;
    };
    EXPECT_EQ(findCriticalRain<Rows::PositiveDuration>(kEmptyTable, counting).maximum, 0.0);
    EXPECT_EQ(calls, 0);
}

TEST(CriticalRain, AllNineRowsAreVisitedInOrder) {
    float last = 0.0F;
    int calls = 0;
    const auto in_order = [&](const Rain& rain) {
        EXPECT_GT(rain.duration_min, last);
        last = rain.duration_min;
        ++calls;
        return 0.0;
    };
    EXPECT_EQ(findCriticalRain<Rows::All>(kStorms, in_order).maximum, 0.0);
    EXPECT_EQ(calls, 9);
}

TEST(CriticalRain, ErrorOfARowEndsTheSearch) {
    const auto failing = [](const Rain& rain) -> double {
        if (rain.duration_min > 20.0F) {
            throw RuntimeError(ErrorNumber::DivisionByZero);
        }
        return 1.0;
    };
    EXPECT_EQ(errorNumberOf([&] { return findCriticalRain<Rows::All>(kStorms, failing); }), 11);
}

}  // namespace
}  // namespace mero::calc
