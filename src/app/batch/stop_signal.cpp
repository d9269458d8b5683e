// SPDX-License-Identifier: MIT
/// The signal handler sets a lock-free atomic flag.
/// A second signal ends the program at once.
#include "app/batch/stop_signal.h"

#include <csignal>

namespace mero::app {
namespace {

std::atomic<bool>& flag() {
    static constinit std::atomic<bool> stop{false};
    static_assert(std::atomic<bool>::is_always_lock_free);
    return stop;
}

}  // namespace

const std::atomic<bool>& stopOnSignals() {
    struct sigaction action {};
    action.sa_handler = [](int) { flag().store(true, std::memory_order_relaxed); };
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    sigemptyset(&action.sa_mask);
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction before {};
        sigaction(number, nullptr, &before);
        if (before.sa_handler != SIG_IGN) {  // as under nohup
            sigaction(number, &action, nullptr);
        }
    }
    return flag();
}

}  // namespace mero::app
