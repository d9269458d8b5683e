// SPDX-License-Identifier: MIT
/// The report file under real faults: permissions, folders, a full disk, names that no file system accepts.
#include "report/report_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include "report/documents.h"
#include "support/unprivileged.h"

namespace mero::report {
namespace {

namespace fs = std::filesystem;
using mero::test::unprivileged;

/// A new folder for each test, removed after it.
class ReportFile : public testing::Test {
  protected:
    void SetUp() override {
        std::string name = (fs::temp_directory_path() / "mero report ěš XXXXXX").string();
        ASSERT_NE(mkdtemp(name.data()), nullptr);
        folder_ = name;
        // The unprivileged process of some tests must be able to write here.
        fs::permissions(folder_, fs::perms::all);
    }
    void TearDown() override { fs::remove_all(folder_); }

    [[nodiscard]] std::string path(const std::string& project) const { return reportPath(folder_, project); }

    static std::string contentOf(const std::string& file) {
        std::ifstream in(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }

    static void put(const std::string& file, const std::string& content) {
        std::ofstream(file, std::ios::binary) << content;
    }

    std::string folder_;
};

TEST_F(ReportFile, IsWrittenInWindows1250) {
    ASSERT_EQ(writeReport(path("Test"), "déšť\r\n\xF0\x9F\x92\xA7"), WriteResult::Written);
    EXPECT_EQ(contentOf(folder_ + "/Mero_Test"), "d\xE9\x9A\x9D\r\n?");
}

TEST_F(ReportFile, ReplacesTheFormerReportWhole) {
    put(path("Test"), std::string(100000, 'x'));
    ASSERT_EQ(writeReport(path("Test"), "nový"), WriteResult::Written);
    EXPECT_EQ(contentOf(path("Test")), "nov\xFD");
}

TEST_F(ReportFile, MayBeEmptyAndMayBeLarge) {
    EXPECT_EQ(writeReport(path(""), ""), WriteResult::Written);
    EXPECT_TRUE(fs::is_empty(path("")));
    const std::string large(3000000, 'm');
    EXPECT_EQ(writeReport(path("velký"), large), WriteResult::Written);
    EXPECT_EQ(contentOf(path("velký")), large);
}

TEST_F(ReportFile, TakesAnyNameThatTheFileSystemTakes) {
    for (const std::string name :
         {"\"uvozovky\"", "<b>", "a:b*c?", "\xF0\x9F\x92\xA7", "\xFF\xFE", ".", " ", "-rf"}) {
        EXPECT_EQ(writeReport(path(name), "x"), WriteResult::Written) << name;
        EXPECT_EQ(contentOf(folder_ + "/Mero_" + name), "x") << name;
    }
}

TEST_F(ReportFile, FailsUnderANameThatNoFileCanHave) {
    EXPECT_EQ(writeReport(path("a/b"), "x"), WriteResult::Failed);
    EXPECT_EQ(writeReport(path("../x"), "x"), WriteResult::Failed);
    EXPECT_EQ(writeReport(path(std::string(300, 'n')), "x"), WriteResult::Failed);
    EXPECT_EQ(writeReport(path(std::string("a\0b", 3)), "x"), WriteResult::Failed);
    EXPECT_EQ(writeReport("", "x"), WriteResult::Failed);
    EXPECT_TRUE(fs::is_empty(folder_));
}

TEST_F(ReportFile, FailsWhereAFolderStandsAndLeavesIt) {
    fs::create_directory(path("složka"));
    EXPECT_EQ(writeReport(path("složka"), "x"), WriteResult::Failed);
    EXPECT_TRUE(fs::is_directory(path("složka")));
}

TEST_F(ReportFile, FailsInAMissingFolder) {
    EXPECT_EQ(writeReport(reportPath(folder_ + "/není", "x"), "x"), WriteResult::Failed);
    EXPECT_FALSE(fs::exists(folder_ + "/není"));
}

TEST_F(ReportFile, IsDeniedWhereTheFileIsProtectedAndKeepsItsContent) {
    put(path("chráněný"), "starý");
    fs::permissions(path("chráněný"), fs::perms::owner_read | fs::perms::others_read);
    EXPECT_EQ(unprivileged([&] { return writeReport(path("chráněný"), "nový"); }),
              WriteResult::PermissionDenied);
    EXPECT_EQ(contentOf(path("chráněný")), "starý");
}

TEST_F(ReportFile, IsDeniedInAProtectedFolder) {
    fs::permissions(folder_, fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_exec);
    const WriteResult result = unprivileged([&] { return writeReport(path("Test"), "x"); });
    fs::permissions(folder_, fs::perms::all);
    EXPECT_EQ(result, WriteResult::PermissionDenied);
    EXPECT_TRUE(fs::is_empty(folder_));
}

TEST_F(ReportFile, IsDeniedWhileAnotherProgramHasTheFileInUse) {
    // The system itself protects only running programs against writing.
    fs::copy_file("/bin/sleep", path("běží"));
    const std::string running = path("běží");
    const pid_t other = fork();
    if (other == 0) {
        execl(running.c_str(), "sleep", "60", nullptr);
        _exit(1);
    }
    const auto size = fs::file_size(running);
    // The file can be opened until the other process runs it; wait for that without touching the file.
    const std::string image = "/proc/" + std::to_string(other) + "/exe";
    std::error_code ignored;
    bool runs = false;
    for (int wait = 0; wait < 10000 && !runs; ++wait) {
        usleep(1000);
        runs = fs::read_symlink(image, ignored) == fs::path(running);
    }
    EXPECT_TRUE(runs);
    EXPECT_EQ(writeReport(running, "x"), WriteResult::PermissionDenied);
    EXPECT_EQ(fs::file_size(running), size);
    EXPECT_EQ(bareFileName(running), "Mero_běží");
    kill(other, SIGKILL);
    waitpid(other, nullptr, 0);
}

TEST_F(ReportFile, LeavesNoHalfReportWhenTheDiskIsFull) {
    put(path("Test"), "starý");
    // The file can grow to 4096 bytes, as on a disk that fills up while it is written.
    fs::permissions(path("Test"), fs::perms::all);
    const WriteResult full = unprivileged([&] {
        const rlimit limit{4096, 4096};
        std::signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &limit);
        return writeReport(path("Test"), std::string(100000, 'x'));
    });
    EXPECT_EQ(full, WriteResult::Failed);
    EXPECT_FALSE(fs::exists(path("Test")));
}

TEST_F(ReportFile, DoesNotWaitForAPipeThatNobodyReads) {
    ASSERT_EQ(mkfifo(path("roura").c_str(), 0600), 0);
    EXPECT_EQ(writeReport(path("roura"), "x"), WriteResult::Failed);
    EXPECT_FALSE(holdsReport(path("roura"), ""));
    EXPECT_TRUE(fs::is_fifo(path("roura")));
}

TEST_F(ReportFile, IsWrittenWhereOnlyTheFileItselfMayBe) {
    put(path("Test"), std::string(5000, 'x'));
    fs::permissions(path("Test"), fs::perms(0666));
    fs::permissions(folder_, fs::perms(0555));
    const WriteResult result = unprivileged([&] { return writeReport(path("Test"), "nový"); });
    fs::permissions(folder_, fs::perms::all);
    EXPECT_EQ(result, WriteResult::Written);
    EXPECT_EQ(contentOf(path("Test")), "nov\xFD");
}

TEST_F(ReportFile, IsNeverReadHalfWhileASecondProgramWritesIt) {
    const std::string one(30000, 'a');
    const std::string other(20000, 'b');
    ASSERT_EQ(writeReport(path("Test"), one), WriteResult::Written);
    const pid_t second = fork();
    if (second == 0) {
        while (true) {
            static_cast<void>(writeReport(path("Test"), other));
            static_cast<void>(writeReport(path("Test"), one));
        }
    }
    std::set<std::string> seen;
    for (int reading = 0; reading < 300 || (seen.size() < 2 && reading < 20000); ++reading) {
        seen.insert(contentOf(path("Test")));
    }
    kill(second, SIGKILL);
    waitpid(second, nullptr, 0);
    EXPECT_TRUE(seen == (std::set<std::string>{one, other})) << seen.size() << " different contents";
}

TEST_F(ReportFile, IsKnownAgainByItsContent) {
    ASSERT_EQ(writeReport(path("Test"), "déšť \u4e2d"), WriteResult::Written);
    EXPECT_TRUE(holdsReport(path("Test"), "déšť \u4e2d"));
    EXPECT_FALSE(holdsReport(path("Test"), "déšť"));
    EXPECT_FALSE(holdsReport(path("jiný"), "déšť"));
    EXPECT_FALSE(holdsReport(path("jiný"), ""));
    EXPECT_FALSE(holdsReport(folder_, ""));
    EXPECT_FALSE(holdsReport("", ""));
}

TEST_F(ReportFile, LeavesADeviceThatThePathLeadsTo) {
    fs::create_symlink("/dev/full", path("Test"));
    EXPECT_EQ(writeReport(path("Test"), "x"), WriteResult::Failed);
    EXPECT_TRUE(fs::is_symlink(path("Test")));
}

TEST_F(ReportFile, IsNotWrittenOrRemovedThroughALink) {
    put(path("cizí"), "other");
    fs::create_symlink(path("cizí"), path("Test"));
    fs::create_symlink(path("není"), path("nikam"));
    EXPECT_EQ(writeReport(path("Test"), "x"), WriteResult::Failed);
    EXPECT_EQ(writeReport(path("nikam"), "x"), WriteResult::Failed);
    EXPECT_TRUE(fs::is_symlink(path("Test")));
    EXPECT_FALSE(fs::exists(path("není")));
    removeReport(path("Test"));
    EXPECT_EQ(contentOf(path("cizí")), "other");
}

TEST_F(ReportFile, IsRemovedWithoutComplaint) {
    put(path("Test"), "x");
    removeReport(path("Test"));
    EXPECT_TRUE(fs::is_empty(folder_));
    removeReport(path("Test"));
    removeReport(path(std::string(300, 'n')));
    removeReport(folder_ + "/není/Mero_");
}

TEST_F(ReportFile, IsNotRemovedUnderAnEmptyOrCutPath) {
    put(path("a"), "x");
    removeReport("");
    removeReport(path(std::string("a\0b", 3)));
    EXPECT_TRUE(fs::exists(path("a")));
}

TEST_F(ReportFile, RemovesNoFolder) {
    fs::create_directory(path("složka"));
    removeReport(path("složka"));
    removeReport(folder_);
    EXPECT_TRUE(fs::is_directory(path("složka")));
}

TEST_F(ReportFile, HasABareNameWhetherItIsThereOrNot) {
    EXPECT_EQ(bareFileName(path("Test")), "Mero_Test");
    EXPECT_EQ(bareFileName("/složka/Mero_"), "Mero_");
    EXPECT_EQ(bareFileName(""), "");
}

}  // namespace
}  // namespace mero::report
