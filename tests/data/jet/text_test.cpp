// SPDX-License-Identifier: MIT
/// Names and values of text columns, plain and compressed.
#include "data/jet/text.h"

#include <gtest/gtest.h>

namespace mero::data::jet {
namespace {

std::string value(const std::vector<std::uint8_t>& bytes) {
    return textValue(Bytes(bytes));
}

TEST(JetText, PlainTextHasTwoBytesForACharacter) {
    EXPECT_EQ(value({'a', 0, 0x0d, 0x01, 0xac, 0x20}), "ač€");
    EXPECT_EQ(value({}), "");
}

TEST(JetText, CharactersBeyondTheFirstPlaneAreTwoUnits) {
    EXPECT_EQ(value({0x3d, 0xd8, 0x00, 0xde}), "\xf0\x9f\x98\x80");  // U+1F600
}

TEST(JetText, CompressedTextHasOneByteAndSwitchesByAZero) {
    EXPECT_EQ(value({0xff, 0xfe, 'D', 'e', 's', 't'}), "Dest");
    EXPECT_EQ(value({0xff, 0xfe, 'd', 0, 0x1b, 0x01, 0x61, 0x01, 0, 't'}), "děšt");
    EXPECT_EQ(value({0xff, 0xfe}), "");
    EXPECT_EQ(value({0xff, 0xfe, 0xe1}), "á") << "the bytes are Latin-1";
}

TEST(JetText, HalfACharacterIsDamage) {
    EXPECT_THROW(value({'a'}), Failure);
    EXPECT_THROW(value({0x3d, 0xd8, 'a', 0}), Failure);
    EXPECT_THROW(value({0x00, 0xde}), Failure);
    EXPECT_THROW(value({0xff, 0xfe, 0, 0x1b}), Failure);
}

}  // namespace
}  // namespace mero::data::jet
