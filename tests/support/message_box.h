// SPDX-License-Identifier: MIT
/// A message box as the user sees it. Tests state and compare boxes with the functions below, so that only
/// this file depends on what else platform::Message carries.
#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <utility>

#include "platform/desk.h"

namespace mero::test {

struct MessageBox {
    std::string text;
    platform::MessageIcon icon = platform::MessageIcon::None;
    /// The title that the program sets, none where the application's title shows.
    std::optional<std::string> title = std::nullopt;

    friend bool operator==(const MessageBox&, const MessageBox&) = default;
};

inline MessageBox plain(std::string text) {
    return {std::move(text), platform::MessageIcon::None};
}
inline MessageBox information(std::string text) {
    return {std::move(text), platform::MessageIcon::Information};
}
inline MessageBox exclamation(std::string text, std::optional<std::string> title = std::nullopt) {
    return {std::move(text), platform::MessageIcon::Exclamation, std::move(title)};
}
inline MessageBox critical(std::string text, std::optional<std::string> title = std::nullopt) {
    return {std::move(text), platform::MessageIcon::Critical, std::move(title)};
}

/// The box for a message that the program passes to its desk.
inline MessageBox boxOf(const platform::Message& message) {
    return {message.text, message.icon, message.title};
}
/// A message for this box, to pass to a desk.
inline platform::Message messageOf(const MessageBox& box) {
    platform::Message message;
    message.text = box.text;
    message.icon = box.icon;
    message.title = box.title;
    return message;
}

inline const char* iconName(platform::MessageIcon icon) {
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

/// "critical: text", "exclamation [Chyba]: text" (the title in brackets where the program sets one).
inline std::string lineOf(const MessageBox& box) {
    return iconName(box.icon) + (box.title ? " [" + *box.title + "]" : "") + ": " + box.text;
}

/// How a box shows when a test fails.
inline void PrintTo(const MessageBox& box, std::ostream* out) {
    *out << lineOf(box);
}

}  // namespace mero::test
