// SPDX-License-Identifier: MIT
/// Names and texts of the results.
#include "design/quantity.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>

namespace mero::design {
namespace {

TEST(Quantities, NamesDifferAndCarryTheirUnit) {
    std::set<std::string> names;
    for (const QuantityInfo& quantity : quantities()) {
        EXPECT_THAT(quantity.name, ::testing::MatchesRegex("[a-z][a-z0-9_]+"));
        EXPECT_TRUE(names.insert(quantity.name).second) << quantity.name;
        const std::string unit = quantity.unit;
        const char* ending = unit == "m²"         ? "_m2"
                             : unit == "m³"       ? "_m3"
                             : unit == "l/s"      ? "_l_s"
                             : unit == "m³/s"     ? "_m3_s"
                             : unit == "m/s"      ? "_m_s"
                             : unit == "l/(s.ha)" ? "_l_s_ha"
                             : unit == "min"      ? "_min"
                             : unit == "h"        ? "_h"
                             : unit == "m"        ? "_m"
                                                  : "";
        EXPECT_THAT(quantity.name, ::testing::EndsWith(ending)) << unit;
    }
}

TEST(Quantities, BoxesOfShaftsAndTanksAreFiner) {
    EXPECT_EQ(boxText(Quantity::StorageVolume, FacilityType::Trench, 12.345F), "12.3");
    EXPECT_EQ(boxText(Quantity::StorageVolume, FacilityType::Tank, 12.345F), "12.35");
    EXPECT_EQ(boxText(Quantity::InfiltrationArea, FacilityType::Shaft, 1234.5F), "1 234.50");
    EXPECT_EQ(boxText(Quantity::RequiredFilterPermeability, FacilityType::Shaft, 2.64e-4F), "2.6E-04");
    EXPECT_EQ(boxText(Quantity::CriticalDuration, FacilityType::Tank, 45.0F), "45");
}

TEST(Quantities, BelongToTheirTypes) {
    EXPECT_TRUE(belongsTo(Quantity::TankVolume, FacilityType::Tank));
    EXPECT_FALSE(belongsTo(Quantity::TankVolume, FacilityType::Shaft));
    EXPECT_FALSE(belongsTo(Quantity::StorageVolume, FacilityType::Surface));
    for (const FacilityType type : kFacilityTypes) {
        EXPECT_TRUE(belongsTo(Quantity::ReducedArea, type));
    }
}

}  // namespace
}  // namespace mero::design
