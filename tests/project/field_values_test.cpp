// SPDX-License-Identifier: MIT
/// The text of one value becomes the number that is stored for it, or the reason why not.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>

#include "project/read_project.h"

namespace mero::project {
namespace {

using ::testing::HasSubstr;

float valueOf(const char* path, std::string_view text) {
    return fieldValue(*findField(path), text);
}

std::string errorOf(const char* path, std::string_view text) {
    try {
        static_cast<void>(valueOf(path, text));
    } catch (const std::invalid_argument& error) {
        return error.what();
    }
    return "";
}

TEST(FieldValue, NumbersFollowTheBoxes) {
    EXPECT_EQ(valueOf("facility.trench_width_m", "1.2"), 1.2F);
    EXPECT_EQ(valueOf("facility.trench_width_m", " 1 000 "), 1000.0F);
    EXPECT_EQ(valueOf("facility.trench_width_m", "-1e12"), -1e12F);
    EXPECT_EQ(errorOf("facility.trench_width_m", "1,2"), "expected a number [m], not \"1,2\"");
    EXPECT_EQ(errorOf("facility.side_slope", ""), "expected a number [1 : n], not \"\"");
    EXPECT_EQ(errorOf("facility.trench_width_m", "1e39"), "expected a number [m], not \"1e39\"");
    EXPECT_EQ(errorOf("facility.trench_width_m", "1.1e12"), "expected a number from -1e12 to 1e12");
    EXPECT_EQ(errorOf("facility.trench_width_m", "-1.1e12"), "expected a number from -1e12 to 1e12");
}

TEST(FieldValue, CountsAreWholeNumbersOfSixteenBits) {
    EXPECT_EQ(valueOf("facility.shaft_count", "3"), 3.0F);
    EXPECT_EQ(valueOf("facility.shaft_count", "-32768"), -32768.0F);
    EXPECT_EQ(valueOf("facility.shaft_count", "32767"), 32767.0F);
    constexpr const char* kExpected = "expected a whole number from -32768 to 32767, not ";
    EXPECT_EQ(errorOf("facility.shaft_count", "1.5"), std::string(kExpected) + "\"1.5\"");
    EXPECT_EQ(errorOf("facility.shaft_count", "32768"), std::string(kExpected) + "\"32768\"");
    EXPECT_EQ(errorOf("facility.shaft_count", "-32769"), std::string(kExpected) + "\"-32769\"");
    EXPECT_EQ(errorOf("facility.shaft_count", "two"), std::string(kExpected) + "\"two\"");
}

TEST(FieldValue, TruthsAreTwoWords) {
    EXPECT_EQ(valueOf("facility.upstream_settling", "true"), 1.0F);
    EXPECT_EQ(valueOf("facility.upstream_settling", "false"), 0.0F);
    for (const char* text : {"True", "1", "", "yes"}) {
        EXPECT_EQ(errorOf("facility.upstream_settling", text),
                  std::string("expected true or false, not \"") + text + "\"");
    }
}

TEST(FieldValue, ChoicesAreTheirPositions) {
    EXPECT_EQ(valueOf("facility.type", "surface"), 0.0F);
    EXPECT_EQ(valueOf("facility.type", "tank"), 5.0F);
    EXPECT_EQ(valueOf("facility.soil", "silt_and_sand"), 1.0F);
    EXPECT_EQ(valueOf("facility.variant", "type_b"), 1.0F);
    EXPECT_EQ(valueOf("facility.catalogue_shaft", "RSB - Q 160/200"), 5.0F);
    EXPECT_EQ(errorOf("facility.variant", "type_c"),
              "expected one of: type_a, type_b, not \"type_c\"; did you mean \"type_a\"?");
    EXPECT_EQ(errorOf("facility.shape", "rectangle"),
              "expected one of: round, rectangular, not \"rectangle\"; did you mean \"rectangular\"?");
}

TEST(FieldValue, StationsGoByNameOrByTheNumberOfTheirTable) {
    EXPECT_EQ(valueOf("rain.station", "Brno"), 4.0F);
    EXPECT_EQ(valueOf("rain.station", "84"), 4.0F);
    EXPECT_EQ(valueOf("rain.station", "Zlín"), 91.0F);
    EXPECT_THAT(errorOf("rain.station", "brno"), HasSubstr("did you mean \"Brno\"?"));
    for (const char* text : {"0", "93", "84.0", ""}) {
        EXPECT_THAT(errorOf("rain.station", text), HasSubstr("the name or number of a rain-gauge station"))
            << text;
    }
}

TEST(FieldValue, PeriodicitiesGoByTheirValue) {
    EXPECT_EQ(valueOf("rain.periodicity", "5"), 0.0F);
    EXPECT_EQ(valueOf("rain.periodicity", "0.50"), 3.0F);
    EXPECT_EQ(valueOf("rain.periodicity", "5e-2"), 6.0F);
    EXPECT_EQ(errorOf("rain.periodicity", "0.3"),
              "expected one of: 5, 2, 1, 0.5, 0.2, 0.1, 0.05, not \"0.3\"");
    EXPECT_THAT(errorOf("rain.periodicity", "often"), HasSubstr("not \"often\""));
}

TEST(SingleOf, RoundsOnceAndKnowsItsLimits) {
    EXPECT_EQ(singleOf(0.1), 0.1F);
    EXPECT_EQ(singleOf(1e12), 1e12F);
    EXPECT_EQ(singleOf(-1e12), -1e12F);
    EXPECT_FALSE(std::signbit(singleOf(-0.0)));
    EXPECT_EQ(singleOf(1e-60), 0.0F);
    EXPECT_THROW(static_cast<void>(singleOf(1.0000001e12)), std::invalid_argument);
    EXPECT_THROW(static_cast<void>(singleOf(std::numeric_limits<double>::quiet_NaN())),
                 std::invalid_argument);
}

}  // namespace
}  // namespace mero::project
