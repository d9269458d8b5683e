// SPDX-License-Identifier: MIT
/// mero-damage [SEED [EVERY]]: reads thousands of damaged copies of the rain database and judges the answers.
/// With EVERY only every EVERY-th file is read. A file that breaks a rule is printed and kept beside the
/// program.
#include <algorithm>
#include <chrono>
#include <cstdint>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <map>
#include <string>

#include "data/damage/damage.h"
#include "data/rain_support.h"
#include "platform/numbers/number_text.h"

namespace {

using mero::data::StationTable;
namespace damage = mero::data::damage;
namespace test = mero::data::test;

constexpr std::int16_t kStation = 84;

struct Tally {
    int files = 0;
    int errors = 0;
    int whole = 0;
    int other_values = 0;  ///< all rows and fields, but bytes of the values themselves were damaged
    std::chrono::milliseconds slowest{0};
};

/// Describes the error in the answer; empty when it is correct.
std::string judge(const test::Outcome& outcome, const damage::Damaged& damaged, const StationTable& whole,
                  const std::string& path, Tally& tally) {
    ++tally.files;
    tally.slowest = std::max(tally.slowest, outcome.took);
    if (outcome.took >= test::kReadLimit) {
        return "took too long";
    }
    if (const auto* error = outcome.error()) {
        ++tally.errors;
        const std::string said = error->description();
        const bool tells = said.find(path) != std::string::npos && said.find("List84") != std::string::npos;
        return !error->endsProgram() ? "the error does not end the program"
               : !tells              ? "the error names neither file nor table: " + said
                                     : "";
    }
    const StationTable& table = *outcome.table();
    if (table.rows.size() != whole.rows.size() || table.columns.size() != whole.columns.size()) {
        return "rows or fields are missing without a word";
    }
    if (!table.demonstration) {
        return "the note that the values are a demonstration is lost";
    }
    if (!mero::data::arePlausible(table)) {
        return "intensities that cannot be";
    }
    if (damaged.kind == damage::Kind::Cut) {
        return "a cut file was read";
    }
    if (table.rows == whole.rows && table.columns == whole.columns) {
        ++tally.whole;
        return "";
    }
    ++tally.other_values;
    return damaged.touches_values ? "" : "other values, though none was damaged";
}

void print(const std::map<damage::Kind, Tally>& tallies) {
    Tally sum;
    std::cout << "damage     files   whole  errors   other values  slowest ms\n";
    const auto line = [](std::string_view name, const Tally& tally) {
        std::cout << std::left << std::setw(9) << name << std::right << std::setw(7) << tally.files
                  << std::setw(8) << tally.whole << std::setw(8) << tally.errors << std::setw(15)
                  << tally.other_values << std::setw(12) << tally.slowest.count() << '\n';
    };
    for (const auto& [kind, tally] : tallies) {
        line(damage::nameOf(kind), tally);
        sum.files += tally.files;
        sum.whole += tally.whole;
        sum.errors += tally.errors;
        sum.other_values += tally.other_values;
        sum.slowest = std::max(sum.slowest, tally.slowest);
    }
    line("all", sum);
}

}  // namespace

int main(int argc, char** argv) {
    const auto number = [&](int position, int otherwise) {
        return argc > position ? static_cast<int>(mero::numbers::leadingNumber(argv[position])) : otherwise;
    };
    constexpr int kSeed = 20261120;
    const auto seed = static_cast<std::uint32_t>(number(1, kSeed));
    const int every = std::max(number(2, 1), 1);

    const std::string file = test::contentOf(MERO_RAIN_DATABASE);
    const test::Outcome undamaged = test::read(MERO_RAIN_DATABASE, kStation);
    if (undamaged.table() == nullptr) {
        std::cerr << "the undamaged file cannot be read\n";
        return 2;
    }
    const StationTable& whole = *undamaged.table();
    const damage::Places places =
        damage::placesOf(file, whole.rows.at(0).at(0).value(), whole.rows.at(0).at(1).value());
    const test::TemporaryFolder folder;
    std::map<damage::Kind, Tally> tallies;
    int count = 0;
    int faults = 0;
    damage::forEachDamage(file, places, seed, [&](const damage::Damaged& damaged) {
        if (count++ % every != 0) {
            return;
        }
        const std::string path = folder.write("mero.mdb", damaged.content);
        const std::string fault =
            judge(test::read(path, kStation), damaged, whole, path, tallies[damaged.kind]);
        if (!fault.empty()) {
            const std::string kept = "damaged-" + mero::numbers::general(++faults) + ".mdb";
            std::ofstream(kept, std::ios::binary) << damaged.content;
            std::cout << damaged.name << ": " << fault << "; left in " << kept << std::endl;
        }
    });
    print(tallies);
    std::cout << faults << " faults\n";
    return faults == 0 ? 0 : 1;
}
