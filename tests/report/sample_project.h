// SPDX-License-Identifier: MIT
/// The sample project of the report tests: one set of values for all types.
#pragma once

#include "report/report_data.h"

namespace mero::report::test {

/// A project with every value filled in; its type is the given one.
ReportData sampleProject(int infiltration_type);

}  // namespace mero::report::test
