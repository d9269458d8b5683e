// SPDX-License-Identifier: MIT
/// Tests of the steps of the swale design.
#include "calc/swale.h"

#include <gtest/gtest.h>

#include "calc/samples.h"
#include "support/errors.h"

namespace mero::calc::swale {
namespace {

using mero::test::errorNumberOf;
using test::expectClose;
using test::kEmptyTable;
using test::kStorms;
using test::tableOf;

constexpr Balance kSite{.reduced_area_m2 = 1000.0F,
                        .infiltration_area_m2 = 100.0F,
                        .filtration_m_s = 1e-5F,
                        .safety_factor = 1.2F};

TEST(SwaleStartingArea, IsATenthOrAFifthOfTheReducedArea) {
    EXPECT_EQ(startingArea(500.0F, 0, 7.0F), 50.0F);
    EXPECT_EQ(startingArea(500.0F, 1, 7.0F), 100.0F);
}

TEST(SwaleStartingArea, OtherSoilOptionsKeepTheStoredArea) {
    EXPECT_EQ(startingArea(500.0F, 2, 37.5F), 37.5F);
    EXPECT_EQ(startingArea(500.0F, -1, 37.5F), 37.5F);
}

TEST(SwaleVolume, IsTheLargestBalanceOfTheTable) {
    // 90 min, 36 l/(s.ha): (1100 * 36e-7 - 100 * 1e-5 / 2) * 90 * 60 * 1.2
    //                    = (0.00396 - 0.0005) * 6480 = 22.4208; the row after it gives 22.2912.
    const CriticalRain storage = storageVolume(kSite, kStorms);
    expectClose(storage.maximum, 22.4208);
    EXPECT_EQ(storage.rain, (Rain{90.0F, 36.0F}));
}

TEST(SwaleVolume, IsZeroWhenTheSoilKeepsUpWithEveryRain) {
    Balance sand = kSite;
    sand.filtration_m_s = 1e-2F;
    const CriticalRain storage = storageVolume(sand, kStorms);
    EXPECT_EQ(storage.maximum, 0.0);
    EXPECT_FALSE(storage.rain.has_value());
}

TEST(SwaleVolume, IsZeroForAnEmptyTable) {
    const CriticalRain storage = storageVolume(kSite, kEmptyTable);
    EXPECT_EQ(storage.maximum, 0.0);
    EXPECT_FALSE(storage.rain.has_value());
}

TEST(SwaleVolume, TakesRowsWithANegativeDuration) {
    // (1100 * 0 - 0.0005) * -10 * 60 * 1.2 = 0.36
    const CriticalRain storage = storageVolume(kSite, tableOf(Rain{-10.0F, 0.0F}));
    expectClose(storage.maximum, 0.36);
    EXPECT_EQ(storage.rain, (Rain{-10.0F, 0.0F}));
}

TEST(SwaleVolume, EarlierOfEqualRowsIsCritical) {
    // Without soil the volume is intensity times duration; powers of two keep the two products equal.
    Balance sealed = kSite;
    sealed.filtration_m_s = 0.0F;
    const auto table = tableOf(Rain{8.0F, 256.0F}, Rain{16.0F, 128.0F});
    EXPECT_EQ(storageVolume(sealed, table).rain, (Rain{8.0F, 256.0F}));
}

TEST(SwaleDepth, SpreadsTheVolumeOverTheArea) {
    EXPECT_EQ(pondingDepth(22.5F, 100.0F), 0.225F);
    EXPECT_EQ(pondingDepth(0.0F, 100.0F), 0.0F);
    EXPECT_EQ(errorNumberOf([] { return pondingDepth(22.5F, 0.0F); }), 11);
    EXPECT_EQ(errorNumberOf([] { return pondingDepth(1e30F, 1e-30F); }), 6);
}

TEST(SwaleEmptying, TakesTheDepthAtHalfTheConductivity) {
    // 2 * 0.18 / 10^-5 = 36000 s
    expectClose(emptyingTimeHours(0.18F, 1e-5F), 10.0);
    EXPECT_EQ(emptyingTimeHours(0.0F, 1e-5F), 0.0F);
    EXPECT_EQ(errorNumberOf([] { return emptyingTimeHours(0.18F, 0.0F); }), 11);
    EXPECT_EQ(errorNumberOf([] { return emptyingTimeHours(1e38F, 1e-30F); }), 6);
}

}  // namespace
}  // namespace mero::calc::swale
