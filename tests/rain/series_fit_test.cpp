// SPDX-License-Identifier: MIT
/// From years of measured rain to the rains of a return period.
#include "rain/series_fit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace mero::rain {
namespace {

constexpr std::size_t kIntervalsOfDay = 144;

/// Years with one burst of ten minutes each, of 10, 11, 12 ... mm, and two smaller ones.
MeasuredSeries burstYears(int years) {
    const Minute begin = beginOfYear(2000);
    MeasuredSeries series{begin, 10, {}};
    series.depths_mm.assign(static_cast<std::size_t>((beginOfYear(2000 + years) - begin) / 10), 0.0F);
    for (int year = 0; year < years; ++year) {
        const auto at =
            static_cast<std::size_t>((beginOfYear(2000 + year) - begin) / 10) + 150 * kIntervalsOfDay;
        series.depths_mm[at] = 10.0F + static_cast<float>(year);
        series.depths_mm[at + 20 * kIntervalsOfDay] = 4.0F;
        series.depths_mm[at + 40 * kIntervalsOfDay] = 5.0F;
    }
    return series;
}

TEST(SeriesFit, FitsTheMaximaOfTheYears) {
    const SeriesFit fit(burstYears(12));
    EXPECT_EQ(fit.yearsUsed(), 12U);
    const DurationFit& ten_minutes = fit.durations().front();
    EXPECT_EQ(ten_minutes.extremes.duration_min, 10);
    // 10 to 21 mm: mean 15.5; half the mean difference of n whole numbers in a row is (n + 1)/6.
    const double scale = (13.0 / 6.0) / 0.69314718;
    EXPECT_NEAR(ten_minutes.annual.scale, scale, 1e-6);
    EXPECT_NEAR(ten_minutes.annual.location, 15.5 - 0.57721566 * scale, 1e-6);
}

TEST(SeriesFit, DepthsAreCorrectedForTheInterval) {
    const SeriesFit fit(burstYears(12));
    const auto depths = fit.depths(10);
    const DurationFit& first = fit.durations().front();
    EXPECT_DOUBLE_EQ(depths.front().depth_mm, first.annual.quantile(10) * 1.14);
    EXPECT_LT(depths.front().bounds_mm.lower, depths.front().depth_mm);
    EXPECT_GT(depths.front().bounds_mm.upper, depths.front().depth_mm);
    EXPECT_DOUBLE_EQ(fit.curve(10).at(10).value(), intensityOfDepth(depths.front().depth_mm, 10));
}

TEST(SeriesFit, RainsThatComeEachYearAreOfThePartialSeries) {
    const SeriesFit fit(burstYears(12));
    const DurationFit& first = fit.durations().front();
    EXPECT_EQ(first.extremes.peaks_mm.size(), 32U);  // 12 times Euler's number
    EXPECT_DOUBLE_EQ(fit.depths(1).front().depth_mm, first.partial.quantile(1) * 1.14);
}

TEST(SeriesFit, SaysWhereItCannotBeTrusted) {
    const auto has = [](const std::vector<std::string>& remarks, const char* text) {
        return std::ranges::find(remarks, text) != remarks.end();
    };
    const auto remarks = SeriesFit(burstYears(5)).remarks(20);
    EXPECT_TRUE(has(remarks, "Řada má jen 5 úplných let; spolehlivý odhad chce nejméně 10."));
    EXPECT_TRUE(has(remarks, "Doba opakování přesahuje trojnásobek délky řady."));
    EXPECT_TRUE(has(remarks, "Řada po 10 minutách neříká nic o deštích kratších než její krok."));
}

TEST(SeriesFit, RefusesTooFewYearsAndDroughts) {
    EXPECT_THROW(SeriesFit(burstYears(2)), std::invalid_argument);
    MeasuredSeries dry = burstYears(5);
    std::ranges::fill(dry.depths_mm, 0.0F);
    EXPECT_THROW(static_cast<void>(SeriesFit(dry)), std::invalid_argument);
    EXPECT_THROW(static_cast<void>(SeriesFit(burstYears(5)).depths(0)), std::invalid_argument);
}

}  // namespace
}  // namespace mero::rain
