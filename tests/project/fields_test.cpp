// SPDX-License-Identifier: MIT
/// The table of fields: each value goes to its own place, names are suggested, missing values are found.
#include "project/fields.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

#include "project/read_project.h"

namespace mero::project {
namespace {

using design::Facility;
using design::FacilityType;
using design::ShaftShape;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Place {
    const char* path;
    std::function<float(const Inputs&)> value;
};

/// Where the number of a path belongs.
const std::vector<Place>& places() {
    static const std::vector<Place> kPlaces{
        {"rain.station", [](const Inputs& in) { return static_cast<float>(in.rain.station); }},
        {"rain.periodicity", [](const Inputs& in) { return static_cast<float>(in.rain.periodicity); }},
        {"rain.design_duration_min", [](const Inputs& in) { return in.rain.design_duration_min; }},
        {"subsoil.filtration_coefficient_m_s", [](const Inputs& in) { return in.filtration_m_s; }},
        {"subsoil.groundwater_depth_m", [](const Inputs& in) { return in.groundwater_depth_m; }},
        {"facility.safety_factor", [](const Inputs& in) { return in.facility.txtSoucBezp; }},
        {"facility.soil", [](const Inputs& in) { return static_cast<float>(in.facility.soil_option); }},
        {"facility.swale_filtration_coefficient_m_s",
         [](const Inputs& in) { return in.facility.txtSoucFiltrPruleh; }},
        {"facility.fill_porosity", [](const Inputs& in) { return in.facility.txtPorVyplne; }},
        {"facility.trench_width_m", [](const Inputs& in) { return in.facility.txtSirkaRyhy; }},
        {"facility.trench_height_m", [](const Inputs& in) { return in.facility.txtVyskaRyhy; }},
        {"facility.overflow.pipe_count",
         [](const Inputs& in) { return in.facility.overflow.txtPocetPotrubi; }},
        {"facility.overflow.pipe_outer_diameter_mm",
         [](const Inputs& in) { return in.facility.overflow.txtPrumTroubVnej; }},
        {"facility.overflow.pipe_inner_diameter_mm",
         [](const Inputs& in) { return in.facility.overflow.txtPrumTroubVnit; }},
        {"facility.overflow.throttled_outflow_l_s_ha",
         [](const Inputs& in) { return in.facility.overflow.txtSpecDrenOdtok; }},
        {"facility.drain.pipe_count", [](const Inputs& in) { return in.facility.drain.txtPocetPotrubi; }},
        {"facility.drain.pipe_outer_diameter_mm",
         [](const Inputs& in) { return in.facility.drain.txtPrumTroubVnej; }},
        {"facility.drain.pipe_inner_diameter_mm",
         [](const Inputs& in) { return in.facility.drain.txtPrumTroubVnit; }},
        {"facility.drain.outlet_area_cm2_m",
         [](const Inputs& in) { return in.facility.drain.txtVystupPlocha; }},
        {"facility.drain.outlet_velocity_m_s",
         [](const Inputs& in) { return in.facility.drain.txtVystupRychlost; }},
        {"facility.catalogue_shaft",
         [](const Inputs& in) { return static_cast<float>(in.facility.catalogue_row); }},
        {"facility.shaft_count",
         [](const Inputs& in) { return static_cast<float>(in.facility.txtSachtyCount); }},
        {"facility.inner_diameter_m", [](const Inputs& in) { return in.facility.inner_diameter_m; }},
        {"facility.inner_width_m", [](const Inputs& in) { return in.facility.inner_width_m; }},
        {"facility.inner_length_m", [](const Inputs& in) { return in.facility.txtPrumerSachtyVnej; }},
        {"facility.wall_thickness_m", [](const Inputs& in) { return in.facility.txtTloustkaSteny; }},
        {"facility.seepage_path_m", [](const Inputs& in) { return in.facility.txtMinPrusakDraha; }},
        {"facility.inlet_frost_depth_m", [](const Inputs& in) { return in.facility.txtNezamrzHlPritok; }},
        {"facility.filter_layer_m", [](const Inputs& in) { return in.facility.txtVyskaFiltrVrstvy; }},
        {"facility.sand_layer_m", [](const Inputs& in) { return in.facility.txtVyskaPiskVrstvy; }},
        {"facility.specific_infiltration_l_s_ha",
         [](const Inputs& in) { return in.facility.txtSpecMeroIntenz; }},
        {"facility.bottom_length_m", [](const Inputs& in) { return in.facility.txtDelkaDnaNadrz; }},
        {"facility.bottom_width_m", [](const Inputs& in) { return in.facility.txtSirkaDnaNadrz; }},
        {"facility.tank_depth_m", [](const Inputs& in) { return in.facility.txtHloubkaNadrz; }},
        {"facility.side_slope", [](const Inputs& in) { return in.facility.txtSklonSvahuNadrz; }},
        // Not numbers; only whether there is one.
        {"facility.type", [](const Inputs& in) { return static_cast<float>(in.facility.type); }},
        {"facility.shape", [](const Inputs& in) { return static_cast<float>(in.facility.shape); }},
        {"facility.variant", [](const Inputs& in) { return in.facility.sand_layer ? 1.0F : 0.0F; }},
        {"facility.upstream_settling",
         [](const Inputs& in) { return in.facility.upstream_settling ? 1.0F : 0.0F; }},
    };
    return kPlaces;
}

TEST(Fields, EveryValueGoesToItsOwnPlace) {
    Inputs inputs;
    float value = 11.0F;
    for (const Place& place : places()) {
        const Field* field = findField(place.path);
        ASSERT_NE(field, nullptr) << place.path;
        if (field->kind == FieldKind::Truth || choices(*field).size() == 2 ||
            std::string(place.path) == "facility.type") {
            continue;
        }
        store(*field, inputs, value++);
    }
    // A plain number of a panel that the list does not name has a place of its own, too.
    std::vector<const Field*> others;
    for (const Field& field : design::inputs()) {
        if (std::ranges::find(places(), std::string_view(field.path), &Place::path) == places().end()) {
            ASSERT_TRUE(field.kind == FieldKind::Number && field.given != nullptr) << field.path;
            others.push_back(&field);
            store(field, inputs, 1000.0F + static_cast<float>(others.size()));
        }
    }
    // Read back only now: a value that went to another's place is found there, or has been written over.
    value = 11.0F;
    for (const Place& place : places()) {
        const Field* field = findField(place.path);
        if (field->kind != FieldKind::Truth && choices(*field).size() != 2 &&
            std::string(place.path) != "facility.type") {
            EXPECT_EQ(place.value(inputs), value++) << place.path;
        }
    }
    EXPECT_TRUE(inputs.rain.picks_row);
    value = 1000.0F;
    for (const Field* field : others) {
        EXPECT_EQ(field->given(inputs.facility), ++value) << field->path;
    }
}

TEST(Fields, ChoicesAndTruthsAreStoredByTheirPosition) {
    Inputs inputs;
    const auto store = [&](const char* path, float value) {
        project::store(*findField(path), inputs, value);
    };
    store("facility.type", 0.0F);
    EXPECT_EQ(inputs.facility.type, FacilityType::Surface);
    store("facility.type", 5.0F);
    EXPECT_EQ(inputs.facility.type, FacilityType::Tank);
    store("facility.shape", 1.0F);
    EXPECT_EQ(inputs.facility.shape, ShaftShape::Rectangular);
    store("facility.shape", 0.0F);
    EXPECT_EQ(inputs.facility.shape, ShaftShape::Round);
    store("facility.variant", 1.0F);
    EXPECT_TRUE(inputs.facility.sand_layer);
    store("facility.variant", 0.0F);
    EXPECT_FALSE(inputs.facility.sand_layer);
    store("facility.upstream_settling", 1.0F);
    EXPECT_TRUE(inputs.facility.upstream_settling);
    store("facility.upstream_settling", 0.0F);
    EXPECT_FALSE(inputs.facility.upstream_settling);
    store("facility.soil", 1.0F);
    EXPECT_EQ(inputs.facility.soil_option, 1);
}

TEST(Fields, AreFoundByTheirWholePathOnly) {
    EXPECT_EQ(findField("trench_width_m"), nullptr);
    EXPECT_EQ(findField("facility"), nullptr);
    EXPECT_EQ(findField(""), nullptr);
    EXPECT_THAT(choices(*findField("facility.trench_width_m")), IsEmpty());
}

TEST(Fields, NamesAreThoseRightInTheObject) {
    EXPECT_THAT(namesIn("project"), ElementsAre("name", "designer", "investor", "site", "description"));
    EXPECT_THAT(namesIn("subsoil"),
                ElementsAre("description", "filtration_coefficient_m_s", "groundwater_depth_m"));
    EXPECT_THAT(namesIn(""), ElementsAre("$schema", "version", "project", "rain", "areas", "subsoil",
                                         "facility", "window"));
    EXPECT_THAT(namesIn("areas[]"), ElementsAre("area_m2", "runoff_coefficient", "surface"));
    EXPECT_THAT(namesIn("facility.overflow"),
                ElementsAre("pipe_count", "pipe_outer_diameter_mm", "pipe_inner_diameter_mm",
                            "throttled_outflow_l_s_ha"));
    EXPECT_THAT(namesIn("facil"), IsEmpty());
}

TEST(NearestName, IsTheOneWithTheFewestChanges) {
    const std::vector<std::string> names{"trench_width_m", "trench_height_m", "side_slope"};
    EXPECT_EQ(nearestName("trench_widht_m", names), "trench_width_m");
    EXPECT_EQ(nearestName("trench_heigth_m", names), "trench_height_m");
    EXPECT_EQ(nearestName("sideslope", names), "side_slope");
    EXPECT_EQ(nearestName("side_slope", names), "side_slope");
    EXPECT_EQ(nearestName("colour", names), "");
    EXPECT_EQ(nearestName("", names), "");
}

TEST(NearestName, ShortWordsMayDifferByTwoLettersAndLongOnesByAThird) {
    const std::vector<std::string> names{"swale"};
    EXPECT_EQ(nearestName("sale", names), "swale");
    EXPECT_EQ(nearestName("sele", names), "swale");
    EXPECT_EQ(nearestName("sel", names), "");
    const std::vector<std::string> longer{"abcdefghi"};
    EXPECT_EQ(nearestName("xyzdefghi", longer), "abcdefghi");
    EXPECT_EQ(nearestName("xyzwefghi", longer), "");
}

TEST(NearestName, ABeginningIsAsGoodAsRight) {
    const std::vector<std::string> names{"area_m", "area_m2_of_all", "catalogue_shaft"};
    EXPECT_EQ(nearestName("catalogue", names), "catalogue_shaft");
    EXPECT_EQ(nearestName("area", names), "area_m");
    EXPECT_EQ(nearestName("ca", names), "");  // two letters tell nothing
}

/// The values that are asked for one after the other until all are given.
std::vector<std::string> askedFor(const Facility& facility, std::vector<std::string> given = {}) {
    std::vector<std::string> asked;
    for (std::string missing = missingValue(facility, given); !missing.empty();
         missing = missingValue(facility, given)) {
        asked.push_back(missing);
        given.push_back(missing);
    }
    return asked;
}

Facility facilityOf(FacilityType type) {
    Facility facility;
    facility.type = type;
    return facility;
}

TEST(MissingValue, EveryTypeNeedsWhatHasNoOpeningValue) {
    EXPECT_THAT(askedFor(facilityOf(FacilityType::Surface)), IsEmpty());
    EXPECT_THAT(askedFor(facilityOf(FacilityType::Swale)), IsEmpty());
    EXPECT_THAT(askedFor(facilityOf(FacilityType::SwaleTrench)),
                ElementsAre("facility.swale_filtration_coefficient_m_s", "facility.trench_width_m",
                            "facility.trench_height_m"));
    EXPECT_THAT(askedFor(facilityOf(FacilityType::Trench)),
                ElementsAre("facility.trench_width_m", "facility.trench_height_m"));
    EXPECT_THAT(askedFor(facilityOf(FacilityType::Tank)),
                ElementsAre("facility.specific_infiltration_l_s_ha", "facility.bottom_length_m",
                            "facility.bottom_width_m", "facility.tank_depth_m", "facility.side_slope"));
}

TEST(MissingValue, AShaftNeedsTheDimensionsOfItsShape) {
    Facility shaft = facilityOf(FacilityType::Shaft);
    EXPECT_THAT(askedFor(shaft),
                ElementsAre("facility.inlet_frost_depth_m", "facility.filter_layer_m", "facility.shape",
                            "facility.wall_thickness_m", "facility.inner_diameter_m"));
    shaft.shape = ShaftShape::Rectangular;
    shaft.sand_layer = true;
    EXPECT_THAT(askedFor(shaft),
                ElementsAre("facility.inlet_frost_depth_m", "facility.filter_layer_m",
                            "facility.sand_layer_m", "facility.shape", "facility.wall_thickness_m",
                            "facility.inner_width_m", "facility.inner_length_m"));
}

TEST(MissingValue, ARingOfTheCatalogueBringsItsDimensions) {
    Facility shaft = facilityOf(FacilityType::Shaft);
    shaft.catalogue_row = 0;
    EXPECT_THAT(askedFor(shaft), ElementsAre("facility.inlet_frost_depth_m", "facility.filter_layer_m"));
    shaft.sand_layer = true;
    EXPECT_THAT(askedFor(shaft, {"facility.filter_layer_m"}),
                ElementsAre("facility.inlet_frost_depth_m", "facility.sand_layer_m"));
}

}  // namespace
}  // namespace mero::project
