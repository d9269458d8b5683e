// SPDX-License-Identifier: MIT
/// Files as people have them. All that can be read hold the same rain; the others say why they are refused.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "rain/rain_table.h"

namespace mero::rain {
namespace {

namespace fs = std::filesystem;

constexpr std::array<CurvePoint, 6> kRain{{{5, 300}, {10, 210}, {15, 165}, {30, 105}, {60, 64}, {120, 38}}};

std::string contentOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::vector<fs::path> tablesIn(const char* folder) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(fs::path(MERO_RAIN_TABLES) / folder)) {
        if (entry.path().extension() == ".csv") {
            files.push_back(entry.path());
        }
    }
    std::ranges::sort(files);
    return files;
}

RainCurve firstCurve(const RainTable& table) {
    return curveOf(table, 0, table.duration_unit.value().unit, table.value_unit.value().unit);
}

class ReadTable : public testing::TestWithParam<fs::path> {};

TEST_P(ReadTable, HoldsTheRain) {
    const RainCurve curve = firstCurve(readRainTable(contentOf(GetParam())));
    for (const CurvePoint& point : kRain) {
        const auto intensity = curve.at(point.duration_min);
        ASSERT_TRUE(intensity.has_value()) << point.duration_min;
        EXPECT_NEAR(*intensity, point.intensity_l_s_ha, 1e-9 * point.intensity_l_s_ha) << point.duration_min;
    }
}

class RefusedTable : public testing::TestWithParam<fs::path> {};

TEST_P(RefusedTable, SaysWhy) {
    std::string reason = contentOf(fs::path(GetParam()).replace_extension(".reason"));
    reason.pop_back();
    try {
        static_cast<void>(firstCurve(readRainTable(contentOf(GetParam()))));
        FAIL() << "was read";
    } catch (const std::invalid_argument& error) {
        EXPECT_EQ(error.what(), reason);
    }
}

std::string testName(const testing::TestParamInfo<fs::path>& info) {
    std::string name = info.param.stem().string();
    std::ranges::replace(name, '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Files, ReadTable, testing::ValuesIn(tablesIn("read")), testName);
INSTANTIATE_TEST_SUITE_P(Files, RefusedTable, testing::ValuesIn(tablesIn("refused")), testName);

}  // namespace
}  // namespace mero::rain
