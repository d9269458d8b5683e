// SPDX-License-Identifier: MIT
/// Runs a sweep on several threads and writes its rows in order.
/// Only a few blocks of rows are in memory at a time, regardless of the number of variants.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <string_view>

namespace mero::sweep {

struct SweepPlan {
    std::uint64_t rows = 0;
    unsigned threads = 1;
    std::uint64_t rows_per_block = 2048;
    /// Appends the rows of a block. Several threads call it at the same time with different texts.
    std::function<void(std::uint64_t first, std::uint64_t count, std::string& text)> append_rows;
    /// Writes the next rows; false ends the sweep. Called in order, in the caller's thread.
    std::function<bool(std::string_view rows)> write;
    /// Receives the number of written rows from time to time, in the caller's thread. May be empty.
    std::function<void(std::uint64_t written)> progress;
    /// Set by any thread or a signal handler to end the sweep after the rows so far. May be null.
    const std::atomic<bool>* stop = nullptr;
};

enum class SweepEnd { Finished, Stopped, WriteFailed };

struct SweepOutcome {
    SweepEnd end = SweepEnd::Finished;
    std::uint64_t rows_written = 0;
};

/// @throws what `append_rows` throws
SweepOutcome runSweep(const SweepPlan& plan);

}  // namespace mero::sweep
