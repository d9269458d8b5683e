// SPDX-License-Identifier: MIT
/// The combinations: how many, in which order, and what they need.
#include "sweep/variants.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sweep/samples.h"

namespace mero::sweep {
namespace {

using test::sampleProject;
using test::variants;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::ThrowsMessage;

TEST(Variants, TheLastVariationRunsFastest) {
    const Variants all = variants({"facility.trench_width_m=1,2", "facility.trench_height_m=1,2,3"});
    EXPECT_EQ(all.count(), 6U);
    VariantWalk walk(all, 0);
    EXPECT_THAT(walk.positions(), ElementsAre(0, 0));
    walk.next();
    EXPECT_THAT(walk.positions(), ElementsAre(0, 1));
    walk.next();
    walk.next();
    EXPECT_THAT(walk.positions(), ElementsAre(1, 0));
    EXPECT_EQ(walk.inputs().facility.txtSirkaRyhy, 2.0F);
    EXPECT_EQ(walk.inputs().facility.txtVyskaRyhy, 1.0F);
}

TEST(Variants, AWalkMayBeginAnywhere) {
    const Variants all = variants({"facility.trench_width_m=1,2", "facility.trench_height_m=1,2,3"});
    VariantWalk stepped(all, 0);
    for (std::uint64_t n = 0; n < all.count(); ++n, stepped.next()) {
        EXPECT_EQ(VariantWalk(all, n).positions(), stepped.positions());
    }
}

TEST(Variants, AnEmptyVariationListIsOneVariant) {
    EXPECT_EQ(variants({}).count(), 1U);
}

TEST(Variants, APathIsVariedOnce) {
    EXPECT_THAT(
        [] {
            static_cast<void>(variants({"facility.soil=all", "facility.soil=all"}));
        },
        ThrowsMessage<VariationError>(HasSubstr("varied twice")));
}

TEST(Variants, EveryTypeNeedsItsValues) {
    const project::Project swale = project::readProject(
        R"({"rain": {"station": 1, "periodicity": 1}, "areas": [], "subsoil": {"filtration_coefficient_m_s": 1},
            "facility": {"type": "swale"}})",
        "p.json");
    EXPECT_THAT([&] { static_cast<void>(variants({"facility.type=all"}, swale)); },
                ThrowsMessage<VariationError>(
                    HasSubstr("facility.swale_filtration_coefficient_m_s: is missing in the project")));
    // What is varied need not be in the project.
    EXPECT_EQ(
        variants({"facility.type=trench", "facility.trench_width_m=1", "facility.trench_height_m=1,2"}, swale)
            .count(),
        2U);
}

TEST(Variants, EveryCombinationOfTheDecidingChoicesNeedsItsValues) {
    const project::Project shaft = project::readProject(
        R"({"rain": {"station": 1, "periodicity": 1}, "areas": [], "subsoil": {"filtration_coefficient_m_s": 1},
            "facility": {"type": "shaft", "shape": "round", "inner_diameter_m": 1, "wall_thickness_m": 0.1,
                         "inlet_frost_depth_m": 1, "filter_layer_m": 1}})",
        "p.json");
    EXPECT_EQ(variants({"facility.wall_thickness_m=0.1,0.2"}, shaft).count(), 2U);
    EXPECT_THAT([&] { static_cast<void>(variants({"facility.variant=all"}, shaft)); },
                ThrowsMessage<VariationError>(HasSubstr("facility.sand_layer_m: is missing in the project")));
    EXPECT_EQ(variants({"facility.variant=all", "facility.sand_layer_m=0.1,0.2"}, shaft).count(), 4U);
    // Only a rectangular shaft has a width; a ring needs neither.
    EXPECT_THAT(
        [&] { static_cast<void>(variants({"facility.shape=round,rectangular"}, shaft)); },
        ThrowsMessage<VariationError>(HasSubstr("facility.inner_width_m: is missing in the project")));
    EXPECT_EQ(variants({"facility.shape=all", "facility.catalogue_shaft=all"}, shaft).count(), 36U);
}

TEST(Variants, TooManyToCountIsTold) {
    std::vector<std::string> texts;
    for (const char* name : {"trench_width_m", "trench_height_m", "fill_porosity", "safety_factor"}) {
        texts.push_back(std::string("facility.") + name + "=1:90000:1");
    }
    EXPECT_THAT([&] { static_cast<void>(variants(texts)); },
                ThrowsMessage<VariationError>(HasSubstr("more variants than can be counted")));
}

TEST(Variants, StationsAndTypesAreThoseThatOccur) {
    const project::Project project = sampleProject(R"("station": "Brno")");
    EXPECT_THAT(variants({}, project).stations(), ElementsAre(4));
    EXPECT_THAT(variants({"rain.station=Zlín,Brno"}, project).stations(), ElementsAre(91, 4));
    EXPECT_THAT(variants({}).stations(), ElementsAre());
    EXPECT_TRUE(variants({"facility.type=tank"}).hasType(design::FacilityType::Tank));
    EXPECT_FALSE(variants({"facility.type=tank"}).hasType(design::FacilityType::Trench));
    EXPECT_TRUE(variants({}).hasType(design::FacilityType::Trench));
}

}  // namespace
}  // namespace mero::sweep
