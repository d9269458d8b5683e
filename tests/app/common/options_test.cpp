// SPDX-License-Identifier: MIT
// The shared options: their values, and which arguments are refused.
#include "app/common/options.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <initializer_list>
#include <string>
#include <vector>

#include "support/temporary_folder.h"

namespace mero::app {
namespace {

RunOptions parse(std::initializer_list<std::string_view> arguments,
                 ScriptArgument script = ScriptArgument::Plain) {
    const std::vector<std::string_view> list(arguments);
    return parseRunOptions(list, script);
}

TEST(Options, NoneIsEverythingByDefault) {
    const RunOptions options = parse({});
    EXPECT_EQ(options.folder, "");
    EXPECT_EQ(options.script, "");
    EXPECT_EQ(options.frozen_moment, std::nullopt);
    EXPECT_FALSE(options.help);
    EXPECT_FALSE(options.version);
}

TEST(Options, ValuesFollowOrStandBehindAnEqualsSign) {
    const test::TemporaryFolder folder(" č. 5");
    const platform::DateTime moment{2026, 11, 20, 14, 5, 9};
    const RunOptions apart = parse({"--folder", folder.path(), "--clock", "2026-11-20T14:05:09", "a.mero"});
    const RunOptions joined = parse({"a.mero", "--clock=2026-11-20T14:05:09", "--folder=" + folder.path()});
    for (const RunOptions& options : {apart, joined}) {
        EXPECT_EQ(options.folder, folder.path());
        EXPECT_EQ(options.frozen_moment, moment);
        EXPECT_EQ(options.script, "a.mero");
    }
}

TEST(Options, FoldersBecomeAbsoluteWithoutATrailingSlash) {
    const test::TemporaryFolder folder;
    EXPECT_EQ(parse({"--folder", folder.path() + "/"}).folder, folder.path());
    EXPECT_EQ(parse({"--folder", folder.path() + "/./"}).folder, folder.path());
    EXPECT_EQ(parse({"--folder", "/"}).folder, "/");
    EXPECT_EQ(parse({"--folder", "."}).folder, std::filesystem::current_path().string());
}

TEST(Options, TheWindowNamesItsScriptWithAnOption) {
    EXPECT_EQ(parse({"--script", "a.mero"}, ScriptArgument::WithOption).script, "a.mero");
    EXPECT_EQ(parse({"--script=-"}, ScriptArgument::WithOption).script, "-");
    EXPECT_THROW(parse({"--script", "a.mero"}), UsageError) << "only the window has it";
}

TEST(Options, TheWindowTakesOneProject) {
    constexpr auto kWindow = ScriptArgument::WithOption;
    EXPECT_EQ(parse({}, kWindow).project, "");
    EXPECT_EQ(parse({"dům.mero.json", "--palette", "dark"}, kWindow).project, "dům.mero.json");
    EXPECT_EQ(parse({"dům.mero.json"}, kWindow).script, "");
    EXPECT_THROW(parse({"a.json", "b.json"}, kWindow), UsageError);
    EXPECT_THROW(parse({"-"}, kWindow), UsageError);
    EXPECT_THROW(parse({"a.json", "--script", "a.mero"}, kWindow), UsageError);
}

TEST(Options, OnlyTheWindowHasAPalette) {
    constexpr auto kWindow = ScriptArgument::WithOption;
    EXPECT_EQ(parse({}, kWindow).palette, Palette::System);
    EXPECT_EQ(parse({"--palette", "light"}, kWindow).palette, Palette::Light);
    EXPECT_EQ(parse({"--palette=dark"}, kWindow).palette, Palette::Dark);
    EXPECT_THROW(parse({"--palette", "Dark"}, kWindow), UsageError);
    EXPECT_THROW(parse({"--palette="}, kWindow), UsageError);
    EXPECT_THROW(parse({"--palette"}, kWindow), UsageError);
    EXPECT_THROW(parse({"--palette", "dark"}), UsageError);
}

TEST(Options, StandardInputIsADash) {
    EXPECT_EQ(parse({"-"}).script, "-");
}

TEST(Options, HelpAndVersion) {
    EXPECT_TRUE(parse({"--help"}).help);
    EXPECT_TRUE(parse({"-h"}).help);
    EXPECT_TRUE(parse({"--version"}).version);
}

TEST(Options, UnusableArguments) {
    const test::TemporaryFolder folder;
    folder.write("file", "");
    const std::string file = folder.file("file");
    const std::string missing = folder.file("missing");
    const std::vector<std::vector<std::string_view>> lists{
        {"--folder"},         {"--folder", missing},
        {"--folder", file},   {"--folder="},
        {"--clock"},          {"--clock", "now"},
        {"--clock="},         {"--clock", "2026-11-20"},
        {"--unknown"},        {"-x"},
        {"a.mero", "b.mero"}, {"--help=yes"},
        {"--version=1"},      {"--folder2", folder.path()}};
    for (const auto& list : lists) {
        EXPECT_THROW(static_cast<void>(parseRunOptions(list, ScriptArgument::Plain)), UsageError)
            << list.front();
    }
}

}  // namespace
}  // namespace mero::app
