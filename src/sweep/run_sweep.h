// SPDX-License-Identifier: MIT
/// Runs a sweep on several threads and hands its rows over in their order.
/// Only a few blocks of rows exist at a time, however many variants there are.
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
    /// Appends the rows of a block; called by several threads at a time, each with a text of its own.
    std::function<void(std::uint64_t first, std::uint64_t count, std::string& text)> append_rows;
    /// Takes the rows in their order; false ends the sweep. Called by the caller's thread only.
    std::function<bool(std::string_view rows)> write;
    /// Told now and then how many rows were written. Called by the caller's thread only; may be empty.
    std::function<void(std::uint64_t written)> progress;
    /// Set from anywhere (a signal handler) to end the sweep with the rows so far; may be null.
    const std::atomic<bool>* stop = nullptr;
};

enum class SweepEnd { Finished, Stopped, WriteFailed };

struct SweepOutcome {
    SweepEnd end = SweepEnd::Finished;
    std::uint64_t rows_written = 0;
};

/// @throws whatever `append_rows` throws
SweepOutcome runSweep(const SweepPlan& plan);

}  // namespace mero::sweep
