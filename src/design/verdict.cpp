// SPDX-License-Identifier: MIT
/// Codes and texts of the verdicts, one row each.
/// Gender and wording of the input checks differ from one to the next; they are what users know.
#include "design/verdict.h"

namespace mero::design {
namespace {

using enum Severity;

constexpr std::array<VerdictInfo, kVerdictCount> kVerdicts{{
    {Verdict::RainIntensitiesMissing, "rain_intensities_missing",
     "Nejsou zadány žádné intenzity deště. Vyberte dešťoměrnou stanici, nebo zadejte hodnoty ručně.",
     Refusal},
    {Verdict::DrainedAreaMissing, "drained_area_missing", "Zadejte nepropustnou odvodňovanou plochu",
     Refusal},
    {Verdict::FiltrationMissing, "filtration_coefficient_missing", "Zadejte součinitel filtrace podloží",
     Refusal},
    {Verdict::DesignRainMissing, "design_rain_missing", "Intenzita návrhového deště není zadána", Warning,
     true},

    {Verdict::SwaleFiltrationNotPositive, "swale_filtration_coefficient_not_positive",
     "Součinitel filtrace průlehu je menší nebo rovna nule.", Refusal},
    {Verdict::SafetyFactorNotPositive, "safety_factor_not_positive",
     "Součinitel bezpečnosti je menší nebo roven nule.", Refusal},
    {Verdict::FillPorosityNotPositive, "fill_porosity_not_positive",
     "Pórovitost výplně je menší nebo rovna nule.", Refusal},
    {Verdict::TrenchHeightNotPositive, "trench_height_not_positive", "Výška rýhy je menší nebo rovna nule.",
     Refusal},
    {Verdict::TrenchWidthNotPositive, "trench_width_not_positive", "Šířka rýhy je menší nebo rovna nule.",
     Refusal},
    {Verdict::InletDepthNotPositive, "inlet_frost_depth_not_positive",
     "Nezámrzná hloubka přítoku je menší nebo rovna nule.", Refusal},
    {Verdict::FilterLayerNotPositive, "filter_layer_not_positive",
     "Výška filtrační vrstvy je menší nebo rovna nule.", Refusal},
    {Verdict::InnerDiameterNotPositive, "inner_diameter_not_positive",
     "Vnitřní průměr šachty je menší nebo rovna nule.", Refusal},
    {Verdict::OuterDiameterNotPositive, "outer_diameter_not_positive",
     "Vnější průměr šachty je menší nebo rovna nule.", Refusal},
    {Verdict::SeepagePathNotPositive, "seepage_path_not_positive",
     "Minimální průsaková dráha je menší nebo rovna nule.", Refusal},
    {Verdict::SandLayerNotPositive, "sand_layer_not_positive",
     "Výška pískové vrstvy je menší nebo rovna nule.", Refusal},
    {Verdict::SpecificInfiltrationNotPositive, "specific_infiltration_not_positive",
     "Specifická vsakovací intenzita je menší nebo rovna nule.", Refusal},
    {Verdict::BottomLengthNotPositive, "bottom_length_not_positive",
     "Délka dna nádrže je menší nebo rovna nule.", Refusal},
    {Verdict::BottomWidthNotPositive, "bottom_width_not_positive",
     "Šířka dna nádrže je menší nebo rovna nule.", Refusal},
    {Verdict::TankDepthNotPositive, "tank_depth_not_positive", "Hloubka nádrže je menší nebo rovna nule.",
     Refusal},
    {Verdict::SideSlopeNegative, "side_slope_negative", "Sklon svahů nádrže je menší než nula.", Refusal},
    {Verdict::ShaftOuterDiameterTooSmall, "shaft_outer_diameter_too_small",
     "Vnější průměr šachty je menší než vnitřní průměr.", Refusal},

    {Verdict::InfiltrationAreaMissing, "infiltration_area_missing", "Není zadána odvodňovaná plocha.",
     Refusal, true},
    {Verdict::SwaleTrenchAreaSufficient, "swale_trench_area_sufficient", "", Information},
    {Verdict::SwaleTrenchAreaInsufficient, "swale_trench_area_insufficient", "", Warning},
    {Verdict::DrainOutflowMet, "drain_outflow_met", "", Information},
    {Verdict::DrainOutflowNotMet, "drain_outflow_not_met", "", Warning},
    {Verdict::ShaftGroundwaterTooHigh, "shaft_groundwater_too_high",
     "Min. hloubka maximální hladiny podzemní vody je překročena.  Zvolte větší průměr šachty či jejich "
     "počet "
     "a opakujte výpočet.",
     Warning},
    {Verdict::ShaftBottomTooClose, "shaft_bottom_too_close",
     "Dno šachty je vzdáleno méně než 0.5 m od hladiny podzemní vody. Zvolte menší výšku filtru.", Warning},
    {Verdict::ShaftFilterSufficient, "shaft_filter_sufficient", "Potřebná propustnost filtru je dostačující.",
     Information},
    {Verdict::ShaftFilterTooPermeable, "shaft_filter_too_permeable",
     "Potřebná propustnost filtru je příliš vysoká. Zvolte větší průměr šachty či jejich počet a opakujte "
     "výpočet.",
     Warning},
    {Verdict::TankVolumeSufficient, "tank_volume_sufficient", "Objem nádrže je dostačující.", Information},
    {Verdict::TankVolumeTooSmall, "tank_volume_too_small",
     "Vypočítaný objem nádrže je menší než nutná akumulace. Zvětšete rozměry nádrže.", Warning},
    {Verdict::TankInfiltrationProven, "tank_infiltration_proven",
     "Průkaz předpokladu vsakovacího toku je v pořádku.", Information},
    {Verdict::TankInfiltrationExceeded, "tank_infiltration_exceeded",
     "Vsakovací tok přesahuje průměrný vsakovací tok.", Warning},

    {Verdict::ErrorInvalidCall, "runtime_error_5", "", Refusal},
    {Verdict::ErrorOverflow, "runtime_error_6", "", Refusal},
    {Verdict::ErrorSubscript, "runtime_error_9", "", Refusal},
    {Verdict::ErrorDivisionByZero, "runtime_error_11", "", Refusal},
}};

constexpr bool inOrder() {
    for (std::size_t i = 0; i < kVerdicts.size(); ++i) {
        if (static_cast<std::size_t>(kVerdicts[i].verdict) != i) {
            return false;
        }
    }
    return true;
}
static_assert(inOrder(), "a verdict is found by its number");

}  // namespace

const std::array<VerdictInfo, kVerdictCount>& verdicts() {
    return kVerdicts;
}

const VerdictInfo& info(Verdict verdict) {
    return kVerdicts[static_cast<std::size_t>(verdict)];
}

ErrorNumber errorNumber(Verdict verdict) {
    switch (verdict) {
        case Verdict::ErrorOverflow:
            return ErrorNumber::Overflow;
        case Verdict::ErrorSubscript:
            return ErrorNumber::SubscriptOutOfRange;
        case Verdict::ErrorDivisionByZero:
            return ErrorNumber::DivisionByZero;
        default:
            return ErrorNumber::InvalidCall;
    }
}

Verdict verdictOf(const RuntimeError& error) {
    if (error.is(ErrorNumber::Overflow)) {
        return Verdict::ErrorOverflow;
    }
    if (error.is(ErrorNumber::DivisionByZero)) {
        return Verdict::ErrorDivisionByZero;
    }
    return error.is(ErrorNumber::SubscriptOutOfRange) ? Verdict::ErrorSubscript : Verdict::ErrorInvalidCall;
}

}  // namespace mero::design
