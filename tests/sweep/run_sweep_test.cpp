// SPDX-License-Identifier: MIT
/// The sweep on several threads: every row once and in order, ends of all kinds, bounded memory.
#include "sweep/run_sweep.h"

#include <gtest/gtest.h>

#include <chrono>
#include <stdexcept>
#include <string>
#include <thread>

#include "platform/numbers/number_text.h"
#include "sweep/csv.h"
#include "sweep/samples.h"

namespace mero::sweep {
namespace {

void appendNumbers(std::uint64_t first, std::uint64_t count, std::string& text) {
    for (std::uint64_t n = first; n < first + count; ++n) {
        text += numbers::general(static_cast<int>(n)) + "\n";
    }
}

std::string allNumbers(std::uint64_t rows) {
    std::string text;
    appendNumbers(0, rows, text);
    return text;
}

class RunSweep : public ::testing::TestWithParam<unsigned> {
  protected:
    SweepPlan plan(std::uint64_t rows, std::uint64_t rows_per_block = 7) {
        return {.rows = rows,
                .threads = GetParam(),
                .rows_per_block = rows_per_block,
                .append_rows = appendNumbers,
                .write =
                    [this](std::string_view text) {
                        written_ += text;
                        return true;
                    },
                .progress = {},
                .stop = nullptr};
    }

    std::string written_;
};

TEST_P(RunSweep, EveryRowComesOnceAndInOrder) {
    for (const std::uint64_t rows : {0U, 1U, 6U, 7U, 8U, 1000U}) {
        written_.clear();
        const SweepOutcome outcome = runSweep(plan(rows));
        EXPECT_EQ(outcome.end, SweepEnd::Finished);
        EXPECT_EQ(outcome.rows_written, rows);
        EXPECT_EQ(written_, allNumbers(rows));
    }
}

TEST_P(RunSweep, AFailedWriteEndsIt) {
    SweepPlan failing = plan(100000);
    int blocks = 0;
    failing.write = [&](std::string_view) { return ++blocks < 3; };
    const SweepOutcome outcome = runSweep(failing);
    EXPECT_EQ(outcome.end, SweepEnd::WriteFailed);
    EXPECT_EQ(outcome.rows_written, 14U);
    EXPECT_EQ(blocks, 3);
}

TEST_P(RunSweep, AStopKeepsTheRowsSoFar) {
    std::atomic<bool> stop{false};
    SweepPlan stopped = plan(1000000);
    stopped.stop = &stop;
    stopped.progress = [&](std::uint64_t written) { stop = written >= 70; };
    const SweepOutcome outcome = runSweep(stopped);
    EXPECT_EQ(outcome.end, SweepEnd::Stopped);
    EXPECT_GE(outcome.rows_written, 70U);
    // What was computed already still comes: at most a ring of blocks.
    EXPECT_LE(outcome.rows_written, 70U + 7U * 4U * GetParam() + 7U * GetParam());
    EXPECT_EQ(written_, allNumbers(outcome.rows_written));
}

TEST_P(RunSweep, ThreadsRunAtMostARingAhead) {
    std::atomic<std::uint64_t> computed{0};
    std::uint64_t written = 0;
    std::uint64_t furthest = 0;
    SweepPlan slow = plan(20000);
    slow.append_rows = [&](std::uint64_t first, std::uint64_t count, std::string& text) {
        appendNumbers(first, count, text);
        computed += count;
    };
    slow.write = [&](std::string_view) {
        furthest = std::max(furthest, computed - written);
        written += 7;
        return true;
    };
    static_cast<void>(runSweep(slow));
    EXPECT_LE(furthest, 7U * (4U * GetParam() + 1U));
}

TEST_P(RunSweep, AnExceptionOfAWorkerReachesTheCaller) {
    SweepPlan failing = plan(100000);
    failing.append_rows = [](std::uint64_t first, std::uint64_t count, std::string& text) {
        if (first >= 700) {
            throw std::runtime_error("broken");
        }
        appendNumbers(first, count, text);
    };
    EXPECT_THROW(static_cast<void>(runSweep(failing)), std::runtime_error);
}

TEST_P(RunSweep, AnExceptionOfTheWriterReachesTheCaller) {
    SweepPlan failing = plan(100000);
    failing.write = [](std::string_view) -> bool { throw std::runtime_error("broken"); };
    EXPECT_THROW(static_cast<void>(runSweep(failing)), std::runtime_error);
}

TEST_P(RunSweep, DesignsAreTheSameOnAnyNumberOfThreads) {
    const Variants all = test::variants(
        {"facility.type=all", "facility.trench_width_m=-0.2:2:0.1", "facility.safety_factor=0:2:0.1"});
    const project::RainStore rain;
    const CsvTable table(all, rain);
    std::string expected;
    table.appendRows(0, all.count(), expected);
    SweepPlan designs = plan(all.count(), 64);
    designs.append_rows = [&](std::uint64_t first, std::uint64_t count, std::string& text) {
        table.appendRows(first, count, text);
    };
    static_cast<void>(runSweep(designs));
    EXPECT_EQ(written_, expected);
}

INSTANTIATE_TEST_SUITE_P(Threads, RunSweep, ::testing::Values(1U, 2U, 5U));

}  // namespace
}  // namespace mero::sweep
