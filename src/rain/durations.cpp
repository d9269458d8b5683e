// SPDX-License-Identifier: MIT
/// The durations of the rain table.
#include "rain/durations.h"

#include <algorithm>

namespace mero::rain {
namespace {

constexpr std::array<DurationSet, 4> kSets{{
    {"classic", "5 až 120 min", {5, 10, 15, 20, 30, 45, 60, 90, 120}},
    {"6h", "5 min až 6 h", {5, 10, 15, 20, 30, 60, 120, 240, 360}},
    {"24h", "15 min až 24 h", {15, 30, 60, 120, 240, 360, 540, 720, 1440}},
    {"72h", "5 min až 72 h", {5, 15, 30, 60, 120, 360, 720, 1440, 4320}},
}};

}  // namespace

std::span<const DurationSet> durationSets() {
    return kSets;
}

const DurationSet* findDurationSet(std::string_view name) {
    const auto found = std::ranges::find(kSets, name, &DurationSet::name);
    return found == kSets.end() ? nullptr : found;
}

std::array<CurveRow, kRows> rowsOf(const RainCurve& curve, const Durations& durations_min) {
    std::array<CurveRow, kRows> rows;
    for (std::size_t row = 0; row < kRows; ++row) {
        const double duration = durations_min[row];
        rows[row].point.duration_min = duration;
        if (const auto intensity = curve.at(duration)) {
            rows[row].point.intensity_l_s_ha = *intensity;
            rows[row].origin = curve.isGiven(duration) ? RowOrigin::Given : RowOrigin::Interpolated;
        }
    }
    return rows;
}

const DurationSet* coveredSet(const RainCurve& curve) {
    const auto covered = std::ranges::find_if(kSets, [&curve](const DurationSet& set) {
        return std::ranges::all_of(set.durations_min,
                                   [&curve](double duration) { return curve.at(duration).has_value(); });
    });
    return covered == kSets.end() ? nullptr : covered;
}

}  // namespace mero::rain
