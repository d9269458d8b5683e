// SPDX-License-Identifier: MIT
/// Moments as files write them.
#include "rain/moment.h"

#include <gtest/gtest.h>

namespace mero::rain {
namespace {

/// 19,844 days from 1970-01-01 to 2024-05-01, 12 h 10 min later.
constexpr Minute kFirstOfMay = 19844 * 1440 + 12 * 60 + 10;

TEST(ReadMoment, TakesTheFormsOfFiles) {
    for (const char* text :
         {"2024-05-01T12:10:00Z", "2024-05-01 12:10", "2024-05-01T12:10:00.000Z", "2024/5/1 12:10:00",
          "1.5.2024 12:10", "01.05.2024 12:10:00", "1. 5. 2024 12:10", "202405011210", "20240501 12:10",
          "2024-05-01T14:10+02:00", "2024-05-01T10:40-0130"}) {
        const auto moment = readMoment(text);
        ASSERT_TRUE(moment.has_value()) << text;
        EXPECT_EQ(moment->minute, kFirstOfMay) << text;
    }
}

TEST(ReadMoment, KnowsWhetherTheZoneIsGiven) {
    EXPECT_TRUE(readMoment("2024-05-01T12:10:00Z")->has_zone);
    EXPECT_TRUE(readMoment("2024-05-01T14:10+02:00")->has_zone);
    EXPECT_FALSE(readMoment("2024-05-01 12:10")->has_zone);
}

TEST(ReadMoment, TwentyFourOClockIsTheNextMidnight) {
    EXPECT_EQ(readMoment("2024-02-28 24:00")->minute, readMoment("2024-02-29 00:00")->minute);
    EXPECT_FALSE(readMoment("2024-02-28 24:01").has_value());
}

TEST(ReadMoment, RefusesWhatIsNone) {
    for (const char* text :
         {"", "2024-05-01", "12:10", "2024-13-01 00:00", "2023-02-29 00:00", "03/04/2024 12:00",
          "2024-05-01 12:60", "2024-05-01 12:10:30", "2024-05-01 12:10 h", "5;1", "99999999999999999999",
          "2024-05-01T12:10+", "0001-01-01 00:00"}) {
        EXPECT_FALSE(readMoment(text).has_value()) << text;
    }
}

TEST(Moments, YearsBeginAtMidnight) {
    EXPECT_EQ(beginOfYear(1970), 0);
    EXPECT_EQ(beginOfYear(2024), readMoment("2024-01-01 00:00")->minute);
    EXPECT_EQ(yearOf(beginOfYear(2024)), 2024);
    EXPECT_EQ(yearOf(beginOfYear(2024) - 1), 2023);
    EXPECT_EQ(yearOf(-1), 1969);
}

TEST(Moments, SummerTimeChangesOnLastSundays) {
    EXPECT_TRUE(isRepeatedHour(readMoment("2024-10-27 02:00")->minute));
    EXPECT_TRUE(isRepeatedHour(readMoment("2024-10-27 02:59")->minute));
    EXPECT_FALSE(isRepeatedHour(readMoment("2024-10-27 03:00")->minute));
    EXPECT_FALSE(isRepeatedHour(readMoment("2024-10-20 02:30")->minute));
    EXPECT_TRUE(isSkippedHour(readMoment("2024-03-31 02:30")->minute));
    EXPECT_FALSE(isSkippedHour(readMoment("2024-03-24 02:30")->minute));
}

}  // namespace
}  // namespace mero::rain
