// SPDX-License-Identifier: MIT
// The formula of one rain is used by the search and by the list of all rows.
#include "calc/per_rain.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "calc/swale.h"
#include "platform/numbers/runtime_error.h"

namespace mero::calc {
namespace {

constexpr std::array<Rain, kRainRows> kRains{
    {{5, 3}, {10, 7}, {0, 9}, {-5, 8}, {20, 7}, {30, 1}, {0, 0}, {0, 0}, {0, 0}}};

double intensity(const Rain& rain) {
    return rain.intensity_l_s_ha;
}

TEST(PerRain, AllRowsHaveAValue) {
    const RainValues values = perRain<Rows::All>(intensity).values(kRains);
    EXPECT_THAT(values, testing::ElementsAre(3, 7, 9, 8, 7, 1, 0, 0, 0));
}

TEST(PerRain, RowsWithoutAPositiveDurationHaveNone) {
    const RainValues values = perRain<Rows::PositiveDuration>(intensity).values(kRains);
    const std::optional<double> none;
    EXPECT_THAT(values, testing::ElementsAre(3, 7, none, none, 7, 1, none, none, none));
}

TEST(PerRain, TheCriticalRainIsOneOfTheRowsThatHaveAValue) {
    const CriticalRain all = perRain<Rows::All>(intensity).critical(kRains);
    EXPECT_EQ(all.maximum, 9);
    EXPECT_EQ(all.rain, kRains[2]);
    const CriticalRain positive = perRain<Rows::PositiveDuration>(intensity).critical(kRains);
    EXPECT_EQ(positive.maximum, 7);
    EXPECT_EQ(positive.rain, kRains[1]) << "of equal rows the earliest";
}

TEST(PerRain, AnErrorOfTheFormulaComesThrough) {
    const auto per_rain = perRain<Rows::All>([](const Rain& rain) -> double {
        if (rain.duration_min < 0) {
            throw RuntimeError(ErrorNumber::DivisionByZero);
        }
        return 1.0;
    });
    EXPECT_THROW(static_cast<void>(per_rain.values(kRains)), RuntimeError);
    EXPECT_THROW(static_cast<void>(per_rain.critical(kRains)), RuntimeError);
}

TEST(PerRain, TheVolumeOfASwaleIsThatOfItsSearch) {
    // (1100 * 1e-7 * 200 - 100 * 1e-4 / 2) * 15 * 60 = (0.022 - 0.005) * 900
    std::array<Rain, kRainRows> rains{};
    rains[4] = {15, 200};
    const swale::Balance balance{
        .reduced_area_m2 = 1000, .infiltration_area_m2 = 100, .filtration_m_s = 1e-4F, .safety_factor = 1};
    EXPECT_NEAR(swale::volumePerRain(balance).values(rains)[4].value_or(0), 15.3, 1e-6);
    EXPECT_NEAR(swale::storageVolume(balance, rains).maximum, 15.3, 1e-6);
}

}  // namespace
}  // namespace mero::calc
