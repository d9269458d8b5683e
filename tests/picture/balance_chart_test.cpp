// SPDX-License-Identifier: MIT
// The balance over the nine rains: bars by the formulas of the designs, the critical rain marked.
#include "picture/balance_chart.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

namespace mero::picture {
namespace {

using Rains = std::array<calc::Rain, calc::kRainRows>;

/// Three rains; the other rows are empty.
Rains rains(calc::Rain first, calc::Rain second, calc::Rain third) {
    return {{first, second, third, {}, {}, {}, {}, {}, {}}};
}

constexpr calc::swale::Balance kSwale{
    .reduced_area_m2 = 1000, .infiltration_area_m2 = 100, .filtration_m_s = 1e-4F, .safety_factor = 1};

TEST(BalanceChart, TheSwalesBarsAreItsVolumes) {
    // (1100e-7 * i - 0.005) * t * 60: 300 * 0.028 = 8.4; 900 * 0.017 = 15.3; 3600 * -0.00005 = -0.18
    const Chart chart = swaleChart(kSwale, rains({5, 300}, {15, 200}, {60, 45}), "15.3");
    ASSERT_TRUE(chart.drawable());
    EXPECT_EQ(chart.title, "Objem akumulace průlehu [m³]");
    ASSERT_EQ(chart.points.size(), 9U);
    EXPECT_NEAR(chart.points[0].value.value_or(0), 8.4, 1e-5);
    EXPECT_NEAR(chart.points[1].value.value_or(0), 15.3, 1e-5);
    EXPECT_FALSE(chart.points[2].value) << "the soil keeps up with it";
    EXPECT_FALSE(chart.points[3].value) << "no rain";
    EXPECT_EQ(chart.points[1].label, "15");
    EXPECT_EQ(chart.marked, 1U);
    EXPECT_EQ(chart.marked_text, "15.3 m³");
    EXPECT_EQ(chart.note, "");
    EXPECT_EQ(chart.summary, "Objem akumulace průlehu [m³]: rozhoduje déšť 15 min, 15.3 m³.");
}

TEST(BalanceChart, OfEqualRainsTheEarliestIsCritical) {
    EXPECT_EQ(swaleChart(kSwale, rains({5, 100}, {15, 200}, {15, 200}), "15.3").marked, 1U);
}

TEST(BalanceChart, SaysWhenTheFieldShowsTheResultOfOtherInputs) {
    EXPECT_EQ(swaleChart(kSwale, rains({5, 300}, {15, 200}, {}), "14.0").note,
              "vstupy se od výpočtu změnily");
}

TEST(BalanceChart, HasAHintBeforeTheResultAndWhenNoRainAsksForAnything) {
    EXPECT_EQ(swaleChart(kSwale, rains({5, 300}, {15, 200}, {}), "").hint,
              "Bilance dešťů se nakreslí po výpočtu.");
    EXPECT_EQ(swaleChart(kSwale, rains({5, 10}, {15, 5}, {}), "0.0").hint,
              "Žádný déšť nevyžaduje akumulaci.");
}

TEST(BalanceChart, TheSurfacesBarsAreItsAreasAndThePickedRainIsMarked) {
    // 1000 / (1000 / (2 * i) - 1): i = 150 gives 428.6, i = 100 gives 250; 500 balances exactly, 600 is
    // negative.
    Rains table = rains({5, 600}, {10, 500}, {15, 150});
    table[3] = {20, 100};
    const SurfaceBalance balance{.reduced_area_m2 = 1000, .filtration_m_s = 1e-4F, .picked_rain = {15, 150}};
    const Chart chart = surfaceChart(balance, table, "428.6");
    ASSERT_TRUE(chart.drawable());
    EXPECT_FALSE(chart.points[0].value);
    EXPECT_NEAR(chart.points[2].value.value_or(0), 428.5714, 1e-3);
    EXPECT_NEAR(chart.points[3].value.value_or(0), 250, 1e-3);
    EXPECT_EQ(chart.marked, 2U);
    EXPECT_EQ(chart.marked_text, "428.6 m²");
    EXPECT_EQ(chart.note, "");
}

TEST(BalanceChart, TheSurfaceMarksNothingWhenThePickedRainLeftTheTable) {
    const SurfaceBalance balance{.reduced_area_m2 = 1000, .filtration_m_s = 1e-4F, .picked_rain = {15, 151}};
    const Chart chart = surfaceChart(balance, rains({15, 150}, {20, 100}, {}), "428.6");
    EXPECT_TRUE(chart.drawable());
    EXPECT_FALSE(chart.marked);
}

TEST(BalanceChart, TheTrenchsBarsAreItsLengths) {
    // Pores only (kf 0): 1e-7 * 1000 * i * t * 60 / (1 * 1 * 0.5): 300 * 5 -> 18 m, 200 * 15 -> 36 m.
    const calc::trench::Balance balance{
        .reduced_area_m2 = 1000,
        .safety_factor = 1,
        .section = {.width_m = 1, .height_m = 1, .storage_coefficient = 0.5F, .filtration_m_s = 0}};
    const Chart chart = trenchChart(balance, rains({5, 300}, {15, 200}, {-5, 900}), "36.0");
    ASSERT_TRUE(chart.drawable());
    EXPECT_NEAR(chart.points[0].value.value_or(0), 18, 1e-6);
    EXPECT_EQ(chart.marked_text, "36.0 m");
    EXPECT_FALSE(chart.points[2].value) << "no row without a positive duration takes part";
    EXPECT_EQ(chart.note, "");
}

TEST(BalanceChart, AFaultOfTheFormulaIsAHint) {
    calc::trench::Balance balance{.reduced_area_m2 = 1000, .safety_factor = 0, .section = {}};
    EXPECT_EQ(trenchChart(balance, rains({5, 300}, {}, {}), "36.0").hint,
              "Z těchto hodnot nelze bilanci dešťů nakreslit.");
}

TEST(BalanceChart, TheCombinedObjectShowsTheSwaleWhenNoRainAsksForATrench) {
    SwaleTrenchBalance balance{
        .swale = kSwale,
        .trench = {
            .reduced_area_m2 = 1000,
            .infiltration_area_m2 = 100,
            .throttled_m3_s = 1,
            .swale_volume_m3 = 15.3F,
            .safety_factor = 1,
            .trench = {.width_m = 1, .height_m = 1, .storage_coefficient = 0.5F, .filtration_m_s = 1e-4F}}};
    const Rains table = rains({5, 300}, {15, 200}, {});
    const Chart swale = swaleTrenchChart(balance, table, "15.3", "0.0");
    EXPECT_EQ(swale.title, "Objem akumulace průlehu [m³]");
    EXPECT_EQ(swale.marked, 1U);
    EXPECT_EQ(swaleTrenchChart(balance, table, "", "").hint, "Bilance dešťů se nakreslí po výpočtu.");

    // Without a throttled outflow and a swale: 1100e-7 * i / (0.5 / (t * 60) + 1.5 * 1e-4 / 2).
    balance.trench.throttled_m3_s = 0;
    balance.trench.swale_volume_m3 = 0;
    const Chart length = swaleTrenchChart(balance, table, "15.3", "34.9");
    EXPECT_EQ(length.title, "Délka rýhy [m]");
    EXPECT_NEAR(length.points[0].value.value_or(0), 18.947, 0.001);
    EXPECT_NEAR(length.points[1].value.value_or(0), 34.890, 0.001);
    EXPECT_EQ(length.marked_text, "34.9 m");
}

TEST(BalanceChart, TheTanksBarsAreItsVolumes) {
    // (1e-7 * 1000 * i - 0.01) * t * 60: 300 * 0.02 = 6, 900 * 0.01 = 9
    const calc::tank::Balance balance{
        .reduced_area_m2 = 1000, .infiltration_flow_m3_s = 0.01F, .safety_factor = 1};
    const Chart chart = tankChart(balance, rains({5, 300}, {15, 200}, {}), "9.00");
    EXPECT_NEAR(chart.points[0].value.value_or(0), 6, 1e-5);
    EXPECT_EQ(chart.marked_text, "9.00 m³");
    EXPECT_EQ(chart.note, "");
}

TEST(BalanceChart, TheShaftsBarsAreItsLevels) {
    // No soil: 1e-7 * 1000 * i / (pi * 4 / (t * 240)): 300 l/s.ha of 5 min fill 9 m3 into pi m2.
    const calc::shaft::Balance balance{
        .reduced_area_m2 = 1000,
        .filtration_m_s = 0,
        .safety_factor = 1,
        .shafts = {.count = 1, .outer_diameter_m = 2.2F, .inner_diameter_m = 2}};
    const Chart chart = shaftChart(balance, rains({5, 300}, {15, 20}, {}), "2.86");
    EXPECT_NEAR(chart.points[0].value.value_or(0), 2.8648, 1e-4);
    EXPECT_EQ(chart.marked, 0U);
    EXPECT_EQ(chart.marked_text, "2.86 m");
    EXPECT_EQ(chart.note, "");
}

}  // namespace
}  // namespace mero::picture
