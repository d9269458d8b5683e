// SPDX-License-Identifier: MIT
/// The desk of a script: prints a trace line for everything that leaves the program, closes message boxes,
/// and stores the answer to the next save dialog.
#pragma once

#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <utility>

#include "automation/json_line.h"
#include "platform/desk.h"

namespace mero::automation {

class TraceDesk : public platform::Desk {
  public:
    using PdfMaker = std::function<platform::PdfResult(
        const std::string& document_path, const std::string& target_path, const std::string& page_note)>;

    /// @param trace  receives the lines; flushed after each
    /// @param inner  the real desk of a window, which shows the same things; null without a window
    /// @param folder folder of relative answers to the save dialog
    TraceDesk(std::ostream& trace, platform::Desk* inner, std::string folder);

    void print(const JsonLine& line);
    /// Sets the function that makes PDF files when there is no real desk.
    void makePdfBy(PdfMaker maker) { pdf_maker_ = std::move(maker); }
    /// Sets the answer to the next save dialog; an empty one cancels it.
    void answerSave(std::optional<std::string> path) { save_answer_ = std::move(path); }

    void showMessage(const platform::Message& message) override;
    void reportError(const RuntimeError& error) override;
    void openAddress(const std::string& address) override;
    void formOpened(const std::string& form) override;
    void formClosed(const std::string& form) override;
    void navigated(const std::string& view, const std::string& path) override;
    void setPageNote(const std::string& text) override;
    void openPrintPreview(const std::string& path) override;
    std::optional<std::string> askSavePath(const std::string& suggested_path) override;
    platform::PdfResult makePdf(const std::string& document_path, const std::string& target_path) override;
    void saved(const std::string& path) override;
    void ended() override;

  private:
    std::ostream* trace_;
    platform::Desk* inner_;
    std::string folder_;
    PdfMaker pdf_maker_;
    std::string page_note_;
    std::optional<std::string> save_answer_;
};

}  // namespace mero::automation
