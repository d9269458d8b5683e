// SPDX-License-Identifier: MIT
/// Runs an action in a separate process with the permissions of an ordinary user.
/// The superuser is never denied access, so a test of denied access would prove nothing.
#pragma once

#include <gtest/gtest.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

namespace mero::test {

/// Runs the action, as the user nobody when the test runs as root. @return its result
/// @param action returns a small number, a bool or an enumerator: 0 to 98
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
                result = kNotRun;  // the child must not continue with the tests
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
