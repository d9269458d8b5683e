// SPDX-License-Identifier: MIT
/// What the report of a design shows: the project's texts, the chosen type's values, and for everything that
/// its panel does not offer what a fresh program holds.
#include "project/report_data.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "project/samples.h"

namespace mero::project {
namespace {

using design::DesignResult;
using design::FacilityType;
using design::Quantity;
using design::ShaftShape;

constexpr platform::DateTime kNow{.year = 2026, .month = 11, .day = 20, .hour = 14, .minute = 5, .second = 9};

/// A project with every value of every panel given, so that only the type decides what is shown.
Project fullProject(FacilityType type) {
    Project project;
    project.texts.name = "Dvůr";
    project.texts.designer = "Ing. Nováková";
    project.texts.investor = "Město";
    project.texts.site = "Brno";
    project.texts.subsoil = "štěrk";
    project.texts.surfaces = {"asfalt", ""};
    project.inputs.areas = {{800.0F, 0.9F}, {300.0F, 0.5F}};
    project.inputs.rain.station = 4;
    project.inputs.rain.periodicity = 4;
    project.inputs.groundwater_depth_m = 6.0F;
    design::Facility& facility = project.inputs.facility;
    facility.type = type;
    facility.safety_factor = 1.5F;
    facility.soil_option = 1;
    facility.fill_porosity = 0.5F;
    facility.trench_width_m = 1.25F;
    facility.trench_height_m = 2.0F;
    facility.overflow = {
        .given = true, .count = 2.0F, .outer_diameter_mm = 300.0F, .inner_diameter_mm = 250.0F};
    facility.throttled_outflow_l_s_ha = 3.0F;
    facility.drain = {.given = true, .count = 4.0F, .outer_diameter_mm = 160.0F, .inner_diameter_mm = 145.0F};
    facility.outlet_area_cm2_m = 50.0F;
    facility.outlet_velocity_m_s = 0.25F;
    facility.shaft_count = 3;
    facility.inlet_depth_m = 0.75F;
    facility.filter_layer_m = 0.5F;
    facility.sand_layer_m = 0.125F;
    facility.specific_infiltration_l_s_ha = 10.0F;
    facility.bottom_length_m = 12.0F;
    facility.bottom_width_m = 5.0F;
    facility.tank_depth_m = 1.5F;
    facility.side_slope = 2.0F;
    facility.upstream_settling = true;
    return project;
}

/// Every result has a number of its own: the first 100, the next 101, and so on.
DesignResult numberedResult() {
    DesignResult result;
    for (const design::QuantityInfo& quantity : design::quantities()) {
        result.show(quantity.quantity, 100.0F + static_cast<float>(quantity.quantity));
    }
    result.picked_rain = {.duration_min = 15.0F, .intensity_l_s_ha = 178.0F};
    result.swale_filtration_m_s = 5e-5F;
    result.shaft_side1_m = 1.5F;
    result.shaft_side2_m = 2.5F;
    result.shaft_wall_m = 0.15F;
    result.pipes = true;
    return result;
}

report::ReportData dataOf(const Project& project, const DesignResult& result = numberedResult()) {
    design::Site site;
    site.reduced_area_m2 = 870.0F;
    site.rains[2] = {.duration_min = 15.0F, .intensity_l_s_ha = 178.0F};
    return reportData(project, site, result, kNow);
}

float number(Quantity quantity) {
    return 100.0F + static_cast<float>(quantity);
}

TEST(ReportData, TextsRainAndSiteStandForEveryType) {
    for (const FacilityType type : design::kFacilityTypes) {
        const report::ReportData data = dataOf(fullProject(type));
        EXPECT_EQ(data.project_name, "Dvůr");
        EXPECT_EQ(data.designer, "Ing. Nováková");
        EXPECT_EQ(data.investor, "Město");
        EXPECT_EQ(data.site, "Brno");
        EXPECT_EQ(data.subsoil, "štěrk");
        EXPECT_EQ(data.rain.station, "Brno");
        EXPECT_EQ(data.rain.periodicity, "0.2");
        EXPECT_EQ(data.rain.durations_min[2], 15.0F);
        EXPECT_EQ(data.rain.intensities_lsha[2], 178.0F);
        EXPECT_EQ(data.rain.chosen_duration_min, 15.0F);
        ASSERT_EQ(data.partial_areas.size(), 2U);
        EXPECT_EQ(data.partial_areas[0].surface, "asfalt");
        EXPECT_EQ(data.partial_areas[1].area_m2, 300.0F);
        EXPECT_EQ(data.partial_areas[1].runoff_coefficient, 0.5F);
        EXPECT_EQ(data.drained_area_m2, 870.0F);
        EXPECT_EQ(data.groundwater_depth_m, 6.0F);
        EXPECT_EQ(data.safety_factor, 1.5F);
        EXPECT_EQ(data.subsoil_filtration_m_s, number(Quantity::Filtration));
        EXPECT_EQ(data.infiltration_area_m2, number(Quantity::InfiltrationArea));
        EXPECT_EQ(data.storage_volume_m3, number(Quantity::StorageVolume));
        EXPECT_EQ(data.water_depth_m, number(Quantity::WaterDepth));
        EXPECT_EQ(data.infiltration_type, static_cast<int>(type));
        EXPECT_EQ(data.date, platform::dateText(kNow));
        EXPECT_EQ(data.time, platform::timeText(kNow));
    }
}

TEST(ReportData, LinesOfTheDescriptionBecomeTags) {
    Project project = fullProject(FacilityType::Surface);
    project.texts.description = "a\r\nb\r\n\r\nc";
    EXPECT_EQ(dataOf(project).description, "a<br>b<br><br>c");
    project.texts.description = "one line";
    EXPECT_EQ(dataOf(project).description, "one line");
}

TEST(ReportData, TheSoilIsThatOfTheTypesWithASwale) {
    EXPECT_EQ(dataOf(fullProject(FacilityType::Swale)).swale.soil_caption, "Slit a písek, slit");
    EXPECT_EQ(dataOf(fullProject(FacilityType::SwaleTrench)).swale.soil_caption, "Slit a písek, slit");
    EXPECT_EQ(dataOf(fullProject(FacilityType::Trench)).swale.soil_caption, "Písek střední až jemný");
    const report::SwaleValues swale = dataOf(fullProject(FacilityType::SwaleTrench)).swale;
    EXPECT_EQ(swale.filtration_m_s, 5e-5F);
    EXPECT_EQ(swale.emptying_time_h, number(Quantity::EmptyingTime));
    EXPECT_EQ(swale.width_m, number(Quantity::SwaleWidth));
    EXPECT_EQ(swale.depth_m, number(Quantity::SwaleDepth));
}

TEST(ReportData, TheTrenchIsThatOfItsTwoTypes) {
    for (const FacilityType type : {FacilityType::SwaleTrench, FacilityType::Trench}) {
        const report::TrenchValues trench = dataOf(fullProject(type)).trench;
        EXPECT_EQ(trench.fill_porosity, 0.5F);
        EXPECT_EQ(trench.width_m, 1.25F);
        EXPECT_EQ(trench.height_m, 2.0F);
        EXPECT_EQ(trench.length_m, number(Quantity::TrenchLength));
    }
    const report::TrenchValues untouched = dataOf(fullProject(FacilityType::Tank)).trench;
    EXPECT_EQ(untouched.fill_porosity, 0.35F);
    EXPECT_EQ(untouched.width_m, 0.0F);
    EXPECT_EQ(untouched.length_m, 0.0F);
}

TEST(ReportData, ThePipesAreThoseOfThePagesOwnPanel) {
    const report::PipeValues overflow = dataOf(fullProject(FacilityType::SwaleTrench)).pipes;
    EXPECT_TRUE(overflow.throttled_overflow);
    EXPECT_FALSE(overflow.drain);
    EXPECT_EQ(overflow.count, 2.0F);
    EXPECT_EQ(overflow.outer_diameter_mm, 300.0F);
    EXPECT_EQ(overflow.inner_diameter_mm, 250.0F);
    EXPECT_EQ(overflow.throttled_outflow_lsha, 3.0F);
    EXPECT_EQ(overflow.outlet_area_cm2_per_m, 0.0F);

    const report::PipeValues drain = dataOf(fullProject(FacilityType::Trench)).pipes;
    EXPECT_FALSE(drain.throttled_overflow);
    EXPECT_TRUE(drain.drain);
    EXPECT_EQ(drain.count, 4.0F);
    EXPECT_EQ(drain.inner_diameter_mm, 145.0F);
    EXPECT_EQ(drain.throttled_outflow_lsha, 0.0F);
    EXPECT_EQ(drain.outlet_area_cm2_per_m, 50.0F);
    EXPECT_EQ(drain.outlet_velocity_m_s, 0.25F);
}

TEST(ReportData, PipesThatWereUntickedKeepTheirBoxesOnly) {
    DesignResult unticked = numberedResult();
    unticked.pipes = false;
    const report::PipeValues pipes = dataOf(fullProject(FacilityType::Trench), unticked).pipes;
    EXPECT_FALSE(pipes.drain);
    EXPECT_EQ(pipes.count, 4.0F);

    Project without = fullProject(FacilityType::Trench);
    without.inputs.facility.drain.given = false;
    EXPECT_FALSE(dataOf(without).pipes.drain);
    EXPECT_EQ(dataOf(without).pipes.count, 1.0F);
    EXPECT_EQ(dataOf(without).pipes.outlet_velocity_m_s, 0.0F);
    EXPECT_EQ(dataOf(fullProject(FacilityType::Surface)).pipes.count, 1.0F);
}

TEST(ReportData, AShaftShowsItsBoxes) {
    Project project = fullProject(FacilityType::Shaft);
    project.inputs.facility.shape = ShaftShape::Rectangular;
    const report::ShaftValues shaft = dataOf(project).shaft;
    EXPECT_EQ(shaft.shape, 1);
    EXPECT_EQ(shaft.count, 3);
    EXPECT_EQ(shaft.ring, "");
    EXPECT_EQ(shaft.inflow_depth_m, 0.75F);
    EXPECT_EQ(shaft.inner_diameter_m, number(Quantity::ShaftInnerDiameter));
    EXPECT_EQ(shaft.side1_m, 1.5F);
    EXPECT_EQ(shaft.side2_m, 2.5F);
    EXPECT_EQ(shaft.wall_thickness_m, 0.15F);
    EXPECT_EQ(shaft.filter_layer_m, 0.5F);
    EXPECT_EQ(shaft.required_depth_m, number(Quantity::ShaftDepth));
    EXPECT_EQ(shaft.min_groundwater_depth_m, number(Quantity::RequiredGroundwaterDepth));
    EXPECT_EQ(shaft.required_filtration_m_s, 5e-5F);
}

TEST(ReportData, ASandLayerStandsOnlyInItsVariant) {
    Project project = fullProject(FacilityType::Shaft);
    EXPECT_EQ(dataOf(project).shaft.sand_layer_m, 0.0F);
    EXPECT_FALSE(dataOf(project).shaft.sand_layer);
    project.inputs.facility.sand_layer = true;
    EXPECT_EQ(dataOf(project).shaft.sand_layer_m, 0.125F);
    EXPECT_TRUE(dataOf(project).shaft.sand_layer);
}

TEST(ReportData, ARingGivesItsShapeAndName) {
    Project project = fullProject(FacilityType::Shaft);
    project.inputs.facility.shape = ShaftShape::Rectangular;
    project.inputs.facility.catalogue_row = 5;
    EXPECT_EQ(dataOf(project).shaft.ring, "RSB - Q 160/200");
    EXPECT_EQ(dataOf(project).shaft.shape, 0);
}

TEST(ReportData, OtherTypesHaveOneShaftAndNoTank) {
    const report::ReportData data = dataOf(fullProject(FacilityType::Swale));
    EXPECT_EQ(data.shaft.count, 1);
    EXPECT_EQ(data.shaft.inflow_depth_m, 0.0F);
    EXPECT_EQ(data.shaft.required_filtration_m_s, 0.0F);
    EXPECT_EQ(data.tank.bottom_length_m, 0.0F);
    EXPECT_FALSE(data.tank.upstream_settling);
}

TEST(ReportData, ATankShowsItsBoxes) {
    const report::TankValues tank = dataOf(fullProject(FacilityType::Tank)).tank;
    EXPECT_TRUE(tank.upstream_settling);
    EXPECT_EQ(tank.specific_infiltration_lsha, 10.0F);
    EXPECT_EQ(tank.bottom_length_m, 12.0F);
    EXPECT_EQ(tank.bottom_width_m, 5.0F);
    EXPECT_EQ(tank.depth_m, 1.5F);
    EXPECT_EQ(tank.side_slope, 2.0F);
    EXPECT_EQ(tank.infiltration_flow_m3_s, number(Quantity::InfiltrationFlow));
    EXPECT_EQ(tank.volume_by_dimensions_m3, number(Quantity::TankVolume));
}

}  // namespace
}  // namespace mero::project
