// SPDX-License-Identifier: MIT
/// The report's section of each infiltration type: its inputs and its results.
#pragma once

#include <string>

#include "report/report_data.h"

namespace mero::report {

/// Drained area, subsoil and groundwater: every section begins with this block, on its own first line.
[[nodiscard]] std::string siteInputs(const ReportData& data);

[[nodiscard]] std::string surfaceSection(const ReportData& data);   ///< type 1
[[nodiscard]] std::string swaleSection(const ReportData& data);     ///< type 2
[[nodiscard]] std::string combinedSection(const ReportData& data);  ///< type 3
[[nodiscard]] std::string trenchSection(const ReportData& data);    ///< type 4
[[nodiscard]] std::string shaftSection(const ReportData& data);     ///< type 5
[[nodiscard]] std::string tankSection(const ReportData& data);      ///< type 6

}  // namespace mero::report
