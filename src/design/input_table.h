// SPDX-License-Identifier: MIT
/// The one table of inputs, and the inputs of each panel.
/// It stands in a header so that the design without a window is compiled for each panel.
#pragma once

#include <type_traits>

#include "design/input.h"
#include "design/quantity.h"

namespace mero::design::table {

/// The member at the end of a path of members.
template <auto first, auto... rest>
constexpr auto& follow(auto& object) {
    if constexpr (sizeof...(rest) == 0) {
        return object.*first;
    } else {
        return follow<rest...>(object.*first);
    }
}

template <auto... path>
void give(Facility& facility, float value) {
    auto& slot = follow<path...>(facility);
    using Slot = std::remove_reference_t<decltype(slot)>;
    if constexpr (std::is_same_v<Slot, bool>) {
        slot = value != 0.0F;
    } else if constexpr (std::is_enum_v<Slot>) {
        slot = static_cast<Slot>(static_cast<int>(value));
    } else {
        slot = static_cast<Slot>(value);
    }
}

template <auto... path>
float given(const Facility& facility) {
    return static_cast<float>(follow<path...>(facility));
}

/// What a row says of an input besides where it is stored.
struct Row {
    const char* path;
    const char* caption;
    const char* unit;
    const char* note;
    const char* box;
    Need need = Need::Optional;
    const char* reported = nullptr;
    InputKind kind = InputKind::Number;
    std::span<const Choice> choices{};
};

constexpr InputInfo row(Input input, const Row& row, float data::DesignNumbers::*stored,
                        void (*give)(Facility&, float), float (*given)(const Facility&)) {
    return {input,  row.path, row.kind, row.caption, row.unit,    row.note,    row.box,
            stored, give,     given,    row.need,    row.choices, row.reported};
}

/// An input of the site, which a project keeps beside the facility.
constexpr InputInfo ofSite(Input input, const Row& of, float data::DesignNumbers::*stored = nullptr) {
    return row(input, of, stored, nullptr, nullptr);
}

/// A choice, a truth or a whole number, or a number that the window keeps under another name.
template <auto member>
constexpr InputInfo other(Input input, const Row& of, float data::DesignNumbers::*stored = nullptr) {
    return row(input, of, stored, give<member>, given<member>);
}

/// A number that project and window keep under the same name.
template <auto member>
constexpr InputInfo number(Input input, const char* path, const char* caption, const char* unit,
                           const char* note, const char* box, Need need = Need::Optional,
                           const char* reported = nullptr) {
    return other<member>(input, {path, caption, unit, note, box, need, reported}, member);
}

/// A number of the overflow's or the drain's pipes.
template <auto pipes, auto member>
constexpr InputInfo pipe(Input input, const char* path, const char* caption, const char* unit,
                         const char* note, const char* box) {
    return row(input, {path, caption, unit, note, box}, member, give<pipes, member>, given<pipes, member>);
}

inline void giveType(Facility& facility, float position) {
    facility.type = kFacilityTypes[static_cast<std::size_t>(position)];
}

inline float givenType(const Facility& facility) {
    return static_cast<float>(data::index(facility.type) - 1);
}

// The window shows the texts of `TypyZasakovani`.
inline constexpr std::array<Choice, kFacilityTypes.size()> kTypes{
    {{"surface", ""}, {"swale", ""}, {"swale_trench", ""}, {"trench", ""}, {"shaft", ""}, {"tank", ""}}};
inline constexpr std::array<Choice, 2> kSoils{{
    {"medium_to_fine_sand", "Písek střední až jemný"},
    {"silt_and_sand", "Slit a písek, slit"},
}};
inline constexpr std::array<Choice, 2> kShapes{{{"round", "kruhový"}, {"rectangular", "pravoúhlý"}}};
inline constexpr std::array<Choice, 2> kVariants{{{"type_a", "typ A"}, {"type_b", "typ B"}}};

using data::DesignNumbers;
using data::FacilityInputs;
using data::PipeInputs;

inline constexpr const char* kPipeCount = "Počet potrubí";
inline constexpr const char* kOuterDiameter = "Vnější průměr vsakovací trouby";
inline constexpr const char* kInnerDiameter = "Vnitřní průměr vsakovací trouby";
inline constexpr const char* kShaftSide = "DN / Šířka";

// Path, caption, unit, note, box, need, label in the report.
inline constexpr std::array<InputInfo, kInputCount> kInputs{{
    ofSite(Input::Station, {.path = "rain.station",
                            .caption = "Stanice",
                            .unit = "",
                            .note = "name or number of a rain-gauge station",
                            .box = "",
                            .kind = InputKind::Station}),
    ofSite(Input::Periodicity, {.path = "rain.periodicity",
                                .caption = "Periodicita",
                                .unit = "1/rok",
                                .note = "rain events per year",
                                .box = "",
                                .need = Need::Always,
                                .kind = InputKind::Periodicity}),
    ofSite(Input::DesignDuration,
           {"rain.design_duration_min", "Doba trvání deště", "min",
            "the row that is picked as design rain, by its duration", "txtSelDTrvDeste"},
           &DesignNumbers::VybranaDoba),
    ofSite(Input::Filtration,
           {"subsoil.filtration_coefficient_m_s", kSubsoilFiltration, "m/s", "filtration coefficient kf",
            "txtSoucFiltrace", Need::Always, "Součinitel filtrace podloží"},
           &DesignNumbers::txtSoucFiltrace),
    ofSite(Input::Groundwater,
           {"subsoil.groundwater_depth_m", "Hladina podzemní vody (pod povrchem)", "m",
            "depth of the groundwater below the surface; 0 for not known", "txtHPV", Need::Optional,
            "Hladina podzemní vody"},
           &DesignNumbers::txtHPV),

    row(Input::Type,
        {.path = "facility.type",
         .caption = "Typ vsakování",
         .unit = "",
         .note = "",
         .box = "cboSelType",
         .need = Need::Always,
         .kind = InputKind::Choice,
         .choices = kTypes},
        nullptr, giveType, givenType),
    number<&FacilityInputs::txtSoucBezp>(Input::SafetyFactor, "facility.safety_factor",
                                         "Součinitel bezpečnosti", "", "safety factor", "txtSoucBezp(#)"),
    other<&Facility::soil_option>(
        Input::Soil,
        {.path = "facility.soil",
         .caption = "Typ půdy",
         .unit = "",
         .note = "soil of the swale; decides the share of the drained area (types swale, swale_trench)",
         .box = "",
         .kind = InputKind::Choice,
         .choices = kSoils}),
    number<&FacilityInputs::txtSoucFiltrPruleh>(
        Input::SwaleFiltration, "facility.swale_filtration_coefficient_m_s",
        "Součinitel filtrace (kf) průlehu", "m/s",
        "filtration coefficient of the swale's soil (type swale_trench)", "txtSoucFiltrPruleh(#)",
        Need::Always, "Součinitel filtrace průlehu"),
    number<&FacilityInputs::txtPorVyplne>(
        Input::FillPorosity, "facility.fill_porosity", "Pórovitost výplně rýhy", "",
        "porosity of the trench fill (types swale_trench, trench)", "txtPorVyplne(#)"),
    number<&FacilityInputs::txtSirkaRyhy>(Input::TrenchWidth, "facility.trench_width_m",
                                          "Šířka rýhy (střední)", "m", "mean width of the trench",
                                          "txtSirkaRyhy(#)", Need::Always),
    number<&FacilityInputs::txtVyskaRyhy>(Input::TrenchHeight, "facility.trench_height_m", "Výška rýhy", "m",
                                          "height of the trench", "txtVyskaRyhy(#)", Need::Always),

    pipe<&Facility::overflow, &PipeInputs::txtPocetPotrubi>(Input::OverflowPipeCount,
                                                            "facility.overflow.pipe_count", kPipeCount, "",
                                                            "number of pipes", "txtPocetPotrubi(#)"),
    pipe<&Facility::overflow, &PipeInputs::txtPrumTroubVnej>(
        Input::OverflowOuterDiameter, "facility.overflow.pipe_outer_diameter_mm", kOuterDiameter, "mm",
        "outer diameter of a pipe", "txtPrumTroubVnej(#)"),
    pipe<&Facility::overflow, &PipeInputs::txtPrumTroubVnit>(
        Input::OverflowInnerDiameter, "facility.overflow.pipe_inner_diameter_mm", kInnerDiameter, "mm",
        "inner diameter of a pipe", "txtPrumTroubVnit(#)"),
    pipe<&Facility::overflow, &PipeInputs::txtSpecDrenOdtok>(
        Input::ThrottledOutflow, "facility.overflow.throttled_outflow_l_s_ha", "Škrcená odtoková intenzita",
        "l/(s.ha)", "throttled outflow per hectare of the reduced area", "txtSpecDrenOdtok(#)"),

    pipe<&Facility::drain, &PipeInputs::txtPocetPotrubi>(Input::DrainPipeCount, "facility.drain.pipe_count",
                                                         kPipeCount, "", "number of pipes",
                                                         "txtPocetPotrubi(#)"),
    pipe<&Facility::drain, &PipeInputs::txtPrumTroubVnej>(
        Input::DrainOuterDiameter, "facility.drain.pipe_outer_diameter_mm", kOuterDiameter, "mm",
        "outer diameter of a pipe", "txtPrumTroubVnej(#)"),
    pipe<&Facility::drain, &PipeInputs::txtPrumTroubVnit>(
        Input::DrainInnerDiameter, "facility.drain.pipe_inner_diameter_mm", kInnerDiameter, "mm",
        "inner diameter of a pipe", "txtPrumTroubVnit(#)"),
    pipe<&Facility::drain, &PipeInputs::txtVystupPlocha>(
        Input::OutletArea, "facility.drain.outlet_area_cm2_m", "Výstupní plocha", "cm²/m",
        "outlet openings of a pipe, per metre", "txtVystupPlocha(#)"),
    pipe<&Facility::drain, &PipeInputs::txtVystupRychlost>(
        Input::OutletVelocity, "facility.drain.outlet_velocity_m_s", "Výstupní rychlost", "m/s",
        "velocity in the openings", "txtVystupRychlost(#)"),

    // Its words are the designations of the catalogue.
    other<&Facility::catalogue_row>(Input::CatalogueShaft,
                                    {"facility.catalogue_shaft", "Šachta z katalogu:", "",
                                     "a shaft of the catalogue; replaces shape and dimensions (type shaft)",
                                     "cboTypSachty", Need::Optional, "Typ šachty", InputKind::Choice}),
    other<&Facility::shape>(Input::Shape, {"facility.shape", "Tvar šachty:", "", "", "", Need::WithoutRing,
                                           nullptr, InputKind::Choice, kShapes}),
    other<&Facility::sand_layer>(
        Input::Variant, {"facility.variant", "Typ šachty:", "", "type_b has a sand layer", "", Need::Optional,
                         nullptr, InputKind::Choice, kVariants}),
    other<&Facility::txtSachtyCount>(
        Input::ShaftCount, {"facility.shaft_count", "Počet šachet:", "", "number of shafts", "txtSachtyCount",
                            Need::Optional, nullptr, InputKind::WholeNumber}),
    other<&Facility::inner_diameter_m>(
        Input::InnerDiameter,
        {"facility.inner_diameter_m", kShaftSide, "m", "inner diameter of a round shaft",
         "txtPrumerSachtyVnit", Need::RoundWithoutRing},
        &DesignNumbers::txtPrumerSachtyVnit),
    other<&Facility::inner_width_m>(
        Input::InnerWidth,
        {"facility.inner_width_m", kShaftSide, "m", "inner width of a rectangular shaft",
         "txtPrumerSachtyVnit", Need::RectangularWithoutRing, "Šířka šachty"},
        &DesignNumbers::txtPrumerSachtyVnit),
    number<&FacilityInputs::txtPrumerSachtyVnej>(Input::InnerLength, "facility.inner_length_m", "Délka", "m",
                                                 "inner length of a rectangular shaft", "txtPrumerSachtyVnej",
                                                 Need::RectangularWithoutRing, "Délka šachty"),
    number<&FacilityInputs::txtTloustkaSteny>(Input::WallThickness, "facility.wall_thickness_m", "Tloušťka",
                                              "m", "wall thickness of the shaft", "txtTloustkaSteny",
                                              Need::WithoutRing, "Tloušťka stěny"),
    number<&FacilityInputs::txtMinPrusakDraha>(Input::SeepagePath, "facility.seepage_path_m",
                                               "Minimální průsaková dráha", "m", "minimum seepage path",
                                               "txtMinPrusakDraha"),
    number<&FacilityInputs::txtNezamrzHlPritok>(
        Input::InletDepth, "facility.inlet_frost_depth_m", "Nezámrzná hloubka přitoku", "m",
        "frost-free depth of the inlet", "txtNezamrzHlPritok", Need::Always, "Nezámrzná hloubka přítoku"),
    number<&FacilityInputs::txtVyskaFiltrVrstvy>(Input::FilterLayer, "facility.filter_layer_m",
                                                 "Výška filtrační vrstvy", "m", "height of the filter layer",
                                                 "txtVyskaFiltrVrstvy", Need::Always),
    number<&FacilityInputs::txtVyskaPiskVrstvy>(
        Input::SandLayer, "facility.sand_layer_m", "Vrstva písku/jemného štěrku", "m",
        "height of the sand layer (variant type_b)", "txtVyskaPiskVrstvy", Need::WithSandLayer,
        "Výška vrstvy písku/jem. štěrku"),

    number<&FacilityInputs::txtSpecMeroIntenz>(
        Input::SpecificInfiltration, "facility.specific_infiltration_l_s_ha",
        "Specifická vsakovací intenzita", "l/s.ha", "specific infiltration intensity of the tank",
        "txtSpecMeroIntenz", Need::Always),
    number<&FacilityInputs::txtDelkaDnaNadrz>(Input::BottomLength, "facility.bottom_length_m",
                                              "Délka dna nádrže", "m", "length of the tank's bottom",
                                              "txtDelkaDnaNadrz", Need::Always),
    number<&FacilityInputs::txtSirkaDnaNadrz>(Input::BottomWidth, "facility.bottom_width_m",
                                              "Šířka dna nádrže", "m", "width of the tank's bottom",
                                              "txtSirkaDnaNadrz", Need::Always),
    number<&FacilityInputs::txtHloubkaNadrz>(Input::TankDepth, "facility.tank_depth_m", "Hloubka nádrže", "m",
                                             "depth of the tank", "txtHloubkaNadrz", Need::Always),
    number<&FacilityInputs::txtSklonSvahuNadrz>(Input::SideSlope, "facility.side_slope", "Sklon svahů nádrže",
                                                "1 : n", "side slope of the tank, the n of 1 : n",
                                                "txtSklonSvahuNadrz", Need::Always),
    other<&Facility::upstream_settling>(
        Input::UpstreamSettling,
        {"facility.upstream_settling", "Předsazené usazování", "", "settling before the tank", "chkPredUsaz",
         Need::Optional, nullptr, InputKind::Truth}),
}};

constexpr bool inputsInOrder() {
    for (std::size_t i = 0; i < kInputs.size(); ++i) {
        if (index(kInputs[i].input) != i) {
            return false;
        }
    }
    return true;
}
static_assert(inputsInOrder(), "an input is found by its number");

template <FacilityType type>
inline constexpr std::array<PanelInput, 0> kPanel{};
template <>
inline constexpr std::array<PanelInput, 1> kPanel<FacilityType::Surface>{{
    {Input::SafetyFactor},
}};
template <>
inline constexpr std::array<PanelInput, 2> kPanel<FacilityType::Swale>{{
    {Input::Soil},
    {Input::SafetyFactor},
}};
template <>
inline constexpr std::array<PanelInput, 10> kPanel<FacilityType::SwaleTrench>{{
    {Input::Soil, "Typ půdy:"},
    {Input::SwaleFiltration},
    {Input::SafetyFactor},
    {Input::FillPorosity},
    {Input::TrenchWidth},
    {Input::TrenchHeight},
    {Input::OverflowPipeCount},
    {Input::OverflowOuterDiameter},
    {Input::OverflowInnerDiameter},
    {Input::ThrottledOutflow},
}};
template <>
inline constexpr std::array<PanelInput, 9> kPanel<FacilityType::Trench>{{
    {Input::SafetyFactor},
    {Input::FillPorosity, nullptr, true},
    {Input::TrenchWidth},
    {Input::TrenchHeight},
    {Input::DrainPipeCount},
    {Input::DrainOuterDiameter},
    {Input::DrainInnerDiameter},
    {Input::OutletArea},
    {Input::OutletVelocity},
}};
template <>
inline constexpr std::array<PanelInput, 13> kPanel<FacilityType::Shaft>{{
    {Input::Shape},
    {Input::Variant},
    {Input::CatalogueShaft},
    {Input::ShaftCount},
    // One box serves both shapes.
    {Input::InnerDiameter},
    {Input::InnerWidth},
    {Input::InnerLength},
    {Input::WallThickness},
    {Input::InletDepth},
    {Input::SeepagePath},
    {Input::FilterLayer},
    {Input::SandLayer},
    {Input::SafetyFactor},
}};
template <>
inline constexpr std::array<PanelInput, 7> kPanel<FacilityType::Tank>{{
    {Input::BottomLength},
    {Input::BottomWidth},
    {Input::TankDepth},
    {Input::SideSlope},
    {Input::SpecificInfiltration},
    {Input::SafetyFactor},
    {Input::UpstreamSettling},
}};

[[nodiscard]] constexpr bool ofSubPanel(Input input) {
    return input >= Input::OverflowPipeCount && input <= Input::OutletVelocity;
}

}  // namespace mero::design::table
