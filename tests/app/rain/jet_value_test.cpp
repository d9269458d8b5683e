// SPDX-License-Identifier: MIT
/// Numbers from the bytes of stored values.
/// The bytes are written by hand: IEEE 754 and little-endian integers.
#include "app/rain/jet_value.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

namespace mero::rain {
namespace {

std::optional<double> number(FieldType type, std::initializer_list<int> bytes, int scale = 0) {
    std::vector<std::uint8_t> stored;
    for (const int byte : bytes) {
        stored.push_back(static_cast<std::uint8_t>(byte));
    }
    return numberOf(type, stored, scale);
}

TEST(JetValue, IntegersAreLittleEndianAndSignedButForTheByte) {
    EXPECT_EQ(number(FieldType::Byte, {0xc8}), 200.0);
    EXPECT_EQ(number(FieldType::Integer, {0x78, 0x00}), 120.0);
    EXPECT_EQ(number(FieldType::Integer, {0xfe, 0xff}), -2.0);
    EXPECT_EQ(number(FieldType::LongInteger, {0xa0, 0x86, 0x01, 0x00}), 100000.0);
    EXPECT_EQ(number(FieldType::LongInteger, {0xff, 0xff, 0xff, 0xff}), -1.0);
}

TEST(JetValue, FloatingPointKeepsEveryBit) {
    EXPECT_EQ(number(FieldType::Single, {0x00, 0x00, 0xe7, 0x42}), 115.5);
    EXPECT_EQ(number(FieldType::Single, {0x9a, 0x99, 0x19, 0x3e}), static_cast<double>(0.15F));
    EXPECT_EQ(number(FieldType::Double, {0x66, 0x66, 0x66, 0x66, 0x66, 0x66, 0x60, 0x40}), 131.2);
}

TEST(JetValue, WhatIsNotFiniteIsNoNumber) {
    EXPECT_EQ(number(FieldType::Single, {0x00, 0x00, 0x80, 0x7f}), std::nullopt);
    EXPECT_EQ(number(FieldType::Single, {0x00, 0x00, 0xc0, 0x7f}), std::nullopt);
    EXPECT_EQ(number(FieldType::Double, {0, 0, 0, 0, 0, 0, 0xf0, 0xff}), std::nullopt);
}

TEST(JetValue, CurrencyCountsTenThousandths) {
    EXPECT_EQ(number(FieldType::Currency, {0x00, 0x05, 0x14, 0, 0, 0, 0, 0}), 131.2);  // 1 312 000
    EXPECT_EQ(number(FieldType::Currency, {0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff}), -0.0001);
}

TEST(JetValue, DecimalHasASignAndFourWordsTheHighestFirst) {
    EXPECT_EQ(number(FieldType::Decimal, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0x20, 0x05, 0, 0}, 1),
              131.2);
    EXPECT_EQ(number(FieldType::Decimal, {0x80, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0x19, 0, 0, 0}, 2),
              -0.25);
    // 2^32 in the third word, no decimals
    EXPECT_EQ(number(FieldType::Decimal, {0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0}, 0),
              4294967296.0);
    EXPECT_EQ(number(FieldType::Decimal, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}, 4), 0.0);
    EXPECT_EQ(number(FieldType::Decimal, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0}, 29),
              std::nullopt);
}

TEST(JetValue, TextsAreNumbersInPointNotation) {
    EXPECT_EQ(number(FieldType::WideText, {'1', 0, '.', 0, '5', 0}), 1.5);
    EXPECT_EQ(number(FieldType::WideText, {0xff, 0xfe, '1', '.', '5'}), 1.5);
    EXPECT_EQ(number(FieldType::NarrowText, {'1', '.', '5'}), 1.5);
    EXPECT_EQ(number(FieldType::WideText, {'1', 0, ',', 0, '5', 0}), std::nullopt);
    EXPECT_EQ(number(FieldType::WideText, {'1', 1, '5', 0}), std::nullopt);
    EXPECT_EQ(number(FieldType::WideText, {}), std::nullopt);
    EXPECT_EQ(number(FieldType::NarrowText, {'1', 'e', '9', '9'}), std::nullopt);
}

TEST(JetValue, BytesOfAnotherLengthAreNoNumber) {
    EXPECT_EQ(number(FieldType::Integer, {1}), std::nullopt);
    EXPECT_EQ(number(FieldType::Single, {0, 0, 0xe7, 0x42, 0}), std::nullopt);
    EXPECT_EQ(number(FieldType::Byte, {}), std::nullopt);
}

TEST(JetValue, OtherTypesAreNoNumber) {
    EXPECT_EQ(number(FieldType::Other, {1, 2}), std::nullopt);
    EXPECT_EQ(storedSize(FieldType::Other), 0U);
}

}  // namespace
}  // namespace mero::rain
