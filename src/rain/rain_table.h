// SPDX-License-Identifier: MIT
/// Tables of rains as people have them in files and on the clipboard: durations, and values of one or more
/// return periods beside them.
/// What was recognised is told, so that a person can confirm or correct it before a curve is made.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "rain/rain_curve.h"
#include "rain/separated_text.h"

namespace mero::rain {

enum class DurationUnit : std::uint8_t { Minutes, Hours };

enum class ValueUnit : std::uint8_t {
    Intensity,      ///< [l/(s.ha)]
    RatePerHour,    ///< [mm/h]
    RatePerMinute,  ///< [mm/min]
    Depth,          ///< [mm]
};

/// A unit, and whether the file says it or it was guessed from the values.
template <typename Unit>
struct Recognised {
    Unit unit{};
    bool guessed = false;
};

struct TableColumn {
    std::string label;  ///< from the head of the table, else "sloupec 2"
    std::vector<std::optional<double>> values;
};

struct RainTable {
    Style style;
    std::vector<double> durations;  ///< in the unit of the file
    std::vector<TableColumn> columns;
    std::optional<Recognised<DurationUnit>> duration_unit;
    std::optional<Recognised<ValueUnit>> value_unit;
    std::vector<std::string> remarks;  ///< lines that were left out, in Czech
};

/// Most bytes of a table.
inline constexpr std::size_t kLongestTable = 1'000'000;

/// @param bytes of a file or of the clipboard, in any encoding that decodedText() reads
/// @throws std::invalid_argument in Czech, with the line, for what is no table of rains
[[nodiscard]] RainTable readRainTable(std::string_view bytes);

/// The curve of a column. Rows without a value are left out.
/// @throws std::invalid_argument in Czech, as RainCurve
[[nodiscard]] RainCurve curveOf(const RainTable& table, std::size_t column, DurationUnit duration_unit,
                                ValueUnit value_unit);

/// A sentence in Czech when no rain has such values: the unit is probably another one. Else empty.
[[nodiscard]] std::string implausibility(const RainCurve& curve);

}  // namespace mero::rain
