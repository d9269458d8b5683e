// SPDX-License-Identifier: MIT
/// A request to end is noticed, waited on, and passed on after the clean-up. Each case runs in a process of
/// its own, because handlers belong to the process.
#include "app/common/end_signals.h"

#include <gtest/gtest.h>
#include <poll.h>

#include <csignal>
#include <cstdlib>

namespace mero::app {
namespace {

constexpr int kCleanedUp = 7;

bool isReadable(int descriptor) {
    pollfd ready{descriptor, POLLIN, 0};
    return ::poll(&ready, 1, 0) == 1;
}

/// Exits with a number that says what is wrong, or ends by the signal.
[[noreturn]] void receive(int number) {
    const EndSignals requests;
    if (requests.received() || isReadable(requests.descriptor())) {
        std::_Exit(1);
    }
    requests.passOn();  // nothing was received
    static_cast<void>(std::raise(number));
    if (!requests.received() || !isReadable(requests.descriptor())) {
        std::_Exit(2);
    }
    requests.passOn();
    std::_Exit(3);
}

TEST(EndSignalsDeathTest, AreReceivedAndPassedOn) {
    for (const int number : {SIGTERM, SIGHUP, SIGINT}) {
        EXPECT_EXIT(receive(number), testing::KilledBySignal(number), "") << number;
    }
}

TEST(EndSignalsDeathTest, TheSecondEndsTheProgramAtOnce) {
    const auto receive_twice = [] {
        const EndSignals requests;
        static_cast<void>(std::raise(SIGTERM));
        static_cast<void>(std::raise(SIGTERM));
        std::_Exit(kCleanedUp);
    };
    EXPECT_EXIT(receive_twice(), testing::KilledBySignal(SIGTERM), "");
}

TEST(EndSignalsDeathTest, OneThatWasIgnoredStaysIgnored) {
    const auto receive_ignored = [] {
        static_cast<void>(std::signal(SIGHUP, SIG_IGN));
        const EndSignals requests;
        static_cast<void>(std::raise(SIGHUP));
        std::_Exit(requests.received() ? 1 : kCleanedUp);
    };
    EXPECT_EXIT(receive_ignored(), testing::ExitedWithCode(kCleanedUp), "");
}

}  // namespace
}  // namespace mero::app
