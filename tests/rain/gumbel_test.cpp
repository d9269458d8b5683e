// SPDX-License-Identifier: MIT
/// Fits by L-moments, and bounds that hold the truth.
#include "rain/gumbel.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>
#include <stdexcept>
#include <vector>

namespace mero::rain {
namespace {

TEST(LMoments, AreTheMeanAndHalfTheMeanDifference) {
    // Differences of 1, 2, 4: 1, 2 and 3, on average 2.
    constexpr std::array kValues{4.0, 1.0, 2.0};
    const LMoments moments = lMoments(kValues);
    EXPECT_DOUBLE_EQ(moments.mean, 7.0 / 3.0);
    EXPECT_DOUBLE_EQ(moments.scale, 1.0);
    EXPECT_THROW(static_cast<void>(lMoments(std::array{1.0})), std::invalid_argument);
}

TEST(Gumbel, HasTheLMomentsOfTheSample) {
    constexpr std::array kValues{4.0, 1.0, 2.0};
    const Gumbel fit = fitGumbel(kValues);
    EXPECT_NEAR(fit.scale, 1.0 / 0.69314718, 1e-8);
    EXPECT_NEAR(fit.location, 7.0 / 3.0 - 0.57721566 * fit.scale, 1e-8);
}

TEST(Gumbel, QuantilesOfTheStandardPopulation) {
    // -ln(-ln(1 - 1/T)), worked out apart.
    constexpr Gumbel kStandard{0.0, 1.0};
    EXPECT_NEAR(kStandard.quantile(2), 0.366512921, 1e-9);
    EXPECT_NEAR(kStandard.quantile(10), 2.250367327, 1e-9);
    EXPECT_NEAR(kStandard.quantile(100), 4.600149227, 1e-9);
    EXPECT_NEAR((Gumbel{20.0, 5.0}.quantile(100)), 20.0 + 5.0 * 4.600149227, 1e-8);
}

TEST(Exponential, HasTheLMomentsOfThePeaks) {
    // Mean 7/3, second L-moment 1: scale 2, threshold 1/3; three peaks in two years.
    constexpr std::array kPeaks{4.0, 2.0, 1.0};
    const Exponential fit = fitExponential(kPeaks, 2.0);
    EXPECT_DOUBLE_EQ(fit.scale, 2.0);
    EXPECT_NEAR(fit.threshold, 1.0 / 3.0, 1e-12);
    EXPECT_NEAR(fit.quantile(10), 1.0 / 3.0 + 2.0 * std::log(15.0), 1e-12);
}

std::vector<double> drawn(const Gumbel& population, std::size_t years, std::mt19937& random) {
    std::vector<double> values(years);
    for (double& value : values) {
        const double share = (static_cast<double>(random()) + 0.5) / 4294967296.0;
        value = population.location - population.scale * std::log(-std::log(share));
    }
    return values;
}

TEST(Confidence, HoldsTheTruthIn95Of100Records) {
    constexpr Gumbel kPopulation{18.0, 6.0};
    constexpr std::size_t kYears = 30;
    constexpr int kRecords = 2000;
    const BoundFactors factors = boundFactors95(kYears, 100);
    std::mt19937 random(7);
    int held = 0;
    for (int record = 0; record < kRecords; ++record) {
        const Bounds bounds = boundsOf(fitGumbel(drawn(kPopulation, kYears, random)), 100, factors);
        const double truth = kPopulation.quantile(100);
        held += bounds.lower <= truth && truth <= bounds.upper ? 1 : 0;
    }
    // Chance moves the share of 2,000 records by half a per cent.
    EXPECT_NEAR(held / static_cast<double>(kRecords), 0.95, 0.0125);
}

TEST(Confidence, IsTheSameEachTime) {
    const BoundFactors first = boundFactors95(30, 10);
    const BoundFactors second = boundFactors95(30, 10);
    EXPECT_EQ(first.below, second.below);
    EXPECT_EQ(first.above, second.above);
}

TEST(Confidence, ManyYearsAreSurer) {
    const BoundFactors few = boundFactors95(10, 10);
    const BoundFactors many = boundFactors95(100, 10);
    EXPECT_LT(many.below, few.below);
    EXPECT_LT(many.above, few.above);
    EXPECT_GT(many.below, 0.0);
    EXPECT_GT(many.above, 0.0);
}

}  // namespace
}  // namespace mero::rain
