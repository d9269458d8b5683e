// SPDX-License-Identifier: MIT
// Date and time: parsing the frozen moment, and the texts of the clock label and the report.
#include "platform/clock.h"

#include <gtest/gtest.h>

namespace mero::platform {
namespace {

TEST(ParseDateTime, ReadsTheOnePattern) {
    EXPECT_EQ(parseDateTime("2026-11-20T14:05:09"), (DateTime{2026, 11, 20, 14, 5, 9}));
    EXPECT_EQ(parseDateTime("2024-02-29T00:00:00"), (DateTime{2024, 2, 29, 0, 0, 0}));
    EXPECT_EQ(parseDateTime("1999-12-31T23:59:59"), (DateTime{1999, 12, 31, 23, 59, 59}));
}

TEST(ParseDateTime, RefusesWhatIsNoMoment) {
    for (const char* text : {"",
                             "2026-11-20",
                             "2026-11-20 14:05:09",
                             "2026-11-20T14:05:9",
                             "2026-11-20T14:05:09 ",
                             " 2026-11-20T14:05:09",
                             "2026-13-01T00:00:00",
                             "2026-00-01T00:00:00",
                             "2026-04-31T00:00:00",
                             "2025-02-29T00:00:00",
                             "2026-11-20T24:00:00",
                             "2026-11-20T14:60:00",
                             "2026-11-20T14:05:60",
                             "2026-11-20T-4:05:09",
                             "-026-11-20T14:05:09",
                             "2026-11-20T1x:05:09",
                             "2026-11-20T+4:05:09",
                             "2026-11-20T 4:05:09",
                             "2026/11/20T14:05:09",
                             "2026-11-20T14:05:09Z"}) {
        EXPECT_EQ(parseDateTime(text), std::nullopt) << text;
    }
}

TEST(ClockTexts, TimeHasTwoDigitsEachDateHasNoLeadingZeros) {
    EXPECT_EQ(timeText({2026, 1, 2, 3, 4, 5}), "03:04:05");
    EXPECT_EQ(timeText({2026, 11, 20, 14, 5, 9}), "14:05:09");
    EXPECT_EQ(timeText({2026, 11, 20, 0, 0, 0}), "00:00:00");
    EXPECT_EQ(dateText({2026, 11, 20, 14, 5, 9}), "20.11.2026");
    EXPECT_EQ(dateText({2026, 1, 2, 0, 0, 0}), "2.1.2026");
}

TEST(Clocks, TheFrozenOneStandsStillTheSystemsIsOnTheCalendar) {
    const DateTime moment{2026, 11, 20, 14, 5, 9};
    const FrozenClock frozen(moment);
    EXPECT_EQ(frozen.now(), moment);
    EXPECT_EQ(frozen.now(), moment);
    const DateTime now = SystemClock().now();
    EXPECT_GE(now.year, 2024);
    EXPECT_GE(now.month, 1);
    EXPECT_LE(now.month, 12);
}

}  // namespace
}  // namespace mero::platform
