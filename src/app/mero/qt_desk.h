// SPDX-License-Identifier: MIT
/// The real desk: message boxes, the browser, save dialog and print preview of the window system.
#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <string>

#include "platform/desk.h"
#include "qt/local_document.h"
#include "qt/typing.h"

namespace mero::app {

/// Who uses the desk: a person, who closes boxes and dialogs, or a script, for which boxes are shown and
/// closed at once and nothing leaves the program.
enum class Sitter { Person, Script };

class QtDesk : public platform::Desk {
  public:
    /// @param decode see LocalDocument; for the print preview and PDF files
    QtDesk(Sitter sitter, qt::Decoder decode);

    /// Sets the parent of boxes while no other window of the program is active.
    void setMainWindow(QWidget* window) { main_window_ = window; }

    /// Tells a message elsewhere than in a box; false when it has to be a box.
    std::function<bool(const platform::Message& message)> told_beside_field;
    /// Called when a person's file was saved.
    std::function<void(const std::string& path)> file_saved;
    /// Called after a person has closed a message box.
    std::function<void(const platform::Message& message)> message_closed;

    void showMessage(const platform::Message& message) override;
    void reportError(const RuntimeError& error) override;
    void openAddress(const std::string& address) override;
    void formOpened(const std::string& form) override;
    void formClosed(const std::string& form) override;
    void navigated(const std::string& view, const std::string& path) override;
    void setPageNote(const std::string& text) override { page_note_ = text; }
    void openPrintPreview(const std::string& path) override;
    std::optional<std::string> askSavePath(const std::string& suggested_path) override;
    platform::PdfResult makePdf(const std::string& document_path, const std::string& target_path) override;
    void saved(const std::string& path) override;
    void ended() override;

  private:
    [[nodiscard]] QWidget* window() const;
    void showBox(const platform::Message& message);
    void tellOfNoBrowser(const std::string& address);

    Sitter sitter_;
    qt::Decoder decode_;
    std::string page_note_;
    QPointer<QWidget> main_window_;
    QString last_folder_;  ///< where a file was saved last, empty before
    QObject while_there_;  ///< disconnects processes that end after this desk
};

/// Messages of a person's keystrokes are told beside the field, and in a box when it is left.
void tellBesideFields(QtDesk& desk, qt::Typing& typing);

}  // namespace mero::app
