// SPDX-License-Identifier: MIT
/// PATH=VALUES: lists, ranges, logarithmic ranges, all; and what is refused.
#include "sweep/variation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sweep/samples.h"

namespace mero::sweep {
namespace {

using test::sampleProject;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

std::vector<std::string> textsOf(const std::string& text) {
    const Variation variation = Variation::parse(text, sampleProject(R"("station": "Brno")"));
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < variation.size(); ++i) {
        texts.push_back(variation.text(i));
    }
    return texts;
}

std::string errorOf(const std::string& text) {
    try {
        static_cast<void>(Variation::parse(text, sampleProject()));
    } catch (const VariationError& error) {
        return error.what();
    }
    return "";
}

TEST(Variation, ListsKeepTheirOrder) {
    EXPECT_THAT(textsOf("rain.periodicity=0.5,0.2,0.1"), ElementsAre("0.5", "0.2", "0.1"));
    EXPECT_THAT(textsOf("facility.type=tank,swale"), ElementsAre("tank", "swale"));
    EXPECT_THAT(textsOf("rain.station=Brno,76"), ElementsAre("Brno", "Zlín"));
}

TEST(Variation, RangesTakeTheirEndAndAddUpNoError) {
    EXPECT_THAT(textsOf("facility.trench_width_m=0.6:1.2:0.1"),
                ElementsAre("0.6", "0.7", "0.8", "0.9", "1", "1.1", "1.2"));
    EXPECT_THAT(textsOf("facility.trench_width_m=0:1:0.4"), ElementsAre("0", "0.4", "0.8"));
    EXPECT_THAT(textsOf("facility.shaft_count=3:1:-1"), ElementsAre("3", "2", "1"));
    EXPECT_THAT(textsOf("facility.trench_width_m=2:2:1"), ElementsAre("2"));
}

TEST(Variation, NegativeAndLargeNumbersAreNumbersToo) {
    EXPECT_THAT(textsOf("subsoil.groundwater_depth_m=-1.5,1e12,1e-30"),
                ElementsAre("-1.5", "1E+12", "1E-30"));
}

TEST(Variation, LogarithmicRangesHaveAConstantRatio) {
    EXPECT_THAT(textsOf("subsoil.filtration_coefficient_m_s=log:1e-6:1e-3:4"),
                ElementsAre("1E-06", "0.00001", "0.0001", "0.001"));
}

TEST(Variation, AllMeansEveryChoice) {
    EXPECT_EQ(textsOf("facility.type=all").size(), 6U);
    EXPECT_EQ(textsOf("rain.station=all").size(), 92U);
    EXPECT_EQ(textsOf("rain.periodicity=all").size(), 7U);
    EXPECT_EQ(textsOf("facility.catalogue_shaft=all").size(), 18U);
    EXPECT_THAT(textsOf("facility.upstream_settling=all"), ElementsAre("false", "true"));
    EXPECT_THAT(textsOf("rain.design_duration_min=all"),
                ElementsAre("5", "10", "15", "20", "30", "45", "60", "90", "120"));
}

TEST(Variation, WhatCannotBeVariedIsTold) {
    EXPECT_EQ(errorOf("facility.trench_widht_m=1"),
              "facility.trench_widht_m: is no value that can be varied; did you mean "
              "\"facility.trench_width_m\"?");
    EXPECT_EQ(errorOf("project.name=a"), "project.name: is no value that can be varied");
    EXPECT_EQ(errorOf("facility.type"), "facility.type: expected PATH=VALUES");
    EXPECT_EQ(errorOf("=1"), "=1: expected PATH=VALUES");
    EXPECT_EQ(errorOf("rain.station=Brno"),
              "rain.station: the project has own intensities in the place of a station");
    EXPECT_EQ(errorOf("facility.drain.pipe_count=1"),
              "facility.drain.pipe_count: the project has no \"facility.drain\"");
    EXPECT_THAT(errorOf("areas[2].area_m2=1"), HasSubstr("counted from 0"));
    EXPECT_THAT(errorOf("areas[0].surface=1"), HasSubstr("no such value"));
}

TEST(Variation, ValuesThatDoNotFitAreTold) {
    EXPECT_EQ(errorOf("facility.trench_width_m=1,x"),
              "facility.trench_width_m: expected a number [m], not \"x\"");
    EXPECT_EQ(errorOf("facility.trench_width_m="),
              "facility.trench_width_m: expected a number [m], not \"\"");
    EXPECT_EQ(errorOf("facility.trench_width_m=1:2"),
              "facility.trench_width_m: expected a range FROM:TO:STEP");
    EXPECT_THAT(errorOf("facility.trench_width_m=1:2:0"), HasSubstr("expected a step"));
    EXPECT_THAT(errorOf("facility.trench_width_m=1:2:-1"), HasSubstr("expected a step"));
    EXPECT_THAT(errorOf("facility.trench_width_m=0:1:1e-9"), HasSubstr("at most 100000 values"));
    EXPECT_THAT(errorOf("facility.trench_width_m=log:0:1:5"), HasSubstr("greater than 0"));
    EXPECT_THAT(errorOf("facility.trench_width_m=log:1:2:1"), HasSubstr("count"));
    EXPECT_THAT(errorOf("facility.trench_width_m=log:1:2"), HasSubstr("log:FROM:TO:COUNT"));
    EXPECT_THAT(errorOf("facility.trench_width_m=all"), HasSubstr("\"all\" is for choices"));
    EXPECT_THAT(errorOf("rain.periodicity=0.3"), HasSubstr("expected one of: 5, 2"));
    EXPECT_THAT(errorOf("rain.design_duration_min=7"), HasSubstr("durations of the rain table"));
    EXPECT_THAT(errorOf("facility.shaft_count=1:2:0.5"), HasSubstr("whole number"));
    EXPECT_THAT(errorOf("areas[0].area_m2=0"), HasSubstr("other than 0"));
}

TEST(Variation, AppliesToItsPlace) {
    const project::Project project = sampleProject();
    project::Inputs inputs = project.inputs;
    Variation::parse("areas[1].runoff_coefficient=0.7,0.8", project).apply(inputs, 1);
    EXPECT_EQ(inputs.areas[1].runoff_coefficient, 0.8F);
    Variation::parse("facility.type=tank", project).apply(inputs, 0);
    EXPECT_EQ(inputs.facility.type, design::FacilityType::Tank);
    EXPECT_EQ(Variation::parse("rain.periodicity=0.5", project).magnitude(0), 0.5);
}

}  // namespace
}  // namespace mero::sweep
