// SPDX-License-Identifier: MIT
/// One line of a script, split into words.
/// A word with blanks stands in double quotes; \" \\ \n \r \t inside are escapes.
#pragma once

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace mero::automation {

/// A script cannot be performed: wrong syntax, an unknown name, a missing entry.
class ScriptError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

struct Word {
    std::string text;
    bool quoted = false;
};

/// Most bytes of a line.
inline constexpr std::size_t kLongestLine = std::size_t{64} * 1024 * 1024;

/// The words of a line; none for a blank line and for a comment (first character "#").
/// @throws ScriptError for an unclosed quote, an unknown escape, text adjacent to a quote, bytes that are not
///         UTF-8
[[nodiscard]] std::vector<Word> splitLine(std::string_view line);

/// A whole number of at most nine digits; empty for any other text.
[[nodiscard]] std::optional<int> wholeNumber(std::string_view text);

/// The keys that type a text: UTF-8 characters; a line break ("\r\n", "\n", "\r") is one key.
[[nodiscard]] std::vector<std::string> keysOf(std::string_view text);
/// The text without its last character (a "\r\n" pair counts as one).
[[nodiscard]] std::string withoutLastCharacter(std::string_view text);

}  // namespace mero::automation
