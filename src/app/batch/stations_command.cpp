// SPDX-License-Identifier: MIT
/// Prints the list of stations without the database, and a station's table from it.
/// The columns are wide enough for every possible intensity.
#include "app/batch/stations_command.h"

#include <iostream>
#include <stdexcept>

#include "app/batch/failures.h"
#include "app/common/command_line.h"
#include "app/common/program_folder.h"
#include "platform/numbers/number_text.h"
#include "project/prepare_site.h"
#include "project/project.h"
#include "project/read_project.h"

namespace mero::app {
namespace {

constexpr const char* kHelp =
    "usage: mero-batch stations [--folder DIR] [STATION]\n"
    "\n"
    "Lists the rain-gauge stations with their numbers, and the periodicities.\n"
    "With a STATION, by name or number, prints its intensities in l/(s.ha).\n"
    "\n"
    "  --folder DIR    the program's folder, which holds mero.mdb\n"
    "\n"
    "Exit status: 0 done, 1 the rain database cannot be read, 2 no such station, unusable arguments.\n";

std::string column(const std::string& text, std::size_t columns) {
    return std::string(columns > text.size() ? columns - text.size() : 0, ' ') + text;
}

void listStations() {
    const data::ReferenceTables& tables = project::reference();
    constexpr std::size_t kNumberColumns = 3;
    for (int position = 1; position <= data::kStationCount; ++position) {
        std::cout << column(numbers::general(static_cast<int>(tables.StaniceCislo(position))), kNumberColumns)
                  << "  " << tables.StaniceNazev[static_cast<std::size_t>(position)] << '\n';
    }
    std::cout << "\nperiodicities [1/year]:";
    for (const float periodicity : tables.Periodicita) {
        std::cout << ' ' << numbers::general(periodicity);
    }
    std::cout << '\n';
}

void printStation(int station, const design::StationRain& rain) {
    constexpr std::size_t kColumns = 10;
    const data::ReferenceTables& tables = project::reference();
    std::cout << tables.StaniceNazev[static_cast<std::size_t>(station)] << ", intensities [l/(s.ha)]\n\n"
              << column("min", kColumns);
    for (const float periodicity : tables.Periodicita) {
        std::cout << column(numbers::general(periodicity), kColumns);
    }
    std::cout << '\n';
    for (std::size_t row = 0; row < tables.DobaTrvani.size(); ++row) {
        std::cout << column(numbers::general(tables.DobaTrvani[row]), kColumns);
        for (const auto& intensities : rain.intensities_l_s_ha) {
            std::cout << column(numbers::general(intensities[row]), kColumns);
        }
        std::cout << '\n';
    }
    if (rain.demonstration) {
        std::cout << "\nThese are demonstration values, no measurements.\n";
    }
}

int showStation(const std::string& name, const std::string& folder) {
    const project::Field& field = *project::findField("rain.station");
    int station = 0;
    try {
        station = static_cast<int>(project::fieldValue(field, name));
    } catch (const std::invalid_argument& reason) {
        throw UsageError(reason.what());
    }
    data::MdbRainDatabase database;
    project::RainStore rain;
    rain.load(station, database, folderOrDefault(folder));
    printStation(station, rain.rain(station));
    return kDone;
}

}  // namespace

int stationsCommand(std::span<const std::string_view> arguments) {
    return reportingFailures([&] {
        std::string folder;
        std::string station;
        CommandLine line(arguments);
        while (const auto argument = line.next()) {
            if (*argument == "--folder") {
                folder = existingFolder(line.value());
            } else if (*argument == "--help" || *argument == "-h") {
                std::cout << kHelp;
                return kDone;
            } else {
                line.takeSingle(station, "station");
            }
        }
        if (station.empty()) {
            listStations();
            return kDone;
        }
        return showStation(station, folder);
    });
}

}  // namespace mero::app
