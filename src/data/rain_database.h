// SPDX-License-Identifier: MIT
/// The rain database: one table of rain intensities per rain-gauge station.
/// This class only returns the columns and rows of a table; the rain dialog decides how to use them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace mero::data {

/// One table of the rain database, rows in the table's own order.
struct StationTable {
    using Value = std::optional<double>;

    std::vector<std::string> columns;      ///< field names as stored
    std::vector<std::vector<Value>> rows;  ///< one value per column; nullopt: null or not a number
    bool demonstration = false;            ///< the file has the table `Demo`: its values are not measured
};

/// Fields of a station's intensities in the order of the periodicities 5, 2, 1, 0.5, 0.2, 0.1, 0.05.
inline constexpr std::array<std::string_view, 7> kIntensityFields{"5", "2", "1", "05", "02", "01", "005"};
/// A table without the field "005" has this one, for the periodicity 0.04.
inline constexpr std::string_view kSubstituteOfLastField = "004";

[[nodiscard]] bool isIntensityField(std::string_view name);

/// Are the intensities of each periodicity 0 or more and nowhere rising with the duration? Those of a station
/// without data are 0. Values that are no numbers do not count.
[[nodiscard]] bool arePlausible(const StationTable& table);

/// Position of a field by its name, ignoring case as the database does.
[[nodiscard]] std::optional<std::size_t> columnIndex(const StationTable& table, std::string_view name);

/// True when the table has the field, e.g. "005" (a table without it has "004").
[[nodiscard]] bool hasField(const StationTable& table, std::string_view name);

/// Error numbers of a failed read, besides 53 (the file does not exist).
inline constexpr int kCannotOpenDatabase = 3051;  ///< no permission, not a file, not a database
inline constexpr int kTableNotFound = 3078;       ///< the file has no table of that station
inline constexpr int kNoRain = 3021;              ///< the table has no row, or its intensities are no numbers
inline constexpr int kReadFailed = 3112;          ///< damaged, or not plausible

/// Name of a station's table: "List" and the number in plain decimal.
[[nodiscard]] std::string tableName(std::int16_t station_number);

/// Interface through which the dialog reads a station's rain intensities.
class RainDatabase {
  public:
    RainDatabase() = default;
    RainDatabase(const RainDatabase&) = delete;
    RainDatabase& operator=(const RainDatabase&) = delete;
    virtual ~RainDatabase() = default;

    /// Reads the table of one station.
    ///
    /// @param station_number number of the station in the database, not its position in the list
    /// @param path           the database file
    /// @throws RuntimeError that ends the program when the file is missing, cannot be opened, lacks the
    ///         table or is damaged, when the table has no row, and when no intensity field that it has is of
    ///         a type that holds numbers; its description names the file and the table
    [[nodiscard]] virtual StationTable read(std::int16_t station_number, const std::string& path) = 0;
};

/// Reads `mero.mdb`, a Jet 4 file. A file that is damaged, cut, encrypted or not plausible gives an error,
/// never a part of its values.
class MdbRainDatabase : public RainDatabase {
  public:
    /// `path` may join folder and file by a backslash.
    [[nodiscard]] StationTable read(std::int16_t station_number, const std::string& path) override;
};

}  // namespace mero::data
