// SPDX-License-Identifier: MIT
/// The one table of results, and the boxes of each panel that show them.
/// It stands in a header so that the design without a window is compiled for each quantity.
#pragma once

#include "design/quantity.h"

namespace mero::design::table {

using enum FacilityType;
using data::DesignNumbers;

inline constexpr std::array<QuantityInfo, kQuantityCount> kQuantities{{
    {Quantity::ReducedArea, "reduced_area_m2", "Celková odvodňovaná plocha", "m²",
     &DesignNumbers::RedukovanaPlocha},
    {Quantity::Filtration, "filtration_used_m_s", kSubsoilFiltration, "m/s", &DesignNumbers::txtSoucFiltrace},
    {Quantity::Inflow, "inflow_l_s", "Odtok do vsakovacího zařízení", "l/s", &DesignNumbers::txtOdtokDoVsak},
    {Quantity::CriticalDuration, "critical_duration_min", "Doba trvání rozhodujícího deště", "min",
     &DesignNumbers::VybranaDoba},
    {Quantity::CriticalIntensity, "critical_intensity_l_s_ha", "Intenzita rozhodujícího deště", "l/(s.ha)",
     &DesignNumbers::VybranaIntenzita},
    {Quantity::InfiltrationArea, "infiltration_area_m2", "Plocha potřebná pro vsakování", "m²",
     &DesignNumbers::txtVsakPlocha, "Vsakovací plocha", true},
    {Quantity::StorageVolume, "storage_volume_m3", "Objem akumulace", "m³", &DesignNumbers::txtObjAkum},
    {Quantity::WaterDepth, "water_depth_m", "Výška vzdutí", "m", &DesignNumbers::txtVyskaVzduti},
    {Quantity::EmptyingTime, "emptying_time_h", "Doba prázdnění průlehu", "h",
     &DesignNumbers::txtDobaPrazdneni},
    {Quantity::TrenchLength, "trench_length_m", "Délka vsakovací rýhy", "m", &DesignNumbers::txtDelkaRyhy},
    {Quantity::SwaleDepth, "swale_depth_m", "Hloubka průlehu (výška vzdutí)", "m",
     &DesignNumbers::txtHloubkaPrulehu},
    {Quantity::SwaleWidth, "swale_width_m", "Šířka průlehu", "m", &DesignNumbers::txtSirkaPrulehu},
    {Quantity::StorageCoefficient, "storage_coefficient",
     "Celkový součinitel akumulace vsakovací rýhy (vč. příp. trouby)", "", &DesignNumbers::s_RR},
    {Quantity::ThrottledOutflow, "throttled_outflow_m3_s", "Škrcený odtok", "m³/s", &DesignNumbers::Q_dr},
    {Quantity::DrainInflow, "drain_inflow_l_s", "Přítok do rýhy", "l/s", &DesignNumbers::drain_inflow_l_s},
    {Quantity::DrainOutflow, "drain_outflow_l_s", "Výstupní odtok", "l/s", &DesignNumbers::drain_outflow_l_s},
    {Quantity::ShaftInnerDiameter, "shaft_inner_diameter_m", "Vnitřní průměr šachty", "m",
     &DesignNumbers::D_i},
    {Quantity::ShaftOuterDiameter, "shaft_outer_diameter_m", "Vnější průměr šachty", "m",
     &DesignNumbers::D_a},
    {Quantity::ShaftDepth, "shaft_depth_m", "Potřebná hloubka šachty", "m", &DesignNumbers::txtHloubkaSachty},
    {Quantity::RequiredGroundwaterDepth, "required_groundwater_depth_m", "Min. hloubka hladiny podzemní vody",
     "m", &DesignNumbers::txtPotrHloubkaZahl, "Min. hloubka podzemní vody", true},
    {Quantity::RequiredFilterPermeability, "required_filter_permeability_m_s",
     "Součinitel filtrace náplně filtru", "m/s", &DesignNumbers::txtSoucFiltrPruleh,
     "Potřebný součinitel filtrace filtru", true},
    {Quantity::InfiltrationFlow, "infiltration_flow_m3_s", "Vsakovací tok", "m³/s",
     &DesignNumbers::txtVsakTok},
    {Quantity::TankVolume, "tank_volume_m3", "Objem dle rozměrů nádrže", "m³",
     &DesignNumbers::txtVypObjNadrz},
    {Quantity::TankTopLength, "tank_top_length_m", "Délka nádrže v koruně", "m",
     &DesignNumbers::tank_top_length_m},
    {Quantity::TankTopWidth, "tank_top_width_m", "Šířka nádrže v koruně", "m",
     &DesignNumbers::tank_top_width_m},
}};

constexpr bool inOrder() {
    for (std::size_t i = 0; i < kQuantities.size(); ++i) {
        if (index(kQuantities[i].quantity) != i) {
            return false;
        }
    }
    return true;
}
static_assert(inOrder(), "a quantity is found by its number");

inline constexpr const char* kSwaleVolume = "Objem akumulace průlehu";

/// The boxes of a panel from top to bottom.
template <FacilityType type>
inline constexpr std::array<ResultBox, 0> kBoxes{};
template <>
inline constexpr std::array<ResultBox, 1> kBoxes<Surface>{{
    {Quantity::InfiltrationArea, "txtVsakPlocha(#)", 1, "0"},
}};
template <>
inline constexpr std::array<ResultBox, 4> kBoxes<Swale>{{
    {Quantity::InfiltrationArea, "txtVsakPlocha(#)", 1, ""},
    {Quantity::StorageVolume, "txtObjAkum(#)", 1, "", kSwaleVolume},
    {Quantity::WaterDepth, "txtVyskaVzduti(#)", 2, ""},
    {Quantity::EmptyingTime, "txtDobaPrazdneni(#)", 1, ""},
}};
template <>
inline constexpr std::array<ResultBox, 6> kBoxes<SwaleTrench>{{
    {Quantity::InfiltrationArea, "txtVsakPlocha(#)", 1, ""},
    {Quantity::StorageVolume, "txtObjAkum(#)", 1, "", kSwaleVolume},
    {Quantity::TrenchLength, "txtDelkaRyhy(#)", 1, ""},
    {Quantity::SwaleWidth, "txtSirkaPrulehu(#)", 2, ""},
    {Quantity::SwaleDepth, "txtHloubkaPrulehu(#)", 2, ""},
    {Quantity::EmptyingTime, "txtDobaPrazdneni(#)", 1, ""},
}};
template <>
inline constexpr std::array<ResultBox, 4> kBoxes<Trench>{{
    {Quantity::StorageCoefficient, "txtSoucAkum(#)", 2},
    {Quantity::TrenchLength, "txtDelkaRyhy(#)", 1, ""},
    {Quantity::InfiltrationArea, "txtVsakPlocha(#)", 1, ""},
    // The report calls the trench's volume the swale's; its labels are a fixed interface.
    {Quantity::StorageVolume, "txtObjAkum(#)", 1, "", nullptr, kSwaleVolume},
}};
template <>
inline constexpr std::array<ResultBox, 6> kBoxes<Shaft>{{
    {Quantity::WaterDepth, "txtVyskaVzduti(#)", 2},
    {Quantity::InfiltrationArea, "txtVsakPlocha(#)", 2, nullptr, "Vsakovací plocha šachty"},
    {Quantity::StorageVolume, "txtObjAkum(#)", 2},
    {Quantity::ShaftDepth, "txtHloubkaSachty", 2},
    {Quantity::RequiredGroundwaterDepth, "txtPotrHloubkaZahl", 2},
    {Quantity::RequiredFilterPermeability, "txtSoucFiltrPruleh(#)", kScientific},
}};
template <>
inline constexpr std::array<ResultBox, 3> kBoxes<Tank>{{
    {Quantity::InfiltrationFlow, "txtVsakTok", 2},
    {Quantity::TankVolume, "txtVypObjNadrz", 2},
    {Quantity::StorageVolume, "txtObjAkum(#)", 2, nullptr, "Potřebný objem akumulace"},
}};

[[nodiscard]] constexpr std::span<const ResultBox> boxesOf(FacilityType type) {
    return data::withType(type, []<FacilityType of>() -> std::span<const ResultBox> { return kBoxes<of>; });
}

/// Results that have no box on the type's panel.
struct Unshown {
    Quantity quantity;
    FacilityType type;
};
inline constexpr std::array<Unshown, 9> kUnshown{{
    {Quantity::WaterDepth, SwaleTrench},
    {Quantity::StorageCoefficient, SwaleTrench},
    {Quantity::ThrottledOutflow, SwaleTrench},
    {Quantity::DrainInflow, Trench},
    {Quantity::DrainOutflow, Trench},
    {Quantity::ShaftInnerDiameter, Shaft},
    {Quantity::ShaftOuterDiameter, Shaft},
    {Quantity::TankTopLength, Tank},
    {Quantity::TankTopWidth, Tank},
}};

/// One bit for each quantity or each type; a number that does not fit does not compile.
using QuantitySet = std::uint32_t;
static_assert(kQuantityCount <= sizeof(QuantitySet) * 8, "a set of quantities has one bit for each");

[[nodiscard]] constexpr QuantitySet bit(Quantity quantity) {
    return QuantitySet{1} << index(quantity);
}

constexpr std::array<QuantitySet, data::kTypeSlots> findResults() {
    constexpr std::array kOfAll{Quantity::ReducedArea, Quantity::Filtration, Quantity::Inflow,
                                Quantity::CriticalDuration, Quantity::CriticalIntensity};
    std::array<QuantitySet, data::kTypeSlots> sets{};
    for (const FacilityType type : data::kFacilityTypes) {
        QuantitySet& set = sets[data::index(type)];
        for (const Quantity quantity : kOfAll) {
            set |= bit(quantity);
        }
        for (const ResultBox& box : boxesOf(type)) {
            set |= bit(box.quantity);
        }
    }
    for (const Unshown& unshown : kUnshown) {
        sets[data::index(unshown.type)] |= bit(unshown.quantity);
    }
    return sets;
}
/// The results that a facility of each type can have.
inline constexpr auto kResultsOfTypes = findResults();

constexpr std::array<std::array<int, kQuantityCount>, data::kTypeSlots> findDecimals() {
    std::array<std::array<int, kQuantityCount>, data::kTypeSlots> decimals{};
    for (std::size_t type = 0; type < data::kTypeSlots; ++type) {
        decimals[type].fill(kGeneral);
        decimals[type][index(Quantity::Inflow)] = 1;
        decimals[type][index(Quantity::Filtration)] = kScientific;
        for (const ResultBox& box : boxesOf(static_cast<FacilityType>(type))) {
            decimals[type][index(box.quantity)] = box.decimals;
        }
        for (const Unshown& unshown : kUnshown) {
            // Lengths and flows that the command line prints have two; a flow in m3/s would vanish.
            if (data::index(unshown.type) == type && unshown.quantity != Quantity::ThrottledOutflow) {
                decimals[type][index(unshown.quantity)] = 2;
            }
        }
    }
    return decimals;
}
/// Decimals by type and quantity.
inline constexpr auto kDecimals = findDecimals();

}  // namespace mero::design::table
