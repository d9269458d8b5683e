// SPDX-License-Identifier: MIT
/// Measures years of ten-minute values, from the text of the files to the fitted curve.
#include <benchmark/benchmark.h>

#include <cmath>
#include <limits>
#include <random>
#include <string>

#include "rain/measured_series.h"
#include "rain/series_fit.h"

namespace mero::rain::bench {
namespace {

constexpr int kFirstYear = 2001;
constexpr int kInterval_min = 10;

std::string twoDigits(int value) {
    return (value < 10 ? "0" : "") + std::to_string(value);
}

/// A made-up series: one interval in twenty is wet, exponential depths.
std::string seriesText(int years) {
    std::string text = "STATION,ELEMENT,DT,VALUE,FLAG,QUALITY\n";
    std::mt19937 random(1);
    for (int year = kFirstYear; year < kFirstYear + years; ++year) {
        for (int month = 1; month <= 12; ++month) {
            for (int day = 1; day <= 28; ++day) {
                for (int minute = 0; minute < 24 * 60; minute += kInterval_min) {
                    const bool wet = random() % 20 == 0;
                    const int tenths = wet ? static_cast<int>(random() % 30) : 0;
                    text += "0-20000-0-11406,SRA10M," + std::to_string(year) + "-" + twoDigits(month) + "-" +
                            twoDigits(day) + "T" + twoDigits(minute / 60) + ":" + twoDigits(minute % 60) +
                            ":00Z," + std::to_string(tenths / 10) + "." + std::to_string(tenths % 10) +
                            ",,0\n";
                }
            }
        }
    }
    return text;
}

void ReadYears(benchmark::State& state) {
    const std::string text = seriesText(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        SeriesReader reader;
        reader.add(text, "series.csv");
        benchmark::DoNotOptimize(reader.finish(Unlisted::Dry));
    }
}
BENCHMARK(ReadYears)->Arg(3)->Arg(20)->Unit(benchmark::kMillisecond);

void FitYears(benchmark::State& state) {
    SeriesReader reader;
    reader.add(seriesText(static_cast<int>(state.range(0))), "series.csv");
    const MeasuredSeries series = reader.finish(Unlisted::Dry);
    for (auto _ : state) {
        benchmark::DoNotOptimize(SeriesFit(series).curve(5));
    }
}
BENCHMARK(FitYears)->Arg(3)->Arg(20)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace mero::rain::bench
