// SPDX-License-Identifier: MIT
/// Files of rains: tables and measured series. Reading ends with values that can be designed with, or with an
/// error.
#include <cmath>
#include <cstdint>
#include <stdexcept>
#include <string_view>

#include "rain/durations.h"
#include "rain/rain_table.h"
#include "rain/series_fit.h"
#include "support/require.h"

namespace {

using mero::fuzz::require;
namespace rain = mero::rain;

void requireRain(const rain::RainCurve& curve) {
    for (const rain::CurvePoint& point : curve.points()) {
        require(std::isfinite(point.duration_min) && point.duration_min > 0.0, "durations are positive");
        require(std::isfinite(point.intensity_l_s_ha) && point.intensity_l_s_ha > 0.0,
                "intensities are positive");
    }
    for (const rain::DurationSet& set : rain::durationSets()) {
        for (const rain::CurveRow& row : rain::rowsOf(curve, set.durations_min)) {
            require(std::isfinite(row.point.intensity_l_s_ha), "rows are finite");
        }
    }
    static_cast<void>(curve.remarks());
    static_cast<void>(rain::implausibility(curve));
}

void readTable(std::string_view bytes) {
    try {
        const rain::RainTable table = rain::readRainTable(bytes);
        for (std::size_t column = 0; column < table.columns.size(); ++column) {
            for (const auto unit : {rain::ValueUnit::Intensity, rain::ValueUnit::Depth}) {
                try {
                    requireRain(rain::curveOf(table, column, rain::DurationUnit::Minutes, unit));
                } catch (const std::invalid_argument&) {
                    // A table that is no rain.
                }
            }
        }
    } catch (const std::invalid_argument&) {
        // No table.
    }
}

void readSeries(std::string_view bytes) {
    // A few rows can span centuries; more intervals than these only take time.
    constexpr std::size_t kMostIntervals = 1'000'000;
    try {
        rain::SeriesReader reader;
        reader.add(bytes, "file");
        const rain::MeasuredSeries series = reader.finish();
        static_cast<void>(reader.notes().sentences());
        if (series.depths_mm.size() <= kMostIntervals) {
            requireRain(rain::SeriesFit(series).curve(5));
        }
    } catch (const std::invalid_argument&) {
        // No series, or none that can be fitted.
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    readTable(bytes);
    readSeries(bytes);
    return 0;
}
