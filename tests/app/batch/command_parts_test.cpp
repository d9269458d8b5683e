// SPDX-License-Identifier: MIT
/// The progress line, and the arguments of the commands.
#include "app/batch/progress.h"

#include <gtest/gtest.h>

#include <array>

#include "app/batch/command_line.h"
#include "app/common/options.h"

namespace mero::app {
namespace {

TEST(ProgressLine, TellsRowsShareRateAndTimeLeft) {
    EXPECT_EQ(progressLine(250000, 1000000, 0.5),
              "250 000 of 1 000 000 rows (25 %), 500 000 rows/s, 2 s left");
    EXPECT_EQ(progressLine(0, 10, 0.0), "0 of 10 rows (0 %)");
    EXPECT_EQ(progressLine(0, 0, 1.0), "0 of 0 rows");
}

TEST(CommandLine, ValuesFollowAsTheNextArgumentOrBehindTheSign) {
    const std::array<std::string_view, 4> arguments{"--out", "a.csv", "--vary=x=1", "p.json"};
    CommandLine line(arguments);
    EXPECT_EQ(line.next(), "--out");
    EXPECT_EQ(line.value(), "a.csv");
    EXPECT_EQ(line.next(), "--vary");
    EXPECT_EQ(line.value(), "x=1");
    EXPECT_EQ(line.next(), "p.json");
    std::string project;
    line.takeSingle(project, "project");
    EXPECT_EQ(project, "p.json");
    EXPECT_EQ(line.next(), std::nullopt);
}

TEST(CommandLine, WhatIsMissingOrTooMuchIsRefused) {
    const std::array<std::string_view, 1> no_value{"--out"};
    CommandLine line(no_value);
    EXPECT_EQ(line.next(), "--out");
    EXPECT_THROW(static_cast<void>(line.value()), UsageError);

    const std::array<std::string_view, 2> flag{"--json=1", "x"};
    CommandLine with_value(flag);
    EXPECT_EQ(with_value.next(), "--json");
    EXPECT_THROW(static_cast<void>(with_value.next()), UsageError);
}

TEST(CommandLine, WholeNumbersHaveLimits) {
    EXPECT_EQ(wholeNumber("8", 1, 256, "--threads"), 8);
    for (const char* text : {"0", "257", "", "4x", "1.5", "99999999999"}) {
        EXPECT_THROW(static_cast<void>(wholeNumber(text, 1, 256, "--threads")), UsageError) << text;
    }
}

}  // namespace
}  // namespace mero::app
