// SPDX-License-Identifier: MIT
/// Splits a script's line into words, and a text into the keys that type it.
/// UTF-8 is checked once, for the whole line; later steps rely on it.
#include "automation/script_line.h"

#include <charconv>

namespace mero::automation {
namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

/// Length of the well-formed UTF-8 character at the start of `text`, 0 when it is malformed.
std::size_t characterLength(std::string_view text) {
    const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const auto continues = [text, byte](std::size_t i) {
        return i < text.size() && (byte(i) & 0xC0U) == 0x80U;
    };
    const unsigned char lead = byte(0);
    if (lead < 0x80U) {
        return 1;
    }
    if (lead >= 0xC2U && lead <= 0xDFU) {
        return continues(1) ? 2 : 0;
    }
    if (lead >= 0xE0U && lead <= 0xEFU) {
        if (!continues(1) || !continues(2)) {
            return 0;
        }
        const bool overlong = lead == 0xE0U && byte(1) < 0xA0U;
        const bool surrogate = lead == 0xEDU && byte(1) >= 0xA0U;
        return overlong || surrogate ? 0 : 3;
    }
    if (lead >= 0xF0U && lead <= 0xF4U) {
        if (!continues(1) || !continues(2) || !continues(3)) {
            return 0;
        }
        const bool overlong = lead == 0xF0U && byte(1) < 0x90U;
        const bool beyond = lead == 0xF4U && byte(1) >= 0x90U;
        return overlong || beyond ? 0 : 4;
    }
    return 0;
}

void requireUtf8(std::string_view line) {
    while (!line.empty()) {
        const std::size_t length = characterLength(line);
        if (length == 0) {
            throw ScriptError("the line is not UTF-8");
        }
        line.remove_prefix(length);
    }
}

char unescaped(char c) {
    switch (c) {
        case '"':
        case '\\':
            return c;
        case 'n':
            return '\n';
        case 'r':
            return '\r';
        case 't':
            return '\t';
        default:
            throw ScriptError(std::string("unknown escape \\") + c);
    }
}

/// Reads the quoted word whose opening quote is at `at`; sets `at` behind the closing quote.
Word quotedWord(std::string_view line, std::size_t& at) {
    Word word{.text = "", .quoted = true};
    ++at;
    while (at < line.size() && line[at] != '"') {
        if (line[at] == '\\') {
            ++at;
            if (at == line.size()) {
                break;
            }
            word.text += unescaped(line[at]);
        } else {
            word.text += line[at];
        }
        ++at;
    }
    if (at == line.size()) {
        throw ScriptError("a quote is not closed");
    }
    ++at;
    if (at < line.size() && !isBlank(line[at])) {
        throw ScriptError("text touches a closing quote");
    }
    return word;
}

Word bareWord(std::string_view line, std::size_t& at) {
    Word word;
    while (at < line.size() && !isBlank(line[at])) {
        if (line[at] == '"') {
            throw ScriptError("a quote stands inside a word");
        }
        word.text += line[at++];
    }
    return word;
}

}  // namespace

std::vector<Word> splitLine(std::string_view line) {
    requireUtf8(line);
    std::vector<Word> words;
    std::size_t at = 0;
    while (true) {
        while (at < line.size() && isBlank(line[at])) {
            ++at;
        }
        if (at == line.size() || (words.empty() && line[at] == '#')) {
            return words;
        }
        words.push_back(line[at] == '"' ? quotedWord(line, at) : bareWord(line, at));
    }
}

std::optional<int> wholeNumber(std::string_view text) {
    constexpr std::size_t kMostDigits = 9;
    int number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = result.ec == std::errc() && result.ptr == text.data() + text.size();
    return whole && text.size() <= kMostDigits && text.front() != '-' ? std::optional(number) : std::nullopt;
}

std::vector<std::string> keysOf(std::string_view text) {
    std::vector<std::string> keys;
    while (!text.empty()) {
        std::size_t length = characterLength(text);
        if (length == 0) {
            length = 1;
        }
        if (text.starts_with("\r\n")) {
            keys.emplace_back("\r\n");
            length = 2;
        } else if (text.front() == '\n' || text.front() == '\r') {
            keys.emplace_back("\r\n");
        } else {
            keys.emplace_back(text.substr(0, length));
        }
        text.remove_prefix(length);
    }
    return keys;
}

std::string withoutLastCharacter(std::string_view text) {
    if (text.ends_with("\r\n")) {
        return std::string(text.substr(0, text.size() - 2));
    }
    std::size_t end = text.size();
    while (end > 0) {
        --end;
        const bool continuation = (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U;
        if (!continuation) {
            break;
        }
    }
    return std::string(text.substr(0, end));
}

}  // namespace mero::automation
