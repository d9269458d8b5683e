// SPDX-License-Identifier: MIT
/// A verdict as a value: its id and the numbers that it speaks of, as they were when it was given. And the
/// one table of verdicts: codes, texts, severities, what each speaks of. The rows stand in a header so that a
/// verdict's numbers are collected without a search.
#pragma once

#include <algorithm>
#include <array>
#include <functional>
#include <span>
#include <string>

#include "design/input.h"
#include "design/quantity.h"
#include "design/verdict_id.h"
#include "platform/numbers/runtime_error.h"

namespace mero::design {

/// How a message is meant, and which icon its box has.
enum class Severity : std::uint8_t { Information, Warning, Refusal };

/// An input or a quantity that a verdict speaks of.
struct Subject {
    const char* name = nullptr;  ///< of the quantity, or the path of the input
    const char* unit = "";
    float data::DesignNumbers::*stored = nullptr;
};

/// Most numbers that one verdict speaks of.
inline constexpr std::size_t kMostSubjects = 3;

struct VerdictInfo {
    VerdictId id = VerdictId::RainIntensitiesMissing;
    const char* code = "";  ///< stable: `shaft_bottom_too_close`
    /// Czech. "%1" stands for the number of comparedNumbers(), "%2" for the one that it is compared with.
    const char* text = "";
    Severity severity = Severity::Information;
    std::array<Subject, kMostSubjects> about{};  ///< ends at the first without a name
    bool titled_error = false;  ///< the box has the title "Chyba" instead of the application's
};

struct Verdict {
    VerdictId id;
    std::array<float, kMostSubjects> values;  ///< of the subjects of info(id), in their order

    friend bool operator==(const Verdict& verdict, VerdictId other) { return verdict.id == other; }
    friend bool operator==(const Verdict&, const Verdict&) = default;
};

namespace table {

using enum Severity;
using enum VerdictId;

constexpr Subject about(Input input) {
    return {kInputs[index(input)].path, kInputs[index(input)].unit, kInputs[index(input)].stored};
}

constexpr Subject about(Quantity quantity) {
    return {kQuantities[index(quantity)].name, kQuantities[index(quantity)].unit,
            kQuantities[index(quantity)].stored};
}

/// The row of a verdict about inputs and quantities.
template <typename... About>
constexpr VerdictInfo row(VerdictId id, const char* code, const char* text, Severity severity,
                          About... speaks_of) {
    return {id, code, text, severity, {about(speaks_of)...}};
}

/// The row of a check: its input must be positive.
constexpr VerdictInfo check(VerdictId id, const char* code, const char* text, auto input) {
    return row(id, code, text, Refusal, input);
}

/// The box of this one is titled "Chyba".
constexpr VerdictInfo titled(VerdictInfo info) {
    info.titled_error = true;
    return info;
}

inline constexpr std::array<VerdictInfo, kVerdictCount> kVerdicts{{
    row(RainIntensitiesMissing, "rain_intensities_missing",
        "Nejsou zadány žádné intenzity deště. Vyberte dešťoměrnou stanici, nebo zadejte hodnoty ručně.",
        Refusal),
    row(DrainedAreaMissing, "drained_area_missing", "Zadejte nepropustnou odvodňovanou plochu", Refusal,
        Quantity::ReducedArea),
    row(FiltrationMissing, "filtration_coefficient_missing", "Zadejte součinitel filtrace podloží", Refusal,
        Input::Filtration),
    titled(row(DesignRainMissing, "design_rain_missing", "Intenzita návrhového deště není zadána", Warning,
               Quantity::CriticalIntensity)),

    // The gender of these texts differs with the input.
    check(SwaleFiltrationNotPositive, "swale_filtration_coefficient_not_positive",
          "Součinitel filtrace průlehu je menší nebo rovna nule.", Input::SwaleFiltration),
    check(SafetyFactorNotPositive, "safety_factor_not_positive",
          "Součinitel bezpečnosti je menší nebo roven nule.", Input::SafetyFactor),
    check(FillPorosityNotPositive, "fill_porosity_not_positive",
          "Pórovitost výplně je menší nebo rovna nule.", Input::FillPorosity),
    check(TrenchHeightNotPositive, "trench_height_not_positive", "Výška rýhy je menší nebo rovna nule.",
          Input::TrenchHeight),
    check(TrenchWidthNotPositive, "trench_width_not_positive", "Šířka rýhy je menší nebo rovna nule.",
          Input::TrenchWidth),
    check(InletDepthNotPositive, "inlet_frost_depth_not_positive",
          "Nezámrzná hloubka přítoku je menší nebo rovna nule.", Input::InletDepth),
    check(FilterLayerNotPositive, "filter_layer_not_positive",
          "Výška filtrační vrstvy je menší nebo rovna nule.", Input::FilterLayer),
    check(InnerDiameterNotPositive, "inner_diameter_not_positive",
          "Vnitřní průměr šachty je menší nebo rovna nule.", Quantity::ShaftInnerDiameter),
    check(OuterDiameterNotPositive, "outer_diameter_not_positive",
          "Vnější průměr šachty je menší nebo rovna nule.", Quantity::ShaftOuterDiameter),
    check(SeepagePathNotPositive, "seepage_path_not_positive",
          "Minimální průsaková dráha je menší nebo rovna nule.", Input::SeepagePath),
    check(SandLayerNotPositive, "sand_layer_not_positive", "Výška pískové vrstvy je menší nebo rovna nule.",
          Input::SandLayer),
    check(SpecificInfiltrationNotPositive, "specific_infiltration_not_positive",
          "Specifická vsakovací intenzita je menší nebo rovna nule.", Input::SpecificInfiltration),
    check(BottomLengthNotPositive, "bottom_length_not_positive", "Délka dna nádrže je menší nebo rovna nule.",
          Input::BottomLength),
    check(BottomWidthNotPositive, "bottom_width_not_positive", "Šířka dna nádrže je menší nebo rovna nule.",
          Input::BottomWidth),
    check(TankDepthNotPositive, "tank_depth_not_positive", "Hloubka nádrže je menší nebo rovna nule.",
          Input::TankDepth),
    check(SideSlopeNegative, "side_slope_negative", "Sklon svahů nádrže je menší než nula.",
          Input::SideSlope),
    row(ShaftOuterDiameterTooSmall, "shaft_outer_diameter_too_small",
        "Vnější průměr šachty je menší než vnitřní průměr.", Refusal, Quantity::ShaftOuterDiameter,
        Quantity::ShaftInnerDiameter),

    titled(row(InfiltrationAreaMissing, "infiltration_area_missing", "Není zadána odvodňovaná plocha.",
               Refusal, Quantity::InfiltrationArea)),
    row(SwaleTrenchAreaSufficient, "swale_trench_area_sufficient",
        "Navržená vsakovací plocha je dostatečná ( %1 < %2 ).", Information, Quantity::InfiltrationArea,
        Quantity::TrenchLength, Quantity::SwaleWidth),
    row(SwaleTrenchAreaInsufficient, "swale_trench_area_insufficient",
        "Navržená vsakovací plocha je nedostatečná ( %1 > %2 ).", Warning, Quantity::InfiltrationArea,
        Quantity::TrenchLength, Quantity::SwaleWidth),
    // These two texts end without a full stop.
    row(DrainOutflowMet, "drain_outflow_met", "Podmínka výstupního odtoku je splněna. ( %1 > %2 )",
        Information, Quantity::DrainOutflow, Quantity::DrainInflow),
    row(DrainOutflowNotMet, "drain_outflow_not_met", "Není splněna podmínka výstupního odtoku. ( %1 < %2 )",
        Warning, Quantity::DrainOutflow, Quantity::DrainInflow),
    row(ShaftGroundwaterTooHigh, "shaft_groundwater_too_high",
        "Min. hloubka maximální hladiny podzemní vody je překročena.  Zvolte větší průměr šachty či jejich "
        "počet a opakujte výpočet.",
        Warning, Input::Groundwater, Quantity::RequiredGroundwaterDepth),
    row(ShaftBottomTooClose, "shaft_bottom_too_close",
        "Dno šachty je vzdáleno méně než 0.5 m od hladiny podzemní vody. Zvolte menší výšku filtru.", Warning,
        Quantity::ShaftDepth, Quantity::RequiredGroundwaterDepth, Input::FilterLayer),
    row(ShaftFilterSufficient, "shaft_filter_sufficient", "Potřebná propustnost filtru je dostačující.",
        Information, Quantity::RequiredFilterPermeability),
    row(ShaftFilterTooPermeable, "shaft_filter_too_permeable",
        "Potřebná propustnost filtru je příliš vysoká. Zvolte větší průměr šachty či jejich počet a opakujte "
        "výpočet.",
        Warning, Quantity::RequiredFilterPermeability),
    row(TankVolumeSufficient, "tank_volume_sufficient", "Objem nádrže je dostačující.", Information,
        Quantity::TankVolume, Quantity::StorageVolume),
    row(TankVolumeTooSmall, "tank_volume_too_small",
        "Vypočítaný objem nádrže je menší než nutná akumulace. Zvětšete rozměry nádrže.", Warning,
        Quantity::TankVolume, Quantity::StorageVolume),
    row(TankInfiltrationProven, "tank_infiltration_proven",
        "Průkaz předpokladu vsakovacího toku je v pořádku.", Information, Quantity::InfiltrationFlow,
        Quantity::Filtration),
    row(TankInfiltrationExceeded, "tank_infiltration_exceeded",
        "Vsakovací tok přesahuje průměrný vsakovací tok.", Warning, Quantity::InfiltrationFlow,
        Quantity::Filtration),

    // Their texts are the descriptions of the errors.
    row(ErrorInvalidCall, "runtime_error_5", "", Refusal),
    row(ErrorOverflow, "runtime_error_6", "", Refusal),
    row(ErrorSubscript, "runtime_error_9", "", Refusal),
    row(ErrorDivisionByZero, "runtime_error_11", "", Refusal),

    titled(
        row(RunoffCoefficientMissing, "runoff_coefficient_missing", "Vyberte odtokový součinitel", Warning)),
    titled(row(PartialAreaMissing, "partial_area_missing", "Zadejte dílčí plochu", Warning)),
    row(TechnologyNotChosen, "technology_not_chosen", "Není vybrána technologie", Warning),
}};

static_assert(std::ranges::adjacent_find(kVerdicts, std::ranges::greater_equal(), &VerdictInfo::id) ==
                  kVerdicts.end(),
              "a verdict is found by its id");

}  // namespace table

/// All verdicts in the order of their ids.
[[nodiscard]] constexpr std::span<const VerdictInfo, kVerdictCount> verdicts() {
    return table::kVerdicts;
}
[[nodiscard]] constexpr const VerdictInfo& info(VerdictId id) {
    return table::kVerdicts[index(id)];
}

/// The verdict with the numbers that it speaks of.
[[nodiscard]] inline Verdict verdict(VerdictId id, const data::DesignNumbers& numbers) {
    Verdict verdict{.id = id, .values = {}};
    for (std::size_t i = 0; i < kMostSubjects; ++i) {
        if (const auto stored = info(id).about[i].stored) {
            verdict.values[i] = numbers.*stored;
        }
    }
    return verdict;
}

/// What the verdict speaks of.
[[nodiscard]] std::span<const Subject> subjects(VerdictId id);
/// The Czech text with its numbers, without a line break at its end.
[[nodiscard]] std::string text(const Verdict& verdict);

/// The run-time error behind an id for which isRuntimeError() holds.
[[nodiscard]] ErrorNumber errorNumber(VerdictId id);
[[nodiscard]] VerdictId verdictOf(const RuntimeError& error);

}  // namespace mero::design
