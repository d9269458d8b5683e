// SPDX-License-Identifier: MIT
/// Parses strict tags: <NAME NAME=VALUE NAME="VALUE" NAME> and </NAME>.
#include "report/strict_tag.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace mero::report {
namespace {

/// A longer tag is text. It also bounds the work on a text full of "<".
constexpr std::size_t kLongestTag = 512;

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool isOfName(char c) {
    return isLetter(c) || isDigit(c) || c == '-';
}

bool isOfBareValue(char c) {
    constexpr std::string_view kMarks = "#%+-.,:;/\\_?";
    return isLetter(c) || isDigit(c) || kMarks.find(c) != std::string_view::npos;
}

/// Quotes end the value, the others could end the tag, begin an entity or be dropped by some reader.
bool isOfQuotedValue(char c) {
    constexpr std::string_view kOthers = "\"'<>&`=";
    constexpr unsigned char kFirstPrintable = 0x20;
    return static_cast<unsigned char>(c) >= kFirstPrintable && kOthers.find(c) == std::string_view::npos;
}

std::string inLowerCase(std::string_view text) {
    std::string lower;
    std::transform(text.begin(), text.end(), std::back_inserter(lower),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return lower;
}

/// Reads from the front of a text.
class Reader {
  public:
    explicit Reader(std::string_view text) : text_(text) {}

    [[nodiscard]] std::size_t at() const { return at_; }
    [[nodiscard]] std::string_view since(std::size_t begin) const { return text_.substr(begin, at_ - begin); }
    bool take(char wanted) {
        const bool there = at_ < text_.size() && text_[at_] == wanted;
        at_ += there ? 1 : 0;
        return there;
    }
    template <class Predicate>
    std::string_view takeAll(Predicate belongs) {
        const std::size_t begin = at_;
        while (at_ < text_.size() && belongs(text_[at_])) {
            ++at_;
        }
        return since(begin);
    }

  private:
    std::string_view text_;
    std::size_t at_ = 0;
};

/// The value behind "="; empty when it is none of the grammar's.
std::optional<std::string_view> takeValue(Reader& reader) {
    for (const char quote : {'"', '\''}) {
        if (reader.take(quote)) {
            const std::string_view value = reader.takeAll(isOfQuotedValue);
            return reader.take(quote) ? std::optional(value) : std::nullopt;
        }
    }
    return reader.takeAll(isOfBareValue);
}

}  // namespace

std::optional<StrictTag> StrictTag::at(std::string_view html) {
    StrictTag tag;
    return tag.read(html.substr(0, kLongestTag)) ? std::optional(tag) : std::nullopt;
}

bool StrictTag::read(std::string_view html) {
    Reader reader(html);
    if (!reader.take('<')) {
        return false;
    }
    closes_ = reader.take('/');
    written_name_ = reader.takeAll(isOfName);
    if (written_name_.empty() || !isLetter(written_name_.front())) {
        return false;
    }
    name_ = inLowerCase(written_name_);
    while (true) {
        const bool apart = !reader.takeAll(isBlank).empty();
        if (reader.take('>')) {
            break;
        }
        if (!closes_ && reader.take('/')) {
            if (!reader.take('>')) {
                return false;
            }
            break;
        }
        const std::size_t begin = reader.at();
        const std::string_view name = reader.takeAll(isOfName);
        if (!apart || closes_ || name.empty()) {
            return false;
        }
        std::string_view value;
        if (reader.take('=')) {
            const auto given = takeValue(reader);
            if (!given) {
                return false;
            }
            value = *given;
        }
        attributes_.push_back({inLowerCase(name), value, reader.since(begin)});
    }
    text_ = html.substr(0, reader.at());
    return true;
}

}  // namespace mero::report
