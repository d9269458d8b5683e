// SPDX-License-Identifier: MIT
/// Escapes a text as JSON does, except quotes and backslashes: their escapes would make a path or a message
/// harder to read.
#include "project/shown_text.h"

#include "platform/json_text.h"

namespace mero::project {
namespace {

/// Before a character that is not whole.
std::size_t cutBefore(std::string_view text, std::size_t at) {
    constexpr unsigned kLead = 0xC0U;
    constexpr unsigned kContinuation = 0x80U;
    while (at > 0 && (static_cast<unsigned char>(text[at]) & kLead) == kContinuation) {
        --at;
    }
    return at;
}

}  // namespace

std::string shownText(std::string_view text, std::size_t longest) {
    constexpr char kDelete = '\x7f';
    const bool cut = text.size() > longest;
    const std::string_view piece = cut ? text.substr(0, cutBefore(text, longest)) : text;
    const std::string json = platform::jsonText(piece);
    std::string shown;
    for (std::size_t i = 1; i + 1 < json.size(); ++i) {
        if (json[i] == '\\') {
            if (json[i + 1] != '"' && json[i + 1] != '\\') {
                shown += '\\';
            }
            shown += json[++i];
        } else if (json[i] == kDelete) {
            shown += "\\u007f";
        } else {
            shown += json[i];
        }
    }
    return cut ? shown + "…" : shown;
}

}  // namespace mero::project
