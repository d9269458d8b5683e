// SPDX-License-Identifier: MIT
/// Other databases than the shipped one: other numbers of rows, every type of field, deleted rows.
/// odd_tables.mdb is written by ReaderFixture of tools/rain-database: row r holds r and r + 0.25.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/jet/failure.h"
#include "data/rain_support.h"
#include "data/station_file.h"

namespace mero::data {
namespace {

using test::valueAt;
using ::testing::ElementsAre;

StationTable tableOf(std::int16_t station) {
    const std::string content = test::contentOf(MERO_ODD_TABLES);
    return stationTable({reinterpret_cast<const std::uint8_t*>(content.data()), content.size()},
                        tableName(station));
}

/// The whole numbers of a table's first field.
std::vector<int> numbersOf(std::int16_t station) {
    const StationTable table = tableOf(station);
    std::vector<int> numbers;
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        const double number = valueAt(table, row, "doba").value();
        EXPECT_EQ(valueAt(table, row, "5"), number + 0.25);
        numbers.push_back(static_cast<int>(number));
    }
    return numbers;
}

TEST(RainOddTables, MoreAndFewerRowsThanNineComeAsTheyAre) {
    EXPECT_THAT(numbersOf(1), ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12));
    EXPECT_THAT(numbersOf(2), ElementsAre(1, 2, 3, 4, 5));
}

TEST(RainOddTables, ATableWithoutRainEndsTheProgramAsAMissingTableDoes) {
    const std::string file = std::string(" v databázi dešťů „") + MERO_ODD_TABLES + "“ ";
    const auto without_rows = test::read(MERO_ODD_TABLES, 5);
    ASSERT_NE(without_rows.error(), nullptr) << "no row: the station before would stay in force";
    EXPECT_EQ(without_rows.errorNumber(), kNoRain);
    EXPECT_TRUE(without_rows.error()->endsProgram());
    EXPECT_EQ(without_rows.error()->description(), "Tabulka List5" + file + "nemá žádný řádek");

    const auto without_numbers = test::read(MERO_ODD_TABLES, 8);
    ASSERT_NE(without_numbers.error(), nullptr) << "a date, yes or no, a memo";
    EXPECT_EQ(without_numbers.errorNumber(), kNoRain);
    EXPECT_TRUE(without_numbers.error()->endsProgram());
    EXPECT_EQ(without_numbers.error()->description(),
              "Tabulka List8" + file + "nemá ve sloupcích intenzit čísla");
}

TEST(RainOddTables, RowsOverSeveralPagesKeepTheirOrder) {
    const std::vector<int> numbers = numbersOf(7);
    ASSERT_EQ(numbers.size(), 600U);
    for (std::size_t at = 0; at < numbers.size(); ++at) {
        ASSERT_EQ(numbers[at], static_cast<int>(at) + 1);
    }
}

TEST(RainOddTables, WithoutItsMarkAFileIsNoDemonstration) {
    EXPECT_FALSE(tableOf(1).demonstration);
}

TEST(RainOddTables, DeletedRowsAreNotRead) {
    EXPECT_THAT(numbersOf(6), ElementsAre(1, 2, 4, 5, 6, 7, 8, 9, 10));
}

TEST(RainOddTables, ATableIsFoundInAnyCaseButNotByPartOfItsName) {
    EXPECT_EQ(numbersOf(4).size(), 9U);                                        // LIST4
    EXPECT_EQ(test::read(MERO_ODD_TABLES, 12).errorNumber(), kTableNotFound);  // List12 (záloha)
}

TEST(RainOddTables, EveryTypeOfFieldGivesItsNumber) {
    const StationTable table = tableOf(3);
    EXPECT_THAT(table.columns, ElementsAre("byte", "integer", "long", "single", "double", "currency",
                                           "decimal", "text", "narrow", "date", "yesno", "poznámka"));
    const auto single = [](float value) { return StationTable::Value(static_cast<double>(value)); };
    const auto none = StationTable::Value();
    ASSERT_EQ(table.rows.size(), 3U);
    EXPECT_THAT(table.rows[0],
                ElementsAre(200.0, 120.0, 100000.0, single(0.15F), 131.2, 131.2, 123456789012345678.9012,
                            single(131.2F), single(131.2F), none, none, none));
    EXPECT_THAT(table.rows[1], ElementsAre(0.0, -120.0, -100000.0, single(-1.5e-7F), -1e300, -131.2345,
                                           -0.0001, none, none, none, none, none))
        << "a decimal comma and a word are no numbers";
    EXPECT_THAT(table.rows[2], ::testing::Each(none)) << "nulls";
}

}  // namespace
}  // namespace mero::data
