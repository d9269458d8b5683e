// SPDX-License-Identifier: MIT
/// Temporary files of killed runs go; those of running ones, and other files, stay.
#include "platform/files/leftovers.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/files/fresh_file.h"
#include "support/temporary_folder.h"

namespace mero::platform {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class Leftovers : public testing::Test {
  protected:
    [[nodiscard]] std::vector<std::string> names() const {
        std::vector<std::string> found;
        for (const auto& entry : fs::directory_iterator(folder.path())) {
            found.push_back(entry.path().filename().string());
        }
        std::sort(found.begin(), found.end());
        return found;
    }

    /// A process that has begun to write a file and waits.
    [[nodiscard]] pid_t writer() const {
        std::array<int, 2> begun{};
        EXPECT_EQ(pipe(begun.data()), 0);
        const pid_t child = fork();
        if (child == 0) {
            FreshFile file(folder.file("a.csv"));
            const bool written = file.isOpen() && file.write("půl");
            static_cast<void>(write(begun[1], written ? "j" : "n", 1));
            while (true) {
                pause();
            }
        }
        char answer = 0;
        EXPECT_EQ(read(begun[0], &answer, 1), 1);
        EXPECT_EQ(answer, 'j');
        close(begun[0]);
        close(begun[1]);
        return child;
    }

    static void end(pid_t process) {
        kill(process, SIGKILL);
        waitpid(process, nullptr, 0);
    }

    test::TemporaryFolder folder{" leftovers"};
};

TEST_F(Leftovers, OfAKilledRunAreRemoved) {
    end(writer());
    EXPECT_THAT(names(), SizeIs(1)) << "nothing could clean up";
    removeLeftovers(folder.path());
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(Leftovers, OfARunningProgramStay) {
    const pid_t process = writer();
    removeLeftovers(folder.path());
    EXPECT_THAT(names(), SizeIs(1));
    end(process);
}

TEST_F(Leftovers, AreRemovedByTheNextRunThatWritesTheFile) {
    end(writer());
    const pid_t process = writer();
    EXPECT_THAT(names(), SizeIs(1)) << "only that of the second run";
    {
        FreshFile file(folder.file("a.csv"));
        EXPECT_TRUE(file.write("celý") && file.putInPlace());
    }
    EXPECT_THAT(names(), SizeIs(2)) << "the file, and that of the run that still writes";
    end(process);
    EXPECT_EQ(folder.read("a.csv"), "celý");
}

TEST_F(Leftovers, AreNothingElse) {
    fs::create_directory(folder.file(".mero-abcdef"));
    for (const char* name :
         {".mero-abcde", ".mero-abcdefg", ".mero-abcde_", "x.mero-abcdef", ".merox-bcdef"}) {
        folder.write(name, "user's");
    }
    folder.write("user's", "user's");
    fs::create_symlink(folder.file("user's"), folder.file(".mero-012345"));
    ASSERT_EQ(mkfifo(folder.file(".mero-ABCDEF").c_str(), 0600), 0);
    const auto before = names();
    removeLeftovers(folder.path());
    EXPECT_EQ(names(), before);
    removeLeftovers(folder.file("není"));
}

TEST_F(Leftovers, OfAnotherUserStay) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only the superuser can give a file away";
    }
    folder.write(".mero-abcdef", "x");
    ASSERT_EQ(chown(folder.file(".mero-abcdef").c_str(), 65534, 65534), 0);
    removeLeftovers(folder.path());
    EXPECT_THAT(names(), ElementsAre(".mero-abcdef"));
}

// A run makes its file and marks it a moment later; in between another run may remove it.
TEST_F(Leftovers, AFileThatIsGoneWhenItIsMarkedIsNoticed) {
    folder.write(".mero-abcdef", "");
    const int descriptor = open(folder.file(".mero-abcdef").c_str(), O_RDWR | O_CLOEXEC);
    EXPECT_TRUE(markInUse(descriptor));
    fs::remove(folder.file(".mero-abcdef"));
    EXPECT_FALSE(markInUse(descriptor));
    close(descriptor);
}

// Two processes write the same file again and again; every write succeeds, although each of them looks for
// leftovers of the other.
TEST_F(Leftovers, DoNotTakeAFileFromARunThatHasJustBegun) {
    std::vector<pid_t> children;
    for (int number = 0; number < 2; ++number) {
        const pid_t child = fork();
        if (child == 0) {
            int failed = 0;
            for (int round = 0; round < 500; ++round) {
                FreshFile file(folder.file("a.csv"));
                failed += file.isOpen() && file.write("x") && file.putInPlace(OnDisk::NotRequired) ? 0 : 1;
            }
            _exit(failed == 0 ? 0 : 1);
        }
        children.push_back(child);
    }
    for (const pid_t child : children) {
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    EXPECT_THAT(names(), ElementsAre("a.csv"));
}

}  // namespace
}  // namespace mero::platform
