// SPDX-License-Identifier: MIT
/// Running a program: how it ended, in time, with nothing left behind.
#include "app/batch/run_program.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <string>

#include "support/temporary_folder.h"

namespace mero::app {
namespace {

using Kind = ProgramEnd::Kind;

ProgramEnd shell(const std::string& commands,
                 std::chrono::milliseconds time_limit = std::chrono::seconds(20)) {
    return runProgram({"/bin/sh", "-c", commands}, time_limit);
}

TEST(RunProgram, TellsHowItEnded) {
    EXPECT_EQ(shell("exit 0").kind, Kind::Exited);
    EXPECT_EQ(shell("exit 5").exit_status, 5);
    EXPECT_EQ(shell("kill -SEGV $$").kind, Kind::Crashed);
    EXPECT_EQ(runProgram({"/no/such/program"}, std::chrono::seconds(1)).kind, Kind::NotStarted);
}

TEST(RunProgram, AProgramThatHangsIsStoppedWithWhatItStarted) {
    const test::TemporaryFolder folder;
    const auto end = shell("trap '' TERM; sleep 30 & echo $! >'" + folder.file("pid") + "'; wait",
                           std::chrono::milliseconds(500));
    EXPECT_EQ(end.kind, Kind::TimeLimit);
    const pid_t grandchild = std::stoi(folder.read("pid"));
    for (int tries = 0; tries < 200 && ::kill(grandchild, 0) == 0; ++tries) {
        // Its new parent may not have reaped it yet; then its state is Z.
        std::ifstream state("/proc/" + std::to_string(grandchild) + "/stat");
        if (std::string(std::istreambuf_iterator<char>(state), {}).find(") Z ") != std::string::npos) {
            break;
        }
        ::usleep(5000);
        ASSERT_LT(tries, 199) << "still running";
    }
}

TEST(RunProgram, SignalsAreAsInAFreshProgram) {
    struct sigaction ignore {};
    struct sigaction before {};
    ignore.sa_handler = SIG_IGN;
    ::sigaction(SIGPIPE, &ignore, &before);
    const ProgramEnd end = shell("kill -PIPE $$; exit 0");
    ::sigaction(SIGPIPE, &before, nullptr);
    EXPECT_EQ(end.kind, Kind::Crashed);
}

}  // namespace
}  // namespace mero::app
