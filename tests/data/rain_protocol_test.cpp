// SPDX-License-Identifier: MIT
/// The lines that the reader prints: complete texts are read back exactly, everything else is refused.
#include "data/rain_protocol.h"

#include <gtest/gtest.h>

#include <limits>

namespace mero::data {
namespace {

StationTable smallTable() {
    StationTable table;
    table.columns = {"doba", "005", "poznámka s mezerou"};
    table.rows = {{5.0, static_cast<double>(115.6F), std::nullopt}, {10.0, -1.5e-7, std::nullopt}};
    table.demonstration = true;
    return table;
}

constexpr const char* kSmallText =
    "mero-rain 1\n"
    "demonstration 1\n"
    "columns 3\n"
    "column doba\n"
    "column 005\n"
    "column poznámka s mezerou\n"
    "rows 2\n"
    "row\t5\t115.5999984741211\t\n"
    "row\t10\t-1.5E-07\t\n"
    "end 2\n";

std::string replaced(std::string text, const std::string& part, const std::string& by) {
    const std::size_t at = text.find(part);
    EXPECT_NE(at, std::string::npos) << part;
    return text.replace(at, part.size(), by);
}

TEST(RainProtocol, WritesTheLines) {
    EXPECT_EQ(encode(smallTable()), kSmallText);
}

TEST(RainProtocol, ReadsBackEveryBit) {
    StationTable table = smallTable();
    table.demonstration = false;
    table.rows.push_back(
        {std::numeric_limits<double>::denorm_min(), -std::numeric_limits<double>::max(), 0.1});
    const auto read = decode(encode(table).value());
    ASSERT_TRUE(read);
    EXPECT_EQ(read->columns, table.columns);
    EXPECT_EQ(read->rows, table.rows);
    EXPECT_FALSE(read->demonstration);
    EXPECT_TRUE(decode(kSmallText)->demonstration);
}

TEST(RainProtocol, ATableWithoutRowsIsATable) {
    StationTable table = smallTable();
    table.rows.clear();
    EXPECT_EQ(decode(encode(table).value())->rows.size(), 0U);
}

TEST(RainProtocol, EveryCutIsNoticed) {
    const std::string text = kSmallText;
    for (std::size_t length = 0; length < text.size(); ++length) {
        EXPECT_FALSE(decode(text.substr(0, length))) << length;
    }
}

TEST(RainProtocol, EveryMissingOrDoubledLineIsNoticed) {
    const std::string text = kSmallText;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = text.find('\n', start) + 1;
        const std::string line = text.substr(start, end - start);
        EXPECT_FALSE(decode(text.substr(0, start) + text.substr(end))) << "without " << line;
        EXPECT_FALSE(decode(text.substr(0, end) + line + text.substr(end))) << "twice " << line;
        EXPECT_FALSE(decode(text.substr(0, start) + "garbage\n" + text.substr(start)))
            << "garbage before " << line;
        start = end;
    }
    EXPECT_FALSE(decode(text + text));
    EXPECT_FALSE(decode(text + "\n"));
}

TEST(RainProtocol, OddTextsAreRefused) {
    for (const auto& [part, by] : {
             std::pair("mero-rain 1", "mero-rain 2"),
             std::pair("demonstration 1", "demonstration 2"),
             std::pair("demonstration 1", "demonstration"),
             std::pair("columns 3", "columns 03"),
             std::pair("columns 3", "columns 256"),
             std::pair("columns 3", "columns -3"),
             std::pair("columns 3", "columns 99999999999"),
             std::pair("column doba", "column "),
             std::pair("column doba", "column do\tba"),
             std::pair("column doba", "column 005"),
             std::pair("rows 2", "rows 2 "),
             std::pair("rows 2", "rows 3"),
             std::pair("row\t5\t", "row\t5\t1\t"),
             std::pair("row\t5\t", "row 5\t"),
             std::pair("row\t5\t", "row\t"),
             std::pair("row\t5\t", "row\t5.0\t"),
             std::pair("row\t5\t", "row\t+5\t"),
             std::pair("row\t5\t", "row\t5,5\t"),
             std::pair("row\t5\t", "row\t1E+999\t"),
             std::pair("row\t5\t", "row\tinf\t"),
             std::pair("row\t5\t", "row\tnan\t"),
             std::pair("115.5999984741211", "115.59999847412110"),
             std::pair("end 2", "end 1"),
         }) {
        EXPECT_FALSE(decode(replaced(kSmallText, part, by))) << part << " -> " << by;
    }
}

TEST(RainProtocol, WhatCannotBeSentIsNotWritten) {
    const auto refuses = [](const StationTable& table) { return !encode(table).has_value(); };
    StationTable table = smallTable();
    table.columns[1] = "00\n5";
    EXPECT_TRUE(refuses(table));
    table = smallTable();
    table.columns[1] = "DOBA";
    EXPECT_TRUE(refuses(table)) << "one field by two names";
    table = smallTable();
    table.rows[0][1] = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(refuses(table));
    table = smallTable();
    table.rows[1].pop_back();
    EXPECT_TRUE(refuses(table));
    table = smallTable();
    table.rows.resize(32768, table.rows[0]);
    EXPECT_TRUE(refuses(table));
    table.rows.resize(32767);
    EXPECT_TRUE(decode(encode(table).value()));
    EXPECT_TRUE(refuses(StationTable()));
}

}  // namespace
}  // namespace mero::data
