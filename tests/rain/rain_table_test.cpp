// SPDX-License-Identifier: MIT
/// What a table says of itself, and what has to be asked.
#include "rain/rain_table.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace mero::rain {
namespace {

TEST(RainTable, FallingValuesWithoutAUnitAreNotGuessed) {
    const RainTable table = readRainTable("5;300\n10;210\n15;165\n");
    EXPECT_FALSE(table.value_unit.has_value());
    ASSERT_TRUE(table.duration_unit.has_value());
    EXPECT_EQ(table.duration_unit->unit, DurationUnit::Minutes);
    EXPECT_TRUE(table.duration_unit->guessed);
}

TEST(RainTable, AHeadTellsItsUnits) {
    const RainTable table = readRainTable("t [h];i [mm/h]\n0,5;40\n1;25\n");
    EXPECT_EQ(table.duration_unit->unit, DurationUnit::Hours);
    EXPECT_FALSE(table.duration_unit->guessed);
    EXPECT_EQ(table.value_unit->unit, ValueUnit::RatePerHour);
    EXPECT_FALSE(table.value_unit->guessed);
}

TEST(RainTable, ColumnsKeepTheirHeads) {
    const RainTable table = readRainTable("t [min];p=1;p=0,2\n5;200;300\n10;150;210\n");
    ASSERT_EQ(table.columns.size(), 2U);
    EXPECT_EQ(table.columns[1].label, "p=0,2");
    const RainCurve curve = curveOf(table, 1, DurationUnit::Minutes, ValueUnit::Intensity);
    EXPECT_EQ(curve.at(10), 210.0);
}

TEST(RainTable, LinesBelowTheTableAreTold) {
    EXPECT_EQ(readRainTable("5;300\n10;210\nZdroj: obec\n").remarks,
              std::vector<std::string>{"řádek 3 vynechán: nejsou v něm hodnoty"});
}

TEST(RainTable, AWrongUnitIsNoticed) {
    // 300 l/(s.ha) taken as millimetres an hour brings 25 mm in 5 minutes, 2.8 times too much: still a rain.
    // As a depth it would be 300 mm in 5 minutes: none.
    const RainTable table = readRainTable("t [min];i\n5;300\n10;210\n");
    EXPECT_TRUE(implausibility(curveOf(table, 0, DurationUnit::Minutes, ValueUnit::Intensity)).empty());
    EXPECT_EQ(implausibility(curveOf(table, 0, DurationUnit::Minutes, ValueUnit::Depth)),
              "Déšť 5 min má 300.0 mm: to je neobvykle mnoho, zkontrolujte jednotky.");
}

TEST(RainTable, DurationsWithoutAnyValueAreNoTable) {
    EXPECT_THROW(static_cast<void>(readRainTable("a,1,2\n3,-,-\n")), std::invalid_argument);
    EXPECT_THROW(static_cast<void>(readRainTable("a;1;2\n3;;\n4;;\n")), std::invalid_argument);
}

TEST(RainTable, LongTablesAreRefusedBeforeTheyAreRead) {
    EXPECT_THROW(static_cast<void>(readRainTable(std::string(kLongestTable + 1, '1'))),
                 std::invalid_argument);
    std::string rows;
    for (int row = 1; row <= 1001; ++row) {
        rows += std::to_string(row) + ";1\n";
    }
    EXPECT_THROW(static_cast<void>(readRainTable(rows)), std::invalid_argument);
}

}  // namespace
}  // namespace mero::rain
