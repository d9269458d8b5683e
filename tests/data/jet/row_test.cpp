// SPDX-License-Identifier: MIT
/// Rows taken apart. The bytes are written by hand: number of columns, fixed part, variable part, its offsets
/// from back to front, their number, a flag for each column that has a value.
#include <gtest/gtest.h>

#include "data/jet/table_rows.h"
#include "data/jet/value.h"

namespace mero::data::jet {
namespace {

Column fixed(std::uint16_t number, std::uint16_t offset) {
    return {.name = "f",
            .type = ColumnType::Integer,
            .number = number,
            .fixed_offset = offset,
            .size = 2,
            .is_fixed = true,
            .has_one_size = true};
}

Column text(std::uint16_t number, std::uint16_t place) {
    return {.name = "t", .type = ColumnType::Text, .number = number, .variable_number = place, .size = 100};
}

const TableDefinition kTable{.columns_ever = 4,
                             .columns = {fixed(0, 0), fixed(1, 2), text(2, 0), text(3, 1)}};

/// 7 and 9 in the fixed part, "1" and "25" in the variable one.
const std::vector<std::uint8_t> kBytes{4,   0, 7,   0, 9,   0,  // columns, fixed part
                                       '1', 0, '2', 0, '5', 0,  // from 6 and 8
                                       12,  0, 8,   0, 6,   0, 2, 0, 0x0f};

std::optional<double> at(const std::vector<std::uint8_t>& bytes, std::size_t column) {
    const auto value = Row(kTable, Bytes(bytes)).value(kTable.columns[column]);
    return value ? numberOf(kTable.columns[column], *value) : std::nullopt;
}

TEST(JetRow, FixedAndVariableValuesAreFound) {
    EXPECT_EQ(at(kBytes, 0), 7.0);
    EXPECT_EQ(at(kBytes, 1), 9.0);
    EXPECT_EQ(at(kBytes, 2), 1.0);
    EXPECT_EQ(at(kBytes, 3), 25.0);
}

TEST(JetRow, AColumnWithoutItsFlagHasNoValue) {
    auto bytes = kBytes;
    bytes.back() = 0x0d;
    EXPECT_EQ(at(bytes, 1), std::nullopt);
    EXPECT_EQ(at(bytes, 0), 7.0);
}

TEST(JetRow, AColumnThatWasAddedLaterHasNoValueInAnOlderRow) {
    // Two columns, none of them variable, so that there is no variable part.
    const std::vector<std::uint8_t> older{2, 0, 7, 0, 9, 0, 0x03};
    EXPECT_EQ(at(older, 1), 9.0);
    EXPECT_EQ(at(older, 2), std::nullopt);
    EXPECT_EQ(at(older, 3), std::nullopt);
}

TEST(JetRow, PartsThatDoNotFitTogetherAreDamage) {
    const auto isDamaged = [](std::size_t position, std::uint8_t byte, std::size_t column) {
        auto bytes = kBytes;
        bytes[position] = byte;
        EXPECT_THROW(static_cast<void>(at(bytes, column)), Failure) << position;
    };
    isDamaged(0, 5, 0);    // more columns than the table ever had
    isDamaged(0, 0, 0);    // none
    isDamaged(18, 5, 2);   // more variable columns than columns
    isDamaged(18, 9, 2);   // and than there is room for
    isDamaged(16, 1, 2);   // a value before the row's data
    isDamaged(14, 5, 3);   // it ends before it begins
    isDamaged(12, 13, 3);  // it ends in the offsets
    isDamaged(16, 4, 1);   // the fixed part would reach into it
}

TEST(JetRow, ARowThatIsCutIsDamage) {
    for (std::size_t length = 0; length < 9; ++length) {
        const std::vector<std::uint8_t> cut(kBytes.begin(), kBytes.begin() + static_cast<int>(length));
        EXPECT_THROW(Row(kTable, Bytes(cut)), Failure) << length;
    }
}

}  // namespace
}  // namespace mero::data::jet
