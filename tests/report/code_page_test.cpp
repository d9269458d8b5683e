// SPDX-License-Identifier: MIT
/// windows-1250: every byte is converted in both directions; a missing character becomes one "?".
#include "report/code_page.h"

#include <gtest/gtest.h>

#include <clocale>
#include <string>

namespace mero::report {
namespace {

TEST(ToWindows1250, KeepsAscii) {
    std::string ascii;
    for (int c = 0; c < 128; ++c) {
        ascii += static_cast<char>(c);
    }
    EXPECT_EQ(toWindows1250(ascii), ascii);
    EXPECT_EQ(toWindows1250(""), "");
}

TEST(ToWindows1250, WritesCzechLetters) {
    EXPECT_EQ(toWindows1250("áčďéěíňóřšťúůýž"),
              "\xE1\xE8\xEF\xE9\xEC\xED\xF2\xF3\xF8\x9A\x9D\xFA\xF9\xFD\x9E");
    EXPECT_EQ(toWindows1250("ÁČĎÉĚÍŇÓŘŠŤÚŮÝŽ"),
              "\xC1\xC8\xCF\xC9\xCC\xCD\xD2\xD3\xD8\x8A\x8D\xDA\xD9\xDD\x8E");
    EXPECT_EQ(toWindows1250("€„“–…"), "\x80\x84\x93\x96\x85");
    EXPECT_EQ(toWindows1250("s\xC2\xA0odtokem"), "s\xA0odtokem");  // no-break space
}

TEST(ToWindows1250, WritesOneQuestionMarkForEachCharacterThatItLacks) {
    EXPECT_EQ(toWindows1250("a\xF0\x9F\x92\xA7z"), "a?z");  // a drop
    EXPECT_EQ(toWindows1250("ж≤ñ"), "???");                 // none of them has a look-alike
    EXPECT_EQ(toWindows1250("\xEF\xBB\xBF"), "?");          // byte order mark
    EXPECT_EQ(toWindows1250("\xF3\xA0\x81\xA3"), "?");      // a tag character, which shows nothing
    EXPECT_EQ(toWindows1250("e\xCC\x8C"), "e?");            // a combining caron stays its own character
    EXPECT_EQ(toWindows1250("\xC2\x81"), "?");              // a control character
    EXPECT_EQ(toWindows1250("\xEF\xBF\xBD"), "?");          // the replacement character
    EXPECT_EQ(toWindows1250("\xF4\x8F\xBF\xBF"), "?");      // the last code point
}

TEST(ToWindows1250, WritesOneQuestionMarkForEachMalformedSequence) {
    EXPECT_EQ(toWindows1250("\xFF"), "?");
    EXPECT_EQ(toWindows1250("\x80"), "?");
    EXPECT_EQ(toWindows1250("a\xE2\x82"), "a?");  // incomplete at the end
    EXPECT_EQ(toWindows1250("\xE2\x82z"), "?z");  // incomplete inside the text
    EXPECT_EQ(toWindows1250("\xF0\x9F\x92š"), "?\x9A");
    EXPECT_EQ(toWindows1250("\xC5"), "?");
    EXPECT_EQ(toWindows1250("\xC5\xC5\xA1"), "?\x9A");
    EXPECT_EQ(toWindows1250("\xC0\x80"), "??");            // overlong
    EXPECT_EQ(toWindows1250("\xE0\x80\x80"), "???");       // overlong
    EXPECT_EQ(toWindows1250("\xED\xA0\x80"), "???");       // a surrogate
    EXPECT_EQ(toWindows1250("\xF4\x90\x80\x80"), "????");  // beyond the last code point
    EXPECT_EQ(toWindows1250("\xFE\xFE"), "??");
}

TEST(FromWindows1250, ReadsEveryByteAndComesBack) {
    for (int value = 0; value < 256; ++value) {
        const std::string byte(1, static_cast<char>(value));
        const std::string utf8 = fromWindows1250(byte);
        const bool undefined =
            value == 0x81 || value == 0x83 || value == 0x88 || value == 0x90 || value == 0x98;
        EXPECT_EQ(utf8 == "\xEF\xBF\xBD", undefined) << value;
        EXPECT_EQ(toWindows1250(utf8), undefined ? "?" : byte) << value;
    }
}

TEST(FromWindows1250, ReadsCzechText) {
    EXPECT_EQ(fromWindows1250("N\xE1vrhov\xFD d\xE9\x9A\x9D"), "Návrhový déšť");
    EXPECT_EQ(fromWindows1250(""), "");
}

TEST(CodePage, DoesNotDependOnTheLocale) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* locale : {"C", "C.UTF-8", "cs_CZ.UTF-8"}) {
        std::setlocale(LC_ALL, locale);
        EXPECT_EQ(toWindows1250("déšť ж č"), "d\xE9\x9A\x9D ? \xE8") << locale;
        EXPECT_EQ(fromWindows1250("d\xE9\x9A\x9D"), "déšť") << locale;
    }
    std::setlocale(LC_ALL, before.c_str());
}

}  // namespace
}  // namespace mero::report
