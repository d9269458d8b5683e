// SPDX-License-Identifier: MIT
/// Builds the paths of the report and of the description pages, and tells them from others.
#include "report/documents.h"

#include <filesystem>
#include <system_error>

#include "platform/files/same_file.h"
#include "platform/numbers/number_text.h"

namespace mero::report {
namespace {

namespace fs = std::filesystem;

bool isIn(const fs::path& folder, const fs::path& path) {
    std::error_code failure;
    const fs::path real_folder = fs::canonical(folder, failure);
    if (failure) {
        return false;
    }
    const fs::path relative = fs::weakly_canonical(path, failure).lexically_relative(real_folder);
    return !failure && !relative.empty() && *relative.begin() != ".." && relative != ".";
}

}  // namespace

std::string reportPath(std::string_view program_folder, std::string_view project_name) {
    std::string path(program_folder);
    path += "/Mero_";
    path += project_name;
    return path;
}

bool isDirectlyIn(std::string_view program_folder, std::string_view path) {
    if (!path.starts_with(program_folder)) {
        return false;
    }
    path.remove_prefix(program_folder.size());
    return path.starts_with('/') && path.find('/', 1) == std::string_view::npos;
}

bool isProgramFile(const std::string& program_folder, const std::string& path) {
    const fs::path folder = program_folder;
    return platform::isSameFile(path, (folder / "mero.mdb").string()) || isIn(folder / "Webs", path);
}

std::string descriptionPagePath(std::string_view program_folder, data::FacilityType type) {
    std::string path(program_folder);
    path += "/Webs/Desc0";
    path += numbers::general(static_cast<int>(type));
    path += ".htm";
    return path;
}

}  // namespace mero::report
