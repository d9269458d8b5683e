// SPDX-License-Identifier: MIT
/// The HTML results report of a project: project, rain, drained areas, inputs and results of its type.
#pragma once

#include <string>

#include "report/report_data.h"

namespace mero::report {

/// The whole document in UTF-8, lines ended by CR LF.
///
/// The mark-up is a fixed format, kept to the byte: some rows end without "</TR>", the description is
/// followed by an unmatched "</p>", the document ends with "<html>". Texts of the project go in as they are
/// typed, mark-up included. It carries no character-set declaration: it is stored as windows-1250 (see
/// writeReport).
[[nodiscard]] std::string htmlReport(const ReportData& data);

}  // namespace mero::report
