// SPDX-License-Identifier: MIT
/// Formats and parses dates and times, and reads the machine's clock.
/// The texts are fixed patterns, independent of the locale.
#include "platform/clock.h"

#include <charconv>
#include <chrono>
#include <ctime>

#include "platform/numbers/number_text.h"

namespace mero::platform {
namespace {

std::string twoDigits(int value) {
    return (value < 10 ? "0" : "") + numbers::general(value);
}

/// Reads a whole fixed-width field of digits.
std::optional<int> field(std::string_view text, std::size_t at, std::size_t width) {
    const std::string_view digits = text.substr(at, width);
    int value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (result.ec != std::errc() || result.ptr != digits.data() + digits.size() || digits.front() == '-') {
        return std::nullopt;
    }
    return value;
}

bool isOnTheCalendar(const DateTime& moment) {
    const std::chrono::year_month_day date(std::chrono::year(moment.year),
                                           std::chrono::month(static_cast<unsigned>(moment.month)),
                                           std::chrono::day(static_cast<unsigned>(moment.day)));
    return date.ok() && moment.hour < 24 && moment.minute < 60 && moment.second < 60;
}

}  // namespace

std::optional<DateTime> parseDateTime(std::string_view text) {
    constexpr std::string_view kPattern = "0000-00-00T00:00:00";
    if (text.size() != kPattern.size()) {
        return std::nullopt;
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (kPattern[i] != '0' && text[i] != kPattern[i]) {
            return std::nullopt;
        }
    }
    const auto year = field(text, 0, 4);
    const auto month = field(text, 5, 2);
    const auto day = field(text, 8, 2);
    const auto hour = field(text, 11, 2);
    const auto minute = field(text, 14, 2);
    const auto second = field(text, 17, 2);
    if (!year || !month || !day || !hour || !minute || !second) {
        return std::nullopt;
    }
    const DateTime moment{*year, *month, *day, *hour, *minute, *second};
    return isOnTheCalendar(moment) ? std::optional(moment) : std::nullopt;
}

std::string timeText(const DateTime& moment) {
    return twoDigits(moment.hour) + ":" + twoDigits(moment.minute) + ":" + twoDigits(moment.second);
}

std::string dateText(const DateTime& moment) {
    return numbers::general(moment.day) + "." + numbers::general(moment.month) + "." +
           numbers::general(moment.year);
}

DateTime SystemClock::now() const {
    constexpr DateTime kNotSet{.year = 1970, .month = 1, .day = 1};
    constexpr int kLastYear = 1000000;
    // In seconds: a clock in nanoseconds ends in the year 2262.
    const std::time_t seconds = std::time(nullptr);
    std::tm local{};
    // A clock beyond the last year of the calendar counts as not set.
    if (localtime_r(&seconds, &local) == nullptr || local.tm_year > kLastYear) {
        return kNotSet;
    }
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

}  // namespace mero::platform
