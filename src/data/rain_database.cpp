// SPDX-License-Identifier: MIT
/// Reads a station by running `mero-rain` and reports errors in Czech.
/// This file does not depend on the database's format.
#include "data/rain_database.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "data/rain_protocol.h"
#include "data/reader_process.h"
#include "platform/numbers/number_text.h"
#include "platform/numbers/runtime_error.h"

namespace mero::data {
namespace {

char lowerCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool isSameName(std::string_view one, std::string_view other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](char a, char b) { return lowerCase(a) == lowerCase(b); });
}

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

StationTable tableOf(const ReaderResult& result, const Failures& failures) {
    using Ending = ReaderResult::Ending;
    switch (result.ending) {
        case Ending::NotStarted:
            throw failures.readFailed("program pro čtení databáze nelze spustit");
        case Ending::TimeLimit:
            throw failures.readFailed("čtení trvalo příliš dlouho, soubor je zřejmě poškozen");
        case Ending::Crashed:
        case Ending::OutputLimit:
            throw failures.readFailed("soubor je zřejmě poškozen");
        case Ending::Exited:
            break;
    }
    if (result.exit_status == static_cast<int>(ReaderExit::CannotOpen)) {
        throw failures.cannotOpen();
    }
    if (result.exit_status == static_cast<int>(ReaderExit::TableMissing)) {
        throw failures.tableMissing();
    }
    if (result.exit_status == static_cast<int>(ReaderExit::NoNumbers)) {
        throw failures.noNumbers();
    }
    auto table = decode(result.output);
    if (result.exit_status != static_cast<int>(ReaderExit::Done) || !table) {
        throw failures.readFailed("soubor je zřejmě poškozen");
    }
    if (table->rows.empty()) {
        throw failures.noRow();
    }
    return *std::move(table);
}

}  // namespace

std::optional<std::size_t> columnIndex(const StationTable& table, std::string_view name) {
    const auto found = std::find_if(table.columns.begin(), table.columns.end(),
                                    [&](const std::string& column) { return isSameName(column, name); });
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

MdbRainDatabase::MdbRainDatabase(std::string reader_program) : reader_program_(std::move(reader_program)) {}

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
    return tableOf(runReader({reader_program_, file, failures.table}), failures);
}

}  // namespace mero::data
