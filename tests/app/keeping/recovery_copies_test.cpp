// SPDX-License-Identifier: MIT
/// Copies without a living owner are found once; those of a running program are not touched.
#include "app/keeping/recovery_copies.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>

#include "support/temporary_folder.h"

namespace mero::app {
namespace {

namespace fs = std::filesystem;
using testing::IsEmpty;
using testing::SizeIs;

class Recovery : public testing::Test {
  protected:
    test::TemporaryFolder folder;
    std::string place = folder.file("recovery");

    static void write(const std::string& path, const std::string& content) {
        std::ofstream(path, std::ios::binary) << content;
    }
    /// A copy whose program was ended by kill -9.
    void loseCopy(const std::string& origin, const std::string& content) const {
        const pid_t child = fork();
        if (child == 0) {
            RecoveryCopies copies(place);
            write(copies.make(origin), content);
            ::kill(getpid(), SIGKILL);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status));
    }
    static std::string contentOf(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }
    [[nodiscard]] std::size_t files() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(place), {}));
    }
};

TEST_F(Recovery, FindsTheCopyOfAProgramThatWasKilled) {
    loseCopy("/home/jana/dům.json", "work");
    RecoveryCopies next(place);
    const auto lost = next.takeLost();
    ASSERT_THAT(lost, SizeIs(1));
    EXPECT_EQ(contentOf(lost[0].path), "work");
    EXPECT_EQ(lost[0].origin, "/home/jana/dům.json");
}

TEST_F(Recovery, LeavesTheCopiesOfARunningProgramAlone) {
    RecoveryCopies first(place);
    const std::string copy = first.make("");
    write(copy, "work");
    RecoveryCopies second(place);
    EXPECT_THAT(second.takeLost(), IsEmpty());
    EXPECT_EQ(contentOf(copy), "work");
}

TEST_F(Recovery, OffersACopyToOneProgramOnly) {
    loseCopy("", "work");
    RecoveryCopies first(place);
    RecoveryCopies second(place);
    EXPECT_THAT(first.takeLost(), SizeIs(1));
    EXPECT_THAT(second.takeLost(), IsEmpty());
}

TEST_F(Recovery, OffersACopyAgainThatNobodyTook) {
    loseCopy("", "work");
    {
        RecoveryCopies first(place);
        EXPECT_THAT(first.takeLost(), SizeIs(1));
    }
    RecoveryCopies second(place);
    EXPECT_THAT(second.takeLost(), SizeIs(1));
}

TEST_F(Recovery, KeepsACopyThatWasNotRemovedAtTheEnd) {
    {
        RecoveryCopies first(place);
        write(first.make("/a.json"), "one");
        write(first.make("/b.json"), "two");
    }
    RecoveryCopies second(place);
    EXPECT_THAT(second.takeLost(), SizeIs(2));
}

TEST_F(Recovery, LeavesNothingBehindWhenNothingIsUnsaved) {
    {
        RecoveryCopies first(place);
        RecoveryCopies::remove(first.make("/a.json"));
    }
    EXPECT_EQ(files(), 0U);
    loseCopy("", "work");
    {
        RecoveryCopies second(place);
        for (const LostCopy& copy : second.takeLost()) {
            RecoveryCopies::remove(copy.path);
        }
    }
    EXPECT_EQ(files(), 0U);
}

TEST_F(Recovery, OffersNoEmptyCopy) {
    loseCopy("/a.json", "");
    {
        RecoveryCopies next(place);
        EXPECT_THAT(next.takeLost(), IsEmpty());
    }
    EXPECT_EQ(files(), 0U);
}

TEST_F(Recovery, RemovesOldFilesOfInterruptedWrites) {
    fs::create_directories(place);
    const std::string old = place + "/.mero-abcdef";
    const std::string young = place + "/.mero-ghijkl";
    write(old, "half");
    write(young, "half");
    fs::last_write_time(old, fs::file_time_type::clock::now() - std::chrono::minutes(2));
    RecoveryCopies next(place);
    EXPECT_THAT(next.takeLost(), IsEmpty());
    EXPECT_FALSE(fs::exists(old));
    EXPECT_TRUE(fs::exists(young)) << "another program may be writing it";
}

TEST_F(Recovery, TheLatestCopyComesFirst) {
    loseCopy("/old.json", "old");
    loseCopy("/new.json", "new");
    for (const auto& entry : fs::directory_iterator(place)) {
        if (contentOf(entry.path()) == "old") {
            fs::last_write_time(entry.path(), fs::file_time_type::clock::now() - std::chrono::hours(1));
        }
    }
    RecoveryCopies next(place);
    const auto lost = next.takeLost();
    ASSERT_THAT(lost, SizeIs(2));
    EXPECT_EQ(lost[0].origin, "/new.json");
}

TEST_F(Recovery, KeepsNothingWithoutAFolder) {
    RecoveryCopies nowhere("");
    EXPECT_EQ(nowhere.make("/a.json"), "");
    EXPECT_THAT(nowhere.takeLost(), IsEmpty());
    RecoveryCopies impossible("/proc/no/such/folder");
    EXPECT_EQ(impossible.make("/a.json"), "");
}

TEST_F(Recovery, NobodyElseReadsACopy) {
    RecoveryCopies copies(place);
    const std::string copy = copies.make("");
    RecoveryCopies::write(copy, "work");
    EXPECT_EQ(contentOf(copy), "work");
    EXPECT_EQ(fs::status(copy).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

}  // namespace
}  // namespace mero::app
