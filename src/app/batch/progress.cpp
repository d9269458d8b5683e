// SPDX-License-Identifier: MIT
/// Rewrites the line a few times a second.
/// Nothing is written when standard error is redirected to a file.
#include "app/batch/progress.h"

#include <unistd.h>

#include <iostream>

#include "platform/numbers/number_text.h"

namespace mero::app {
namespace {

constexpr std::chrono::milliseconds kPause{200};

std::string whole(double number) {
    return numbers::fixed(number, 0);
}

}  // namespace

std::string progressLine(std::uint64_t done, std::uint64_t all, double seconds) {
    const auto rows = static_cast<double>(done);
    const auto wanted = static_cast<double>(all);
    std::string line = whole(rows) + " of " + whole(wanted) + " rows";
    if (all > 0) {
        line += " (" + whole(100.0 * rows / wanted) + " %)";
    }
    if (seconds > 0.0 && done > 0) {
        const double rate = rows / seconds;
        line += ", " + whole(rate) + " rows/s, " + whole((wanted - rows) / rate) + " s left";
    }
    return line;
}

Progress::Progress(std::uint64_t all)
    : all_(all), on_terminal_(::isatty(STDERR_FILENO) == 1), begin_(Clock::now()), last_(begin_) {}

void Progress::tell(std::uint64_t done) {
    const auto now = Clock::now();
    if (!on_terminal_ || now - last_ < kPause) {
        return;
    }
    last_ = now;
    const double seconds = std::chrono::duration<double>(now - begin_).count();
    std::cerr << '\r' << progressLine(done, all_, seconds) << "\033[K" << std::flush;
}

void Progress::finish() {
    if (on_terminal_ && last_ != begin_) {
        std::cerr << "\r\033[K" << std::flush;
    }
}

}  // namespace mero::app
