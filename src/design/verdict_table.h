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

/// A verdict about inputs and quantities.
template <typename... About>
constexpr VerdictInfo row(VerdictId id, const char* code, const char* text, Severity severity,
                          About... speaks_of) {
    return {id, code, text, severity, {about(speaks_of)...}};
}

/// The box of this one is titled "Chyba".
constexpr VerdictInfo titled(VerdictInfo info) {
    info.titled_error = true;
    return info;
}

inline constexpr std::array<VerdictInfo, kVerdictCount> kVerdicts{{
    row(VerdictId::RainIntensitiesMissing, "rain_intensities_missing",
        "Nejsou zadány žádné intenzity deště. Vyberte dešťoměrnou stanici, nebo zadejte hodnoty ručně.",
        Refusal),
    row(VerdictId::DrainedAreaMissing, "drained_area_missing", "Zadejte nepropustnou odvodňovanou plochu",
        Refusal, Quantity::ReducedArea),
    row(VerdictId::FiltrationMissing, "filtration_coefficient_missing", "Zadejte součinitel filtrace podloží",
        Refusal, Input::Filtration),
    titled(row(VerdictId::DesignRainMissing, "design_rain_missing", "Intenzita návrhového deště není zadána",
               Warning, Quantity::CriticalIntensity)),

    // The gender of these texts differs with the input.
    row(VerdictId::SwaleFiltrationNotPositive, "swale_filtration_coefficient_not_positive",
        "Součinitel filtrace průlehu je menší nebo rovna nule.", Refusal, Input::SwaleFiltration),
    row(VerdictId::SafetyFactorNotPositive, "safety_factor_not_positive",
        "Součinitel bezpečnosti je menší nebo roven nule.", Refusal, Input::SafetyFactor),
    row(VerdictId::FillPorosityNotPositive, "fill_porosity_not_positive",
        "Pórovitost výplně je menší nebo rovna nule.", Refusal, Input::FillPorosity),
    row(VerdictId::TrenchHeightNotPositive, "trench_height_not_positive",
        "Výška rýhy je menší nebo rovna nule.", Refusal, Input::TrenchHeight),
    row(VerdictId::TrenchWidthNotPositive, "trench_width_not_positive",
        "Šířka rýhy je menší nebo rovna nule.", Refusal, Input::TrenchWidth),
    row(VerdictId::InletDepthNotPositive, "inlet_frost_depth_not_positive",
        "Nezámrzná hloubka přítoku je menší nebo rovna nule.", Refusal, Input::InletDepth),
    row(VerdictId::FilterLayerNotPositive, "filter_layer_not_positive",
        "Výška filtrační vrstvy je menší nebo rovna nule.", Refusal, Input::FilterLayer),
    row(VerdictId::InnerDiameterNotPositive, "inner_diameter_not_positive",
        "Vnitřní průměr šachty je menší nebo rovna nule.", Refusal, Quantity::ShaftInnerDiameter),
    row(VerdictId::OuterDiameterNotPositive, "outer_diameter_not_positive",
        "Vnější průměr šachty je menší nebo rovna nule.", Refusal, Quantity::ShaftOuterDiameter),
    row(VerdictId::SeepagePathNotPositive, "seepage_path_not_positive",
        "Minimální průsaková dráha je menší nebo rovna nule.", Refusal, Input::SeepagePath),
    row(VerdictId::SandLayerNotPositive, "sand_layer_not_positive",
        "Výška pískové vrstvy je menší nebo rovna nule.", Refusal, Input::SandLayer),
    row(VerdictId::SpecificInfiltrationNotPositive, "specific_infiltration_not_positive",
        "Specifická vsakovací intenzita je menší nebo rovna nule.", Refusal, Input::SpecificInfiltration),
    row(VerdictId::BottomLengthNotPositive, "bottom_length_not_positive",
        "Délka dna nádrže je menší nebo rovna nule.", Refusal, Input::BottomLength),
    row(VerdictId::BottomWidthNotPositive, "bottom_width_not_positive",
        "Šířka dna nádrže je menší nebo rovna nule.", Refusal, Input::BottomWidth),
    row(VerdictId::TankDepthNotPositive, "tank_depth_not_positive",
        "Hloubka nádrže je menší nebo rovna nule.", Refusal, Input::TankDepth),
    row(VerdictId::SideSlopeNegative, "side_slope_negative", "Sklon svahů nádrže je menší než nula.", Refusal,
        Input::SideSlope),
    row(VerdictId::ShaftOuterDiameterTooSmall, "shaft_outer_diameter_too_small",
        "Vnější průměr šachty je menší než vnitřní průměr.", Refusal, Quantity::ShaftOuterDiameter,
        Quantity::ShaftInnerDiameter),

    titled(row(VerdictId::InfiltrationAreaMissing, "infiltration_area_missing",
               "Není zadána odvodňovaná plocha.", Refusal, Quantity::InfiltrationArea)),
    row(VerdictId::SwaleTrenchAreaSufficient, "swale_trench_area_sufficient",
        "Navržená vsakovací plocha je dostatečná ( %1 < %2 ).", Information, Quantity::InfiltrationArea,
        Quantity::TrenchLength, Quantity::SwaleWidth),
    row(VerdictId::SwaleTrenchAreaInsufficient, "swale_trench_area_insufficient",
        "Navržená vsakovací plocha je nedostatečná ( %1 > %2 ).", Warning, Quantity::InfiltrationArea,
        Quantity::TrenchLength, Quantity::SwaleWidth),
    // These two texts end without a full stop.
    row(VerdictId::DrainOutflowMet, "drain_outflow_met", "Podmínka výstupního odtoku je splněna. ( %1 > %2 )",
        Information, Quantity::DrainOutflow, Quantity::DrainInflow),
    row(VerdictId::DrainOutflowNotMet, "drain_outflow_not_met",
        "Není splněna podmínka výstupního odtoku. ( %1 < %2 )", Warning, Quantity::DrainOutflow,
        Quantity::DrainInflow),
    row(VerdictId::ShaftGroundwaterTooHigh, "shaft_groundwater_too_high",
        "Min. hloubka maximální hladiny podzemní vody je překročena.  Zvolte větší průměr šachty či jejich "
        "počet a opakujte výpočet.",
        Warning, Input::Groundwater, Quantity::RequiredGroundwaterDepth),
    row(VerdictId::ShaftBottomTooClose, "shaft_bottom_too_close",
        "Dno šachty je vzdáleno méně než 0.5 m od hladiny podzemní vody. Zvolte menší výšku filtru.", Warning,
        Quantity::ShaftDepth, Quantity::RequiredGroundwaterDepth, Input::FilterLayer),
    row(VerdictId::ShaftFilterSufficient, "shaft_filter_sufficient",
        "Potřebná propustnost filtru je dostačující.", Information, Quantity::RequiredFilterPermeability),
    row(VerdictId::ShaftFilterTooPermeable, "shaft_filter_too_permeable",
        "Potřebná propustnost filtru je příliš vysoká. Zvolte větší průměr šachty či jejich počet a opakujte "
        "výpočet.",
        Warning, Quantity::RequiredFilterPermeability),
    row(VerdictId::TankVolumeSufficient, "tank_volume_sufficient", "Objem nádrže je dostačující.",
        Information, Quantity::TankVolume, Quantity::StorageVolume),
    row(VerdictId::TankVolumeTooSmall, "tank_volume_too_small",
        "Vypočítaný objem nádrže je menší než nutná akumulace. Zvětšete rozměry nádrže.", Warning,
        Quantity::TankVolume, Quantity::StorageVolume),
    row(VerdictId::TankInfiltrationProven, "tank_infiltration_proven",
        "Průkaz předpokladu vsakovacího toku je v pořádku.", Information, Quantity::InfiltrationFlow,
        Quantity::Filtration),
    row(VerdictId::TankInfiltrationExceeded, "tank_infiltration_exceeded",
        "Vsakovací tok přesahuje průměrný vsakovací tok.", Warning, Quantity::InfiltrationFlow,
        Quantity::Filtration),

    // Their texts are the descriptions of the errors.
    row(VerdictId::ErrorInvalidCall, "runtime_error_5", "", Refusal),
    row(VerdictId::ErrorOverflow, "runtime_error_6", "", Refusal),
    row(VerdictId::ErrorSubscript, "runtime_error_9", "", Refusal),
    row(VerdictId::ErrorDivisionByZero, "runtime_error_11", "", Refusal),

    titled(row(VerdictId::RunoffCoefficientMissing, "runoff_coefficient_missing",
               "Vyberte odtokový součinitel", Warning)),
    titled(row(VerdictId::PartialAreaMissing, "partial_area_missing", "Zadejte dílčí plochu", Warning)),
    row(VerdictId::TechnologyNotChosen, "technology_not_chosen", "Není vybrána technologie", Warning),
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
