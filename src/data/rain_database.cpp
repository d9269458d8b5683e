// SPDX-License-Identifier: MIT
/// Reads a station from the file and reports errors in Czech.
/// The file is read whole: checking it as a whole takes less time than reading it in pieces.
#include "data/rain_database.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <limits>
#include <memory>
#include <span>
#include <system_error>

#include "data/jet/failure.h"
#include "data/jet/same_name.h"
#include "data/station_file.h"
#include "platform/numbers/number_text.h"
#include "platform/numbers/runtime_error.h"

namespace mero::data {
namespace {

bool exists(const std::string& path) {
    std::error_code ignored;
    return std::filesystem::exists(path, ignored);
}

/// Stored path texts join folder and file by a backslash, which is an ordinary character in POSIX names, so
/// it is read as a slash unless a file with that exact name exists.
std::string filePath(const std::string& path) {
    const std::size_t joint = path.rfind('\\');
    if (joint == std::string::npos || exists(path)) {
        return path;
    }
    std::string resolved = path;
    resolved[joint] = '/';
    return resolved;
}

/// Error texts with the file and the table that could not be read.
struct Failures {
    std::string table;
    std::string path;

    [[nodiscard]] RuntimeError fileMissing() const {
        return ending(static_cast<int>(ErrorNumber::FileNotFound),
                      "Databáze dešťů „" + path + "“ nebyla nalezena (tabulka " + table + ")");
    }
    [[nodiscard]] RuntimeError cannotOpen() const {
        return ending(kCannotOpenDatabase,
                      "Databázi dešťů „" + path + "“ nelze otevřít (tabulka " + table + ")");
    }
    [[nodiscard]] RuntimeError tableMissing() const {
        return ending(kTableNotFound, "V databázi dešťů „" + path + "“ chybí tabulka " + table);
    }
    /// Without a row or a number the rain of the station chosen before would stand under the new name.
    [[nodiscard]] RuntimeError noRow() const { return noRain("nemá žádný řádek"); }
    [[nodiscard]] RuntimeError noNumbers() const { return noRain("nemá ve sloupcích intenzit čísla"); }
    [[nodiscard]] RuntimeError readFailed(const std::string& reason) const {
        return ending(kReadFailed,
                      "Tabulku " + table + " nelze přečíst z databáze dešťů „" + path + "“: " + reason);
    }

  private:
    [[nodiscard]] RuntimeError noRain(const std::string& lack) const {
        return ending(kNoRain, "Tabulka " + table + " v databázi dešťů „" + path + "“ " + lack);
    }
    static RuntimeError ending(int number, const std::string& description) {
        return RuntimeError(number, description, RuntimeError::Effect::EndsProgram);
    }
};

/// The largest file of this format.
constexpr std::uintmax_t kLargestFile = std::uintmax_t{2} << 30U;

/// A whole file in memory; its bytes are not set before they are read.
struct Content {
    std::unique_ptr<std::uint8_t[]> bytes;
    std::size_t size = 0;

    [[nodiscard]] std::span<const std::uint8_t> span() const { return {bytes.get(), size}; }
};

Content contentOf(const std::string& file, const Failures& failures) {
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(file, error);
    std::ifstream stream(file, std::ios::binary);
    if (error || size > kLargestFile || !stream) {
        throw failures.cannotOpen();
    }
    Content content{std::make_unique_for_overwrite<std::uint8_t[]>(size), static_cast<std::size_t>(size)};
    stream.read(reinterpret_cast<char*>(content.bytes.get()), static_cast<std::streamsize>(size));
    if (static_cast<std::uintmax_t>(stream.gcount()) != size) {
        throw failures.readFailed("soubor se při čtení změnil");
    }
    return content;
}

}  // namespace

std::optional<std::size_t> columnIndex(const StationTable& table, std::string_view name) {
    const auto found = std::find_if(table.columns.begin(), table.columns.end(),
                                    [&](const std::string& column) { return jet::isSameName(column, name); });
    if (found == table.columns.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(found - table.columns.begin());
}

bool hasField(const StationTable& table, std::string_view name) {
    return columnIndex(table, name).has_value();
}

std::string tableName(std::int16_t station_number) {
    return "List" + numbers::general(static_cast<int>(station_number));
}

bool isIntensityField(std::string_view name) {
    return name == kSubstituteOfLastField ||
           std::ranges::find(kIntensityFields, name) != kIntensityFields.end();
}

bool arePlausible(const StationTable& table) {
    for (std::size_t column = 0; column < table.columns.size(); ++column) {
        if (!isIntensityField(table.columns[column])) {
            continue;
        }
        double before = std::numeric_limits<double>::infinity();
        for (const auto& row : table.rows) {
            const StationTable::Value value = row[column];
            if (value && (*value < 0.0 || *value > before)) {
                return false;
            }
            before = value.value_or(before);
        }
    }
    return true;
}

StationTable MdbRainDatabase::read(std::int16_t station_number, const std::string& path) {
    const Failures failures{tableName(station_number), path};
    const std::string file = filePath(path);
    std::error_code error;
    const auto status = std::filesystem::status(file, error);
    if (status.type() == std::filesystem::file_type::not_found) {
        throw failures.fileMissing();
    }
    if (status.type() != std::filesystem::file_type::regular) {  // a folder; reading a pipe would block
        throw failures.cannotOpen();
    }
    const Content content = contentOf(file, failures);
    try {
        StationTable table = stationTable(content.span(), failures.table);
        if (table.rows.empty()) {
            throw failures.noRow();
        }
        if (!arePlausible(table)) {
            throw failures.readFailed("intenzity nejsou kladné a klesající s dobou trvání");
        }
        return table;
    } catch (const jet::Failure& failure) {
        switch (failure.kind()) {
            case jet::Failure::Kind::CannotOpen:
                throw failures.cannotOpen();
            case jet::Failure::Kind::NoSuchTable:
                throw failures.tableMissing();
            case jet::Failure::Kind::NoNumbers:
                throw failures.noNumbers();
            case jet::Failure::Kind::Damaged:
                break;
        }
        throw failures.readFailed("soubor je zřejmě poškozen");
    }
}

}  // namespace mero::data
