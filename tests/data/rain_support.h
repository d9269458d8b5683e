// SPDX-License-Identifier: MIT
/// Helpers of the rain database's tests: a temporary folder, the outcome and the time of a read.
#pragma once

#include <unistd.h>

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <string>
#include <variant>

#include "data/rain_database.h"
#include "platform/numbers/runtime_error.h"

namespace mero::data::test {

/// A new folder, removed with its content at the end.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "mero-rain-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr) {
            throw std::runtime_error("no temporary folder");
        }
        path_ = pattern;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    [[nodiscard]] std::string file(const std::string& name) const { return (path_ / name).string(); }

    /// Writes a file to the folder. @return its path
    [[nodiscard]] std::string write(const std::string& name, const std::string& content) const {
        std::ofstream(file(name), std::ios::binary) << content;
        return file(name);
    }

  private:
    std::filesystem::path path_;
};

inline std::string contentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// A read that takes longer has left its bounds, on any machine.
constexpr std::chrono::milliseconds kReadLimit{1000};

/// Outcome and time of a read.
struct Outcome {
    std::variant<StationTable, RuntimeError> result;
    std::chrono::milliseconds took;

    [[nodiscard]] const StationTable* table() const { return std::get_if<StationTable>(&result); }
    [[nodiscard]] const RuntimeError* error() const { return std::get_if<RuntimeError>(&result); }
    /// The error's number, 0 for a table.
    [[nodiscard]] int errorNumber() const { return error() == nullptr ? 0 : error()->number(); }
};

inline Outcome read(const std::string& path, std::int16_t station = 84) {
    const auto start = std::chrono::steady_clock::now();
    const auto took = [&] {
        return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() -
                                                                     start);
    };
    MdbRainDatabase database;
    try {
        auto table = database.read(station, path);
        return {std::move(table), took()};
    } catch (const RuntimeError& error) {
        return {error, took()};
    }
}

/// The value in a row (from 0) of the field with that name.
inline std::optional<double> valueAt(const StationTable& table, std::size_t row, const std::string& field) {
    return table.rows.at(row).at(columnIndex(table, field).value());
}

}  // namespace mero::data::test
