// SPDX-License-Identifier: MIT
/// Starts the window program for one PDF file.
/// The result depends on its exit status only.
#include "app/batch/pdf_program.h"

#include <vector>

#include "app/common/program_folder.h"
#include "data/reader_process.h"

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
    const data::ReaderResult run = data::runReader(command, time_limit);
    if (run.ending == data::ReaderResult::Ending::NotStarted ||
        (run.ending == data::ReaderResult::Ending::Exited && run.exit_status == kCannotStart)) {
        return PdfResult::NoMeans;
    }
    const bool made = run.ending == data::ReaderResult::Ending::Exited && run.exit_status == 0;
    return made ? PdfResult::Made : PdfResult::Failed;
}

PdfResult makePdfByWindowProgram(const std::string& document_path, const std::string& target_path,
                                 const std::string& page_note) {
    return makePdfBy(executableFolder() + "/mero", document_path, target_path, kPdfTimeLimit, page_note);
}

}  // namespace mero::app
