// SPDX-License-Identifier: MIT
/// Refuses outputs that would overwrite a file which the command needs.
#pragma once

#include <string>
#include <vector>

namespace mero::app {

/// A file of a command, with what it is for the user: "the project file", "--out".
struct UsedFile {
    std::string what;
    std::string path;  ///< "" for none
};

/// Compares the files themselves, so links and other ways of writing a path do not hide one.
/// @param reads the files that the command reads
/// @param writes the files that it writes
/// @throws UsageError when a file is to be written that is read, or that another output writes
void requireSeparateFiles(const std::vector<UsedFile>& reads, const std::vector<UsedFile>& writes);

/// The rain database in the given folder of the program, or in the default one, which is not made for that.
[[nodiscard]] UsedFile rainDatabaseIn(const std::string& folder);

}  // namespace mero::app
