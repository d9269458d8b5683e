// SPDX-License-Identifier: MIT
/// Starts the window program for one PDF file.
/// The result depends on its exit status only.
#include "app/batch/pdf_program.h"

#include <utility>
#include <vector>

#include "app/batch/run_program.h"
#include "app/common/program_folder.h"

namespace mero::app {

using platform::PdfResult;

PdfResult makePdfBy(const std::string& program, const std::string& document_path,
                    const std::string& target_path, std::chrono::milliseconds time_limit,
                    const std::string& page_note) {
    // The status of a program whose libraries are missing; shells use it for a missing program.
    constexpr int kCannotStart = 127;
    std::vector<std::string> command{program, "--export-pdf", document_path, target_path};
    if (!page_note.empty()) {
        command.push_back(page_note);
    }
    using Kind = ProgramEnd::Kind;
    const ProgramEnd end = runProgram(std::move(command), time_limit);
    if (end.kind == Kind::NotStarted || (end.kind == Kind::Exited && end.exit_status == kCannotStart)) {
        return PdfResult::NoMeans;
    }
    const bool made = end.kind == Kind::Exited && end.exit_status == 0;
    return made ? PdfResult::Made : PdfResult::Failed;
}

PdfResult makePdfByWindowProgram(const std::string& document_path, const std::string& target_path,
                                 const std::string& page_note) {
    return makePdfBy(executableFolder() + "/mero", document_path, target_path, kPdfTimeLimit, page_note);
}

}  // namespace mero::app
