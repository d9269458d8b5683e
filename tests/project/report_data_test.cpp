// SPDX-License-Identifier: MIT
/// What the report of a design without the window shows: the project's texts, rain and areas, the numbers of
/// the design, and the options of the chosen type only.
#include "project/report_data.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "project/samples.h"

namespace mero::project {
namespace {

using design::DesignResult;
using design::FacilityType;
using design::ShaftShape;

constexpr platform::DateTime kNow{.year = 2026, .month = 11, .day = 20, .hour = 14, .minute = 5, .second = 9};

/// A project with the options of every panel chosen, so that only the type decides what is shown.
Project fullProject(FacilityType type) {
    Project project;
    project.texts.txtProjName = "Dvůr";
    project.texts.txtProjektant = "Ing. Nováková";
    project.texts.txtInvestor = "Město";
    project.texts.txtMistoAkce = "Brno";
    project.texts.txtTypPudyPodlozi = "štěrk";
    project.texts.surfaces = {"asfalt", ""};
    project.inputs.areas = {{800.0F, 0.9F}, {300.0F, 0.5F}};
    project.inputs.rain.station = 4;
    project.inputs.rain.periodicity = 4;
    design::Facility& facility = project.inputs.facility;
    facility.type = type;
    facility.soil_option = 1;
    facility.overflow.given = true;
    facility.drain.given = true;
    facility.upstream_settling = true;
    return project;
}

report::ReportData dataOf(const Project& project, bool pipes = true) {
    design::Site site;
    site.rains[2] = {.duration_min = 15.0F, .intensity_l_s_ha = 178.0F};
    DesignResult result;
    result.numbers.txtVsakPlocha = 428.6F;
    result.numbers.VybranaDoba = 15.0F;
    result.pipes = pipes;
    return reportData(project, site, result, kNow);
}

TEST(ReportData, TextsRainAreasAndNumbersStandForEveryType) {
    for (const FacilityType type : design::kFacilityTypes) {
        const report::ReportData data = dataOf(fullProject(type));
        EXPECT_EQ(data.texts.txtProjName, "Dvůr");
        EXPECT_EQ(data.texts.txtProjektant, "Ing. Nováková");
        EXPECT_EQ(data.texts.txtInvestor, "Město");
        EXPECT_EQ(data.texts.txtMistoAkce, "Brno");
        EXPECT_EQ(data.texts.txtTypPudyPodlozi, "štěrk");
        EXPECT_EQ(data.rain.station, "Brno");
        EXPECT_EQ(data.rain.periodicity, "0.2");
        EXPECT_EQ(data.rain.rows[2], (calc::Rain{15.0F, 178.0F}));
        ASSERT_EQ(data.partial_areas.size(), 2U);
        EXPECT_EQ(data.partial_areas[0].surface, "asfalt");
        EXPECT_EQ(data.partial_areas[1].area_m2, 300.0F);
        EXPECT_EQ(data.partial_areas[1].runoff_coefficient, 0.5F);
        EXPECT_EQ(data.numbers.txtVsakPlocha, 428.6F);
        EXPECT_EQ(data.numbers.VybranaDoba, 15.0F);
        EXPECT_EQ(data.type, type);
        EXPECT_EQ(data.date, platform::dateText(kNow));
        EXPECT_EQ(data.time, platform::timeText(kNow));
    }
    EXPECT_EQ(dataOf(fullProject(FacilityType::Shaft)).type_name, "Šachtové vsakování");
}

TEST(ReportData, LinesOfTheDescriptionBecomeTags) {
    Project project = fullProject(FacilityType::Surface);
    project.texts.txtDetails = "a\r\nb\r\n\r\nc";
    EXPECT_EQ(dataOf(project).texts.txtDetails, "a<br>b<br><br>c");
    project.texts.txtDetails = "one line";
    EXPECT_EQ(dataOf(project).texts.txtDetails, "one line");
}

TEST(ReportData, TheSoilIsThatOfTheTypesWithASwale) {
    EXPECT_EQ(dataOf(fullProject(FacilityType::Swale)).options.soil_caption, "Slit a písek, slit");
    EXPECT_EQ(dataOf(fullProject(FacilityType::SwaleTrench)).options.soil_caption, "Slit a písek, slit");
    EXPECT_EQ(dataOf(fullProject(FacilityType::Trench)).options.soil_caption, "Písek střední až jemný");
}

TEST(ReportData, ThePipesAreThoseOfTheTypesOwnPanel) {
    const report::Options overflow = dataOf(fullProject(FacilityType::SwaleTrench)).options;
    EXPECT_TRUE(overflow.overflow);
    EXPECT_FALSE(overflow.drain);
    const report::Options drain = dataOf(fullProject(FacilityType::Trench)).options;
    EXPECT_FALSE(drain.overflow);
    EXPECT_TRUE(drain.drain);
    EXPECT_FALSE(dataOf(fullProject(FacilityType::Trench), false).options.drain) << "unticked by the design";
}

TEST(ReportData, AShaftShowsItsShapeAndVariant) {
    Project project = fullProject(FacilityType::Shaft);
    EXPECT_FALSE(dataOf(project).options.sand_layer);
    project.inputs.facility.shape = ShaftShape::Rectangular;
    project.inputs.facility.sand_layer = true;
    const report::Options options = dataOf(project).options;
    EXPECT_EQ(options.shape, ShaftShape::Rectangular);
    EXPECT_TRUE(options.sand_layer);
    EXPECT_EQ(options.ring, "");
}

TEST(ReportData, ARingGivesItsShapeAndName) {
    Project project = fullProject(FacilityType::Shaft);
    project.inputs.facility.shape = ShaftShape::Rectangular;
    project.inputs.facility.catalogue_row = 5;
    EXPECT_EQ(dataOf(project).options.ring, "RSB - Q 160/200");
    EXPECT_EQ(dataOf(project).options.shape, ShaftShape::Round);
}

TEST(ReportData, OnlyATankSettlesUpstream) {
    EXPECT_TRUE(dataOf(fullProject(FacilityType::Tank)).options.upstream_settling);
    EXPECT_FALSE(dataOf(fullProject(FacilityType::Swale)).options.upstream_settling);
}

}  // namespace
}  // namespace mero::project
