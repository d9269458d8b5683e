// SPDX-License-Identifier: MIT
/// The desk of all tests and benchmarks: it shows nothing and keeps everything that leaves the program, in
/// order. Each call is one readable line; message boxes and errors are also kept whole.
#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "platform/desk.h"
#include "platform/numbers/number_text.h"
#include "support/message_box.h"

namespace mero::test {

class RecordingDesk : public platform::Desk {
  public:
    /// Adds the line of test::lineOf, such as "critical: text".
    void showMessage(const platform::Message& message) override {
        messages.push_back(message);
        reports.emplace_back(message);
        add(lineOf(boxOf(message)));
    }
    /// Adds "error 13", with " ends" when the program ends with it.
    void reportError(const RuntimeError& error) override {
        errors.push_back(error);
        reports.emplace_back(error);
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

    /// The lines since the last call. Messages and errors stay.
    std::vector<std::string> take() { return std::exchange(lines, {}); }
    /// The message boxes since the last call.
    std::vector<MessageBox> takeBoxes() {
        std::vector<MessageBox> boxes;
        for (const platform::Message& message : std::exchange(messages, {})) {
            boxes.push_back(boxOf(message));
        }
        return boxes;
    }
    /// The numbers of the reported errors since the last call.
    std::vector<int> takeErrorNumbers() {
        std::vector<int> numbers;
        for (const RuntimeError& error : std::exchange(errors, {})) {
            numbers.push_back(error.number());
        }
        return numbers;
    }
    /// Drops everything recorded, so that memory does not grow in long runs.
    void forget() {
        lines.clear();
        messages.clear();
        errors.clear();
        reports.clear();
    }
    /// How many of the recorded lines are this one.
    [[nodiscard]] int count(const std::string& line) const {
        return static_cast<int>(std::count(lines.begin(), lines.end(), line));
    }

    std::vector<std::string> lines;
    std::vector<platform::Message> messages;
    std::vector<RuntimeError> errors;
    /// Messages and errors in one sequence.
    std::vector<std::variant<platform::Message, RuntimeError>> reports;
    /// Answer of the next save dialog; without one the dialog is cancelled.
    std::optional<std::string> save_answer;

  private:
    void add(std::string line) { lines.push_back(std::move(line)); }
};

}  // namespace mero::test
