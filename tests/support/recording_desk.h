// SPDX-License-Identifier: MIT
/// A desk that shows nothing and keeps everything that reached the user, in its order.
/// Each thing is one readable line, so that a test states the whole dialogue.
#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/desk.h"
#include "platform/numbers/number_text.h"

namespace mero::test {

class RecordingDesk : public platform::Desk {
  public:
    /// "critical: text", "exclamation [Chyba]: text" (the title in brackets where the program sets one).
    void showMessage(const platform::Message& message) override {
        messages.push_back(message);
        const std::string title = message.title ? " [" + *message.title + "]" : "";
        add(iconName(message.icon) + title + ": " + message.text);
    }
    /// "error 13", with " ends" when the program ends with it.
    void reportError(const RuntimeError& error) override {
        errors.push_back(error);
        add("error " + numbers::general(error.number()) + (error.endsProgram() ? " ends" : ""));
    }
    void openAddress(const std::string& address) override { add("url " + address); }
    void formOpened(const std::string& form) override { add("opened " + form); }
    void formClosed(const std::string& form) override { add("closed " + form); }
    void navigated(const std::string& view, const std::string& path) override {
        add("navigated " + view + " " + path);
    }
    void openPrintPreview(const std::string& path) override { add("preview " + path); }
    std::optional<std::string> askSavePath(const std::string& suggested_path) override {
        add("ask " + suggested_path);
        return std::exchange(save_answer, std::nullopt);
    }
    void saved(const std::string& path) override { add("saved " + path); }
    void ended() override { add("ended"); }

    /// What was recorded since the last call.
    std::vector<std::string> take() { return std::exchange(lines, {}); }
    /// How many of the recorded lines are this one.
    [[nodiscard]] int count(const std::string& line) const {
        return static_cast<int>(std::count(lines.begin(), lines.end(), line));
    }

    std::vector<std::string> lines;
    std::vector<platform::Message> messages;
    std::vector<RuntimeError> errors;
    /// Answer of the next save dialog; nothing cancels it.
    std::optional<std::string> save_answer;

  private:
    void add(std::string line) { lines.push_back(std::move(line)); }

    static std::string iconName(platform::MessageIcon icon) {
        switch (icon) {
            case platform::MessageIcon::None:
                return "none";
            case platform::MessageIcon::Information:
                return "information";
            case platform::MessageIcon::Exclamation:
                return "exclamation";
            case platform::MessageIcon::Critical:
                return "critical";
        }
        return "?";
    }
};

}  // namespace mero::test
