// SPDX-License-Identifier: MIT
/// The one table of inputs: what they are called in a project file and in the window, in which unit, where
/// they are stored and shown, which type needs them. And the inputs of each panel.
/// The rows stand in a header so that the design without a window is compiled for each panel.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "design/facility.h"
#include "design/quantity.h"
#include "platform/numbers/typed_number.h"

namespace mero::design {

/// In the order of the project file.
enum class Input : std::uint8_t {
    Station,
    Periodicity,
    DesignDuration,
    Filtration,
    Groundwater,
    Type,
    SafetyFactor,
    Soil,
    SwaleFiltration,
    FillPorosity,
    TrenchWidth,
    TrenchHeight,
    OverflowPipeCount,
    OverflowOuterDiameter,
    OverflowInnerDiameter,
    ThrottledOutflow,
    DrainPipeCount,
    DrainOuterDiameter,
    DrainInnerDiameter,
    OutletArea,
    OutletVelocity,
    CatalogueShaft,
    Shape,
    Variant,
    ShaftCount,
    InnerDiameter,
    InnerWidth,
    InnerLength,
    WallThickness,
    SeepagePath,
    InletDepth,
    FilterLayer,
    SandLayer,
    SpecificInfiltration,
    BottomLength,
    BottomWidth,
    TankDepth,
    SideSlope,
    UpstreamSettling,
};

inline constexpr std::size_t kInputCount = static_cast<std::size_t>(Input::UpstreamSettling) + 1;

[[nodiscard]] constexpr std::size_t index(Input input) {
    return static_cast<std::size_t>(input);
}

enum class InputKind : std::uint8_t {
    Number,
    WholeNumber,
    Truth,
    Choice,       ///< one of a list of words
    Station,      ///< name or number of a rain-gauge station
    Periodicity,  ///< one of the seven periodicities
};

/// When a project file must give the value.
enum class Need : std::uint8_t {
    Optional,
    Always,
    WithSandLayer,
    WithoutRing,             ///< a shaft that is not of the catalogue
    RoundWithoutRing,        ///< the same, round
    RectangularWithoutRing,  ///< the same, rectangular
};

/// One value of a choice; its position in the list is what is stored.
struct Choice {
    const char* word = "";     ///< in a project file
    const char* caption = "";  ///< Czech, of its option
};

/// Where the number of an input is kept.
struct InputPlace {
    /// By the window; null for choices and whole numbers.
    float data::DesignNumbers::*stored = nullptr;
    /// By a project: the number, the position of the choice, or the truth as 0 or 1. Null for the inputs of
    /// the site.
    void (*give)(Facility& facility, float value) = nullptr;
    float (*given)(const Facility& facility) = nullptr;
};

struct InputInfo : InputPlace {
    Input input = Input::Station;
    const char* path = "";     ///< in a project file: "facility.trench_width_m"
    const char* caption = "";  ///< Czech, beside its box, with the colon that some captions end with
    const char* unit = "";     ///< "" for a pure number or a choice
    const char* note = "";     ///< English, for the schema of project files
    /// Name of the control, "#" for the number of the type: "txtSoucBezp(#)". "" where it is none of the
    /// main window, or a group of options.
    const char* box = "";
    Need need = Need::Optional;
    const char* reported = nullptr;  ///< label in the results report, null where it is the caption
    InputKind kind = InputKind::Number;
    std::span<const Choice> choices{};
};

/// An input on the panel of one type.
struct PanelInput {
    Input input = Input::Station;
    const char* caption = nullptr;  ///< where it differs from the input's
    bool opens_empty = false;       ///< the box opens without the text of its default
};

/// Captions of the check boxes that open the sub-panels.
inline constexpr const char* kOverflowCaption = "Přetok a škrcený odtok";
inline constexpr const char* kDrainCaption = "Drenáž";

namespace table {

using data::DesignNumbers;

// `facility .* first .* second`: the member at the end of a path of members.
template <auto... path>
void give(Facility& facility, float value) {
    auto& slot = (facility.*....*path);
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
    return static_cast<float>((facility.*....*path));
}

/// A number of the site; a choice, a truth or a whole number.
template <auto member>
inline constexpr InputPlace kOfSite{member};
template <auto member>
inline constexpr InputPlace kOption{nullptr, give<member>, given<member>};
/// A number that window and project keep under the same name; one of the overflow's or the drain's pipes.
template <auto member>
inline constexpr InputPlace kNumber{member, give<member>, given<member>};
template <auto pipes, auto member>
inline constexpr InputPlace kPipe{member, give<pipes, member>, given<pipes, member>};
/// The box of the shaft's first side, which serves both shapes.
template <auto member>
inline constexpr InputPlace kFirstSide{&DesignNumbers::txtPrumerSachtyVnit, give<member>, given<member>};
/// The type, by its position in `kTypes`.
inline constexpr InputPlace kType{
    nullptr,
    [](Facility& facility, float position) {
        facility.type = kFacilityTypes[static_cast<std::size_t>(position)];
    },
    [](const Facility& facility) { return static_cast<float>(data::index(facility.type) - 1); }};

inline constexpr const char* kOuterDiameter = "Vnější průměr vsakovací trouby";
inline constexpr const char* kInnerDiameter = "Vnitřní průměr vsakovací trouby";

// The window shows the texts of `TypyZasakovani`.
inline constexpr std::array<Choice, kFacilityTypes.size()> kTypes{
    {{"surface", ""}, {"swale", ""}, {"swale_trench", ""}, {"trench", ""}, {"shaft", ""}, {"tank", ""}}};
inline constexpr std::array<Choice, 2> kSoils{
    {{"medium_to_fine_sand", "Písek střední až jemný"}, {"silt_and_sand", "Slit a písek, slit"}}};
inline constexpr std::array<Choice, 2> kShapes{{{"round", "kruhový"}, {"rectangular", "pravoúhlý"}}};
inline constexpr std::array<Choice, 2> kVariants{{{"type_a", "typ A"}, {"type_b", "typ B"}}};

using enum Input;
using enum Need;
using enum FacilityType;

// Place, input, path, caption, unit, note, box, need, label in the report, kind, choices.
inline constexpr std::array<InputInfo, kInputCount> kInputs{{
    {InputPlace(), Station, "rain.station", "Stanice", "", "name or number of a rain-gauge station", "",
     Optional, nullptr, InputKind::Station},
    {InputPlace(), Periodicity, "rain.periodicity", "Periodicita", "1/rok", "rain events per year", "",
     Always, nullptr, InputKind::Periodicity},
    {kOfSite<&DesignNumbers::VybranaDoba>, DesignDuration, "rain.design_duration_min", "Doba trvání deště",
     "min", "the row that is picked as design rain, by its duration", "txtSelDTrvDeste"},
    {kOfSite<&DesignNumbers::txtSoucFiltrace>, Filtration, "subsoil.filtration_coefficient_m_s",
     kSubsoilFiltration, "m/s", "filtration coefficient kf", "txtSoucFiltrace", Always,
     "Součinitel filtrace podloží"},
    {kOfSite<&DesignNumbers::txtHPV>, Groundwater, "subsoil.groundwater_depth_m",
     "Hladina podzemní vody (pod povrchem)", "m",
     "depth of the groundwater below the surface; 0 for not known", "txtHPV", Optional,
     "Hladina podzemní vody"},

    {kType, Type, "facility.type", "Typ vsakování", "", "", "cboSelType", Always, nullptr, InputKind::Choice,
     kTypes},
    {kNumber<&Facility::txtSoucBezp>, SafetyFactor, "facility.safety_factor", "Součinitel bezpečnosti", "",
     "safety factor", "txtSoucBezp(#)"},
    {kOption<&Facility::soil_option>, Soil, "facility.soil", "Typ půdy", "",
     "soil of the swale; decides the share of the drained area (types swale, swale_trench)", "", Optional,
     nullptr, InputKind::Choice, kSoils},
    {kNumber<&Facility::txtSoucFiltrPruleh>, SwaleFiltration, "facility.swale_filtration_coefficient_m_s",
     "Součinitel filtrace (kf) průlehu", "m/s",
     "filtration coefficient of the swale's soil (type swale_trench)", "txtSoucFiltrPruleh(#)", Always,
     "Součinitel filtrace průlehu"},
    {kNumber<&Facility::txtPorVyplne>, FillPorosity, "facility.fill_porosity", "Pórovitost výplně rýhy", "",
     "porosity of the trench fill (types swale_trench, trench)", "txtPorVyplne(#)"},
    {kNumber<&Facility::txtSirkaRyhy>, TrenchWidth, "facility.trench_width_m", "Šířka rýhy (střední)", "m",
     "mean width of the trench", "txtSirkaRyhy(#)", Always},
    {kNumber<&Facility::txtVyskaRyhy>, TrenchHeight, "facility.trench_height_m", "Výška rýhy", "m",
     "height of the trench", "txtVyskaRyhy(#)", Always},

    {kPipe<&Facility::overflow, &Pipes::txtPocetPotrubi>, OverflowPipeCount, "facility.overflow.pipe_count",
     "Počet potrubí", "", "number of pipes", "txtPocetPotrubi(#)"},
    {kPipe<&Facility::overflow, &Pipes::txtPrumTroubVnej>, OverflowOuterDiameter,
     "facility.overflow.pipe_outer_diameter_mm", kOuterDiameter, "mm", "outer diameter of a pipe",
     "txtPrumTroubVnej(#)"},
    {kPipe<&Facility::overflow, &Pipes::txtPrumTroubVnit>, OverflowInnerDiameter,
     "facility.overflow.pipe_inner_diameter_mm", kInnerDiameter, "mm", "inner diameter of a pipe",
     "txtPrumTroubVnit(#)"},
    {kPipe<&Facility::overflow, &Pipes::txtSpecDrenOdtok>, ThrottledOutflow,
     "facility.overflow.throttled_outflow_l_s_ha", "Škrcená odtoková intenzita", "l/(s.ha)",
     "throttled outflow per hectare of the reduced area", "txtSpecDrenOdtok(#)"},
    {kPipe<&Facility::drain, &Pipes::txtPocetPotrubi>, DrainPipeCount, "facility.drain.pipe_count",
     "Počet potrubí", "", "number of pipes", "txtPocetPotrubi(#)"},
    {kPipe<&Facility::drain, &Pipes::txtPrumTroubVnej>, DrainOuterDiameter,
     "facility.drain.pipe_outer_diameter_mm", kOuterDiameter, "mm", "outer diameter of a pipe",
     "txtPrumTroubVnej(#)"},
    {kPipe<&Facility::drain, &Pipes::txtPrumTroubVnit>, DrainInnerDiameter,
     "facility.drain.pipe_inner_diameter_mm", kInnerDiameter, "mm", "inner diameter of a pipe",
     "txtPrumTroubVnit(#)"},
    {kPipe<&Facility::drain, &Pipes::txtVystupPlocha>, OutletArea, "facility.drain.outlet_area_cm2_m",
     "Výstupní plocha", "cm²/m", "outlet openings of a pipe, per metre", "txtVystupPlocha(#)"},
    {kPipe<&Facility::drain, &Pipes::txtVystupRychlost>, OutletVelocity, "facility.drain.outlet_velocity_m_s",
     "Výstupní rychlost", "m/s", "velocity in the openings", "txtVystupRychlost(#)"},

    // Its words are the designations of the catalogue.
    {kOption<&Facility::catalogue_row>, CatalogueShaft, "facility.catalogue_shaft", "Šachta z katalogu:", "",
     "a shaft of the catalogue; replaces shape and dimensions (type shaft)", "cboTypSachty", Optional,
     "Typ šachty", InputKind::Choice},
    {kOption<&Facility::shape>, Shape, "facility.shape", "Tvar šachty:", "", "", "", WithoutRing, nullptr,
     InputKind::Choice, kShapes},
    {kOption<&Facility::sand_layer>, Variant, "facility.variant", "Typ šachty:", "",
     "type_b has a sand layer", "", Optional, nullptr, InputKind::Choice, kVariants},
    {kOption<&Facility::txtSachtyCount>, ShaftCount, "facility.shaft_count", "Počet šachet:", "",
     "number of shafts", "txtSachtyCount", Optional, nullptr, InputKind::WholeNumber},
    {kFirstSide<&Facility::inner_diameter_m>, InnerDiameter, "facility.inner_diameter_m", "DN / Šířka", "m",
     "inner diameter of a round shaft", "txtPrumerSachtyVnit", RoundWithoutRing},
    {kFirstSide<&Facility::inner_width_m>, InnerWidth, "facility.inner_width_m", "DN / Šířka", "m",
     "inner width of a rectangular shaft", "txtPrumerSachtyVnit", RectangularWithoutRing, "Šířka šachty"},
    {kNumber<&Facility::txtPrumerSachtyVnej>, InnerLength, "facility.inner_length_m", "Délka", "m",
     "inner length of a rectangular shaft", "txtPrumerSachtyVnej", RectangularWithoutRing, "Délka šachty"},
    {kNumber<&Facility::txtTloustkaSteny>, WallThickness, "facility.wall_thickness_m", "Tloušťka", "m",
     "wall thickness of the shaft", "txtTloustkaSteny", WithoutRing, "Tloušťka stěny"},
    {kNumber<&Facility::txtMinPrusakDraha>, SeepagePath, "facility.seepage_path_m",
     "Minimální průsaková dráha", "m", "minimum seepage path", "txtMinPrusakDraha"},
    {kNumber<&Facility::txtNezamrzHlPritok>, InletDepth, "facility.inlet_frost_depth_m",
     "Nezámrzná hloubka přitoku", "m", "frost-free depth of the inlet", "txtNezamrzHlPritok", Always,
     "Nezámrzná hloubka přítoku"},
    {kNumber<&Facility::txtVyskaFiltrVrstvy>, FilterLayer, "facility.filter_layer_m",
     "Výška filtrační vrstvy", "m", "height of the filter layer", "txtVyskaFiltrVrstvy", Always},
    {kNumber<&Facility::txtVyskaPiskVrstvy>, SandLayer, "facility.sand_layer_m",
     "Vrstva písku/jemného štěrku", "m", "height of the sand layer (variant type_b)", "txtVyskaPiskVrstvy",
     WithSandLayer, "Výška vrstvy písku/jem. štěrku"},

    {kNumber<&Facility::txtSpecMeroIntenz>, SpecificInfiltration, "facility.specific_infiltration_l_s_ha",
     "Specifická vsakovací intenzita", "l/s.ha", "specific infiltration intensity of the tank",
     "txtSpecMeroIntenz", Always},
    {kNumber<&Facility::txtDelkaDnaNadrz>, BottomLength, "facility.bottom_length_m", "Délka dna nádrže", "m",
     "length of the tank's bottom", "txtDelkaDnaNadrz", Always},
    {kNumber<&Facility::txtSirkaDnaNadrz>, BottomWidth, "facility.bottom_width_m", "Šířka dna nádrže", "m",
     "width of the tank's bottom", "txtSirkaDnaNadrz", Always},
    {kNumber<&Facility::txtHloubkaNadrz>, TankDepth, "facility.tank_depth_m", "Hloubka nádrže", "m",
     "depth of the tank", "txtHloubkaNadrz", Always},
    {kNumber<&Facility::txtSklonSvahuNadrz>, SideSlope, "facility.side_slope", "Sklon svahů nádrže", "1 : n",
     "side slope of the tank, the n of 1 : n", "txtSklonSvahuNadrz", Always},
    {kOption<&Facility::upstream_settling>, UpstreamSettling, "facility.upstream_settling",
     "Předsazené usazování", "", "settling before the tank", "chkPredUsaz", Optional, nullptr,
     InputKind::Truth},
}};
static_assert(std::ranges::adjacent_find(kInputs, std::ranges::greater_equal(), &InputInfo::input) ==
                  kInputs.end(),
              "an input is found by its number");

constexpr auto panel(auto... inputs) {
    return std::array<PanelInput, sizeof...(inputs)>{PanelInput{inputs}...};
}

template <FacilityType type>
inline constexpr auto kPanel = panel();
template <>
inline constexpr auto kPanel<Surface> = panel(SafetyFactor);
template <>
inline constexpr auto kPanel<Swale> = panel(Soil, SafetyFactor);
template <>
inline constexpr auto kPanel<SwaleTrench> = panel(PanelInput{Soil, "Typ půdy:"}, SwaleFiltration,
                                                  SafetyFactor, FillPorosity, TrenchWidth, TrenchHeight,
                                                  OverflowPipeCount, OverflowOuterDiameter,
                                                  OverflowInnerDiameter, ThrottledOutflow);
template <>
inline constexpr auto kPanel<Trench> = panel(SafetyFactor, PanelInput{FillPorosity, nullptr, true},
                                             TrenchWidth, TrenchHeight, DrainPipeCount, DrainOuterDiameter,
                                             DrainInnerDiameter, OutletArea, OutletVelocity);
template <>
inline constexpr auto kPanel<Shaft> = panel(Shape, Variant, CatalogueShaft, ShaftCount, InnerDiameter,
                                            InnerWidth, InnerLength, WallThickness, InletDepth, SeepagePath,
                                            FilterLayer, SandLayer, SafetyFactor);
template <>
inline constexpr auto kPanel<Tank> = panel(BottomLength, BottomWidth, TankDepth, SideSlope,
                                           SpecificInfiltration, SafetyFactor, UpstreamSettling);

}  // namespace table

/// All inputs in their order.
[[nodiscard]] constexpr std::span<const InputInfo, kInputCount> inputs() {
    return table::kInputs;
}
[[nodiscard]] constexpr const InputInfo& info(Input input) {
    return table::kInputs[index(input)];
}
/// The inputs of the type's panel from top to bottom, those of its sub-panel at the end.
[[nodiscard]] std::span<const PanelInput> panelInputs(FacilityType type);
/// Is it on the sub-panel of the overflow or of the drain?
[[nodiscard]] constexpr bool isOfSubPanel(Input input) {
    return input >= Input::OverflowPipeCount && input <= Input::OutletVelocity;
}
/// Is the panel calculated while its inputs change? Then it has no button.
[[nodiscard]] constexpr bool isLive(FacilityType type) {
    return type == FacilityType::Surface || type == FacilityType::Swale;
}
/// What its box takes from a person. Filtration coefficients may be typed with an exponent.
[[nodiscard]] numbers::NumberField fieldOf(Input input);
/// The text of the box when the window opens.
[[nodiscard]] std::string openingText(const PanelInput& input);

/// A caption of a box without the colon at its end.
[[nodiscard]] constexpr std::string_view withoutColon(std::string_view caption) {
    return caption.substr(0, caption.size() - (caption.ends_with(':') ? 1 : 0));
}
[[nodiscard]] constexpr std::string_view captionOf(Input input) {
    return withoutColon(info(input).caption);
}
/// The label in the results report.
[[nodiscard]] constexpr std::string_view reportLabel(Input input) {
    return info(input).reported == nullptr ? captionOf(input) : info(input).reported;
}

}  // namespace mero::design
