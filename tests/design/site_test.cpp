// SPDX-License-Identifier: MIT
/// The confirmation of the rain dialog: nine intensities added up in a 16-bit Integer.
#include "design/site.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace mero::design {
namespace {

RainConfirmation confirmed(std::array<float, calc::kRainRows> intensities) {
    std::array<calc::Rain, calc::kRainRows> rains{};
    for (std::size_t k = 0; k < rains.size(); ++k) {
        rains[k].intensity_l_s_ha = intensities[k];
    }
    return confirmRain(rains);
}

TEST(ConfirmRain, OneIntensityIsEnough) {
    EXPECT_EQ(confirmed({0, 0, 0, 0, 0, 0, 0, 0, 1}), RainConfirmation::Accepted);
    EXPECT_EQ(confirmed({332, 228, 178, 147, 110, 80.5F, 64, 46.2F, 36.5F}), RainConfirmation::Accepted);
    EXPECT_EQ(confirmed({}), RainConfirmation::NoIntensities);
}

TEST(ConfirmRain, TheTotalIsAWholeNumberAfterEveryRow) {
    // 0.4 is rounded to 0 nine times, 0.5 to the even 0; 0.6 is rounded to 1.
    EXPECT_EQ(confirmed({0.4F, 0.4F, 0.4F, 0.4F, 0.4F, 0.4F, 0.4F, 0.4F, 0.4F}),
              RainConfirmation::NoIntensities);
    EXPECT_EQ(confirmed({0.5F, 0.5F, 0, 0, 0, 0, 0, 0, 0}), RainConfirmation::NoIntensities);
    EXPECT_EQ(confirmed({0.6F, 0, 0, 0, 0, 0, 0, 0, 0}), RainConfirmation::Accepted);
}

TEST(ConfirmRain, ValuesThatCancelEachOtherAreNone) {
    EXPECT_EQ(confirmed({100, -100, 0, 0, 0, 0, 0, 0, 0}), RainConfirmation::NoIntensities);
    EXPECT_EQ(confirmed({-1, 0, 0, 0, 0, 0, 0, 0, 0}), RainConfirmation::Accepted);
}

TEST(ConfirmRain, TheTotalEndsAtSixteenBits) {
    EXPECT_EQ(confirmed({32767, 0, 0, 0, 0, 0, 0, 0, 0}), RainConfirmation::Accepted);
    EXPECT_EQ(confirmed({32767.4F, 0, 0, 0, 0, 0, 0, 0, 0}), RainConfirmation::Accepted);
    EXPECT_EQ(confirmed({32768, 0, 0, 0, 0, 0, 0, 0, 0}), RainConfirmation::Overflow);
    EXPECT_EQ(confirmed({20000, 20000, -20000, 0, 0, 0, 0, 0, 0}), RainConfirmation::Overflow);
    EXPECT_EQ(confirmed({-32768, 0, 0, 0, 0, 0, 0, 0, 0}), RainConfirmation::Accepted);
    EXPECT_EQ(confirmed({-32769, 0, 0, 0, 0, 0, 0, 0, 0}), RainConfirmation::Overflow);
    EXPECT_EQ(confirmed({std::numeric_limits<float>::max(), 0, 0, 0, 0, 0, 0, 0, 0}),
              RainConfirmation::Overflow);
}

}  // namespace
}  // namespace mero::design
