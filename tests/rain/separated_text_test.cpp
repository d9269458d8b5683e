// SPDX-License-Identifier: MIT
/// Encodings, cells and numbers of text files.
#include "rain/separated_text.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace mero::rain {
namespace {

constexpr Style kCzech{';', ','};
constexpr Style kEnglish{',', '.'};
constexpr Style kPoints{';', '.'};

TEST(DecodedText, ReadsTheEncodingsOfCzechFiles) {
    EXPECT_EQ(decodedText("\xEF\xBB\xBF\xC3\xBAhrn"), "úhrn");
    EXPECT_EQ(decodedText("\xC3\xBAhrn"), "úhrn");
    EXPECT_EQ(decodedText("\xFAhrn"), "úhrn");
    EXPECT_EQ(decodedText(std::string_view("\xFF\xFE\xFA\0h\0", 6)), "úh");
    EXPECT_EQ(decodedText(std::string_view("\xFE\xFF\0\xFA\0h", 6)), "úh");
}

TEST(DecodedText, EndsLinesAlike) {
    EXPECT_EQ(decodedText("a\r\nb\rc\nd\r"), "a\nb\nc\nd\n");
}

TEST(DecodedText, RefusesBytesThatAreNoText) {
    EXPECT_THROW(static_cast<void>(decodedText(std::string_view("a\0b", 3))), std::invalid_argument);
}

TEST(SplitCells, QuotesHoldSeparators) {
    EXPECT_EQ(splitCells(R"("a;b";"say ""c""" ; d )", ';'), (Cells{"a;b", "say \"c\"", "d"}));
}

TEST(SplitCells, RunsOfBlanksAreOneSeparator) {
    EXPECT_EQ(splitCells("  5   300\t1 ", ' '), (Cells{"5", "300", "1"}));
    EXPECT_EQ(splitCells("5;;1;", ';'), (Cells{"5", "", "1", ""}));
}

TEST(CellNumber, TheOtherSignGroupsOnlyBeforeADecimalSign) {
    EXPECT_EQ(cellNumber("1.234,5", kCzech), 1234.5);
    EXPECT_EQ(cellNumber("1,234.5", kEnglish), 1234.5);
    EXPECT_FALSE(cellNumber("1,234", kPoints).has_value());
    EXPECT_FALSE(cellNumber("1.234", kCzech).has_value());
    EXPECT_FALSE(cellNumber("12.34,5", kCzech).has_value());
}

TEST(CellNumber, BlanksGroupThrees) {
    EXPECT_EQ(cellNumber("1 234,5", kCzech), 1234.5);
    EXPECT_EQ(cellNumber("1\u00A0234", kPoints), 1234.0);
    EXPECT_FALSE(cellNumber("12 34", kPoints).has_value());
    // Between commas a blank never groups: "3 210" are two columns.
    EXPECT_FALSE(cellNumber("3 210", kEnglish).has_value());
}

TEST(CellNumber, WordsAndHalvesAreNone) {
    for (const char* cell : {"", "-", "5 min", "1e", "0x10", "nan", "inf", "1..2", "--1"}) {
        EXPECT_FALSE(cellNumber(cell, kPoints).has_value()) << cell;
    }
    EXPECT_EQ(cellNumber("\u22121.5e2", kPoints), -150.0);
}

TEST(RecognisedStyle, BlanksBeforeDecimalCommas) {
    EXPECT_EQ(recognisedStyle(contentLines("5 300,5\n10 210,4\n")), (Style{' ', ','}));
    EXPECT_EQ(recognisedStyle(contentLines("5,3 210,4\n6,3 200,4\n")), (Style{' ', ','}));
    EXPECT_EQ(recognisedStyle(contentLines("5, 300.5\n10, 210.4\n")), (Style{',', '.'}));
    EXPECT_EQ(recognisedStyle(contentLines("words only\n")), std::nullopt);
}

TEST(ContentLines, KeepTheirNumbers) {
    const auto lines = contentLines("# a\n\n5;1\n  // b\n6;2");
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].number, 3);
    EXPECT_EQ(lines[1].number, 5);
}

}  // namespace
}  // namespace mero::rain
