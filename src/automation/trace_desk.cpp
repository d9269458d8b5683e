// SPDX-License-Identifier: MIT
/// Prints trace lines while a script runs.
/// A line is printed before the real desk is called, so that the trace also has a box that hangs.
#include "automation/trace_desk.h"

#include <utility>

namespace mero::automation {
namespace {

const char* iconName(platform::MessageIcon icon) {
    switch (icon) {
        case platform::MessageIcon::Critical:
            return "critical";
        case platform::MessageIcon::Exclamation:
            return "exclamation";
        case platform::MessageIcon::Information:
            return "information";
        case platform::MessageIcon::None:
            return "none";
    }
    return "none";
}

}  // namespace

TraceDesk::TraceDesk(std::ostream& trace, platform::Desk* inner, std::string folder)
    : trace_(&trace), inner_(inner), folder_(std::move(folder)) {}

void TraceDesk::print(const JsonLine& line) {
    *trace_ << line.text() << '\n' << std::flush;
}

void TraceDesk::showMessage(const platform::Message& message) {
    print(JsonLine()
              .add("message", message.text)
              .add("icon", iconName(message.icon))
              .add("title", message.title));
    if (inner_ != nullptr) {
        inner_->showMessage(message);
    }
}

void TraceDesk::reportError(const RuntimeError& error) {
    print(JsonLine()
              .add("error", error.number())
              .add("description", error.description())
              .add("ends", error.endsProgram()));
    if (inner_ != nullptr) {
        inner_->reportError(error);
    }
}

void TraceDesk::openAddress(const std::string& address) {
    print(JsonLine().add("url", address));
    if (inner_ != nullptr) {
        inner_->openAddress(address);
    }
}

void TraceDesk::formOpened(const std::string& form) {
    print(JsonLine().add("opened", form));
    if (inner_ != nullptr) {
        inner_->formOpened(form);
    }
}

void TraceDesk::formClosed(const std::string& form) {
    print(JsonLine().add("closed", form));
    if (inner_ != nullptr) {
        inner_->formClosed(form);
    }
}

void TraceDesk::navigated(const std::string& view, const std::string& path) {
    print(JsonLine().add("navigated", view).add("path", path));
    if (inner_ != nullptr) {
        inner_->navigated(view, path);
    }
}

void TraceDesk::openPrintPreview(const std::string& path) {
    print(JsonLine().add("preview", path));
    if (inner_ != nullptr) {
        inner_->openPrintPreview(path);
    }
}

std::optional<std::string> TraceDesk::askSavePath(const std::string& /*suggested_path*/) {
    std::optional<std::string> answer = std::exchange(save_answer_, std::nullopt);
    if (answer && !answer->starts_with('/')) {
        answer = folder_ + "/" + *answer;
    }
    return answer;
}

void TraceDesk::setPageNote(const std::string& text) {
    page_note_ = text;
    if (inner_ != nullptr) {
        inner_->setPageNote(text);
    }
}

platform::PdfResult TraceDesk::makePdf(const std::string& document_path, const std::string& target_path) {
    if (inner_ != nullptr) {
        return inner_->makePdf(document_path, target_path);
    }
    return pdf_maker_ ? pdf_maker_(document_path, target_path, page_note_) : platform::PdfResult::NoMeans;
}

void TraceDesk::saved(const std::string& path) {
    print(JsonLine().add("saved", path));
    if (inner_ != nullptr) {
        inner_->saved(path);
    }
}

void TraceDesk::ended() {
    print(JsonLine().add("ended", true));
    if (inner_ != nullptr) {
        inner_->ended();
    }
}

}  // namespace mero::automation
