// SPDX-License-Identifier: MIT
/// The port for everything that leaves the program: message boxes, error reports, opened addresses, dialogs
/// of the system. One object is injected: the window's shows them, those of scripts and tests record them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/numbers/runtime_error.h"

namespace mero::platform {

enum class MessageIcon { None, Information, Exclamation, Critical };

/// What a message is about; the rooms that make messages number them.
enum class MessageId : std::uint8_t { None = 0 };

/// A modal message with one OK button. Without a title the application's title shows.
struct Message {
    std::string text;
    MessageIcon icon = MessageIcon::None;
    std::optional<std::string> title = std::nullopt;
    MessageId id = MessageId::None;

    /// Equal to the eye: the id is not shown.
    friend bool operator==(const Message& a, const Message& b) {
        return a.text == b.text && a.icon == b.icon && a.title == b.title;
    }
};

/// The title of message boxes without one of their own.
inline constexpr const char* kApplicationTitle = "MERO";

enum class PdfResult {
    Made,
    Failed,   ///< the document cannot be read or the file cannot be written
    NoMeans,  ///< this program cannot lay out pages
};

class Desk {
  public:
    Desk() = default;
    virtual ~Desk() = default;
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;
    Desk(Desk&&) = delete;
    Desk& operator=(Desk&&) = delete;

    /// Shows a message box and returns when the user has closed it.
    virtual void showMessage(const Message& message) = 0;
    /// Reports a run-time error that no handler caught.
    virtual void reportError(const RuntimeError& error) = 0;
    /// Opens a web address in the default browser.
    virtual void openAddress(const std::string& address) = 0;

    /// A form was shown / closed.
    virtual void formOpened(const std::string& form) = 0;
    virtual void formClosed(const std::string& form) = 0;
    /// A browser view was sent to a local file.
    virtual void navigated(const std::string& view, const std::string& path) = 0;
    /// The line at the foot of the pages that are printed from now on; "" for none.
    virtual void setPageNote(const std::string& /*text*/) {}
    /// The print preview is opened on a document.
    virtual void openPrintPreview(const std::string& path) = 0;
    /// Shows the save dialog. @return the chosen path, empty when the user cancels
    virtual std::optional<std::string> askSavePath(const std::string& suggested_path) = 0;
    /// Writes the pages of the print preview to a PDF file.
    /// @param target_path an empty file, or a new one
    virtual PdfResult makePdf(const std::string& /*document_path*/, const std::string& /*target_path*/) {
        return PdfResult::NoMeans;
    }
    /// A copy of the report was saved.
    virtual void saved(const std::string& path) = 0;
    /// The program ended.
    virtual void ended() = 0;
};

}  // namespace mero::platform
