// SPDX-License-Identifier: MIT
/// A reader that crashes, hangs, prints wrong or endless output: each is a failed read, in time, and no
/// process is left. Shell scripts replace the reader.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <filesystem>

#include "data/rain_support.h"
#include "data/reader_process.h"

namespace mero::data {
namespace {

using test::kReadLimit;
using test::Outcome;
using test::TemporaryFolder;
using ::testing::HasSubstr;

constexpr const char* kWholeOutput =
    "printf 'mero-rain 1\\ndemonstration 0\\ncolumns 1\\ncolumn doba\\nrows 1\\nrow\\t5\\nend 1\\n'";

class ReaderFailures : public ::testing::Test {
  protected:
    void TearDown() override {
        EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "a child was left behind";
        EXPECT_EQ(errno, ECHILD);
    }

    [[nodiscard]] Outcome readWith(const std::string& commands) const {
        return test::read(MERO_RAIN_DATABASE, 84, folder_.script(commands));
    }

    void expectFailedRead(const std::string& commands) const {
        const Outcome outcome = readWith(commands);
        ASSERT_NE(outcome.error(), nullptr) << commands;
        EXPECT_EQ(outcome.errorNumber(), kReadFailed) << commands;
        EXPECT_TRUE(outcome.error()->endsProgram());
        EXPECT_THAT(outcome.error()->description(), HasSubstr("List84"));
        EXPECT_THAT(outcome.error()->description(), HasSubstr(MERO_RAIN_DATABASE));
        EXPECT_LT(outcome.took, kReadLimit) << commands;
    }

    TemporaryFolder folder_;
};

TEST_F(ReaderFailures, AWholeAnswerIsTaken) {
    const Outcome outcome = readWith(kWholeOutput);
    ASSERT_NE(outcome.table(), nullptr) << outcome.error()->description();
    EXPECT_EQ(test::valueAt(*outcome.table(), 0, "doba"), 5.0);
}

TEST_F(ReaderFailures, TheReaderGetsFileAndTableAndNothingElse) {
    const std::string right_arguments =
        "[ $# -eq 2 ] && [ \"$1\" = '" MERO_RAIN_DATABASE "' ] && [ \"$2\" = List84 ]";
    const Outcome outcome = readWith(right_arguments + " && ! read -r input && " + kWholeOutput);
    EXPECT_NE(outcome.table(), nullptr);
}

TEST_F(ReaderFailures, Crashes) {
    expectFailedRead("kill -SEGV $$");
    expectFailedRead(std::string(kWholeOutput) + "; kill -ABRT $$");
}

TEST_F(ReaderFailures, Hangs) {
    expectFailedRead("while :; do :; done");
}

TEST_F(ReaderFailures, HangsWithSignalsIgnored) {
    expectFailedRead("trap '' TERM INT HUP PIPE; sleep 30; sleep 30");
}

TEST_F(ReaderFailures, ClosesItsOutputAndLingers) {
    expectFailedRead(std::string(kWholeOutput) + "; exec >&-; sleep 30");
}

TEST_F(ReaderFailures, EndsButLeavesAProcessWithItsOutputOpen) {
    expectFailedRead(std::string(kWholeOutput) + "; sleep 30 &");
}

TEST_F(ReaderFailures, PrintsSlowlyWithoutEnd) {
    expectFailedRead("while :; do echo row; sleep 0.05; done");
}

TEST_F(ReaderFailures, FloodsTheOutput) {
    expectFailedRead("exec cat /dev/zero");
    expectFailedRead("yes 'row\t5'");
}

TEST_F(ReaderFailures, PrintsGarbage) {
    expectFailedRead("echo 'Segmentation fault'");
    expectFailedRead("head -c 100000 /dev/urandom");
    expectFailedRead("echo 'Warning: odd page'; " + std::string(kWholeOutput));
    expectFailedRead(std::string(kWholeOutput) + "; echo bye");
}

TEST_F(ReaderFailures, PrintsHalf) {
    expectFailedRead(
        "printf 'mero-rain 1\\ndemonstration 0\\ncolumns 1\\ncolumn doba\\nrows 9\\nrow\\t5\\n'");
}

TEST_F(ReaderFailures, ExitsSilently) {
    expectFailedRead("exit 0");
    expectFailedRead("exit 1");
    expectFailedRead("exit 2");
    expectFailedRead("exit 5");
    expectFailedRead("exit 127");
}

TEST_F(ReaderFailures, AWholeAnswerWithABadStatusIsNotBelieved) {
    expectFailedRead(std::string(kWholeOutput) + "; exit 1");
}

TEST_F(ReaderFailures, AMissingReaderIsSaid) {
    for (const std::string& reader : {folder_.file("no-such-program"), folder_.write("no-program", "x"),
                                      folder_.file(""), std::string()}) {
        const Outcome outcome = test::read(MERO_RAIN_DATABASE, 84, reader);
        ASSERT_NE(outcome.error(), nullptr) << reader;
        EXPECT_EQ(outcome.errorNumber(), kReadFailed);
        EXPECT_THAT(outcome.error()->description(), HasSubstr("program pro čtení databáze nelze spustit"));
    }
}

TEST_F(ReaderFailures, WhatTheReaderStartedIsStoppedWithIt) {
    const std::string mark = folder_.file("pid");
    expectFailedRead("sleep 30 & echo $! >'" + mark + "'; wait");
    const pid_t grandchild = std::stoi(test::contentOf(mark));
    for (int tries = 0; tries < 200 && ::kill(grandchild, 0) == 0; ++tries) {
        // Its new parent may not have reaped it yet; then its state is Z.
        if (test::contentOf("/proc/" + std::to_string(grandchild) + "/stat").find(") Z ") !=
            std::string::npos) {
            break;
        }
        ::usleep(5000);
        ASSERT_LT(tries, 199) << "still running";
    }
}

TEST_F(ReaderFailures, NoDescriptorIsLeftOpen) {
    const auto open = [] {
        const std::filesystem::directory_iterator descriptors("/proc/self/fd");
        return std::distance(begin(descriptors), end(descriptors));
    };
    const auto before = open();
    static_cast<void>(readWith(kWholeOutput));
    expectFailedRead("kill -SEGV $$");
    expectFailedRead("exec cat /dev/zero");
    static_cast<void>(test::read(MERO_RAIN_DATABASE, 84, folder_.file("missing")));
    EXPECT_EQ(open(), before);
}

TEST_F(ReaderFailures, SignalsAreAsInAFreshProgram) {
    struct sigaction ignore {};
    struct sigaction before {};
    ignore.sa_handler = SIG_IGN;
    ::sigaction(SIGPIPE, &ignore, &before);
    const ReaderResult result = runReader({folder_.script("kill -PIPE $$; echo survived")});
    ::sigaction(SIGPIPE, &before, nullptr);
    EXPECT_EQ(result.ending, ReaderResult::Ending::Crashed);
    EXPECT_EQ(result.output, "");
}

}  // namespace
}  // namespace mero::data
