// SPDX-License-Identifier: MIT
/// Creates, checks and removes the temporary folder.
/// Errors of removing are ignored: a name that cannot be removed is not a fault of the tested program.
#include "monkey/sandbox_folder.h"

#include <unistd.h>

#include <cstdlib>
#include <stdexcept>
#include <system_error>

namespace mero::monkey {
namespace fs = std::filesystem;

SandboxFolder::SandboxFolder() {
    std::string pattern = (fs::temp_directory_path() / "mero-sandbox-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) {
        throw std::runtime_error("no temporary folder");
    }
    root_ = pattern;
    program_folder_ = root_ / "a" / "b" / "program";
    fs::create_directories(program_folder_);
}

SandboxFolder::~SandboxFolder() {
    std::error_code ignored;
    fs::remove_all(root_, ignored);
}

bool SandboxFolder::contains(const std::string& path) const {
    const fs::path relative = fs::path(path).lexically_normal().lexically_relative(program_folder_);
    return path.find('\0') == std::string::npos && !relative.empty() && *relative.begin() != "..";
}

std::string SandboxFolder::strayEntry() const {
    for (fs::path inner = program_folder_; inner != root_; inner = inner.parent_path()) {
        for (const auto& entry : fs::directory_iterator(inner.parent_path())) {
            if (entry.path() != inner) {
                return entry.path().string();
            }
        }
    }
    return {};
}

void SandboxFolder::empty() const {
    std::error_code ignored;
    for (const auto& entry : fs::directory_iterator(program_folder_)) {
        fs::remove_all(entry.path(), ignored);
    }
}

}  // namespace mero::monkey
