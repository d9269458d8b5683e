// SPDX-License-Identifier: MIT
/// The building blocks of the report: lines, value rows, the cells that close them, fixed rows.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "design/input.h"
#include "design/quantity.h"
#include "report/report_data.h"

namespace mero::report {

/// The pieces one after another, ended by CR LF.
[[nodiscard]] std::string line(std::initializer_list<std::string_view> pieces);

/// Number texts of the report.
[[nodiscard]] std::string twoDecimals(float value);
[[nodiscard]] std::string scientific(float value);

/// Cells that end a value row with its unit. Those named ...Open leave the row without "</TR>": that is how
/// the report's format has it, row by row, and every browser closes such a row at the next one.
namespace unit {
inline constexpr std::string_view kSquareMetres =
    "</TH><TH valign=bottom align=left width=250>m<sup>2</sup></TH></TR>";
inline constexpr std::string_view kSquareMetresOpen =
    "</TH><TH valign=bottom align=left width=250>m<sup>2</sup></TH>";
inline constexpr std::string_view kSquareMetresEndOfTable =
    "</TH><TH valign=bottom align=left width=250>m<sup>2</sup></TH></TR></table>";
inline constexpr std::string_view kCubicMetres =
    "</TH><TH valign=bottom align=left width=250>m<sup>3</sup></TH></TR>";
inline constexpr std::string_view kCubicMetresOpen =
    "</TH><TH valign=bottom align=left width=250>m<sup>3</sup></TH>";
inline constexpr std::string_view kCubicMetresPerSecondOpen =
    "</TH><TH valign=bottom align=left width=250>m<sup>3</sup>/s</TH>";
inline constexpr std::string_view kMetres = "</TH><TH valign=bottom align=left width=250>m</TH></TR>";
inline constexpr std::string_view kMetresOpen = "</TH><TH valign=bottom align=left width=250>m</TH>";
inline constexpr std::string_view kMillimetres = "</TH><TH valign=bottom align=left width=250>mm</TH></TR>";
inline constexpr std::string_view kMetresPerSecond =
    "</TH><TH valign=bottom align=left width=250>m/s</TH></TR>";
inline constexpr std::string_view kMetresPerSecondOpen =
    "</TH><TH valign=bottom align=left width=250>m/s</TH>";
inline constexpr std::string_view kHours = "</TH><TH valign=bottom align=left width=250>hod.</TH></TR>";
inline constexpr std::string_view kHoursOpen = "</TH><TH valign=bottom align=left width=250>hod.</TH>";
inline constexpr std::string_view kLitresPerSecondHectare =
    "</TH><TH valign=bottom align=left width=250>l/s.ha</TH></TR>";
inline constexpr std::string_view kSquareCentimetresPerMetre =
    "</TH><TH valign=bottom align=left width=250>cm<sup>2</sup>/m</TH></TR>";
inline constexpr std::string_view kNone = "</TH><TH valign=bottom align=left width=250></TH></TR>";
inline constexpr std::string_view kNoneOpen = "</TH><TH valign=bottom align=left width=250></TH>";
}  // namespace unit

inline constexpr std::string_view kResultsHeading = "<u>Výsledky</u><p>";
inline constexpr std::string_view kTableStart = "<table border=0>";
inline constexpr std::string_view kTableEnd = "</table>";
inline constexpr std::string_view kRuleRow = "<TR><TD valign=bottom colspan=3><hr></TD></tr>";

/// A row of label, value and closing cell.
[[nodiscard]] std::string valueRow(std::string_view label, std::string_view value, std::string_view closing);

/// The row of an input or a result of the design with two decimals, under its label of the report.
[[nodiscard]] std::string inputRow(const ReportData& data, design::Input input, std::string_view closing);
[[nodiscard]] std::string resultRow(const ReportData& data, design::Quantity quantity,
                                    std::string_view closing);

/// The row that introduces an option of the design, after a row with a dash.
[[nodiscard]] std::string optionHeader(std::string_view caption);

}  // namespace mero::report
