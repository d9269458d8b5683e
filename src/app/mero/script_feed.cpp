// SPDX-License-Identifier: MIT
/// Reads and performs a script's lines.
/// Message boxes process other events while a line is performed; no second line is started then.
#include "app/mero/script_feed.h"

#include <unistd.h>

#include <array>
#include <cerrno>
#include <utility>

namespace mero::app {
namespace {

constexpr std::size_t kChunkBytes = 4096;

}  // namespace

using Step = automation::ScriptRunner::Step;

ScriptFeed::ScriptFeed(automation::ScriptRunner& runner, std::function<void(int)> finished)
    : runner_(&runner), finished_(std::move(finished)) {}

void ScriptFeed::feedAll(const std::string& script) {
    pending_ = script;
    performLines(0);
    if (!done_ && !pending_.empty()) {
        perform(std::exchange(pending_, {}));
    }
    finish();
}

void ScriptFeed::feedStandardInput() {
    notifier_ = std::make_unique<QSocketNotifier>(STDIN_FILENO, QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, [this] { readMore(); });
}

void ScriptFeed::readMore() {
    if (performing_ || done_) {
        return;
    }
    notifier_->setEnabled(false);
    std::array<char, kChunkBytes> chunk{};
    const ssize_t count = read(STDIN_FILENO, chunk.data(), chunk.size());
    if (count > 0) {
        const std::size_t searched = pending_.size();
        pending_.append(chunk.data(), static_cast<std::size_t>(count));
        performLines(searched);
        if (!done_ && pending_.size() > automation::kLongestLine) {
            perform(std::exchange(pending_, {}));  // which refuses it
        }
    } else if (count == 0 || errno != EINTR) {
        if (!pending_.empty()) {
            perform(std::exchange(pending_, {}));
        }
        finish();
    }
    notifier_->setEnabled(!done_);
}

void ScriptFeed::performLines(std::size_t search_from) {
    std::size_t begin = 0;
    for (std::size_t end = pending_.find('\n', search_from); end != std::string::npos && !done_;
         end = pending_.find('\n', begin)) {
        const std::string line = pending_.substr(begin, end - begin);
        begin = end + 1;
        perform(line);
    }
    pending_.erase(0, begin);
}

void ScriptFeed::perform(const std::string& line) {
    performing_ = true;
    last_ = runner_->execute(line, ++line_number_);
    performing_ = false;
    if (last_ != Step::Continue) {
        finish();
    }
}

void ScriptFeed::finish() {
    if (!std::exchange(done_, true)) {
        finished_(runner_->exitStatus(last_));
    }
}

}  // namespace mero::app
