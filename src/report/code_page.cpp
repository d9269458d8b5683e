// SPDX-License-Identifier: MIT
/// Converts windows-1250 with iconv, one character at a time, so that each result is one character of the
/// code page or "?", although iconv implementations may drop, substitute or combine characters.
#include "report/code_page.h"

#include <iconv.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <system_error>

namespace mero::report {
namespace {

/// An iconv handle for one direction of conversion; the destructor closes it.
class Converter {
  public:
    Converter(const char* to, const char* from) : handle_(iconv_open(to, from)) {
        // NOLINTNEXTLINE(performance-no-int-to-ptr): failure is a pointer of value -1
        if (handle_ == iconv_t(-1)) {
            throw std::system_error(errno, std::generic_category(), "iconv_open");
        }
    }
    ~Converter() { iconv_close(handle_); }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    /// The converted character, empty when it has no counterpart.
    [[nodiscard]] std::string character(std::string_view input) const {
        std::string source(input);
        std::array<char, 16> target{};
        char* from = source.data();
        char* to = target.data();
        std::size_t from_left = source.size();
        std::size_t to_left = target.size();
        iconv(handle_, nullptr, nullptr, nullptr, nullptr);
        const std::size_t substitutions = iconv(handle_, &from, &from_left, &to, &to_left);
        if (substitutions != 0 || from_left != 0) {
            return {};
        }
        return {target.data(), target.size() - to_left};
    }

  private:
    iconv_t handle_;
};

bool isAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

/// The bytes that may follow the first one, and their number, by the table of well-formed UTF-8. The range of
/// the second byte excludes overlong forms, surrogates and code points beyond U+10FFFF.
struct Follow {
    std::size_t count = 0;
    unsigned char second_lowest = 0x80;
    unsigned char second_highest = 0xBF;
};

Follow followOf(unsigned char first) {
    if (first >= 0xC2 && first <= 0xDF) {
        return {1};
    }
    if (first >= 0xE0 && first <= 0xEF) {
        return {2, static_cast<unsigned char>(first == 0xE0 ? 0xA0 : 0x80),
                static_cast<unsigned char>(first == 0xED ? 0x9F : 0xBF)};
    }
    if (first >= 0xF0 && first <= 0xF4) {
        return {3, static_cast<unsigned char>(first == 0xF0 ? 0x90 : 0x80),
                static_cast<unsigned char>(first == 0xF4 ? 0x8F : 0xBF)};
    }
    return {};
}

struct Sequence {
    std::size_t length = 1;
    bool well_formed = false;
};

/// The first character of a text (not ASCII), or the malformed sequence in its place.
Sequence firstSequence(std::string_view text) {
    const Follow follow = followOf(static_cast<unsigned char>(text[0]));
    std::size_t length = 1;
    while (length <= follow.count && length < text.size()) {
        const auto byte = static_cast<unsigned char>(text[length]);
        const unsigned char lowest = length == 1 ? follow.second_lowest : 0x80;
        const unsigned char highest = length == 1 ? follow.second_highest : 0xBF;
        if (byte < lowest || byte > highest) {
            break;
        }
        ++length;
    }
    return {length, follow.count > 0 && length == follow.count + 1};
}

}  // namespace

std::string toWindows1250(std::string_view utf8) {
    const Converter converter("WINDOWS-1250", "UTF-8");
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty()) {
        if (isAscii(utf8[0])) {
            bytes += utf8[0];
            utf8.remove_prefix(1);
            continue;
        }
        const Sequence sequence = firstSequence(utf8);
        const std::string converted =
            sequence.well_formed ? converter.character(utf8.substr(0, sequence.length)) : std::string();
        bytes += converted.size() == 1 ? converted : "?";
        utf8.remove_prefix(sequence.length);
    }
    return bytes;
}

std::string fromWindows1250(std::string_view bytes) {
    const Converter converter("UTF-8", "WINDOWS-1250");
    std::string utf8;
    utf8.reserve(bytes.size() + bytes.size() / 8);
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        if (isAscii(bytes[at])) {
            utf8 += bytes[at];
            continue;
        }
        const std::string converted = converter.character(bytes.substr(at, 1));
        utf8 += converted.empty() ? "\xEF\xBF\xBD" : converted;
    }
    return utf8;
}

}  // namespace mero::report
