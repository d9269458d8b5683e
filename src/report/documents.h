// SPDX-License-Identifier: MIT
/// Paths of the documents in the program's folder: the report and the description pages.
#pragma once

#include <string>
#include <string_view>

#include "data/facility_type.h"

namespace mero::report {

/// Report file of a project: "Mero_" and the project name as typed, without extension.
[[nodiscard]] std::string reportPath(std::string_view program_folder, std::string_view project_name);

/// Description page of an infiltration type: "Webs/Desc01.htm" to "Webs/Desc06.htm".
[[nodiscard]] std::string descriptionPagePath(std::string_view program_folder, data::FacilityType type);

}  // namespace mero::report
