// SPDX-License-Identifier: MIT
/// The sets of nine durations, and a curve's rows at them.
#include "rain/durations.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace mero::rain {
namespace {

TEST(Durations, EverySetRisesAndReachesWhatItsNameSays) {
    for (const DurationSet& set : durationSets()) {
        EXPECT_EQ(std::ranges::adjacent_find(set.durations_min, std::ranges::greater_equal()),
                  set.durations_min.end())
            << set.name;
    }
    EXPECT_EQ(findDurationSet("classic")->durations_min.back(), 120);
    EXPECT_EQ(findDurationSet("6h")->durations_min.back(), 6 * 60);
    EXPECT_EQ(findDurationSet("24h")->durations_min.front(), 15);
    EXPECT_EQ(findDurationSet("24h")->durations_min.back(), 24 * 60);
    EXPECT_EQ(findDurationSet("72h")->durations_min.back(), 72 * 60);
    EXPECT_EQ(findDurationSet("week"), nullptr);
}

TEST(Durations, RowsSayWhatIsGivenWhatLiesBetweenAndWhatIsMissing) {
    const RainCurve curve({{10, 200}, {40, 50}});
    const auto rows = rowsOf(curve, findDurationSet("classic")->durations_min);
    EXPECT_EQ(rows[0].origin, RowOrigin::Missing);  // 5 min
    EXPECT_EQ(rows[0].point.intensity_l_s_ha, 0.0);
    EXPECT_EQ(rows[1].origin, RowOrigin::Given);         // 10 min
    EXPECT_EQ(rows[3].origin, RowOrigin::Interpolated);  // 20 min
    EXPECT_NEAR(rows[3].point.intensity_l_s_ha, 100.0, 1e-12);
    EXPECT_EQ(rows[8].origin, RowOrigin::Missing);  // 120 min
}

TEST(Durations, TheSetIsOneThatTheCurveCovers) {
    EXPECT_EQ(coveredSet(RainCurve({{5, 300}, {120, 40}}))->name, "classic");
    EXPECT_EQ(coveredSet(RainCurve({{10, 300}, {1440, 10}}))->name, "24h");
    EXPECT_EQ(coveredSet(RainCurve({{10, 300}, {60, 10}})), nullptr);
}

}  // namespace
}  // namespace mero::rain
