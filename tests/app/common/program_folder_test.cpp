// SPDX-License-Identifier: MIT
// The program's folder: beside the executable where that holds the pages, else the user's own.
#include "app/common/program_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

#include "support/temporary_folder.h"

namespace mero::app {
namespace {

/// Sets an environment variable for one test.
class Environment {
  public:
    Environment(const char* name, const std::string& value) : name_(name) {
        if (const char* before = std::getenv(name)) {
            before_ = before;
        }
        ::setenv(name, value.c_str(), 1);
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;
    ~Environment() {
        if (before_) {
            ::setenv(name_, before_->c_str(), 1);
        } else {
            ::unsetenv(name_);
        }
    }

  private:
    const char* name_;
    std::optional<std::string> before_;
};

TEST(ProgramFolder, TheExecutablesFolderIsFullAndHasNoTrailingSlash) {
    const std::string folder = executableFolder();
    EXPECT_EQ(folder.front(), '/');
    EXPECT_NE(folder.back(), '/');
    EXPECT_TRUE(std::filesystem::is_directory(folder));
}

// This test's own executable has no pages beside it, so it counts as an installed copy.
TEST(ProgramFolder, AnInstalledCopyUsesTheUsersDataFolder) {
    ASSERT_FALSE(std::filesystem::exists(executableFolder() + "/Webs"));
    const test::TemporaryFolder home(" domov č. 1");
    const Environment data_home("XDG_DATA_HOME", home.path());
    EXPECT_EQ(defaultProgramFolder(), home.file("mero"));
}

TEST(ProgramFolder, WithoutADataHomeItIsBelowTheHome) {
    const test::TemporaryFolder home;
    const Environment home_folder("HOME", home.path());
    for (const char* unusable : {"", "relative/path"}) {
        const Environment data_home("XDG_DATA_HOME", unusable);
        EXPECT_EQ(defaultProgramFolder(), home.file(".local/share/mero"));
    }
}

TEST(ProgramFolder, WhatIsMissingComesFromTheInstalledDataAndWhatIsThereStays) {
    const std::filesystem::path installed = std::filesystem::path(executableFolder()) / "../share/mero";
    ASSERT_FALSE(std::filesystem::exists(installed));
    std::filesystem::create_directories(installed / "Webs");
    const auto write = [](const std::filesystem::path& file, const char* content) {
        std::ofstream(file) << content;
    };
    write(installed / "mero.mdb", "installed");
    write(installed / "Webs/Desc01.htm", "installed");
    const test::TemporaryFolder home;
    std::filesystem::create_directories(home.file("mero"));
    home.write("mero/mero.mdb", "the user's");
    {
        const Environment data_home("XDG_DATA_HOME", home.path());
        EXPECT_EQ(defaultProgramFolder(), home.file("mero"));
    }
    std::filesystem::remove_all(installed);
    EXPECT_EQ(home.read("mero/mero.mdb"), "the user's");
    EXPECT_EQ(home.read("mero/Webs/Desc01.htm"), "installed");
}

TEST(ProgramFolder, OneThatCannotBeMadeIsNotThere) {
    const Environment data_home("XDG_DATA_HOME", "/proc/nowhere");
    const std::string folder = defaultProgramFolder();
    EXPECT_EQ(folder, "/proc/nowhere/mero");
    EXPECT_FALSE(folderExists(folder));
    EXPECT_EQ(
        folderMissing(folder),
        "the program's folder /proc/nowhere/mero cannot be made: there is no rain database and no report");
    EXPECT_TRUE(folderExists("/proc"));
    EXPECT_FALSE(folderExists("/proc/version"));
}

TEST(ProgramFolder, TheReaderIsBesideTheExecutableOrInTheInstalledPlace) {
    const std::string reader = rainReaderProgram();
    EXPECT_TRUE(reader.ends_with("/mero-rain"));
    EXPECT_EQ(reader.front(), '/');
}

}  // namespace
}  // namespace mero::app
