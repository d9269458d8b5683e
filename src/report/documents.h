// SPDX-License-Identifier: MIT
/// Paths of the documents in the program's folder: the report and the description pages.
#pragma once

#include <string>
#include <string_view>

#include "data/facility_type.h"

namespace mero::report {

/// Report file of a project: "Mero_" and the project name as typed, without extension.
[[nodiscard]] std::string reportPath(std::string_view program_folder, std::string_view project_name);

/// Whether the path is that of a file in the folder itself. A project name with a slash gives a path that
/// leads below the folder or out of it; such a report is neither written nor removed.
[[nodiscard]] bool isDirectlyIn(std::string_view program_folder, std::string_view path);

/// Whether the path leads, also through links, to a file of the program's folder that the program reads: the
/// rain database or a file in `Webs`.
[[nodiscard]] bool isProgramFile(const std::string& program_folder, const std::string& path);

/// Description page of an infiltration type: "Webs/Desc01.htm" to "Webs/Desc06.htm".
[[nodiscard]] std::string descriptionPagePath(std::string_view program_folder, data::FacilityType type);

}  // namespace mero::report
