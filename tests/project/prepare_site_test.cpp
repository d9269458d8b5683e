// SPDX-License-Identifier: MIT
/// From the entries of the dialogs to the site of a design.
#include "project/prepare_site.h"

#include <gtest/gtest.h>

#include "project/samples.h"

namespace mero::project {
namespace {

class OneStation : public data::RainDatabase {
  public:
    [[nodiscard]] data::StationTable read(std::int16_t station_number, const std::string& path) override {
        ++reads;
        last_path = path;
        data::StationTable table;
        table.columns = {"doba", "5", "02"};
        for (int row = 0; row < 9; ++row) {
            table.rows.push_back({5.0, 1.0, static_cast<double>(station_number + row)});
        }
        return table;
    }
    int reads = 0;
    std::string last_path;
};

TEST(PrepareSite, AStationGivesTheColumnOfThePeriodicity) {
    const Project project = readProject(test::document(), "p.json");
    OneStation database;
    RainStore store;
    store.load(project.inputs.rain.station, database, "/folder");
    store.load(project.inputs.rain.station, database, "/folder");
    EXPECT_EQ(database.reads, 1);
    EXPECT_EQ(database.last_path, "/folder/mero.mdb");

    const design::Site site = prepareSite(project.inputs, store);
    EXPECT_EQ(site.reduced_area_m2, 720.0F);
    EXPECT_EQ(site.rains[8].intensity_l_s_ha, 92.0F);  // station 84, row 8
    EXPECT_EQ(site.rains[8].duration_min, 120.0F);
    EXPECT_EQ(site.picked_row, 2);
    EXPECT_EQ(site.rain_confirmation, design::RainConfirmation::Accepted);
}

TEST(PrepareSite, OwnValuesAndAFirstOfEqualDurations) {
    const Project project =
        readProject(test::document(R"("rain": {"durations_min": [5, 7, 7, 20, 30, 45, 60, 90, 120],
            "intensities_l_s_ha": [9, 8, 7, 6, 5, 4, 3, 2, 1], "periodicity": 1, "design_duration_min": 7})"),
                    "p.json");
    const design::Site site = prepareSite(project.inputs, RainStore());
    EXPECT_EQ(site.picked_row, 1);
    EXPECT_EQ(site.rains[1].intensity_l_s_ha, 8.0F);
}

TEST(PrepareSite, WithoutAreasAndPickedRow) {
    const Project project =
        readProject(test::document(R"("rain": {"intensities_l_s_ha": [0,0,0,0,0,0,0,0,0], "periodicity": 1})",
                                   R"("areas": [])"),
                    "p.json");
    const design::Site site = prepareSite(project.inputs, RainStore());
    EXPECT_FALSE(site.has_areas);
    EXPECT_EQ(site.reduced_area_m2, 0.0F);
    EXPECT_EQ(site.picked_row, -1);
    EXPECT_EQ(site.rain_confirmation, design::RainConfirmation::NoIntensities);
}

}  // namespace
}  // namespace mero::project
