// SPDX-License-Identifier: MIT
/// Iterates over the arguments and converts their values.
/// A value behind "=" that was not read is reported when the next argument is asked for.
#include "app/common/command_line.h"

#include <charconv>
#include <filesystem>
#include <system_error>
#include <utility>

namespace mero::app {

std::optional<std::string_view> CommandLine::next() {
    if (attached_) {
        throw UsageError(std::string(current_) + " takes no value");
    }
    if (rest_.empty()) {
        return std::nullopt;
    }
    current_ = rest_.front();
    rest_ = rest_.subspan(1);
    const std::size_t equals = current_.find('=');
    if (current_.starts_with("--") && equals != std::string_view::npos) {
        attached_ = current_.substr(equals + 1);
        current_ = current_.substr(0, equals);
    }
    return current_;
}

std::string CommandLine::value() {
    if (attached_) {
        return std::string(*std::exchange(attached_, std::nullopt));
    }
    if (rest_.empty()) {
        throw UsageError(std::string(current_) + " needs a value");
    }
    const std::string_view value = rest_.front();
    rest_ = rest_.subspan(1);
    return std::string(value);
}

void CommandLine::refuse() const {
    throw UsageError("unknown argument: " + std::string(current_));
}

void CommandLine::takeSingle(std::string& slot, const char* what) const {
    if (current_.starts_with("-") || current_.empty()) {
        refuse();
    }
    if (!slot.empty()) {
        throw UsageError("more than one " + std::string(what) + ": " + std::string(current_));
    }
    slot = current_;
}

std::string existingFolder(const std::string& text) {
    std::error_code failure;
    const std::filesystem::path folder = std::filesystem::absolute(text, failure).lexically_normal();
    if (failure || !std::filesystem::is_directory(folder, failure)) {
        throw UsageError("no such folder: " + text);
    }
    return folder.string();
}

platform::DateTime dateAndTime(const std::string& text) {
    const auto parsed = platform::parseDateTime(text);
    if (!parsed) {
        throw UsageError("not a date and time as 2026-11-20T14:05:09: " + text);
    }
    return *parsed;
}

int wholeNumber(const std::string& text, int least, int most, std::string_view option) {
    int number = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number);
    if (read.ec != std::errc{} || read.ptr != end || number < least || number > most) {
        throw UsageError(std::string(option) + ": not a whole number in its limits: " + text);
    }
    return number;
}

}  // namespace mero::app
