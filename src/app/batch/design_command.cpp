// SPDX-License-Identifier: MIT
/// Reads the project, designs, prints, and writes the report that the window would write.
/// All inputs are read and checked before anything is written.
#include "app/batch/design_command.h"

#include <iostream>
#include <optional>

#include "app/batch/design_output.h"
#include "app/batch/failures.h"
#include "app/batch/output_file.h"
#include "app/batch/used_files.h"
#include "app/common/command_line.h"
#include "app/common/program_folder.h"
#include "design/design.h"
#include "platform/clock.h"
#include "project/prepare_site.h"
#include "project/read_project.h"
#include "project/report_data.h"
#include "report/code_page.h"
#include "report/html_report.h"

namespace mero::app {
namespace {

constexpr const char* kHelp =
    "usage: mero-batch design [OPTIONS] PROJECT.json\n"
    "\n"
    "Designs one project and prints its results and verdicts, the same as the window's.\n"
    "\n"
    "  PROJECT.json    the project file (docs/project-file.md)\n"
    "  --json          prints one JSON object instead of a table\n"
    "  --report FILE   also writes the results report, the same file as the window's\n"
    "  --clock TIME    date and time of the report, as 2026-11-20T14:05:09\n"
    "  --folder DIR    the program's folder, which holds mero.mdb\n"
    "\n"
    "Exit status: 0 the results were printed, whatever the verdicts say; 1 the rain database cannot be "
    "read,\n"
    "or there is no report or it cannot be written; 2 the project or the arguments cannot be used.\n";

struct Options {
    std::string folder;
    std::string project;
    std::string report;
    std::optional<platform::DateTime> moment;
    bool json = false;
    bool help = false;
};

Options parse(std::span<const std::string_view> arguments) {
    Options options;
    CommandLine line(arguments);
    while (const auto argument = line.next()) {
        if (*argument == "--json") {
            options.json = true;
        } else if (*argument == "--report") {
            options.report = line.value();
        } else if (*argument == "--clock") {
            options.moment = dateAndTime(line.value());
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

int writeReport(const Options& options, const project::Project& project, const design::Site& site,
                const design::DesignResult& result) {
    if (!result.type_chosen) {
        std::cerr << "mero-batch: no report: without the missing input no type stays chosen\n";
        return kFailed;
    }
    const platform::DateTime now = options.moment ? *options.moment : platform::SystemClock().now();
    const std::string html = report::htmlReport(project::reportData(project, site, result, now));
    OutputFile file(options.report);
    if (!file.write(report::toWindows1250(html)) || !file.finish()) {
        std::cerr << "mero-batch: " << file.failure() << '\n';
        return kFailed;
    }
    return kDone;
}

int designProject(const Options& options) {
    if (options.project.empty()) {
        throw UsageError("which project? (see mero-batch design --help)");
    }
    requireSeparateFiles({{"the project file", options.project}, rainDatabaseIn(options.folder)},
                         {{"--report", options.report}});
    const project::Project project = project::readProjectFile(options.project);
    project::RainStore rain;
    const int station = project.inputs.rain.station;
    if (station > 0) {
        data::MdbRainDatabase database;
        rain.load(station, database, folderOrDefault(options.folder));
        if (rain.rain(station).demonstration) {
            std::cerr << "mero-batch: note: the rain database holds demonstration values, no measurements\n";
        }
    }
    const design::Site site = project::prepareSite(project.inputs, rain);
    const design::DesignResult result = design::design(site, project.inputs.facility);
    std::cout << (options.json ? resultJson(project, result) : resultTable(project, result)) << std::flush;
    if (!std::cout) {
        std::cerr << "mero-batch: the results cannot be written\n";
        return kFailed;
    }
    return options.report.empty() ? kDone : writeReport(options, project, site, result);
}

}  // namespace

int designCommand(std::span<const std::string_view> arguments) {
    return reportingFailures([&] {
        const Options options = parse(arguments);
        if (options.help) {
            std::cout << kHelp;
            return kDone;
        }
        return designProject(options);
    });
}

}  // namespace mero::app
