// SPDX-License-Identifier: MIT
/// Tests of the infiltration trench: length, volume, area, drain.
#include "calc/trench.h"

#include <gtest/gtest.h>

#include "calc/samples.h"
#include "support/errors.h"

namespace mero::calc::trench {
namespace {

using mero::test::errorNumberOf;
using test::expectClose;
using test::kEmptyTable;
using test::kStorms;
using test::tableOf;

constexpr Balance kSite{
    .reduced_area_m2 = 1000.0F,
    .safety_factor = 1.2F,
    .section = {.width_m = 1.0F, .height_m = 1.5F, .storage_coefficient = 0.35F, .filtration_m_s = 1e-5F}};

TEST(Trench, LengthIsTheLargestOfTheTable) {
    // 120 min, 28 l/(s.ha), T = 8640 s: inflow 0.0028 m3/s; one metre takes
    // 0.525 / 8640 + 1.75 * 10^-5 / 2 = 0.0000607639 + 0.00000875; the row before it gives 40.1031.
    const CriticalRain length = requiredLength(kSite, kStorms);
    expectClose(length.maximum, 40.2797202797);
    EXPECT_EQ(length.rain, (Rain{120.0F, 28.0F}));
}

TEST(Trench, EarlierOfEqualRowsIsCritical) {
    // Without soil the length is intensity times duration; powers of two keep the quotients equal.
    Balance sealed = kSite;
    sealed.section.filtration_m_s = 0.0F;
    const auto table = tableOf(Rain{8.0F, 256.0F}, Rain{16.0F, 128.0F});
    EXPECT_EQ(requiredLength(sealed, table).rain, (Rain{8.0F, 256.0F}));
}

TEST(Trench, HasNoLengthWithoutRain) {
    EXPECT_FALSE(requiredLength(kSite, kEmptyTable).rain.has_value());
    EXPECT_EQ(requiredLength(kSite, kEmptyTable).maximum, 0.0);
    EXPECT_FALSE(requiredLength(kSite, tableOf(Rain{0.0F, 300.0F}, Rain{-5.0F, 300.0F})).rain.has_value());
    EXPECT_FALSE(requiredLength(kSite, tableOf(Rain{10.0F, 0.0F})).rain.has_value());
}

TEST(Trench, SafetyFactorZeroDividesByZero) {
    Balance no_factor = kSite;
    no_factor.safety_factor = 0.0F;
    EXPECT_EQ(errorNumberOf([&] { return requiredLength(no_factor, kStorms); }), 11);
    EXPECT_EQ(errorNumberOf([&] { return requiredLength(no_factor, kEmptyTable); }), 0);
}

TEST(Trench, NothingToTakeTheWaterDividesByZero) {
    Balance sealed = kSite;
    sealed.section.storage_coefficient = 0.0F;
    sealed.section.filtration_m_s = 0.0F;
    EXPECT_EQ(errorNumberOf([&] { return requiredLength(sealed, kStorms); }), 11);
}

TEST(Trench, VolumeIsWhatDoesNotSoakAwayDuringTheRain) {
    // (0.0028 - 1.75 * 40 * 10^-5 / 2) * 120 * 60 * 1.2 = (0.0028 - 0.00035) * 8640 = 21.168
    expectClose(storageVolume(kSite, 40.0F, {120.0F, 28.0F}), 21.168);
}

TEST(Trench, VolumeFillsThePoresOfTheCriticalLength) {
    // The inverse balance: for this length the volume equals the pores, 0.525 m2 * L.
    expectClose(storageVolume(kSite, 40.27972F, {120.0F, 28.0F}), 0.525 * 40.27972);
}

TEST(Trench, VolumeWithoutAPickedRainIsZero) {
    EXPECT_EQ(storageVolume(kSite, 0.0F, Rain{}), 0.0F);
}

TEST(Trench, InfiltrationAreaIsBottomAndHalfTheHeight) {
    EXPECT_EQ(infiltrationArea(1.5F, 1.0F, 40.0F), 70.0F);
    EXPECT_EQ(infiltrationArea(1.0F, 2.0F, 10.0F), 25.0F);
    EXPECT_EQ(errorNumberOf([] { return infiltrationArea(1e30F, 1.0F, 1e30F); }), 6);
}

TEST(TrenchDrain, LetsOutOpeningsTimesVelocityAlongTheTrench) {
    // 50 cm2/m = 0.005 m2/m, two pipes, 0.2 m/s, 40 m: 0.08 m3/s
    EXPECT_EQ(drainOutflow({.openings_cm2_m = 50.0F, .pipe_count = 2.0F, .velocity_m_s = 0.2F}, 40.0F),
              80.0F);
    EXPECT_EQ(drainOutflow({.openings_cm2_m = 50.0F, .pipe_count = 0.0F, .velocity_m_s = 0.2F}, 40.0F), 0.0F);
}

TEST(TrenchDrain, EqualOutflowMeetsTheCondition) {
    EXPECT_EQ(judgeOutflow(15.0F, 15.0F), OutflowVerdict::Met);
    EXPECT_EQ(judgeOutflow(15.1F, 15.0F), OutflowVerdict::Met);
    EXPECT_EQ(judgeOutflow(14.9F, 15.0F), OutflowVerdict::NotMet);
}

}  // namespace
}  // namespace mero::calc::trench
