// SPDX-License-Identifier: MIT
/// Workers claim blocks in order and put their rows into a ring buffer; the caller's thread empties it in
/// order. A worker waits while the ring is full, which limits how far a fast thread gets ahead.
#include "sweep/run_sweep.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace mero::sweep {
namespace {

constexpr std::uint64_t kBlocksPerThread = 4;
/// How often the stop flag is polled while no block is ready.
constexpr std::chrono::milliseconds kPatience{50};

struct Slot {
    std::string rows;
    bool ready = false;
};

class Ring {
  public:
    explicit Ring(const SweepPlan& plan)
        : plan_(&plan),
          blocks_((plan.rows + plan.rows_per_block - 1) / plan.rows_per_block),
          slots_(std::max(plan.threads, 1U) * kBlocksPerThread) {}

    /// The loop of one worker thread.
    void work() {
        std::string rows;
        std::uint64_t block = 0;
        while (claim(block)) {
            rows.clear();
            try {
                const std::uint64_t first = block * plan_->rows_per_block;
                plan_->append_rows(first, rowsOf(block), rows);
            } catch (...) {
                fail(std::current_exception());
                return;
            }
            finish(block, rows);
        }
    }

    SweepOutcome writeAll() {
        SweepOutcome outcome;
        std::string rows;
        while (take(rows, outcome)) {
            if (!plan_->write(rows)) {
                outcome.end = SweepEnd::WriteFailed;
                close();
                return outcome;
            }
            outcome.rows_written += rowsOf(written_ - 1);
            if (plan_->progress) {
                plan_->progress(outcome.rows_written);
            }
        }
        return outcome;
    }

    /// Makes the workers claim no further blocks.
    void close() {
        const std::lock_guard lock(mutex_);
        closed_ = true;
        changed_.notify_all();
    }

    void rethrow() const {
        if (failure_) {
            std::rethrow_exception(failure_);
        }
    }

  private:
    [[nodiscard]] std::uint64_t rowsOf(std::uint64_t block) const {
        return std::min(plan_->rows_per_block, plan_->rows - block * plan_->rows_per_block);
    }

    bool claim(std::uint64_t& block) {
        std::unique_lock lock(mutex_);
        changed_.wait(lock,
                      [&] { return closed_ || claimed_ == blocks_ || claimed_ < written_ + slots_.size(); });
        if (closed_ || claimed_ == blocks_) {
            return false;
        }
        block = claimed_++;
        return true;
    }

    void finish(std::uint64_t block, std::string& rows) {
        const std::lock_guard lock(mutex_);
        Slot& slot = slots_[block % slots_.size()];
        slot.rows.swap(rows);
        slot.ready = true;
        changed_.notify_all();
    }

    void fail(std::exception_ptr failure) {
        const std::lock_guard lock(mutex_);
        failure_ = std::move(failure);
        closed_ = true;
        changed_.notify_all();
    }

    /// Waits for the next block in order; false after the last one.
    bool take(std::string& rows, SweepOutcome& outcome) {
        std::unique_lock lock(mutex_);
        while (true) {
            if (plan_->stop != nullptr && plan_->stop->load(std::memory_order_relaxed) && !closed_) {
                // The claimed blocks are still finished and written; they take milliseconds.
                closed_ = true;
                outcome.end = claimed_ < blocks_ ? SweepEnd::Stopped : outcome.end;
                changed_.notify_all();
            }
            if (failure_ || written_ == (closed_ ? claimed_ : blocks_)) {
                return false;
            }
            Slot& slot = slots_[written_ % slots_.size()];
            if (slot.ready) {
                slot.ready = false;
                rows.swap(slot.rows);
                ++written_;
                changed_.notify_all();
                return true;
            }
            changed_.wait_for(lock, kPatience);
        }
    }

    const SweepPlan* plan_;
    std::uint64_t blocks_;
    std::vector<Slot> slots_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::uint64_t claimed_ = 0;
    std::uint64_t written_ = 0;
    bool closed_ = false;
    std::exception_ptr failure_;
};

}  // namespace

SweepOutcome runSweep(const SweepPlan& plan) {
    Ring ring(plan);
    SweepOutcome outcome;
    {
        std::vector<std::jthread> workers;
        try {
            for (unsigned n = 0; n < std::max(plan.threads, 1U); ++n) {
                workers.emplace_back([&ring] { ring.work(); });
            }
            outcome = ring.writeAll();
        } catch (...) {
            ring.close();
            throw;
        }
        ring.close();
    }
    ring.rethrow();
    return outcome;
}

}  // namespace mero::sweep
