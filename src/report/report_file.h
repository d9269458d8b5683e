// SPDX-License-Identifier: MIT
/// Writes the report file, completely or not at all, and removes it.
#pragma once

#include <string>
#include <string_view>

namespace mero::report {

enum class WriteResult {
    Written,
    PermissionDenied,  ///< the file is locked or protected; it keeps its old content
    Failed,            ///< any other error; an incomplete report file is removed
};

/// Creates or overwrites the file with the text in windows-1250. The path is a POSIX path in UTF-8. A link in
/// the file's place is not followed and stays: Failed.
/// If the folder is writable, a program that reads the file meanwhile gets the complete old or new report.
[[nodiscard]] WriteResult writeReport(const std::string& path, std::string_view html_utf8);

/// True when the file exists and its content is exactly this report.
[[nodiscard]] bool holdsReport(const std::string& path, std::string_view html_utf8);

/// Deletes the file if it exists; errors are ignored. Does nothing for an empty path or a folder.
void removeReport(const std::string& path);

/// The file name without its folder, for the message about a locked report.
[[nodiscard]] std::string bareFileName(const std::string& path);

}  // namespace mero::report
