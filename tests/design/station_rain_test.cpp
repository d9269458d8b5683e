// SPDX-License-Identifier: MIT
/// What of a station's table goes where.
#include "design/station_rain.h"

#include <gtest/gtest.h>

namespace mero::design {
namespace {

data::StationTable tableWith(std::vector<std::string> columns, std::size_t rows) {
    data::StationTable table;
    table.columns = std::move(columns);
    for (std::size_t row = 0; row < rows; ++row) {
        std::vector<data::StationTable::Value> values;
        for (std::size_t column = 0; column < table.columns.size(); ++column) {
            values.emplace_back(static_cast<double>(100 * row + column));
        }
        table.rows.push_back(values);
    }
    return table;
}

TEST(StationRain, FieldsAreFoundByNameNotByPlace) {
    const StationRain rain = stationRain(tableWith({"005", "01", "02", "05", "1", "2", "5", "doba"}, 9));
    EXPECT_EQ(rain.intensities_l_s_ha[0][0], 6.0F);    // periodicity 5 stands in column 6
    EXPECT_EQ(rain.intensities_l_s_ha[6][8], 800.0F);  // periodicity 0.05 in column 0
}

TEST(StationRain, TheSubstituteOfTheLastFieldIsTaken) {
    const StationRain rain = stationRain(tableWith({"doba", "5", "2", "1", "05", "02", "01", "004"}, 9));
    EXPECT_EQ(rain.intensities_l_s_ha[6][2], 207.0F);
}

TEST(StationRain, RowsAfterTheNinthAreIgnoredAndMissingOnesStayZero) {
    EXPECT_EQ(stationRain(tableWith({"doba", "5"}, 12)).intensities_l_s_ha[0][8], 801.0F);
    EXPECT_EQ(stationRain(tableWith({"doba", "5"}, 5)).intensities_l_s_ha[0][5], 0.0F);
}

TEST(StationRain, ABadValueLeavesItsPositionAtZero) {
    data::StationTable table = tableWith({"doba", "5", "2", "1", "05", "02", "01", "005"}, 9);
    table.rows[3][1] = std::nullopt;
    table.rows[4][1] = 1e39;  // no Single
    const StationRain rain = stationRain(table);
    EXPECT_EQ(rain.intensities_l_s_ha[0][3], 0.0F);
    EXPECT_EQ(rain.intensities_l_s_ha[0][4], 0.0F);
    EXPECT_EQ(rain.intensities_l_s_ha[0][5], 501.0F);
}

TEST(StationRain, ABadValueAfterAMissingFieldEndsTheSubstitution) {
    // The last failure counts, whatever it was of: the missing field is only seen again with the next row.
    data::StationTable table = tableWith({"004", "doba", "5", "2", "1", "05", "02", "01"}, 9);
    table.rows[0][0] = std::nullopt;
    const StationRain rain = stationRain(table);
    EXPECT_EQ(rain.intensities_l_s_ha[6][0], 0.0F);
    EXPECT_EQ(rain.intensities_l_s_ha[6][1], 100.0F);
}

TEST(StationRain, TheMarkOfADemonstrationIsKept) {
    data::StationTable table = tableWith({"doba"}, 1);
    EXPECT_FALSE(stationRain(table).demonstration);
    table.demonstration = true;
    EXPECT_TRUE(stationRain(table).demonstration);
}

}  // namespace
}  // namespace mero::design
