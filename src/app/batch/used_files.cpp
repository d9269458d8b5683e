// SPDX-License-Identifier: MIT
/// Each output is compared with all inputs and with the outputs before it.
#include "app/batch/used_files.h"

#include "app/common/command_line.h"
#include "app/common/program_folder.h"
#include "platform/files/same_file.h"

namespace mero::app {
namespace {

void requireOther(const UsedFile& output, const UsedFile& file) {
    if (!output.path.empty() && !file.path.empty() && platform::isSameFile(output.path, file.path)) {
        throw UsageError(output.what + " " + output.path + " is " + file.what + ": nothing was written");
    }
}

}  // namespace

void requireSeparateFiles(const std::vector<UsedFile>& reads, const std::vector<UsedFile>& writes) {
    for (std::size_t i = 0; i < writes.size(); ++i) {
        for (const UsedFile& input : reads) {
            requireOther(writes[i], input);
        }
        for (std::size_t k = 0; k < i; ++k) {
            requireOther(writes[i], {"the file of " + writes[k].what, writes[k].path});
        }
    }
}

UsedFile rainDatabaseIn(const std::string& folder) {
    const std::string program_folder = folder.empty() ? findDefaultFolder().path : folder;
    return {"the rain database", program_folder.empty() ? "" : program_folder + "/mero.mdb"};
}

}  // namespace mero::app
