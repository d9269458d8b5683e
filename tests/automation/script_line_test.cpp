// SPDX-License-Identifier: MIT
// Words of a script's line, numbers, and texts split into keys.
#include "automation/script_line.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mero::automation {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> words(std::string_view line) {
    std::vector<std::string> texts;
    for (const Word& word : splitLine(line)) {
        texts.push_back((word.quoted ? "Q:" : "") + word.text);
    }
    return texts;
}

TEST(SplitLine, WordsAreSeparatedByBlanks) {
    EXPECT_THAT(words("type txtHPV 3.5"), ElementsAre("type", "txtHPV", "3.5"));
    EXPECT_THAT(words("  tab \t 0  "), ElementsAre("tab", "0"));
    EXPECT_THAT(words("set cmdEdit(0) žluť"), ElementsAre("set", "cmdEdit(0)", "žluť"));
}

TEST(SplitLine, QuotesHoldBlanksAndEscapes) {
    EXPECT_THAT(words(R"(set txtA "dvě slova")"), ElementsAre("set", "txtA", "Q:dvě slova"));
    EXPECT_THAT(words(R"(set txtA "")"), ElementsAre("set", "txtA", "Q:"));
    EXPECT_THAT(words(R"(set txtA "a\"b\\c\nd\re\tf")"), ElementsAre("set", "txtA", "Q:a\"b\\c\nd\re\tf"));
    EXPECT_THAT(words(R"(set txtA "# no comment")"), ElementsAre("set", "txtA", "Q:# no comment"));
    EXPECT_THAT(words(R"("7")"), ElementsAre("Q:7"));
}

TEST(SplitLine, BackslashesOutsideQuotesAreOrdinary) {
    EXPECT_THAT(words(R"(set txtA C:\new)"), ElementsAre("set", "txtA", R"(C:\new)"));
}

TEST(SplitLine, BlankLinesAndCommentsHaveNoWords) {
    for (const char* line : {"", "   ", "\t", "\r", "# comment", "#", "  # indented \"open"}) {
        EXPECT_THAT(words(line), IsEmpty()) << line;
    }
    EXPECT_THAT(words("echo a#b #c"), ElementsAre("echo", "a#b", "#c")) << "only a line's beginning";
}

TEST(SplitLine, ACarriageReturnAtTheEndIsABlank) {
    EXPECT_THAT(words("tab 1\r"), ElementsAre("tab", "1"));
    EXPECT_THAT(words("set txtA \"x\"\r"), ElementsAre("set", "txtA", "Q:x"));
}

TEST(SplitLine, MistakesAreTold) {
    for (const char* line : {"set txtA \"open", "set txtA \"open\\", "set txtA \"x\"y", "set txt\"A\" x",
                             "set txtA \"\\x\"", "set txtA \"\\N\""}) {
        EXPECT_THROW(static_cast<void>(splitLine(line)), ScriptError) << line;
    }
}

TEST(SplitLine, BytesThatAreNotUtf8AreTold) {
    for (const char* bytes :
         {"\xE9", "\xC3", "\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80", "\xF0\x80\x80\x80", "\xF4\x90\x80\x80",
          "\xF5\x80\x80\x80", "\x80", "\xFF", "\xE2\x82", "\xF0\x9F\x92"}) {
        EXPECT_THROW(static_cast<void>(splitLine(std::string("echo ") + bytes)), ScriptError);
    }
    EXPECT_NO_THROW(static_cast<void>(
        splitLine("echo \xC2\xA0\xE2\x82\xAC\xED\x9F\xBF\xF0\x9F\x8C\xA7\xF4\x8F\xBF\xBF")));
}

TEST(WholeNumber, PlainDigitsOnly) {
    EXPECT_EQ(wholeNumber("0"), 0);
    EXPECT_EQ(wholeNumber("007"), 7);
    EXPECT_EQ(wholeNumber("999999999"), 999999999);
    for (const char* text : {"", "-1", "+1", "1.0", "1e3", "x", "3x", " 3", "9999999999", "４"}) {
        EXPECT_EQ(wholeNumber(text), std::nullopt) << text;
    }
}

TEST(KeysOf, OneKeyPerCharacterALineBreakBeingOne) {
    EXPECT_THAT(keysOf("1e-5"), ElementsAre("1", "e", "-", "5"));
    EXPECT_THAT(keysOf("žá🌧"), ElementsAre("ž", "á", "🌧"));
    EXPECT_THAT(keysOf("a\nb\r\nc\rd"), ElementsAre("a", "\r\n", "b", "\r\n", "c", "\r\n", "d"));
    EXPECT_THAT(keysOf(""), IsEmpty());
}

TEST(WithoutLastCharacter, TakesOneKeyBack) {
    EXPECT_EQ(withoutLastCharacter("1e-5"), "1e-");
    EXPECT_EQ(withoutLastCharacter("až"), "a");
    EXPECT_EQ(withoutLastCharacter("a🌧"), "a");
    EXPECT_EQ(withoutLastCharacter("a\r\n"), "a");
    EXPECT_EQ(withoutLastCharacter(""), "");
}

}  // namespace
}  // namespace mero::automation
