// SPDX-License-Identifier: MIT
/// What the results report shows of a design that was made without the window.
#pragma once

#include "design/design_result.h"
#include "design/site.h"
#include "platform/clock.h"
#include "project/project.h"
#include "report/report_data.h"

namespace mero::project {

/// The report's data, the same as the window collects for the same inputs.
/// @param site   as prepared from the project's inputs
/// @param result of the design, with its type still chosen
[[nodiscard]] report::ReportData reportData(const Project& project, const design::Site& site,
                                            const design::DesignResult& result,
                                            const platform::DateTime& now);

}  // namespace mero::project
