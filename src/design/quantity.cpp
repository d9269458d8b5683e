// SPDX-License-Identifier: MIT
/// Names, captions and units of the results, one row each.
/// The captions are those of the window's panels.
#include "design/quantity.h"

#include "platform/numbers/number_text.h"

namespace mero::design {
namespace {

constexpr std::uint8_t only(std::initializer_list<FacilityType> types) {
    unsigned bits = 0;
    for (const FacilityType type : types) {
        bits |= 1U << static_cast<unsigned>(type);
    }
    return static_cast<std::uint8_t>(bits);
}

using enum FacilityType;

constexpr std::uint8_t kAll = only({Surface, Swale, SwaleTrench, Trench, Shaft, Tank});
constexpr std::uint8_t kStoring = only({Swale, SwaleTrench, Trench, Shaft, Tank});
constexpr std::uint8_t kTrenches = only({SwaleTrench, Trench});
constexpr std::uint8_t kSwales = only({Swale, SwaleTrench});

constexpr std::array<QuantityInfo, kQuantityCount> kQuantities{{
    {Quantity::ReducedArea, "reduced_area_m2", "Celková odvodňovaná plocha", "m²", kGeneral, kAll},
    {Quantity::Filtration, "filtration_used_m_s", "Součinitel filtrace (kf) podloží", "m/s", kScientific,
     kAll},
    {Quantity::Inflow, "inflow_l_s", "Odtok do vsakovacího zařízení", "l/s", 1, kAll},
    {Quantity::CriticalDuration, "critical_duration_min", "Doba trvání rozhodujícího deště", "min", kGeneral,
     kAll},
    {Quantity::CriticalIntensity, "critical_intensity_l_s_ha", "Intenzita rozhodujícího deště", "l/(s.ha)",
     kGeneral, kAll},
    {Quantity::InfiltrationArea, "infiltration_area_m2", "Plocha potřebná pro vsakování", "m²", 1,
     only({Surface, Swale, SwaleTrench, Trench, Shaft})},
    {Quantity::StorageVolume, "storage_volume_m3", "Potřebný akumulační objem", "m³", 1, kStoring},
    {Quantity::WaterDepth, "water_depth_m", "Výška vzdutí", "m", 2, only({Swale, SwaleTrench, Shaft})},
    {Quantity::EmptyingTime, "emptying_time_h", "Doba prázdnění", "h", 1, kSwales},
    {Quantity::TrenchLength, "trench_length_m", "Délka rýhy", "m", 1, kTrenches},
    {Quantity::SwaleDepth, "swale_depth_m", "Hloubka průlehu (výška vzdutí)", "m", 2, only({SwaleTrench})},
    {Quantity::SwaleWidth, "swale_width_m", "Šířka průlehu", "m", 2, only({SwaleTrench})},
    {Quantity::StorageCoefficient, "storage_coefficient",
     "Celkový součinitel akumulace vsakovací rýhy (vč. příp. trouby)", "", 2, kTrenches},
    {Quantity::ThrottledOutflow, "throttled_outflow_m3_s", "Škrcený odtok", "m³/s", kGeneral,
     only({SwaleTrench})},
    {Quantity::DrainInflow, "drain_inflow_l_s", "Přítok do rýhy", "l/s", 2, only({Trench})},
    {Quantity::DrainOutflow, "drain_outflow_l_s", "Výstupní odtok", "l/s", 2, only({Trench})},
    {Quantity::ShaftInnerDiameter, "shaft_inner_diameter_m", "Vnitřní průměr šachty", "m", 2, only({Shaft})},
    {Quantity::ShaftOuterDiameter, "shaft_outer_diameter_m", "Vnější průměr šachty", "m", 2, only({Shaft})},
    {Quantity::ShaftDepth, "shaft_depth_m", "Hloubka šachty", "m", 2, only({Shaft})},
    {Quantity::RequiredGroundwaterDepth, "required_groundwater_depth_m", "Min. hloubka hladiny podzemní vody",
     "m", 2, only({Shaft})},
    {Quantity::RequiredFilterPermeability, "required_filter_permeability_m_s",
     "Součinitel filtrace náplně filtru", "m/s", kScientific, only({Shaft})},
    {Quantity::InfiltrationFlow, "infiltration_flow_m3_s", "Vsakovací tok", "m³/s", 2, only({Tank})},
    {Quantity::TankVolume, "tank_volume_m3", "Objem nádrže podle rozměrů", "m³", 2, only({Tank})},
    {Quantity::TankTopLength, "tank_top_length_m", "Délka nádrže v koruně", "m", 2, only({Tank})},
    {Quantity::TankTopWidth, "tank_top_width_m", "Šířka nádrže v koruně", "m", 2, only({Tank})},
}};

constexpr bool inOrder() {
    for (std::size_t i = 0; i < kQuantities.size(); ++i) {
        if (static_cast<std::size_t>(kQuantities[i].quantity) != i) {
            return false;
        }
    }
    return true;
}
static_assert(inOrder(), "a quantity is found by its number");

/// Shafts and tanks show areas and volumes with two decimals, the other types with one.
int decimalsOf(const QuantityInfo& quantity, FacilityType type) {
    const bool finer = type == Shaft || type == Tank;
    const bool area_or_volume =
        quantity.quantity == Quantity::InfiltrationArea || quantity.quantity == Quantity::StorageVolume;
    return finer && area_or_volume ? 2 : quantity.decimals;
}

}  // namespace

const std::array<QuantityInfo, kQuantityCount>& quantities() {
    return kQuantities;
}

const QuantityInfo& info(Quantity quantity) {
    return kQuantities[static_cast<std::size_t>(quantity)];
}

bool belongsTo(Quantity quantity, FacilityType type) {
    return (info(quantity).types >> static_cast<unsigned>(type) & 1U) != 0;
}

std::string boxText(Quantity quantity, FacilityType type, float value) {
    switch (const int decimals = decimalsOf(info(quantity), type)) {
        case kGeneral:
            return numbers::general(value);
        case kScientific:
            return numbers::scientific(value, 1);
        default:
            return numbers::fixed(value, decimals);
    }
}

}  // namespace mero::design
