// SPDX-License-Identifier: MIT
/// Collects what the results report shows from the main window's values and options.
#pragma once

#include "platform/clock.h"
#include "report/report_data.h"

namespace mero::forms {

class frmCalc;

/// The report's data at this moment; nothing is computed.
[[nodiscard]] report::ReportData reportData(const frmCalc& window, const platform::DateTime& now);

}  // namespace mero::forms
