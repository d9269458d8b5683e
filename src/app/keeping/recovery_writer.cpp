// SPDX-License-Identifier: MIT
/// One thread with a slot for one job.
#include "app/keeping/recovery_writer.h"

#include <utility>

namespace mero::app {

RecoveryWriter::~RecoveryWriter() {
    {
        const std::lock_guard lock(mutex_);
        ends_ = true;
    }
    changed_.notify_all();
    if (thread_.joinable()) {
        thread_.join();
    }
}

void RecoveryWriter::write(std::function<void()> job) {
    {
        const std::lock_guard lock(mutex_);
        waiting_ = std::move(job);
    }
    if (!thread_.joinable()) {
        thread_ = std::thread([this] { work(); });
    }
    changed_.notify_all();
}

void RecoveryWriter::wait() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return !waiting_ && !writing_; });
}

void RecoveryWriter::work() {
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [this] { return waiting_ || ends_; });
        if (!waiting_) {
            return;
        }
        const std::function<void()> job = std::exchange(waiting_, nullptr);
        writing_ = true;
        lock.unlock();
        job();
        lock.lock();
        writing_ = false;
        changed_.notify_all();
    }
}

}  // namespace mero::app
