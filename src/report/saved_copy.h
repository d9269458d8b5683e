// SPDX-License-Identifier: MIT
/// A copy of the report that can be handed over: it opens correctly in any browser and any folder.
/// It declares its character set and carries its logo inside.
#pragma once

#include <string>
#include <string_view>

namespace mero::report {

/// Saves the report file as a self-contained HTML document in UTF-8. An existing file is replaced only by a
/// whole new one.
/// @param report_path    the report file (windows-1250)
/// @param program_folder where the report's relative picture paths lead
/// @param target_path    where the copy goes
/// @return false when the report cannot be read or the copy cannot be written; an old file stays whole then
[[nodiscard]] bool saveCopy(const std::string& report_path, const std::string& program_folder,
                            const std::string& target_path);

/// The same of a report that is at hand, in UTF-8: it does not depend on what became of its file.
[[nodiscard]] bool saveCopyOf(std::string html, const std::string& program_folder,
                              const std::string& target_path);

/// Does the name ask for a PDF file? Its suffix says so, in large or small letters; all others mean HTML.
[[nodiscard]] bool isPdfPath(std::string_view path);

}  // namespace mero::report
