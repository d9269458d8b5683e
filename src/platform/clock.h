// SPDX-License-Identifier: MIT
/// Date and time as texts in the user's formats, from a clock that is injected.
/// Scripts and tests inject a frozen clock; otherwise it is the machine's local time.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace mero::platform {

/// A local date and time to the second.
struct DateTime {
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;

    friend bool operator==(const DateTime&, const DateTime&) = default;
};

/// Reads "2026-11-20T14:05:09"; nothing when the text is no such date and time.
[[nodiscard]] std::optional<DateTime> parseDateTime(std::string_view text);
/// "14:05:09"
[[nodiscard]] std::string timeText(const DateTime& moment);
/// "20.11.2026"
[[nodiscard]] std::string dateText(const DateTime& moment);

class Clock {
  public:
    Clock() = default;
    virtual ~Clock() = default;
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;
    Clock(Clock&&) = delete;
    Clock& operator=(Clock&&) = delete;
    [[nodiscard]] virtual DateTime now() const = 0;
};

/// The machine's clock, local time.
class SystemClock : public Clock {
  public:
    [[nodiscard]] DateTime now() const override;
};

/// A clock that stands still.
class FrozenClock : public Clock {
  public:
    explicit FrozenClock(const DateTime& moment) : moment_(moment) {}
    [[nodiscard]] DateTime now() const override { return moment_; }

  private:
    DateTime moment_;
};

}  // namespace mero::platform
