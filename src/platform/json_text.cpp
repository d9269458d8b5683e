// SPDX-License-Identifier: MIT
/// Checks UTF-8 by the table of well-formed byte sequences: the lead byte decides the length and the range of
/// the second byte, which excludes overlong forms, surrogates and values beyond U+10FFFF.
#include "platform/json_text.h"

#include <cstddef>

namespace mero::platform {
namespace {

struct Lead {
    std::size_t length = 0;  ///< bytes of the character; 0 when no character begins so
    unsigned char second_least = 0x80;
    unsigned char second_most = 0xBF;
};

Lead leadOf(unsigned char byte) {
    constexpr unsigned char kAsciiEnd = 0x80;
    if (byte < kAsciiEnd) {
        return {.length = 1};
    }
    if (byte >= 0xC2 && byte <= 0xDF) {
        return {.length = 2};
    }
    if (byte >= 0xE0 && byte <= 0xEF) {
        Lead lead{.length = 3};
        if (byte == 0xE0) {
            lead.second_least = 0xA0;
        } else if (byte == 0xED) {
            lead.second_most = 0x9F;
        }
        return lead;
    }
    if (byte >= 0xF0 && byte <= 0xF4) {
        Lead lead{.length = 4};
        if (byte == 0xF0) {
            lead.second_least = 0x90;
        } else if (byte == 0xF4) {
            lead.second_most = 0x8F;
        }
        return lead;
    }
    return {};
}

struct Piece {
    std::size_t length = 1;
    bool is_character = false;
};

/// The character that begins at `at`, or the longest piece that could have become one.
Piece pieceAt(std::string_view text, std::size_t at) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const Lead lead = leadOf(byte(at));
    if (lead.length == 0) {
        return {};
    }
    std::size_t length = 1;
    for (; length < lead.length && at + length < text.size(); ++length) {
        const unsigned char least = length == 1 ? lead.second_least : 0x80;
        const unsigned char most = length == 1 ? lead.second_most : 0xBF;
        if (byte(at + length) < least || byte(at + length) > most) {
            break;
        }
    }
    return {.length = length, .is_character = length == lead.length};
}

void appendAscii(std::string& json, char character) {
    constexpr unsigned char kSpace = 0x20;
    const auto code = static_cast<unsigned char>(character);
    switch (character) {
        case '"':
            json += "\\\"";
            return;
        case '\\':
            json += "\\\\";
            return;
        case '\b':
            json += "\\b";
            return;
        case '\t':
            json += "\\t";
            return;
        case '\n':
            json += "\\n";
            return;
        case '\f':
            json += "\\f";
            return;
        case '\r':
            json += "\\r";
            return;
        default:
            break;
    }
    if (code < kSpace) {
        constexpr std::string_view kDigits = "0123456789abcdef";
        json += "\\u00";
        json += kDigits[code >> 4U];
        json += kDigits[code & 0x0FU];
    } else {
        json += character;
    }
}

}  // namespace

std::string jsonText(std::string_view text) {
    std::string json = "\"";
    for (std::size_t at = 0; at < text.size();) {
        const Piece piece = pieceAt(text, at);
        if (!piece.is_character) {
            json += "\uFFFD";
        } else if (piece.length == 1) {
            appendAscii(json, text[at]);
        } else {
            json += text.substr(at, piece.length);
        }
        at += piece.length;
    }
    json += '"';
    return json;
}

}  // namespace mero::platform
