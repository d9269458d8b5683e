// SPDX-License-Identifier: MIT
/// Saves a copy of the report that opens correctly in any browser and any folder.
/// The copy declares its character set and contains its logo. It asks for nothing from anywhere, whatever the
/// user's texts hold.
#pragma once

#include <string>
#include <string_view>

namespace mero::report {

/// Saves the report file as a self-contained HTML document in UTF-8. An existing file is replaced only by a
/// complete new one.
/// @param report_path    the report file (windows-1250)
/// @param program_folder folder of the report's relative picture paths
/// @param target_path    path of the copy
/// @return false when the report cannot be read or the copy cannot be written; an old file is unchanged then
[[nodiscard]] bool saveCopy(const std::string& report_path, const std::string& program_folder,
                            const std::string& target_path);

/// The same for a report in memory, in UTF-8; its file is not read.
[[nodiscard]] bool saveCopyOf(const std::string& html, const std::string& program_folder,
                              const std::string& target_path);

/// True when the suffix is that of a PDF file, in upper or lower case; all others mean HTML.
[[nodiscard]] bool isPdfPath(std::string_view path);

}  // namespace mero::report
