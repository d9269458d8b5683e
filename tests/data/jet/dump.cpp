// SPDX-License-Identifier: MIT
/// mero-jet-dump FILE...: prints the tables of rain databases, to be compared with what other readers find.
/// Numbers are printed as their bits, texts as their bytes, dates as whole seconds.
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "data/jet/database.h"
#include "data/jet/same_name.h"
#include "data/jet/text.h"
#include "data/jet/value.h"

namespace {

namespace jet = mero::data::jet;

constexpr double kSecondsOfDay = 86400.0;

std::string hexadecimal(std::uint64_t bits) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string text;
    for (int digit = 15; digit >= 0; --digit) {
        text += kDigits[bits >> (4 * digit) & 15U];
    }
    return text;
}

std::string shown(const jet::Row& row, const jet::Column& column) {
    if (column.type == jet::ColumnType::YesNo) {
        return row.flag(column) ? "yes" : "no";
    }
    const auto bytes = row.value(column);
    if (!bytes) {
        return "-";
    }
    if (column.type == jet::ColumnType::Text) {
        return "'" + jet::textValue(*bytes);
    }
    if (!jet::holdsNumbers(column.type) && column.type != jet::ColumnType::Date) {
        return "?";
    }
    const auto number = jet::numberOf(column, *bytes);
    if (!number) {
        return "none";
    }
    return column.type == jet::ColumnType::Date ? std::to_string(std::llround(*number * kSecondsOfDay))
                                                : hexadecimal(std::bit_cast<std::uint64_t>(*number));
}

void print(const jet::Database& database, const jet::CatalogueEntry& entry) {
    const jet::TableDefinition table = database.table(entry);
    std::cout << "table " << entry.name << '\n';
    for (const jet::Column& column : table.columns) {
        std::cout << "column " << column.name << '\n';
    }
    database.forEachRow(table, [&](const jet::Row& row) {
        std::cout << "row";
        for (const jet::Column& column : table.columns) {
            std::cout << '\t' << shown(row, column);
        }
        std::cout << '\n';
    });
}

void print(const char* path) {
    std::ifstream file(path, std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(file), {}};
    std::cout << "file " << path << '\n';
    try {
        const jet::Database database({reinterpret_cast<const std::uint8_t*>(content.data()), content.size()});
        auto tables = database.catalogue().tables();
        std::ranges::sort(tables, {}, &jet::CatalogueEntry::name);
        for (const jet::CatalogueEntry& entry : tables) {
            if (!entry.name.starts_with("MSys")) {
                print(database, entry);
            }
        }
    } catch (const jet::Failure& failure) {
        std::cout << "failure " << failure.what() << '\n';
    }
}

}  // namespace

int main(int argc, char** argv) {
    for (int argument = 1; argument < argc; ++argument) {
        print(argv[argument]);
    }
    return 0;
}
