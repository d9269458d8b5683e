// SPDX-License-Identifier: MIT
/// The rows: header, order, empty cells, quotes.
#include "sweep/csv.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sweep/samples.h"

namespace mero::sweep {
namespace {

using test::variants;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

std::string rowsOf(const Variants& all) {
    const project::RainStore rain;
    std::string rows;
    CsvTable(all, rain).appendRows(0, all.count(), rows);
    return rows;
}

std::string headerOf(const Variants& all) {
    const project::RainStore rain;
    return CsvTable(all, rain).header();
}

TEST(Csv, CellsAreQuotedOnlyWhereTheyMustBe) {
    EXPECT_EQ(csvCell("Praha - Podbaba (VÚV)"), "Praha - Podbaba (VÚV)");
    EXPECT_EQ(csvCell("a,b"), "\"a,b\"");
    EXPECT_EQ(csvCell("a \"b\""), "\"a \"\"b\"\"\"");
    EXPECT_EQ(csvCell("a\nb"), "\"a\nb\"");
}

TEST(Csv, TheHeaderHoldsTheResultsOfTheTypesThatOccur) {
    const std::string surface = headerOf(variants({"facility.type=surface"}));
    EXPECT_THAT(surface, StartsWith("facility.type,reduced_area_m2,filtration_used_m_s,"));
    EXPECT_THAT(surface, EndsWith("infiltration_area_m2,verdicts,runtime_error\r\n"));
    EXPECT_THAT(headerOf(variants({"facility.type=surface,tank"})), HasSubstr(",tank_volume_m3,"));
    EXPECT_THAT(surface, Not(HasSubstr("tank_volume_m3")));
}

TEST(Csv, ARowIsWhatTheDesignGives) {
    // 870 m2 reduced; kf 1e-4 against the picked 178 l/(s.ha): 870 / (1000 / 356 - 1) = 480.93... -> 480.9
    EXPECT_EQ(rowsOf(variants({"facility.type=surface"})), "surface,870,0.0001,15.486,15,178,480.9,,\r\n");
}

TEST(Csv, AResultThatIsMissingIsAnEmptyCell) {
    const std::string rows = rowsOf(variants({"facility.trench_width_m=-1,0"}));
    EXPECT_EQ(rows,
              "-1,870,0.0001,15.486,15,178,,,,,,,trench_width_not_positive,\r\n"
              "0,870,0.0001,15.486,15,178,,,,,,,trench_width_not_positive,\r\n");
}

TEST(Csv, VerdictsStandInTheirOrderWithBlanksBetween) {
    // Mean flow through 60 m2 of bottom and 134.16 m2 of top at 1e-5 m/s: 0.00097 against 0.00087 m3/s.
    EXPECT_THAT(rowsOf(variants({"facility.type=tank", "facility.tank_depth_m=0.9"})),
                EndsWith(",tank_volume_sufficient tank_infiltration_proven,\r\n"));
}

TEST(Csv, ARuntimeErrorIsToldByItsNumber) {
    EXPECT_THAT(rowsOf(variants({"facility.safety_factor=0"})), EndsWith(",runtime_error_11,11\r\n"));
}

TEST(Csv, RowsOfPartsJoinToTheWhole) {
    const Variants all = variants({"facility.type=all", "facility.safety_factor=1:2:0.25"});
    const project::RainStore rain;
    const CsvTable table(all, rain);
    std::string joined;
    for (std::uint64_t first = 0; first < all.count(); first += 4) {
        table.appendRows(first, std::min<std::uint64_t>(4, all.count() - first), joined);
    }
    EXPECT_EQ(joined, rowsOf(all));
}

}  // namespace
}  // namespace mero::sweep
