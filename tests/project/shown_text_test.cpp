// SPDX-License-Identifier: MIT
/// Errors about files of any bytes are one short readable line.
#include "project/shown_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>

#include "project/samples.h"

namespace mero::project::test {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr std::size_t kWhole = 1000;

TEST(ShownText, OrdinaryTextsStandAsTheyAre) {
    for (const char* text :
         {"", "facility.trench_width_m", "expected \"round\", not \"kulatá\"", "a\\b", "€ 日本 💧"}) {
        EXPECT_EQ(shownText(text, kWhole), text);
    }
}

TEST(ShownText, ControlCharactersAreEscaped) {
    EXPECT_EQ(shownText("a\nb\r\tc", kWhole), "a\\nb\\r\\tc");
    EXPECT_EQ(shownText(std::string_view("\x1b[31m\0\x7f", 7), kWhole), "\\u001b[31m\\u0000\\u007f");
}

TEST(ShownText, WhatIsNoUtf8IsReplaced) {
    EXPECT_EQ(shownText("a\xFF"
                        "b\xC5",
                        kWhole),
              "a\uFFFDb\uFFFD");
}

TEST(ShownText, IsCutBetweenCharacters) {
    EXPECT_EQ(shownText("žluť", 6), "žluť");
    EXPECT_EQ(shownText("žluť", 5), "žlu…");
    EXPECT_EQ(shownText("žluť", 4), "žlu…");
    EXPECT_EQ(shownText("žluť", 1), "…");
    EXPECT_EQ(shownText("\xBF\xBF\xBF", 2), "…");
}

TEST(ProjectErrors, StayOneLineWhateverTheNameIs) {
    EXPECT_EQ(errorOf("{\"a\\nb\\u001b\": 1}"), "p.json: a\\nb\\u001b: is not a known name");
    EXPECT_EQ(errorOf(document(kRain, kAreas, kSubsoil, R"("facility": {"type": "t\nx"})")),
              "p.json: facility.type: expected one of: surface, swale, swale_trench, trench, shaft, tank, "
              "not \"t\\nx\"");
    EXPECT_EQ(errorOf("{\"a\\nb\": {\"c\": 1, \"c\": 2}}"),
              "p.json: a\\nb.c: stands twice; expected each name once");
}

TEST(ProjectErrors, OfBytesThatAreNoTextAreReadable) {
    const std::string error = errorOf("{\"a\xFF\": 1}");
    EXPECT_THAT(error, StartsWith("p.json:1:4: no valid JSON"));
    EXPECT_THAT(error, Not(HasSubstr("\xFF")));
}

TEST(ProjectErrors, StayShortAndComeAtOnceHoweverLongTheFileIs) {
    const std::string megabyte(1 << 20, 'r');
    const auto start = std::chrono::steady_clock::now();
    EXPECT_THAT(errorOf("{\"" + megabyte + "\": 1}"), EndsWith("rrr…: is not a known name"));
    EXPECT_LT(errorOf("{\"" + megabyte).size(), 400U);
    EXPECT_THAT(errorOf(document(R"("rain": {"station": ")" + megabyte + R"(", "periodicity": 1})")),
                EndsWith("rrr…\""));
    // Compared with every name it took half a minute.
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

}  // namespace
}  // namespace mero::project::test
