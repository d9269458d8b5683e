// SPDX-License-Identifier: MIT
/// Numbers from the bytes of stored values.
/// The bytes are written by hand: IEEE 754 and little-endian integers.
#include "data/jet/value.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

namespace mero::data::jet {
namespace {

std::optional<double> number(ColumnType type, std::initializer_list<int> bytes, int scale = 0) {
    std::vector<std::uint8_t> stored;
    for (const int byte : bytes) {
        stored.push_back(static_cast<std::uint8_t>(byte));
    }
    Column column;
    column.type = type;
    column.scale = static_cast<std::uint8_t>(scale);
    return numberOf(column, Bytes(stored));
}

TEST(JetValue, IntegersAreLittleEndianAndSignedButForTheByte) {
    EXPECT_EQ(number(ColumnType::Byte, {0xc8}), 200.0);
    EXPECT_EQ(number(ColumnType::Integer, {0x78, 0x00}), 120.0);
    EXPECT_EQ(number(ColumnType::Integer, {0xfe, 0xff}), -2.0);
    EXPECT_EQ(number(ColumnType::LongInteger, {0xa0, 0x86, 0x01, 0x00}), 100000.0);
    EXPECT_EQ(number(ColumnType::LongInteger, {0xff, 0xff, 0xff, 0xff}), -1.0);
}

TEST(JetValue, FloatingPointKeepsEveryBit) {
    EXPECT_EQ(number(ColumnType::Single, {0x00, 0x00, 0xe7, 0x42}), 115.5);
    EXPECT_EQ(number(ColumnType::Single, {0x9a, 0x99, 0x19, 0x3e}), static_cast<double>(0.15F));
    EXPECT_EQ(number(ColumnType::Double, {0x66, 0x66, 0x66, 0x66, 0x66, 0x66, 0x60, 0x40}), 131.2);
}

TEST(JetValue, WhatIsNotFiniteIsNoNumber) {
    EXPECT_EQ(number(ColumnType::Single, {0x00, 0x00, 0x80, 0x7f}), std::nullopt);
    EXPECT_EQ(number(ColumnType::Single, {0x00, 0x00, 0xc0, 0x7f}), std::nullopt);
    EXPECT_EQ(number(ColumnType::Double, {0, 0, 0, 0, 0, 0, 0xf0, 0xff}), std::nullopt);
}

TEST(JetValue, CurrencyCountsTenThousandths) {
    EXPECT_EQ(number(ColumnType::Currency, {0x00, 0x05, 0x14, 0, 0, 0, 0, 0}), 131.2);  // 1 312 000
    EXPECT_EQ(number(ColumnType::Currency, {0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff}), -0.0001);
    EXPECT_EQ(number(ColumnType::Currency, {0, 0, 0, 0, 0, 0, 0, 0x80}), -922337203685477.5808);
    // 9 007 199 254 740 993 units: more digits than a double has before the division
    EXPECT_EQ(number(ColumnType::Currency, {1, 0, 0, 0, 0, 0, 0x20, 0}), 900719925474.0993);
}

TEST(JetValue, DecimalHasASignAndFourWordsTheHighestFirst) {
    EXPECT_EQ(number(ColumnType::Decimal, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0x20, 0x05, 0, 0}, 1),
              131.2);
    EXPECT_EQ(number(ColumnType::Decimal, {0x80, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0x19, 0, 0, 0}, 2),
              -0.25);
    // 2^32 in the third word, no decimals
    EXPECT_EQ(number(ColumnType::Decimal, {0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0}, 0),
              4294967296.0);
    EXPECT_EQ(number(ColumnType::Decimal, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}, 4), 0.0);
    EXPECT_EQ(number(ColumnType::Decimal, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0}, 29),
              std::nullopt);
}

TEST(JetValue, TextsAreNumbersInPointNotation) {
    EXPECT_EQ(number(ColumnType::Text, {'1', 0, '.', 0, '5', 0}), 1.5);
    EXPECT_EQ(number(ColumnType::Text, {0xff, 0xfe, '1', '.', '5'}), 1.5);
    EXPECT_EQ(number(ColumnType::Text, {'1', 0, ',', 0, '5', 0}), std::nullopt);
    EXPECT_EQ(number(ColumnType::Text, {'1', 1, '5', 0}), std::nullopt);
    EXPECT_EQ(number(ColumnType::Text, {}), std::nullopt);
    EXPECT_EQ(number(ColumnType::Text, {'1', 0, 'e', 0, '9', 0, '9', 0}), std::nullopt);
}

TEST(JetValue, ADateCountsDays) {
    EXPECT_EQ(number(ColumnType::Date, {0, 0, 0, 0, 0, 0, 0xf8, 0x3f}), 1.5);  // 1899-12-31 12:00
}

TEST(JetValue, BytesThatAreMissingAreDamage) {
    EXPECT_THROW(static_cast<void>(number(ColumnType::Integer, {1})), Failure);
    EXPECT_THROW(static_cast<void>(number(ColumnType::Byte, {})), Failure);
    EXPECT_THROW(static_cast<void>(number(ColumnType::Text, {'1', 0, '5'})), Failure);
}

TEST(JetValue, OtherTypesAreNoNumber) {
    EXPECT_EQ(number(ColumnType::Memo, {'1', 0}), std::nullopt);
    EXPECT_FALSE(holdsNumbers(ColumnType::Memo));
    EXPECT_FALSE(holdsNumbers(ColumnType::Ole));
    EXPECT_FALSE(holdsNumbers(ColumnType::Date));
    EXPECT_TRUE(holdsNumbers(ColumnType::Text));
    EXPECT_TRUE(holdsNumbers(ColumnType::Single));
}

}  // namespace
}  // namespace mero::data::jet
