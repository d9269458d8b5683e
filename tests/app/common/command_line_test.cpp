// SPDX-License-Identifier: MIT
/// The parser of arguments: options with values, single arguments, and the messages for what is refused.
#include "app/common/command_line.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "support/temporary_folder.h"

namespace mero::app {
namespace {

using ::testing::ThrowsMessage;

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

TEST(CommandLine, MessagesNameTheArgument) {
    const std::array<std::string_view, 3> arguments{"--out", "a.json", "b.json"};
    const auto afterOut = [&] {
        CommandLine line(arguments);
        static_cast<void>(line.next());
        return line;
    };
    EXPECT_THAT([&] { afterOut().refuse(); }, ThrowsMessage<UsageError>("unknown argument: --out"));
    EXPECT_THAT(
        [&] {
            CommandLine line = afterOut();
            std::string slot;
            while (line.next()) {
                line.takeSingle(slot, "project");
            }
        },
        ThrowsMessage<UsageError>("more than one project: b.json"));
    const std::array<std::string_view, 1> option{"--report"};
    EXPECT_THAT(
        [&] {
            CommandLine line(option);
            static_cast<void>(line.next());
            static_cast<void>(line.value());
        },
        ThrowsMessage<UsageError>("--report needs a value"));
    const std::array<std::string_view, 1> flag{"--json=yes"};
    EXPECT_THAT(
        [&] {
            CommandLine line(flag);
            static_cast<void>(line.next());
            static_cast<void>(line.next());
        },
        ThrowsMessage<UsageError>("--json takes no value"));
}

TEST(CommandLine, AnEmptyArgumentIsNoProject) {
    const std::array<std::string_view, 1> arguments{""};
    CommandLine line(arguments);
    EXPECT_EQ(line.next(), "");
    std::string project;
    EXPECT_THROW(line.takeSingle(project, "project"), UsageError);
}

TEST(CommandLine, FoldersMustExistAndBecomeAbsolute) {
    const test::TemporaryFolder folder;
    EXPECT_EQ(existingFolder(folder.path()), folder.path());
    EXPECT_EQ(existingFolder(folder.path() + "/x/.."), folder.path() + "/");
    EXPECT_THAT([&] { static_cast<void>(existingFolder(folder.file("none"))); },
                ThrowsMessage<UsageError>("no such folder: " + folder.file("none")));
}

TEST(CommandLine, DatesHaveOneForm) {
    EXPECT_EQ(dateAndTime("2026-11-20T14:05:09"), (platform::DateTime{2026, 11, 20, 14, 5, 9}));
    EXPECT_THAT([] { static_cast<void>(dateAndTime("today")); },
                ThrowsMessage<UsageError>("not a date and time as 2026-11-20T14:05:09: today"));
}

}  // namespace
}  // namespace mero::app
