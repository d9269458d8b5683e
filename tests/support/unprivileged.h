// SPDX-License-Identifier: MIT
/// An action in a process of its own that has no more rights than an ordinary user.
/// The superuser knows no denial: what a test wants denied is not, and the test would prove nothing.
#pragma once

#include <gtest/gtest.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

namespace mero::test {

/// Runs the action as the user nobody where the test runs as root, and gives its result.
/// @param action gives a small number, a truth value or a value of an enumeration: 0 to 98
template <typename Action>
[[nodiscard]] auto unprivileged(Action action) {
    using Result = decltype(action());
    constexpr uid_t kNobody = 65534;
    constexpr int kNotRun = 99;
    const pid_t child = ::fork();
    if (child == 0) {
        int result = kNotRun;
        if (::geteuid() != 0 || (::setgid(kNobody) == 0 && ::setuid(kNobody) == 0)) {
            try {
                result = static_cast<int>(action());
            } catch (...) {
                result = kNotRun;  // a process of the test must not go on with the tests
            }
        }
        ::_exit(result);
    }
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_NE(WEXITSTATUS(status), kNotRun);
    return static_cast<Result>(WEXITSTATUS(status));
}

}  // namespace mero::test
