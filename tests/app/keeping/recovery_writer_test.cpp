// SPDX-License-Identifier: MIT
/// Jobs run one by one, in another thread; the latest is never left out.
#include "app/keeping/recovery_writer.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace mero::app {
namespace {

TEST(RecoveryWriter, RunsTheLatestJob) {
    std::atomic<int> last = 0;
    RecoveryWriter writer;
    for (int job = 1; job <= 100; ++job) {
        writer.write([&last, job] { last = job; });
    }
    writer.wait();
    EXPECT_EQ(last, 100);
}

TEST(RecoveryWriter, FinishesBeforeItEnds) {
    std::atomic<bool> done = false;
    {
        RecoveryWriter writer;
        writer.write([&done] {
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
            done = true;
        });
    }
    EXPECT_TRUE(done);
}

TEST(RecoveryWriter, DoesNotKeepTheCallerWaiting) {
    std::atomic<bool> may_end = false;
    RecoveryWriter writer;
    writer.write([&may_end] { may_end.wait(false); });
    may_end = true;  // reached although the job runs
    may_end.notify_all();
    writer.wait();
}

TEST(RecoveryWriter, WaitsForNothingWithoutAJob) {
    RecoveryWriter writer;
    writer.wait();
}

}  // namespace
}  // namespace mero::app
