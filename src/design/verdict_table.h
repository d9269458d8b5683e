// SPDX-License-Identifier: MIT
/// The one table of verdicts: codes, texts, severities, and what each speaks of.
/// It stands in a header so that a verdict's numbers are collected without a search.
#pragma once

#include "design/input_table.h"
#include "design/quantity_table.h"
#include "design/verdict.h"

namespace mero::design::table {

using enum Severity;

constexpr Subject about(Input input) {
    return {kInputs[index(input)].path, kInputs[index(input)].unit, kInputs[index(input)].stored};
}

constexpr Subject about(Quantity quantity) {
    return {kQuantities[index(quantity)].name, kQuantities[index(quantity)].unit,
            kQuantities[index(quantity)].stored};
}

/// An input of a panel that must be greater than 0; the gender of the Czech text differs.
constexpr VerdictInfo check(VerdictId id, const char* code, const char* text, Input input) {
    return {id, code, text, Refusal, {about(input)}};
}

inline constexpr std::array<VerdictInfo, kVerdictCount> kVerdicts{{
    {VerdictId::RainIntensitiesMissing, "rain_intensities_missing",
     "Nejsou zadány žádné intenzity deště. Vyberte dešťoměrnou stanici, nebo zadejte hodnoty ručně.",
     Refusal},
    {VerdictId::DrainedAreaMissing,
     "drained_area_missing",
     "Zadejte nepropustnou odvodňovanou plochu",
     Refusal,
     {about(Quantity::ReducedArea)}},
    {VerdictId::FiltrationMissing,
     "filtration_coefficient_missing",
     "Zadejte součinitel filtrace podloží",
     Refusal,
     {about(Input::Filtration)}},
    {VerdictId::DesignRainMissing,
     "design_rain_missing",
     "Intenzita návrhového deště není zadána",
     Warning,
     {about(Quantity::CriticalIntensity)},
     true},

    check(VerdictId::SwaleFiltrationNotPositive, "swale_filtration_coefficient_not_positive",
          "Součinitel filtrace průlehu je menší nebo rovna nule.", Input::SwaleFiltration),
    check(VerdictId::SafetyFactorNotPositive, "safety_factor_not_positive",
          "Součinitel bezpečnosti je menší nebo roven nule.", Input::SafetyFactor),
    check(VerdictId::FillPorosityNotPositive, "fill_porosity_not_positive",
          "Pórovitost výplně je menší nebo rovna nule.", Input::FillPorosity),
    check(VerdictId::TrenchHeightNotPositive, "trench_height_not_positive",
          "Výška rýhy je menší nebo rovna nule.", Input::TrenchHeight),
    check(VerdictId::TrenchWidthNotPositive, "trench_width_not_positive",
          "Šířka rýhy je menší nebo rovna nule.", Input::TrenchWidth),
    check(VerdictId::InletDepthNotPositive, "inlet_frost_depth_not_positive",
          "Nezámrzná hloubka přítoku je menší nebo rovna nule.", Input::InletDepth),
    check(VerdictId::FilterLayerNotPositive, "filter_layer_not_positive",
          "Výška filtrační vrstvy je menší nebo rovna nule.", Input::FilterLayer),
    {VerdictId::InnerDiameterNotPositive,
     "inner_diameter_not_positive",
     "Vnitřní průměr šachty je menší nebo rovna nule.",
     Refusal,
     {about(Quantity::ShaftInnerDiameter)}},
    {VerdictId::OuterDiameterNotPositive,
     "outer_diameter_not_positive",
     "Vnější průměr šachty je menší nebo rovna nule.",
     Refusal,
     {about(Quantity::ShaftOuterDiameter)}},
    check(VerdictId::SeepagePathNotPositive, "seepage_path_not_positive",
          "Minimální průsaková dráha je menší nebo rovna nule.", Input::SeepagePath),
    check(VerdictId::SandLayerNotPositive, "sand_layer_not_positive",
          "Výška pískové vrstvy je menší nebo rovna nule.", Input::SandLayer),
    check(VerdictId::SpecificInfiltrationNotPositive, "specific_infiltration_not_positive",
          "Specifická vsakovací intenzita je menší nebo rovna nule.", Input::SpecificInfiltration),
    check(VerdictId::BottomLengthNotPositive, "bottom_length_not_positive",
          "Délka dna nádrže je menší nebo rovna nule.", Input::BottomLength),
    check(VerdictId::BottomWidthNotPositive, "bottom_width_not_positive",
          "Šířka dna nádrže je menší nebo rovna nule.", Input::BottomWidth),
    check(VerdictId::TankDepthNotPositive, "tank_depth_not_positive",
          "Hloubka nádrže je menší nebo rovna nule.", Input::TankDepth),
    check(VerdictId::SideSlopeNegative, "side_slope_negative", "Sklon svahů nádrže je menší než nula.",
          Input::SideSlope),
    {VerdictId::ShaftOuterDiameterTooSmall,
     "shaft_outer_diameter_too_small",
     "Vnější průměr šachty je menší než vnitřní průměr.",
     Refusal,
     {about(Quantity::ShaftOuterDiameter), about(Quantity::ShaftInnerDiameter)}},

    {VerdictId::InfiltrationAreaMissing,
     "infiltration_area_missing",
     "Není zadána odvodňovaná plocha.",
     Refusal,
     {about(Quantity::InfiltrationArea)},
     true},
    {VerdictId::SwaleTrenchAreaSufficient,
     "swale_trench_area_sufficient",
     "Navržená vsakovací plocha je dostatečná ( %1 < %2 ).",
     Information,
     {about(Quantity::InfiltrationArea), about(Quantity::TrenchLength), about(Quantity::SwaleWidth)}},
    {VerdictId::SwaleTrenchAreaInsufficient,
     "swale_trench_area_insufficient",
     "Navržená vsakovací plocha je nedostatečná ( %1 > %2 ).",
     Warning,
     {about(Quantity::InfiltrationArea), about(Quantity::TrenchLength), about(Quantity::SwaleWidth)}},
    // These two texts end without a full stop.
    {VerdictId::DrainOutflowMet,
     "drain_outflow_met",
     "Podmínka výstupního odtoku je splněna. ( %1 > %2 )",
     Information,
     {about(Quantity::DrainOutflow), about(Quantity::DrainInflow)}},
    {VerdictId::DrainOutflowNotMet,
     "drain_outflow_not_met",
     "Není splněna podmínka výstupního odtoku. ( %1 < %2 )",
     Warning,
     {about(Quantity::DrainOutflow), about(Quantity::DrainInflow)}},
    {VerdictId::ShaftGroundwaterTooHigh,
     "shaft_groundwater_too_high",
     "Min. hloubka maximální hladiny podzemní vody je překročena.  Zvolte větší průměr šachty či jejich "
     "počet a opakujte výpočet.",
     Warning,
     {about(Input::Groundwater), about(Quantity::RequiredGroundwaterDepth)}},
    {VerdictId::ShaftBottomTooClose,
     "shaft_bottom_too_close",
     "Dno šachty je vzdáleno méně než 0.5 m od hladiny podzemní vody. Zvolte menší výšku filtru.",
     Warning,
     {about(Quantity::ShaftDepth), about(Quantity::RequiredGroundwaterDepth), about(Input::FilterLayer)}},
    {VerdictId::ShaftFilterSufficient,
     "shaft_filter_sufficient",
     "Potřebná propustnost filtru je dostačující.",
     Information,
     {about(Quantity::RequiredFilterPermeability)}},
    {VerdictId::ShaftFilterTooPermeable,
     "shaft_filter_too_permeable",
     "Potřebná propustnost filtru je příliš vysoká. Zvolte větší průměr šachty či jejich počet a opakujte "
     "výpočet.",
     Warning,
     {about(Quantity::RequiredFilterPermeability)}},
    {VerdictId::TankVolumeSufficient,
     "tank_volume_sufficient",
     "Objem nádrže je dostačující.",
     Information,
     {about(Quantity::TankVolume), about(Quantity::StorageVolume)}},
    {VerdictId::TankVolumeTooSmall,
     "tank_volume_too_small",
     "Vypočítaný objem nádrže je menší než nutná akumulace. Zvětšete rozměry nádrže.",
     Warning,
     {about(Quantity::TankVolume), about(Quantity::StorageVolume)}},
    {VerdictId::TankInfiltrationProven,
     "tank_infiltration_proven",
     "Průkaz předpokladu vsakovacího toku je v pořádku.",
     Information,
     {about(Quantity::InfiltrationFlow), about(Quantity::Filtration)}},
    {VerdictId::TankInfiltrationExceeded,
     "tank_infiltration_exceeded",
     "Vsakovací tok přesahuje průměrný vsakovací tok.",
     Warning,
     {about(Quantity::InfiltrationFlow), about(Quantity::Filtration)}},

    // Their texts are the descriptions of the errors.
    {VerdictId::ErrorInvalidCall, "runtime_error_5", "", Refusal},
    {VerdictId::ErrorOverflow, "runtime_error_6", "", Refusal},
    {VerdictId::ErrorSubscript, "runtime_error_9", "", Refusal},
    {VerdictId::ErrorDivisionByZero, "runtime_error_11", "", Refusal},

    {VerdictId::RunoffCoefficientMissing,
     "runoff_coefficient_missing",
     "Vyberte odtokový součinitel",
     Warning,
     {},
     true},
    {VerdictId::PartialAreaMissing, "partial_area_missing", "Zadejte dílčí plochu", Warning, {}, true},
    {VerdictId::TechnologyNotChosen, "technology_not_chosen", "Není vybrána technologie", Warning},
}};

constexpr bool verdictsInOrder() {
    for (std::size_t i = 0; i < kVerdicts.size(); ++i) {
        if (index(kVerdicts[i].id) != i) {
            return false;
        }
    }
    return true;
}
static_assert(verdictsInOrder(), "a verdict is found by its id");

/// The verdict with the numbers that it speaks of.
[[nodiscard]] inline Verdict verdict(VerdictId id, const data::DesignNumbers& numbers) {
    Verdict verdict{.id = id, .values = {}};
    const auto& about = kVerdicts[index(id)].about;
    for (std::size_t i = 0; i < about.size(); ++i) {
        if (about[i].stored != nullptr) {
            verdict.values[i] = numbers.*about[i].stored;
        }
    }
    return verdict;
}

}  // namespace mero::design::table
