// SPDX-License-Identifier: MIT
/// The handler stores the signal and writes one byte to the pipe; everything else happens outside it.
#include "app/common/end_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>

namespace mero::app {
namespace {

constexpr std::array kSignals{SIGTERM, SIGHUP, SIGINT};

std::atomic<int>& receivedSignal() {
    static constinit std::atomic<int> number{0};
    static_assert(std::atomic<int>::is_always_lock_free);
    return number;
}

std::atomic<int>& writeEnd() {
    static constinit std::atomic<int> descriptor{-1};
    return descriptor;
}

void handle(int number) {
    const int error_before = errno;
    receivedSignal().store(number, std::memory_order_relaxed);
    static_cast<void>(::write(writeEnd().load(std::memory_order_relaxed), "", 1));
    errno = error_before;
}

}  // namespace

EndSignals::EndSignals() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return;  // no descriptor left: signals end the program as they do by default
    }
    read_end_ = ends[0];
    writeEnd().store(ends[1], std::memory_order_relaxed);
    for (const int number : kSignals) {
        struct sigaction before {};
        sigaction(number, nullptr, &before);
        if (before.sa_handler != SIG_IGN) {
            struct sigaction action {};
            action.sa_handler = handle;
            action.sa_flags = static_cast<int>(SA_RESETHAND);
            sigemptyset(&action.sa_mask);
            sigaction(number, &action, nullptr);
        }
    }
}

bool EndSignals::received() const {
    return receivedSignal().load(std::memory_order_relaxed) != 0;
}

void EndSignals::passOn() const {
    if (const int number = receivedSignal().load(std::memory_order_relaxed); number != 0) {
        struct sigaction ordinary {};
        ordinary.sa_handler = SIG_DFL;
        sigaction(number, &ordinary, nullptr);
        static_cast<void>(std::raise(number));
    }
}

}  // namespace mero::app
