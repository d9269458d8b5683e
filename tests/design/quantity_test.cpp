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
    for (const FacilityType type : data::kFacilityTypes) {
        EXPECT_TRUE(belongsTo(Quantity::ReducedArea, type));
    }
}

TEST(Quantities, AreCalledAsOnTheirPanel) {
    EXPECT_STREQ(captionOf(Quantity::StorageVolume, FacilityType::Swale), "Objem akumulace průlehu");
    EXPECT_STREQ(captionOf(Quantity::StorageVolume, FacilityType::Tank), "Potřebný objem akumulace");
    EXPECT_STREQ(captionOf(Quantity::InfiltrationArea, FacilityType::Shaft), "Vsakovací plocha šachty");
    EXPECT_STREQ(captionOf(Quantity::TankVolume, FacilityType::Tank), "Objem dle rozměrů nádrže");
    EXPECT_STREQ(captionOf(Quantity::ShaftDepth, FacilityType::Shaft), "Potřebná hloubka šachty");
}

TEST(Quantities, AreLabelledAsTheReportHasIt) {
    EXPECT_STREQ(reportLabel(Quantity::InfiltrationArea, FacilityType::Shaft), "Vsakovací plocha");
    EXPECT_STREQ(reportLabel(Quantity::StorageVolume, FacilityType::Trench), "Objem akumulace průlehu");
    EXPECT_STREQ(reportLabel(Quantity::StorageVolume, FacilityType::Tank), "Potřebný objem akumulace");
}

TEST(Quantities, EachBoxOfAPanelBelongsToItsType) {
    for (const FacilityType type : data::kFacilityTypes) {
        for (const ResultBox& box : resultBoxes(type)) {
            EXPECT_TRUE(belongsTo(box.quantity, type)) << box.box;
            EXPECT_EQ(resultBox(box.quantity, type), &box) << box.box;
        }
    }
    EXPECT_EQ(controlName("txtVsakPlocha(#)", FacilityType::Shaft), "txtVsakPlocha(5)");
    EXPECT_EQ(controlName("txtVsakTok", FacilityType::Tank), "txtVsakTok");
}

}  // namespace
}  // namespace mero::design
