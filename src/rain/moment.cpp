// SPDX-License-Identifier: MIT
/// Reads dates and times digit by digit: a long series has a million of them.
#include "rain/moment.h"

#include <chrono>

namespace mero::rain {
namespace {

using std::chrono::day;
using std::chrono::days;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr int kMinutesPerDay = 1440;
constexpr int kMinutesPerHour = 60;
constexpr int kFirstYear = 1700;
constexpr int kLastYear = 2500;

/// Reads a text from its beginning.
class Scanner {
  public:
    explicit Scanner(std::string_view text) : rest_(text) {}

    [[nodiscard]] bool atEnd() const { return rest_.empty(); }
    bool take(char c) {
        if (rest_.empty() || rest_.front() != c) {
            return false;
        }
        rest_.remove_prefix(1);
        return true;
    }
    void skipBlanks() {
        while (take(' ')) {
        }
    }
    /// A number of `fewest` to `most` digits.
    std::optional<int> number(std::size_t fewest, std::size_t most) {
        std::size_t digits = 0;
        int value = 0;
        while (digits < most && digits < rest_.size() && rest_[digits] >= '0' && rest_[digits] <= '9') {
            constexpr int kBase = 10;
            value = value * kBase + (rest_[digits] - '0');
            ++digits;
        }
        if (digits < fewest) {
            return std::nullopt;
        }
        rest_.remove_prefix(digits);
        return value;
    }

  private:
    std::string_view rest_;
};

std::optional<Minute> midnight(int of_year, int of_month, int of_day) {
    const year_month_day date{year(of_year), month(static_cast<unsigned>(of_month)),
                              day(static_cast<unsigned>(of_day))};
    if (of_year < kFirstYear || of_year > kLastYear || !date.ok()) {
        return std::nullopt;
    }
    return static_cast<Minute>(sys_days(date).time_since_epoch().count() * kMinutesPerDay);
}

/// The date at the beginning, in one of its forms.
std::optional<Minute> readDate(Scanner& text) {
    const auto first = text.number(1, 4);
    if (!first) {
        return std::nullopt;
    }
    constexpr int kSmallestYear = 1000;
    const bool year_first = *first >= kSmallestYear;
    for (const char separator : {'-', '.', '/'}) {
        if (!text.take(separator)) {
            continue;
        }
        if (!year_first && separator != '.') {
            return std::nullopt;
        }
        text.skipBlanks();
        const auto second = text.number(1, 2);
        if (!second || !text.take(separator)) {
            return std::nullopt;
        }
        text.skipBlanks();
        const auto third = year_first ? text.number(1, 2) : text.number(4, 4);
        if (!third) {
            return std::nullopt;
        }
        return year_first ? midnight(*first, *second, *third) : midnight(*third, *second, *first);
    }
    if (!year_first) {
        return std::nullopt;
    }
    const auto second = text.number(2, 2);
    const auto third = text.number(2, 2);
    return second && third ? midnight(*first, *second, *third) : std::nullopt;
}

/// Minutes of the day. Without colons: "1210".
std::optional<int> readTime(Scanner& text, bool colons) {
    const auto hours = colons ? text.number(1, 2) : text.number(2, 2);
    if (!hours || (colons && !text.take(':'))) {
        return std::nullopt;
    }
    const auto minutes = text.number(2, 2);
    if (!minutes || *minutes >= kMinutesPerHour) {
        return std::nullopt;
    }
    if (colons && text.take(':')) {
        const auto seconds = text.number(2, 2);
        if (!seconds || *seconds != 0) {
            return std::nullopt;
        }
        if (text.take('.')) {
            constexpr std::size_t kMostDecimals = 9;
            const auto fraction = text.number(1, kMostDecimals);
            if (!fraction || *fraction != 0) {
                return std::nullopt;
            }
        }
    }
    const int time = *hours * kMinutesPerHour + *minutes;
    return time <= kMinutesPerDay ? std::optional(time) : std::nullopt;
}

/// Minutes that a zone is before UTC; none when there is no zone.
std::optional<int> readZone(Scanner& text) {
    if (text.take('Z')) {
        return 0;
    }
    const bool east = text.take('+');
    if (!east && !text.take('-')) {
        return std::nullopt;
    }
    const auto hours = text.number(2, 2);
    text.take(':');
    const auto minutes = text.number(2, 2);
    if (!hours) {
        return std::nullopt;
    }
    const int offset = *hours * kMinutesPerHour + minutes.value_or(0);
    return east ? offset : -offset;
}

/// The hour from two o'clock on the last Sunday of a month.
bool isInChangingHour(Minute local, month of) {
    const auto at_day =
        std::chrono::floor<days>(std::chrono::sys_time<std::chrono::minutes>(std::chrono::minutes(local)));
    const year_month_day date(at_day);
    if (date.month() != of) {
        return false;
    }
    const sys_days last(date.year() / of / std::chrono::Sunday[std::chrono::last]);
    constexpr int kHour = 2;
    const auto since_midnight =
        local - static_cast<Minute>(at_day.time_since_epoch().count()) * kMinutesPerDay;
    return at_day == last && since_midnight / kMinutesPerHour == kHour;
}

}  // namespace

std::optional<Moment> readMoment(std::string_view text) {
    Scanner rest(text);
    const auto date = readDate(rest);
    if (!date) {
        return std::nullopt;
    }
    const bool separated = rest.take('T') || rest.take(' ');
    rest.skipBlanks();
    const auto time = readTime(rest, separated);
    if (!time) {
        return std::nullopt;
    }
    Moment moment{*date + *time, false};
    rest.skipBlanks();
    if (!rest.atEnd()) {
        const auto zone = readZone(rest);
        if (!zone) {
            return std::nullopt;
        }
        moment = {moment.minute - *zone, true};
    }
    return rest.atEnd() ? std::optional(moment) : std::nullopt;
}

int yearOf(Minute minute) {
    const auto at_day =
        std::chrono::floor<days>(std::chrono::sys_time<std::chrono::minutes>(std::chrono::minutes(minute)));
    return static_cast<int>(year_month_day(at_day).year());
}

Minute beginOfYear(int of_year) {
    return midnight(of_year, 1, 1).value_or(0);
}

bool isRepeatedHour(Minute local) {
    return isInChangingHour(local, std::chrono::October);
}

bool isSkippedHour(Minute local) {
    return isInChangingHour(local, std::chrono::March);
}

}  // namespace mero::rain
