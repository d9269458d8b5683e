// SPDX-License-Identifier: MIT
/// Writes in the background: flushing a file to the disk can take longer than a user waits for a key.
#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace mero::app {

/// Runs one job at a time, in order. A job that waits is replaced by the next one: only the latest copy
/// counts.
class RecoveryWriter {
  public:
    RecoveryWriter() = default;
    /// Waits for the job that was given last.
    ~RecoveryWriter();
    RecoveryWriter(const RecoveryWriter&) = delete;
    RecoveryWriter& operator=(const RecoveryWriter&) = delete;
    RecoveryWriter(RecoveryWriter&&) = delete;
    RecoveryWriter& operator=(RecoveryWriter&&) = delete;

    /// @param job touches nothing that the calling thread uses, and throws nothing
    void write(std::function<void()> job);
    /// Returns when nothing is left to write.
    void wait();

  private:
    void work();

    std::mutex mutex_;
    std::condition_variable changed_;
    std::function<void()> waiting_;
    bool writing_ = false;
    bool ends_ = false;
    std::thread thread_;  ///< started by the first job
};

}  // namespace mero::app
