// SPDX-License-Identifier: MIT
/// Starting the window program for one PDF file.
/// Its exit status is all that it says.
#include "app/batch/pdf_program.h"

#include "app/common/program_folder.h"
#include "data/reader_process.h"

namespace mero::app {

using platform::PdfResult;

PdfResult makePdfBy(const std::string& program, const std::string& document_path,
                    const std::string& target_path, std::chrono::milliseconds time_limit) {
    // A program whose libraries are missing ends with this status, as one that is not there does in a shell.
    constexpr int kCannotStart = 127;
    const data::ReaderResult run =
        data::runReader({program, "--export-pdf", document_path, target_path}, time_limit);
    if (run.ending == data::ReaderResult::Ending::NotStarted ||
        (run.ending == data::ReaderResult::Ending::Exited && run.exit_status == kCannotStart)) {
        return PdfResult::NoMeans;
    }
    const bool made = run.ending == data::ReaderResult::Ending::Exited && run.exit_status == 0;
    return made ? PdfResult::Made : PdfResult::Failed;
}

PdfResult makePdfByWindowProgram(const std::string& document_path, const std::string& target_path) {
    return makePdfBy(executableFolder() + "/mero", document_path, target_path);
}

}  // namespace mero::app
