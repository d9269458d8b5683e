// SPDX-License-Identifier: MIT
// A stored value may be anything that a Single holds: the pictures stay tidy or give a hint.
#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <random>

#include "picture/arrange.h"
#include "picture/balance_chart.h"
#include "picture/facility_sections.h"
#include "picture/picture_support.h"
#include "picture/rain_curve.h"

namespace mero::picture {
namespace {

constexpr std::array kOdd{0.0F,
                          -0.0F,
                          -1.0F,
                          1e38F,
                          -1e38F,
                          std::numeric_limits<float>::max(),
                          std::numeric_limits<float>::min(),
                          std::numeric_limits<float>::denorm_min(),
                          1e-10F,
                          0.01F,
                          0.5F,
                          1.0F,
                          7.25F,
                          150.0F,
                          9999.0F,
                          10000.0F,
                          123456.0F,
                          32767.0F};

constexpr int kTries = 9000;

/// Draws odd values, always the same ones.
class Odd {
  public:
    float operator()() { return kOdd[random_() % kOdd.size()]; }
    std::optional<float> result() {
        return random_() % 8 == 0 ? std::nullopt : std::optional<float>((*this)());
    }
    bool flag() { return random_() % 2 == 0; }
    calc::Rain rain() { return {(*this)(), (*this)()}; }
    std::array<calc::Rain, calc::kRainRows> rains() {
        std::array<calc::Rain, calc::kRainRows> rows;
        for (calc::Rain& row : rows) {
            row = rain();
        }
        return rows;
    }

  private:
    std::mt19937 random_{20261120};
};

template <typename Picture>
void expectSound(const Picture& picture) {
    EXPECT_FALSE(picture.summary.empty());
    for (const Sheet sheet : {Sheet{420, 260}, {180, 500}}) {
        const Drawing drawing = arrange(picture, sheet, plainSizes());
        expectTidy(drawing, sheet);
        if (!picture.drawable()) {
            EXPECT_TRUE(drawing.areas.empty());
            EXPECT_FALSE(drawing.texts.empty()) << "the hint";
        }
    }
}

TrenchValues oddTrench(Odd& odd) {
    return {.length_m = odd.result(),
            .width_m = odd(),
            .height_m = odd(),
            .pipes = {odd(), odd(), odd()},
            .groundwater_depth_m = odd()};
}

TEST(ExtremeValues, Sections) {
    Odd odd;
    for (int i = 0; i < kTries / 6 && !testing::Test::HasFailure(); ++i) {
        expectSound(surfaceSection({.area_m2 = odd.result(), .groundwater_depth_m = odd()}));
        expectSound(
            swaleSection({.area_m2 = odd.result(), .ponding_m = odd.result(), .groundwater_depth_m = odd()}));
        expectSound(trenchSection(oddTrench(odd)));
        expectSound(swaleTrenchSection({.trench = oddTrench(odd), .swale_depth_m = odd.result()}));
        expectSound(shaftSection({.count = i - 100,
                                  .rectangular = odd.flag(),
                                  .inner_width_m = odd(),
                                  .inner_length_m = odd(),
                                  .wall_m = odd(),
                                  .inlet_depth_m = odd(),
                                  .filter_layer_m = odd(),
                                  .sand_layer_m = odd(),
                                  .water_level_m = odd.result(),
                                  .depth_m = odd.result(),
                                  .required_embedding_m = odd.result(),
                                  .groundwater_depth_m = odd()}));
        expectSound(tankSection({.bottom_length_m = odd(),
                                 .bottom_width_m = odd(),
                                 .depth_m = odd(),
                                 .slope = odd(),
                                 .required_storage_m3 = odd.result(),
                                 .volume_m3 = odd.result(),
                                 .groundwater_depth_m = odd()}));
    }
}

TEST(ExtremeValues, Charts) {
    Odd odd;
    const std::string shown = "1.0";
    for (int i = 0; i < kTries / 6 && !testing::Test::HasFailure(); ++i) {
        const auto rains = odd.rains();
        const calc::swale::Balance swale{odd(), odd(), odd(), odd()};
        const calc::TrenchSection section{odd(), odd(), odd(), odd()};
        expectSound(surfaceChart({odd(), odd(), rains[3]}, rains, shown));
        expectSound(swaleChart(swale, rains, shown));
        expectSound(
            swaleTrenchChart({swale, {odd(), odd(), odd(), odd(), odd(), section}}, rains, shown, shown));
        expectSound(trenchChart({odd(), odd(), section}, rains, shown));
        expectSound(shaftChart({odd(), odd(), odd(), {static_cast<std::int16_t>(i % 7), odd(), odd()}}, rains,
                               shown));
        expectSound(tankChart({odd(), odd(), odd()}, rains, shown));
        expectSound(rainCurve(rains, rains[5]));
    }
}

}  // namespace
}  // namespace mero::picture
