// SPDX-License-Identifier: MIT
/// Parses tags.
/// "<" followed by a letter, "/" or "!" begins a tag; everything else is text.
#include "report/html_tag.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace mero::report {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

std::optional<HtmlTag> HtmlTag::at(std::string_view html) {
    if (html.size() < 3 || html[0] != '<' || (!isLetter(html[1]) && html[1] != '/' && html[1] != '!')) {
        return std::nullopt;
    }
    const std::size_t end = html.find('>');
    if (end == std::string_view::npos) {
        return std::nullopt;
    }
    return HtmlTag(html.substr(0, end + 1));
}

HtmlTag::HtmlTag(std::string_view text) : text_(text) {
    const std::size_t begin = closes() ? 2 : 1;
    const std::size_t end = std::min(text.find_first_of(kBlanks, begin), text.size() - 1);
    if (end > begin) {
        const std::string_view name = text.substr(begin, end - begin);
        std::transform(name.begin(), name.end(), std::back_inserter(name_), lower);
    }
}

std::string_view HtmlTag::attribute(std::string_view name) const {
    std::size_t at = 0;
    while ((at = text_.find(name, at + 1)) != std::string_view::npos) {
        const std::size_t equals = at + name.size();
        if (kBlanks.find(text_[at - 1]) == std::string_view::npos || text_[equals] != '=') {
            continue;
        }
        std::string_view value = text_.substr(equals + 1);
        const bool quoted = value.front() == '"' || value.front() == '\'';
        const std::string_view ends = quoted ? value.substr(0, 1) : std::string_view(" \t\r\n>");
        value.remove_prefix(quoted ? 1 : 0);
        return value.substr(0, value.find_first_of(ends));
    }
    return {};
}

}  // namespace mero::report
