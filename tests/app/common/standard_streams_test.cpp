// SPDX-License-Identifier: MIT
// Closed standard streams: files opened later do not get their descriptors.
#include "app/common/standard_streams.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "support/unprivileged.h"

namespace mero::app {
namespace {

/// Result of an action in a separate process, whose streams may be closed.
template <typename Action>
int inAProcess(Action action) {
    return test::unprivileged(action);
}

TEST(StandardStreams, TheNextFileDoesNotGetTheirPlace) {
    EXPECT_EQ(inAProcess([] {
                  for (int descriptor = 0; descriptor < 3; ++descriptor) {
                      ::close(descriptor);
                  }
                  holdStandardStreams();
                  return ::open("/dev/null", O_WRONLY);
              }) > STDERR_FILENO,
              true);
}

TEST(StandardStreams, AClosedInputIsAtItsEndAndAClosedOutputFails) {
    enum { kInputEnds = 1, kOutputFails = 2 };
    EXPECT_EQ(inAProcess([] {
                  ::close(STDIN_FILENO);
                  ::close(STDOUT_FILENO);
                  holdStandardStreams();
                  char c = 'x';
                  return (::read(STDIN_FILENO, &c, 1) == 0 ? kInputEnds : 0) |
                         (::write(STDOUT_FILENO, &c, 1) < 0 ? kOutputFails : 0);
              }),
              kInputEnds | kOutputFails);
}

TEST(StandardStreams, OpenOnesStay) {
    EXPECT_EQ(inAProcess([] {
                  int ends[2] = {-1, -1};
                  if (::pipe(ends) != 0 || ::dup2(ends[0], STDIN_FILENO) < 0) {
                      return 0;
                  }
                  holdStandardStreams();
                  char c = 'x';
                  return ::write(ends[1], &c, 1) == 1 && ::read(STDIN_FILENO, &c, 1) == 1 ? 1 : 0;
              }),
              1);
}

}  // namespace
}  // namespace mero::app
