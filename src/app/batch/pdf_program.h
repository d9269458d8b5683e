// SPDX-License-Identifier: MIT
/// Makes PDF files without a window system: the window program makes them in its own process.
#pragma once

#include <chrono>
#include <string>

#include "platform/desk.h"

namespace mero::app {

/// Runs the program `mero` beside this one to make a PDF file of a document. @return NoMeans
/// when it is missing or cannot start; Failed when it fails or exceeds the time limit, which stops it
/// @param page_note line at the foot of each page, "" for none
[[nodiscard]] platform::PdfResult makePdfByWindowProgram(const std::string& document_path,
                                                         const std::string& target_path,
                                                         const std::string& page_note);

/// Time limit of the window program. It needs a fraction of a second, more on a busy machine.
inline constexpr std::chrono::milliseconds kPdfTimeLimit{30000};

/// Runs another program instead; for tests.
[[nodiscard]] platform::PdfResult makePdfBy(const std::string& program, const std::string& document_path,
                                            const std::string& target_path,
                                            std::chrono::milliseconds time_limit = kPdfTimeLimit,
                                            const std::string& page_note = "");

}  // namespace mero::app
