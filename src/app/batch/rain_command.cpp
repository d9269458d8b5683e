// SPDX-License-Identifier: MIT
/// Parses the arguments of the three sources and prints or stores their rows.
#include "app/batch/rain_command.h"

#include <cmath>
#include <functional>
#include <iostream>
#include <stdexcept>
#include <utility>

#include "app/batch/failures.h"
#include "app/batch/rain_rows.h"
#include "app/common/command_line.h"
#include "platform/files/bounded_read.h"
#include "platform/files/same_file.h"
#include "platform/files/whole_file.h"
#include "platform/numbers/number_text.h"
#include "platform/numbers/runtime_error.h"
#include "rain/daily_total.h"
#include "rain/rain_table.h"

namespace mero::app {
namespace {

constexpr const char* kHelp =
    "usage: mero-batch rain table FILE [OPTIONS]\n"
    "       mero-batch rain total --h24 MM --return-period YEARS [OPTIONS]\n"
    "       mero-batch rain series --return-period YEARS [OPTIONS] FILE...\n"
    "\n"
    "Prints the nine rows of the rain table: from a table in a file (comma, semicolon or tab; durations and\n"
    "intensities or depths), from the total of 24 hours, or from measured rain (moments and depths).\n"
    "\n"
    "  --column N            table: the column of values, from 1 (default 1)\n"
    "  --duration-unit UNIT  table: min or h, where the file does not say it\n"
    "  --unit UNIT           table: l/s/ha, mm/h, mm/min or mm, where the file does not say it\n"
    "  --h24 MM              total: depth of 24 hours of that return period\n"
    "  --return-period YEARS total: 2, 5, 10, 20, 50 or 100; series: any from 0.1 to 1000\n"
    "  --only-wet            series: the files list only intervals with rain; others are dry\n"
    "  --durations SET       classic, 6h, 24h or 72h (default: what the source knows)\n"
    "  --surcharge PERCENT   raises the intensities for the climate (default 0)\n"
    "  --json                prints one JSON object, with all digits\n"
    "  --into PROJECT.json   stores the rows in the project as its own values\n"
    "\n"
    "Exit status: 0 done, 1 a file cannot be written, 2 unusable file or arguments.\n";

struct Options {
    std::string source;
    std::vector<std::string> files;
    std::string duration_unit;
    std::string unit;
    int column = 1;
    std::optional<double> total_mm;
    std::optional<double> return_period_years;
    bool only_wet = false;
    std::string durations;
    double surcharge_percent = 0.0;
    bool json = false;
    std::string into;
    bool help = false;
};

double number(const std::string& text, const char* option) {
    try {
        return numbers::strictDouble(text);
    } catch (const RuntimeError&) {
        throw UsageError(std::string(option) + ": expected a number, not " + text);
    }
}

Options parse(std::span<const std::string_view> arguments) {
    constexpr int kMostColumns = 100;
    constexpr double kLargestSurcharge = 200.0;
    Options options;
    CommandLine line(arguments);
    while (const auto argument = line.next()) {
        if (*argument == "--help" || *argument == "-h") {
            options.help = true;
        } else if (*argument == "--column") {
            options.column = wholeNumber(line.value(), 1, kMostColumns, "--column");
        } else if (*argument == "--duration-unit") {
            options.duration_unit = line.value();
        } else if (*argument == "--unit") {
            options.unit = line.value();
        } else if (*argument == "--h24") {
            options.total_mm = number(line.value(), "--h24");
        } else if (*argument == "--return-period") {
            options.return_period_years = number(line.value(), "--return-period");
        } else if (*argument == "--only-wet") {
            options.only_wet = true;
        } else if (*argument == "--durations") {
            options.durations = line.value();
        } else if (*argument == "--surcharge") {
            options.surcharge_percent = number(line.value(), "--surcharge");
            if (options.surcharge_percent < 0.0 || options.surcharge_percent > kLargestSurcharge) {
                throw UsageError("--surcharge: expected 0 to 200 per cent");
            }
        } else if (*argument == "--json") {
            options.json = true;
        } else if (*argument == "--into") {
            options.into = line.value();
        } else if (options.source.empty()) {
            line.takeSingle(options.source, "source");
        } else {
            std::string file;
            line.takeSingle(file, "file");
            options.files.push_back(file);
        }
    }
    return options;
}

/// Twenty years of ten-minute values take some 60 MB.
constexpr std::size_t kLongestSeries = std::size_t{1024} * 1024 * 1024;

std::string contentOf(const std::string& file, std::size_t most_bytes = platform::kLongestTextFile) {
    platform::FileContent content = platform::readBounded(file, most_bytes);
    if (content.failure == platform::ReadFailure::TooLarge && most_bytes == kLongestSeries) {
        throw UsageError(file + ": cannot be read: it is larger than 1 GB");
    }
    if (content.failure != platform::ReadFailure::None) {
        throw UsageError(file + ": cannot be read" + platform::detailOf(content.failure));
    }
    return std::move(content.bytes);
}

rain::DurationUnit durationUnit(const Options& options, const rain::RainTable& table) {
    if (options.duration_unit == "min") {
        return rain::DurationUnit::Minutes;
    }
    if (options.duration_unit == "h") {
        return rain::DurationUnit::Hours;
    }
    if (!options.duration_unit.empty()) {
        throw UsageError("--duration-unit: expected min or h");
    }
    return table.duration_unit->unit;
}

rain::ValueUnit valueUnit(const Options& options, const rain::RainTable& table) {
    if (options.unit == "l/s/ha") {
        return rain::ValueUnit::Intensity;
    }
    if (options.unit == "mm/h") {
        return rain::ValueUnit::RatePerHour;
    }
    if (options.unit == "mm/min") {
        return rain::ValueUnit::RatePerMinute;
    }
    if (options.unit == "mm") {
        return rain::ValueUnit::Depth;
    }
    if (!options.unit.empty()) {
        throw UsageError("--unit: expected l/s/ha, mm/h, mm/min or mm");
    }
    if (!table.value_unit) {
        throw UsageError("the file does not say the unit of its values: give it with --unit");
    }
    return table.value_unit->unit;
}

std::string baseName(const std::string& file) {
    return file.substr(file.rfind('/') + 1);
}

RainRows fromTable(const Options& options) {
    if (options.files.size() != 1) {
        throw UsageError("rain table: expected one file");
    }
    const std::string& file = options.files.front();
    RainRows found;
    try {
        const rain::RainTable table = rain::readRainTable(contentOf(file));
        if (static_cast<std::size_t>(options.column) > table.columns.size()) {
            throw UsageError("--column: the table has " +
                             numbers::general(static_cast<int>(table.columns.size())) +
                             " column(s) of values");
        }
        const auto column = static_cast<std::size_t>(options.column - 1);
        const rain::RainCurve curve =
            rain::curveOf(table, column, durationUnit(options, table), valueUnit(options, table));
        found.source = "Tabulka " + baseName(file) + ", " + table.columns[column].label;
        found.remarks = table.remarks;
        if (table.duration_unit->guessed && options.duration_unit.empty()) {
            found.remarks.emplace_back("Jednotka dob trvání je odhadnuta z hodnot.");
        }
        if (options.unit.empty() && table.value_unit->guessed) {
            found.remarks.emplace_back("Hodnoty rostou s dobou trvání, vzaty jako úhrny v mm.");
        }
        for (const std::string& remark : curve.remarks()) {
            found.remarks.push_back(remark);
        }
        if (const std::string doubt = rain::implausibility(curve); !doubt.empty()) {
            found.remarks.push_back(doubt);
        }
        found.rows = chosenRows(curve, options.durations, options.surcharge_percent);
    } catch (const std::invalid_argument& error) {
        throw UsageError(file + ": " + error.what());
    }
    return found;
}

RainRows fromTotal(const Options& options) {
    if (!options.files.empty() || !options.total_mm || !options.return_period_years) {
        throw UsageError("rain total: expected --h24 MM and --return-period YEARS");
    }
    const double years = *options.return_period_years;
    if (years != std::floor(years) || std::abs(years) > 1000.0) {
        throw UsageError("--return-period: the reduction is known for 2, 5, 10, 20, 50 and 100 years");
    }
    RainRows found;
    try {
        found.rows =
            chosenRows(rain::curveOfDailyTotal(*options.total_mm, static_cast<int>(years)),
                       options.durations.empty() ? "classic" : options.durations, options.surcharge_percent);
    } catch (const std::invalid_argument& error) {
        throw UsageError(error.what());
    }
    found.source = "Redukce denního úhrnu H24 = " + numbers::general(*options.total_mm) +
                   " mm, N = " + numbers::general(years) + " let";
    return found;
}

RainRows fromSeries(const Options& options) {
    if (options.files.empty() || !options.return_period_years) {
        throw UsageError("rain series: expected --return-period YEARS and one or more files");
    }
    RainRows found;
    try {
        rain::SeriesReader reader;
        for (const std::string& file : options.files) {
            reader.add(contentOf(file, kLongestSeries), file);
        }
        const rain::MeasuredSeries series =
            reader.finish(options.only_wet ? rain::Unlisted::Dry : rain::Unlisted::Missing);
        const rain::SeriesFit fit(series);
        const double years = *options.return_period_years;
        found.fitted = fit.depths(years);
        for (const rain::DurationFit& duration : fit.durations()) {
            found.extremes.push_back(duration.extremes);
        }
        found.years_used = fit.yearsUsed();
        found.remarks = reader.notes().sentences();
        for (const std::string& remark : fit.remarks(years)) {
            found.remarks.push_back(remark);
        }
        found.rows = chosenRows(fit.curve(years), options.durations, options.surcharge_percent);
        found.source = "Měřená řada, " + numbers::general(static_cast<int>(fit.yearsUsed())) +
                       " let, doba opakování " + numbers::general(years) + " let";
    } catch (const std::invalid_argument& error) {
        throw UsageError(error.what());
    }
    return found;
}

RainRows rowsOf(const Options& options) {
    if (options.source == "table") {
        return fromTable(options);
    }
    if (options.source == "total") {
        return fromTotal(options);
    }
    if (options.source == "series") {
        return fromSeries(options);
    }
    throw UsageError(options.source.empty() ? "rain: expected table, total or series"
                                            : "rain: no such source: " + options.source);
}

int store(const Options& options, const RainRows& rain) {
    const std::string document = withRain(contentOf(options.into), options.into, rain);
    if (!platform::replaceWhole(options.into, document)) {
        std::cerr << "mero-batch: " << options.into << ": cannot be written\n";
        return kFailed;
    }
    return kDone;
}

}  // namespace

int rainCommand(std::span<const std::string_view> arguments) {
    return reportingFailures([&] {
        const Options options = parse(arguments);
        if (options.help) {
            std::cout << kHelp;
            return kDone;
        }
        for (const std::string& file : options.files) {
            if (!options.into.empty() && platform::isSameFile(file, options.into)) {
                throw UsageError("--into: " + options.into + " is the source");
            }
        }
        RainRows rain = rowsOf(options);
        rain.return_period_years = options.return_period_years;
        rain.surcharge_percent = options.surcharge_percent;
        for (const std::string& remark : rain.remarks) {
            std::cerr << "mero-batch: " << remark << '\n';
        }
        std::cout << (options.json ? rainJson(rain) : rainTableText(rain));
        return options.into.empty() ? kDone : store(options, rain);
    });
}

}  // namespace mero::app
