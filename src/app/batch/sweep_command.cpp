// SPDX-License-Identifier: MIT
/// Reads project and variations, reads the rain of all stations, then designs and writes.
/// Errors in the arguments are reported before a file is opened.
#include "app/batch/sweep_command.h"

#include <iostream>
#include <thread>
#include <utility>
#include <vector>

#include "app/batch/failures.h"
#include "app/batch/output_file.h"
#include "app/batch/progress.h"
#include "app/batch/stop_signal.h"
#include "app/batch/used_files.h"
#include "app/common/command_line.h"
#include "app/common/program_folder.h"
#include "project/read_project.h"
#include "sweep/csv.h"
#include "sweep/plot.h"
#include "sweep/run_sweep.h"

namespace mero::app {
namespace {

constexpr const char* kHelp =
    "usage: mero-batch sweep [OPTIONS] PROJECT.json --vary PATH=VALUES [--vary PATH=VALUES ...]\n"
    "\n"
    "Designs every combination of the varied values and writes one CSV row for each; the last varied value\n"
    "changes fastest.\n"
    "\n"
    "  PROJECT.json          the project file (docs/project-file.md)\n"
    "  --vary PATH=VALUES    PATH is that of a value in the project file, facility.trench_width_m or\n"
    "                        areas[0].area_m2. VALUES are\n"
    "                          0.5,0.2,0.1          a list\n"
    "                          0.6:2.0:0.1          a range FROM:TO:STEP, TO included\n"
    "                          log:1e-6:1e-3:20     20 values with a constant ratio, log:FROM:TO:COUNT\n"
    "                          all                  every station, periodicity, duration, or choice\n"
    "  --out FILE            the CSV file, written when it is complete; without --out and --plot the rows "
    "go\n"
    "                        to standard output\n"
    "  --plot FILE.svg       draws a result over a varied value, one line per value of a second one;\n"
    "                        further varied values stay at their first value\n"
    "  --plot-result NAME    the result to draw, by the name of its column\n"
    "  --plot-over PATH      the value on the horizontal axis\n"
    "  --plot-lines PATH     the value that differs from line to line\n"
    "  --threads N           by default as many as there are processors\n"
    "  --folder DIR          the program's folder, which holds mero.mdb\n"
    "\n"
    "Progress is shown on standard error when that is a terminal. Ctrl-C ends with the rows so far,\n"
    "which are kept in FILE.part.\n"
    "Exit status: 0 done; 1 a file cannot be written or the rain database cannot be read; 2 the project or "
    "the\n"
    "arguments cannot be used, nothing was written; 130 ended by Ctrl-C.\n";

struct Options {
    std::string folder;
    std::string project;
    std::vector<std::string> variations;
    std::string out;
    std::string plot;
    sweep::PlotWish wish;
    unsigned threads = std::max(1U, std::thread::hardware_concurrency());
    bool help = false;
};

Options parse(std::span<const std::string_view> arguments) {
    constexpr int kMostThreads = 256;
    Options options;
    CommandLine line(arguments);
    while (const auto argument = line.next()) {
        if (*argument == "--vary") {
            options.variations.push_back(line.value());
        } else if (*argument == "--out") {
            options.out = line.value();
        } else if (*argument == "--plot") {
            options.plot = line.value();
        } else if (*argument == "--plot-result") {
            options.wish.result = line.value();
        } else if (*argument == "--plot-over") {
            options.wish.over = line.value();
        } else if (*argument == "--plot-lines") {
            options.wish.lines = line.value();
        } else if (*argument == "--threads") {
            options.threads = static_cast<unsigned>(wholeNumber(line.value(), 1, kMostThreads, "--threads"));
        } else if (*argument == "--folder") {
            options.folder = existingFolder(line.value());
        } else if (*argument == "--help" || *argument == "-h") {
            options.help = true;
        } else {
            line.takeSingle(options.project, "project");
        }
    }
    return options;
}

sweep::Variants variantsOf(const Options& options) {
    if (options.project.empty()) {
        throw UsageError("which project? (see mero-batch sweep --help)");
    }
    if (options.variations.empty()) {
        throw UsageError("nothing to vary: give --vary PATH=VALUES (see mero-batch sweep --help)");
    }
    const project::Project project = project::readProjectFile(options.project);
    std::vector<sweep::Variation> variations;
    for (const std::string& text : options.variations) {
        variations.push_back(sweep::Variation::parse(text, project));
    }
    return {project, std::move(variations)};
}

void requireFilesOf(const Options& options) {
    const std::string part = options.out.empty() ? "" : OutputFile::partPath(options.out);
    requireSeparateFiles({{"the project file", options.project}, rainDatabaseIn(options.folder)},
                         {{"--plot", options.plot}, {"--out", options.out}, {"the unfinished --out", part}});
}

project::RainStore rainOf(const sweep::Variants& variants, const Options& options) {
    project::RainStore rain;
    data::MdbRainDatabase database;
    bool demonstration = false;
    const std::vector<int> stations = variants.stations();
    const std::string folder = stations.empty() ? std::string() : folderOrDefault(options.folder);
    for (const int station : stations) {
        rain.load(station, database, folder);
        demonstration |= rain.rain(station).demonstration;
    }
    if (demonstration) {
        std::cerr << "mero-batch: note: the rain database holds demonstration values, no measurements\n";
    }
    return rain;
}

int writeRows(const sweep::Variants& variants, const project::RainStore& rain, const Options& options) {
    const sweep::CsvTable table(variants, rain);
    OutputFile file(options.out);
    const std::atomic<bool>& stop = stopOnSignals();
    Progress progress(variants.count());
    sweep::SweepOutcome outcome{.end = sweep::SweepEnd::WriteFailed};
    if (file.write(table.header())) {
        outcome =
            sweep::runSweep({.rows = variants.count(),
                             .threads = options.threads,
                             .append_rows = [&](std::uint64_t first, std::uint64_t count,
                                                std::string& rows) { table.appendRows(first, count, rows); },
                             .write = [&](std::string_view rows) { return file.write(rows); },
                             .progress = [&](std::uint64_t written) { progress.tell(written); },
                             .stop = &stop});
    }
    progress.finish();
    const bool stopped = outcome.end == sweep::SweepEnd::Stopped;
    if (stopped) {
        std::cerr << "mero-batch: stopped after " << outcome.rows_written << " of " << variants.count()
                  << " rows\n";
    }
    if (outcome.end == sweep::SweepEnd::WriteFailed || !(stopped ? file.finishPart() : file.finish())) {
        std::cerr << "mero-batch: " << file.failure() << '\n';
        return kFailed;
    }
    if (!file.partName().empty()) {
        std::cerr << "mero-batch: these rows are in " << file.partName() << '\n';
    }
    return stopped ? kInterrupted : kDone;
}

int drawPlot(const sweep::Variants& variants, const project::RainStore& rain, const Options& options) {
    const std::string plot = sweep::plotSvg(sweep::plotOf(variants, rain, options.wish));
    OutputFile file(options.plot);
    if (!file.write(plot) || !file.finish()) {
        std::cerr << "mero-batch: " << file.failure() << '\n';
        return kFailed;
    }
    return kDone;
}

int sweepProject(const Options& options) {
    requireFilesOf(options);
    const sweep::Variants variants = variantsOf(options);
    if (!options.plot.empty()) {
        sweep::checkPlot(variants, options.wish);
    }
    const project::RainStore rain = rainOf(variants, options);
    if (!options.plot.empty()) {
        const int drawn = drawPlot(variants, rain, options);
        if (drawn != kDone || options.out.empty()) {
            return drawn;
        }
    }
    return writeRows(variants, rain, options);
}

}  // namespace

int sweepCommand(std::span<const std::string_view> arguments) {
    return reportingFailures([&] {
        const Options options = parse(arguments);
        if (options.help) {
            std::cout << kHelp;
            return kDone;
        }
        return sweepProject(options);
    });
}

}  // namespace mero::app
