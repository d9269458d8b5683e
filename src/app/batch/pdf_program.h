// SPDX-License-Identifier: MIT
/// PDF files without a window system: the window program makes them in a process of its own.
#pragma once

#include <chrono>
#include <string>

#include "platform/desk.h"

namespace mero::app {

/// Asks the program `mero` beside this one for a PDF file of a document. There are no means when it is not
/// there or cannot start; a program that takes too long is stopped, and the file is not made.
[[nodiscard]] platform::PdfResult makePdfByWindowProgram(const std::string& document_path,
                                                         const std::string& target_path);

/// How long the window program may take: a fraction of a second is enough, but not on a busy machine.
inline constexpr std::chrono::milliseconds kPdfTimeLimit{30000};

/// The same with another program.
[[nodiscard]] platform::PdfResult makePdfBy(const std::string& program, const std::string& document_path,
                                            const std::string& target_path,
                                            std::chrono::milliseconds time_limit = kPdfTimeLimit);

}  // namespace mero::app
