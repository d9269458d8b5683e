// SPDX-License-Identifier: MIT
/// The tables of tags and attributes.
#include "report/markup_rules.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <initializer_list>
#include <optional>

namespace mero::report {
namespace {

constexpr std::array kTags{
    TagRule{"a", TagKind::Inline},        TagRule{"b", TagKind::Inline},
    TagRule{"big", TagKind::Inline},      TagRule{"code", TagKind::Inline},
    TagRule{"em", TagKind::Inline},       TagRule{"font", TagKind::Inline},
    TagRule{"i", TagKind::Inline},        TagRule{"s", TagKind::Inline},
    TagRule{"small", TagKind::Inline},    TagRule{"span", TagKind::Inline},
    TagRule{"strong", TagKind::Inline},   TagRule{"sub", TagKind::Inline},
    TagRule{"sup", TagKind::Inline},      TagRule{"tt", TagKind::Inline},
    TagRule{"u", TagKind::Inline},        TagRule{"center", TagKind::Block},
    TagRule{"div", TagKind::Block},       TagRule{"h1", TagKind::Block},
    TagRule{"h2", TagKind::Block},        TagRule{"h3", TagKind::Block},
    TagRule{"h4", TagKind::Block},        TagRule{"h5", TagKind::Block},
    TagRule{"h6", TagKind::Block},        TagRule{"p", TagKind::Paragraph},
    TagRule{"blockquote", TagKind::List}, TagRule{"ol", TagKind::List},
    TagRule{"ul", TagKind::List},         TagRule{"li", TagKind::Item},
    TagRule{"table", TagKind::Table},     TagRule{"tr", TagKind::Row},
    TagRule{"td", TagKind::Cell},         TagRule{"th", TagKind::Cell},
    TagRule{"br", TagKind::Empty},        TagRule{"hr", TagKind::Rule},
    TagRule{"img", TagKind::Picture},
};

constexpr unsigned kLargestLength = 2000;
constexpr unsigned kLargestGap = 50;
constexpr unsigned kLargestSpan = 20;
constexpr unsigned kLargestFont = 7;
constexpr std::size_t kLongestAddress = 400;
constexpr std::size_t kLongestColour = 24;

bool isOneOf(std::string_view value, std::initializer_list<std::string_view> words) {
    return std::find(words.begin(), words.end(), value) != words.end();
}

std::optional<unsigned> whole(std::string_view text) {
    unsigned value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool all = error == std::errc() && end == text.data() + text.size();
    return all ? std::optional(value) : std::nullopt;
}

bool isWhole(std::string_view text, unsigned least, unsigned largest) {
    const auto value = whole(text);
    return value && *value >= least && *value <= largest;
}

bool isLength(std::string_view value) {
    constexpr unsigned kHundred = 100;
    return value.ends_with('%') ? isWhole(value.substr(0, value.size() - 1), 1, kHundred)
                                : isWhole(value, 0, kLargestLength);
}

bool isFontSize(std::string_view value) {
    const bool relative = value.starts_with('+') || value.starts_with('-');
    return isWhole(value.substr(relative ? 1 : 0), 1, kLargestFont);
}

bool isColour(std::string_view value) {
    const std::string_view name = value.substr(value.starts_with('#') ? 1 : 0);
    return !name.empty() && name.size() <= kLongestColour &&
           std::all_of(name.begin(), name.end(), [](char c) {
               return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
           });
}

bool isWebAddress(std::string_view value) {
    return value.size() <= kLongestAddress && (value.starts_with("http://") || value.starts_with("https://"));
}

/// A relative path; whether it stays in the program's folder, the view decides when it is resolved.
bool isSource(std::string_view value, PageUse use) {
    if (use == PageUse::Copy) {
        return value == kLogoReference.substr(kLogoReference.find('=') + 1);
    }
    return !value.empty() && value.size() <= kLongestAddress && value.find(':') == std::string_view::npos &&
           value.front() != '/' && value.front() != '\\';
}

std::string_view valueOf(const StrictTag& tag, std::string_view name) {
    for (const StrictTag::Attribute& attribute : tag.attributes()) {
        if (attribute.name == name) {
            return attribute.value;
        }
    }
    return {};
}

}  // namespace

const TagRule* ruleOf(std::string_view name, PageUse use) {
    const auto* found =
        std::find_if(kTags.begin(), kTags.end(), [&](const TagRule& rule) { return rule.name == name; });
    // Browsers look up the hosts of links before anybody follows them.
    const bool refused = found == kTags.end() || (name == "a" && use == PageUse::Copy);
    return refused ? nullptr : found;
}

bool isAllowed(const StrictTag::Attribute& attribute, PageUse use) {
    const std::string_view name = attribute.name;
    const std::string_view value = attribute.value;
    if (name == "align") {
        return isOneOf(value, {"left", "right", "center", "justify"});
    }
    if (name == "valign") {
        return isOneOf(value, {"top", "middle", "bottom"});
    }
    if (name == "width" || name == "height") {
        return isLength(value);
    }
    if (name == "border" || name == "cellspacing" || name == "cellpadding") {
        return isWhole(value, 0, kLargestGap);
    }
    if (name == "colspan" || name == "rowspan") {
        return isWhole(value, 1, kLargestSpan);
    }
    if (name == "size") {
        return isFontSize(value);
    }
    if (name == "color" || name == "bgcolor") {
        return isColour(value);
    }
    if (name == "href") {
        return use == PageUse::View && isWebAddress(value);
    }
    if (name == "src") {
        return isSource(value, use);
    }
    // Those of the report itself.
    return name == "style" &&
           isOneOf(value, {"position:relative;width:650px;height:350px", "border-collapse:collapse"});
}

bool hasAllowedSource(const StrictTag& tag, PageUse use) {
    return isSource(valueOf(tag, "src"), use);
}

std::size_t columnsOf(const StrictTag& tag) {
    const auto columns = whole(valueOf(tag, "colspan"));
    return columns && *columns >= 1 && *columns <= kLargestSpan ? *columns : 1;
}

bool spansRows(const StrictTag& tag) {
    return isWhole(valueOf(tag, "rowspan"), 2, kLargestSpan);
}

}  // namespace mero::report
