// SPDX-License-Identifier: MIT
// What of a station's table goes where: the substitute field, rows too many and too few, bad values.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>

#include "support/test_program.h"

namespace mero::forms {
namespace {

using test::FakeRainDatabase;
using test::TestProgram;

constexpr std::int16_t kBakovNumber = 15;

struct ReadStationTableTest : testing::Test {
    ReadStationTableTest() { p.click(p.window().cmdEdit[0]); }
    void read(const data::StationTable& table) {
        p.rain.tables[kBakovNumber] = table;
        p.select(p.rainDialog().cboSelStanice, 1);
        EXPECT_FALSE(p.program.ended());
        EXPECT_TRUE(p.desk.errors.empty());
    }
    /// Value of a column (from 1) in a row (from 1).
    float at(std::size_t column, std::size_t row) { return v.IntenzitaStanice[column - 1][row - 1]; }

    TestProgram p;
    const data::modPublicVariables& v = p.values();
};

TEST_F(ReadStationTableTest, NineRowsFillSevenColumns) {
    read(FakeRainDatabase::regular(9));
    for (std::size_t k = 1; k <= 7; ++k) {
        for (std::size_t r = 1; r <= 9; ++r) {
            EXPECT_EQ(at(k, r), static_cast<float>(100 * k + r));
            EXPECT_EQ(v.DobaStanice[r - 1], static_cast<std::int16_t>(5 * r));
        }
    }
    EXPECT_EQ(v.DobaTrvani[2], 15.0F) << "the durations of the table are stored only";
}

TEST_F(ReadStationTableTest, TheSubstituteFieldFillsTheSeventhColumnInEveryRow) {
    read(FakeRainDatabase::regular(9, "004"));
    for (std::size_t r = 1; r <= 9; ++r) {
        EXPECT_EQ(at(7, r), static_cast<float>(700 + r));
        EXPECT_EQ(at(6, r), static_cast<float>(600 + r));
    }
}

TEST_F(ReadStationTableTest, TwelveRowsFillNine) {
    read(FakeRainDatabase::regular(12));
    EXPECT_EQ(at(1, 9), 109.0F);
    EXPECT_EQ(at(7, 9), 709.0F);
}

TEST_F(ReadStationTableTest, FiveRowsLeaveTheOthersAsTheyWere) {
    read(FakeRainDatabase::regular(9));
    auto few = FakeRainDatabase::regular(5);
    for (auto& row : few.rows) {
        for (auto& value : row) {
            value = 1.0;
        }
    }
    read(few);
    EXPECT_EQ(at(3, 5), 1.0F);
    EXPECT_EQ(at(3, 6), 306.0F);
    EXPECT_EQ(v.DobaStanice[5], 30);
}

TEST_F(ReadStationTableTest, NoRowsLeaveEverything) {
    read(FakeRainDatabase::regular(9));
    read(FakeRainDatabase::regular(0));
    EXPECT_EQ(at(7, 9), 709.0F);
}

TEST_F(ReadStationTableTest, FieldsAreFoundByNameInAnyOrder) {
    data::StationTable table;
    table.columns = {"005", "poznamka", "2", "doba"};
    table.rows = {{7.0, std::nullopt, 2.0, 5.0}};
    read(table);
    EXPECT_EQ(at(7, 1), 7.0F);
    EXPECT_EQ(at(2, 1), 2.0F);
    EXPECT_EQ(v.DobaStanice[0], 5);
}

TEST_F(ReadStationTableTest, AMissingFieldKeepsItsColumn) {
    read(FakeRainDatabase::regular(9));
    auto table = FakeRainDatabase::regular(9);
    table.columns[3] = "jiné";  // the field of periodicity 1
    for (auto& row : table.rows) {
        row[2] = 8.0;
    }
    read(table);
    EXPECT_EQ(at(2, 4), 8.0F);
    EXPECT_EQ(at(3, 4), 304.0F);
    EXPECT_EQ(at(7, 4), 704.0F) << "there is a 005 and no 004";
}

TEST_F(ReadStationTableTest, NullsAndValuesOutOfRangeKeepTheirPositions) {
    read(FakeRainDatabase::regular(9));
    auto table = FakeRainDatabase::regular(9);
    table.rows[0] = {40000.0, std::nullopt, 1e39, -1e300, 5.5, -3.0, std::nullopt, 9.0};
    read(table);
    EXPECT_EQ(v.DobaStanice[0], 5) << "40000 is no 16-bit number";
    EXPECT_EQ(at(1, 1), 101.0F);
    EXPECT_EQ(at(2, 1), 201.0F);
    EXPECT_EQ(at(3, 1), 301.0F);
    EXPECT_EQ(at(4, 1), 5.5F);
    EXPECT_EQ(at(5, 1), -3.0F);
    EXPECT_EQ(at(6, 1), 601.0F);
    EXPECT_EQ(at(7, 1), 9.0F);
    EXPECT_EQ(at(1, 2), 102.0F) << "the next row is read";
}

TEST_F(ReadStationTableTest, DurationsAreRoundedHalvesToEven) {
    auto table = FakeRainDatabase::regular(2);
    table.rows[0][0] = 2.5;
    table.rows[1][0] = 3.5;
    read(table);
    EXPECT_EQ(v.DobaStanice[0], 2);
    EXPECT_EQ(v.DobaStanice[1], 4);
}

TEST_F(ReadStationTableTest, AnEmptySubstituteKeepsTheColumn) {
    read(FakeRainDatabase::regular(9));
    auto table = FakeRainDatabase::regular(9, "004");
    table.rows[2][7] = std::nullopt;
    table.rows[3][7] = 4.0;
    read(table);
    EXPECT_EQ(at(7, 3), 703.0F);
    EXPECT_EQ(at(7, 4), 4.0F);
}

}  // namespace
}  // namespace mero::forms
