// SPDX-License-Identifier: MIT
/// Builds the paths of the report and of the description pages.
#include "report/documents.h"

#include "platform/numbers/number_text.h"

namespace mero::report {

std::string reportPath(std::string_view program_folder, std::string_view project_name) {
    std::string path(program_folder);
    path += "/Mero_";
    path += project_name;
    return path;
}

std::string descriptionPagePath(std::string_view program_folder, data::FacilityType type) {
    std::string path(program_folder);
    path += "/Webs/Desc0";
    path += numbers::general(static_cast<int>(type));
    path += ".htm";
    return path;
}

}  // namespace mero::report
