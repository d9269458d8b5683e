// SPDX-License-Identifier: MIT
// The program's folder: that of the executable if it has the pages, else the user's data folder.
#include "app/common/program_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "support/environment.h"
#include "support/temporary_folder.h"

namespace mero::app {
namespace {

using test::Environment;

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

TEST(ProgramFolder, WithoutAFullPathThereIsNone) {
    const Environment data_home("XDG_DATA_HOME", std::nullopt);
    const test::TemporaryFolder current;
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(current.path());
    for (const auto& unusable : {std::optional<std::string>(), std::optional<std::string>(""),
                                 std::optional<std::string>("relative")}) {
        const Environment home("HOME", unusable);
        EXPECT_EQ(findDefaultFolder().path, "");
        EXPECT_THROW(static_cast<void>(defaultProgramFolder()), NoFolderError);
        EXPECT_EQ(folderOrDefault("/tmp"), "/tmp");
    }
    std::filesystem::current_path(before);
    EXPECT_TRUE(std::filesystem::is_empty(current.path()));
}

/// Installed data; removed after the test, also where they were made read-only.
class InstalledData {
  public:
    explicit InstalledData(std::filesystem::path folder) : folder_(std::move(folder)) {
        EXPECT_FALSE(std::filesystem::exists(folder_ / "Webs"));
        std::filesystem::create_directories(folder_ / "Webs/Desc_soubory");
        write("mero.mdb");
        write("Webs/Desc01.htm");
        write("Webs/Desc_soubory/logo.gif");
    }
    InstalledData(const InstalledData&) = delete;
    InstalledData& operator=(const InstalledData&) = delete;
    ~InstalledData() {
        permit(std::filesystem::perms::owner_all);
        for (const char* name : {"Webs", "mero.mdb", "examples"}) {
            std::filesystem::remove_all(folder_ / name);
        }
    }

    void write(const char* name) const {
        std::filesystem::create_directories((folder_ / name).parent_path());
        std::ofstream(folder_ / name) << "installed";
    }
    /// Sets the permissions of every folder of the data.
    void permit(std::filesystem::perms permissions) const {
        for (const char* name : {"Webs/Desc_soubory", "Webs"}) {
            std::filesystem::permissions(folder_ / name, permissions);
        }
    }

  private:
    std::filesystem::path folder_;
};

std::filesystem::path installedFolder() {
    return std::filesystem::path(executableFolder()) / "../share/mero";
}

TEST(ProgramFolder, WhatIsMissingComesFromTheInstalledDataAndWhatIsThereStays) {
    const InstalledData installed(installedFolder());
    const test::TemporaryFolder home;
    std::filesystem::create_directories(home.file("mero"));
    home.write("mero/mero.mdb", "the user's");
    const Environment data_home("XDG_DATA_HOME", home.path());
    EXPECT_EQ(defaultProgramFolder(), home.file("mero"));
    EXPECT_EQ(home.read("mero/mero.mdb"), "the user's");
    EXPECT_EQ(home.read("mero/Webs/Desc01.htm"), "installed");
    EXPECT_EQ(home.read("mero/Webs/Desc_soubory/logo.gif"), "installed");
}

TEST(ProgramFolder, APageThatWentMissingComesBackAtTheNextStart) {
    const InstalledData installed(installedFolder());
    const test::TemporaryFolder home;
    const Environment data_home("XDG_DATA_HOME", home.path());
    EXPECT_EQ(defaultProgramFolder(), home.file("mero"));
    std::filesystem::remove(home.file("mero/Webs/Desc01.htm"));
    home.write("mero/Webs/Desc_soubory/logo.gif", "the user's");
    EXPECT_EQ(defaultProgramFolder(), home.file("mero"));
    EXPECT_EQ(home.read("mero/Webs/Desc01.htm"), "installed");
    EXPECT_EQ(home.read("mero/Webs/Desc_soubory/logo.gif"), "the user's");
}

TEST(ProgramFolder, OnlyWhatTheProgramReadsIsCopiedAndNothingElseIsLeft) {
    const InstalledData installed(installedFolder());
    installed.write("examples/jama.mero");
    const test::TemporaryFolder home;
    const Environment data_home("XDG_DATA_HOME", home.path());
    std::vector<std::string> found;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(defaultProgramFolder())) {
        if (entry.is_regular_file()) {
            found.push_back(entry.path().lexically_relative(home.path()).string());
        }
    }
    EXPECT_THAT(found, testing::UnorderedElementsAre("mero/mero.mdb", "mero/Webs/Desc01.htm",
                                                     "mero/Webs/Desc_soubory/logo.gif"));
}

// Of a start that was killed while it copied.
TEST(ProgramFolder, TemporaryFilesOfKilledStartsAreRemoved) {
    const InstalledData installed(installedFolder());
    const test::TemporaryFolder home;
    std::filesystem::create_directories(home.file("mero/Webs/Desc_soubory"));
    for (const char* name :
         {"mero/.mero-abc123", "mero/Webs/.mero-abc123", "mero/Webs/Desc_soubory/.mero-abc123"}) {
        home.write(name, "half");
    }
    const Environment data_home("XDG_DATA_HOME", home.path());
    EXPECT_EQ(defaultProgramFolder(), home.file("mero"));
    for (const auto& entry : std::filesystem::recursive_directory_iterator(home.path())) {
        EXPECT_NE(entry.path().filename(), ".mero-abc123") << entry.path();
    }
}

TEST(ProgramFolder, TemporaryFilesOfKilledRunsAreRemovedFromAGivenFolder) {
    const test::TemporaryFolder folder;
    folder.write(".mero-abc123", "half");
    EXPECT_EQ(folderOrDefault(folder.path()), folder.path());
    EXPECT_FALSE(folder.has(".mero-abc123"));
}

// As on a read-only medium: the user can still write the copied folders and files.
TEST(ProgramFolder, CopiesOfReadOnlyDataCanBeReplaced) {
    const InstalledData installed(installedFolder());
    using std::filesystem::perms;
    installed.permit(perms::owner_read | perms::owner_exec);
    std::filesystem::permissions(installedFolder() / "mero.mdb", perms::owner_read);
    const test::TemporaryFolder home;
    const Environment data_home("XDG_DATA_HOME", home.path());
    EXPECT_EQ(defaultProgramFolder(), home.file("mero"));
    for (const char* name : {"mero/mero.mdb", "mero/Webs", "mero/Webs/Desc_soubory"}) {
        const perms permissions = std::filesystem::status(home.file(name)).permissions();
        EXPECT_NE(permissions & perms::owner_write, perms::none) << name;
    }
}

// A file is in the place of a folder: the start goes on with the data that could be copied.
TEST(ProgramFolder, WhatCannotBeCopiedIsLeftOut) {
    const InstalledData installed(installedFolder());
    const test::TemporaryFolder home;
    std::filesystem::create_directories(home.file("mero"));
    home.write("mero/Webs", "in the way");
    const Environment data_home("XDG_DATA_HOME", home.path());
    EXPECT_EQ(defaultProgramFolder(), home.file("mero"));
    EXPECT_EQ(home.read("mero/mero.mdb"), "installed");
    EXPECT_EQ(home.read("mero/Webs"), "in the way");
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

}  // namespace
}  // namespace mero::app
