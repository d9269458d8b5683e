// SPDX-License-Identifier: MIT
/// The report file: written whole or not at all, removed without complaint.
#pragma once

#include <string>
#include <string_view>

namespace mero::report {

enum class WriteResult {
    Written,
    PermissionDenied,  ///< the file is locked or protected; it keeps its old content
    Failed,            ///< any other error; a report file that was begun is removed
};

/// Creates or overwrites the file with the text in windows-1250. The path is a POSIX path in UTF-8.
/// Where the folder can be written, whoever reads the file meanwhile gets the old report or the new one
/// whole.
[[nodiscard]] WriteResult writeReport(const std::string& path, std::string_view html_utf8);

/// Whether the file is there and holds exactly this report.
[[nodiscard]] bool holdsReport(const std::string& path, std::string_view html_utf8);

/// Deletes the file if there is one; every error is ignored. Does nothing for an empty path or a folder.
void removeReport(const std::string& path);

/// The file name without its folder, as the message about a locked report tells it.
[[nodiscard]] std::string bareFileName(const std::string& path);

}  // namespace mero::report
