// SPDX-License-Identifier: MIT
/// The one table of results: what they are called, in which unit, where they are stored and shown. And the
/// boxes of each panel that show them.
/// The rows stand in a header so that the design without a window is compiled for each quantity.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "data/design_numbers.h"
#include "data/facility_type.h"

namespace mero::design {

using data::FacilityType;

/// In the order of the columns of a sweep.
enum class Quantity : std::uint8_t {
    ReducedArea,
    Filtration,
    Inflow,
    CriticalDuration,
    CriticalIntensity,
    InfiltrationArea,
    StorageVolume,
    WaterDepth,
    EmptyingTime,
    TrenchLength,
    SwaleDepth,
    SwaleWidth,
    StorageCoefficient,
    ThrottledOutflow,
    DrainInflow,
    DrainOutflow,
    ShaftInnerDiameter,
    ShaftOuterDiameter,
    ShaftDepth,
    RequiredGroundwaterDepth,
    RequiredFilterPermeability,
    InfiltrationFlow,
    TankVolume,
    TankTopLength,
    TankTopWidth,
};

inline constexpr std::size_t kQuantityCount = static_cast<std::size_t>(Quantity::TankTopWidth) + 1;

[[nodiscard]] constexpr std::size_t index(Quantity quantity) {
    return static_cast<std::size_t>(quantity);
}

/// Decimals of a number that is shown otherwise.
inline constexpr int kScientific = -1;  ///< the pattern "0.0E+00"
inline constexpr int kGeneral = -2;     ///< the shortest text: a value without a box
inline constexpr int kNoResult = -3;    ///< a facility of the type has no such result

/// Caption of the subsoil's coefficient, which is an input and, rounded by its field, a result.
inline constexpr const char* kSubsoilFiltration = "Součinitel filtrace (kf) podloží";

struct QuantityInfo {
    Quantity quantity = Quantity::ReducedArea;
    const char* name = "";     ///< in JSON and CSV, with the unit: `storage_volume_m3`
    const char* caption = "";  ///< Czech, beside its box
    const char* unit = "";     ///< as it is printed, "" for a pure number
    float data::DesignNumbers::*stored = nullptr;
    const char* reported = nullptr;  ///< label in the results report, null where it is the caption
    /// The field has a change rule: what it shows is read back and stored.
    bool stores_back = false;
};

/// A box of a panel that shows a result.
struct ResultBox {
    Quantity quantity = Quantity::ReducedArea;
    const char* box = "";  ///< name of the control; an array has one member for each type
    int decimals = 0;      ///< fixed decimals, or kScientific
    /// Text of the box when the type is chosen; null: the choice leaves the box as it is.
    const char* cleared_text = nullptr;
    // Where this type's differ from the quantity's.
    const char* caption = nullptr;
    const char* reported = nullptr;
};

namespace table {

using enum FacilityType;
using data::DesignNumbers;

inline constexpr auto kQuantities = [] {
    using enum Quantity;
    return std::array<QuantityInfo, kQuantityCount>{{
        {ReducedArea, "reduced_area_m2", "Celková odvodňovaná plocha", "m²",
         &DesignNumbers::RedukovanaPlocha},
        {Filtration, "filtration_used_m_s", kSubsoilFiltration, "m/s", &DesignNumbers::txtSoucFiltrace},
        {Inflow, "inflow_l_s", "Odtok do vsakovacího zařízení", "l/s", &DesignNumbers::txtOdtokDoVsak},
        {CriticalDuration, "critical_duration_min", "Doba trvání rozhodujícího deště", "min",
         &DesignNumbers::VybranaDoba},
        {CriticalIntensity, "critical_intensity_l_s_ha", "Intenzita rozhodujícího deště", "l/(s.ha)",
         &DesignNumbers::VybranaIntenzita},
        {InfiltrationArea, "infiltration_area_m2", "Plocha potřebná pro vsakování", "m²",
         &DesignNumbers::txtVsakPlocha, "Vsakovací plocha", true},
        {StorageVolume, "storage_volume_m3", "Objem akumulace", "m³", &DesignNumbers::txtObjAkum},
        {WaterDepth, "water_depth_m", "Výška vzdutí", "m", &DesignNumbers::txtVyskaVzduti},
        {EmptyingTime, "emptying_time_h", "Doba prázdnění průlehu", "h", &DesignNumbers::txtDobaPrazdneni},
        {TrenchLength, "trench_length_m", "Délka vsakovací rýhy", "m", &DesignNumbers::txtDelkaRyhy},
        {SwaleDepth, "swale_depth_m", "Hloubka průlehu (výška vzdutí)", "m",
         &DesignNumbers::txtHloubkaPrulehu},
        {SwaleWidth, "swale_width_m", "Šířka průlehu", "m", &DesignNumbers::txtSirkaPrulehu},
        {StorageCoefficient, "storage_coefficient",
         "Celkový součinitel akumulace vsakovací rýhy (vč. příp. trouby)", "", &DesignNumbers::s_RR},
        {ThrottledOutflow, "throttled_outflow_m3_s", "Škrcený odtok", "m³/s", &DesignNumbers::Q_dr},
        {DrainInflow, "drain_inflow_l_s", "Přítok do rýhy", "l/s", &DesignNumbers::drain_inflow_l_s},
        {DrainOutflow, "drain_outflow_l_s", "Výstupní odtok", "l/s", &DesignNumbers::drain_outflow_l_s},
        {ShaftInnerDiameter, "shaft_inner_diameter_m", "Vnitřní průměr šachty", "m", &DesignNumbers::D_i},
        {ShaftOuterDiameter, "shaft_outer_diameter_m", "Vnější průměr šachty", "m", &DesignNumbers::D_a},
        {ShaftDepth, "shaft_depth_m", "Potřebná hloubka šachty", "m", &DesignNumbers::txtHloubkaSachty},
        {RequiredGroundwaterDepth, "required_groundwater_depth_m", "Min. hloubka hladiny podzemní vody", "m",
         &DesignNumbers::txtPotrHloubkaZahl, "Min. hloubka podzemní vody", true},
        {RequiredFilterPermeability, "required_filter_permeability_m_s", "Součinitel filtrace náplně filtru",
         "m/s", &DesignNumbers::txtSoucFiltrPruleh, "Potřebný součinitel filtrace filtru", true},
        {InfiltrationFlow, "infiltration_flow_m3_s", "Vsakovací tok", "m³/s", &DesignNumbers::txtVsakTok},
        {TankVolume, "tank_volume_m3", "Objem dle rozměrů nádrže", "m³", &DesignNumbers::txtVypObjNadrz},
        {TankTopLength, "tank_top_length_m", "Délka nádrže v koruně", "m", &DesignNumbers::tank_top_length_m},
        {TankTopWidth, "tank_top_width_m", "Šířka nádrže v koruně", "m", &DesignNumbers::tank_top_width_m},
    }};
}();

static_assert(std::ranges::adjacent_find(kQuantities, std::ranges::greater_equal(),
                                         &QuantityInfo::quantity) == kQuantities.end(),
              "a quantity is found by its number");

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

/// Results that have no box on the type's panel. Lengths and flows that the command line prints have two
/// decimals; a flow in m3/s would vanish.
struct Unshown {
    Quantity quantity = Quantity::ReducedArea;
    FacilityType type = FacilityType::None;
    int decimals = 2;
};
inline constexpr std::array<Unshown, 9> kUnshown{{
    {Quantity::WaterDepth, SwaleTrench},
    {Quantity::StorageCoefficient, SwaleTrench},
    {Quantity::ThrottledOutflow, SwaleTrench, kGeneral},
    {Quantity::DrainInflow, Trench},
    {Quantity::DrainOutflow, Trench},
    {Quantity::ShaftInnerDiameter, Shaft},
    {Quantity::ShaftOuterDiameter, Shaft},
    {Quantity::TankTopLength, Tank},
    {Quantity::TankTopWidth, Tank},
}};

/// Decimals by type and quantity.
inline constexpr auto kDecimals = [] {
    std::array<std::array<int, kQuantityCount>, data::kTypeSlots> decimals{};
    for (std::size_t type = 0; type < data::kTypeSlots; ++type) {
        const auto of = [&](Quantity quantity) -> int& { return decimals[type][index(quantity)]; };
        decimals[type].fill(kNoResult);
        of(Quantity::ReducedArea) = of(Quantity::CriticalDuration) = of(Quantity::CriticalIntensity) =
            kGeneral;
        of(Quantity::Filtration) = kScientific;
        of(Quantity::Inflow) = 1;
        for (const ResultBox& box : boxesOf(static_cast<FacilityType>(type))) {
            of(box.quantity) = box.decimals;
        }
    }
    for (const Unshown& unshown : kUnshown) {
        decimals[data::index(unshown.type)][index(unshown.quantity)] = unshown.decimals;
    }
    return decimals;
}();

/// One bit for each quantity or each type; a number that does not fit does not compile.
using QuantitySet = std::uint32_t;
static_assert(kQuantityCount <= sizeof(QuantitySet) * 8, "a set of quantities has one bit for each");

[[nodiscard]] constexpr QuantitySet bit(Quantity quantity) {
    return QuantitySet{1} << index(quantity);
}

}  // namespace table

/// All quantities in their order.
[[nodiscard]] constexpr std::span<const QuantityInfo, kQuantityCount> quantities() {
    return table::kQuantities;
}
[[nodiscard]] constexpr const QuantityInfo& info(Quantity quantity) {
    return table::kQuantities[index(quantity)];
}
/// The boxes of the type's panel from top to bottom.
[[nodiscard]] constexpr std::span<const ResultBox> resultBoxes(FacilityType type) {
    return table::boxesOf(type);
}
/// The box of that type's panel, null when it has none.
[[nodiscard]] const ResultBox* resultBox(Quantity quantity, FacilityType type);
/// The name of a control of the tables on that type's panel: "txtVsakPlocha(#)" gives `txtVsakPlocha(1)`.
[[nodiscard]] std::string controlName(std::string_view box, FacilityType type);

/// Can a facility of that type have this result?
[[nodiscard]] constexpr bool belongsTo(Quantity quantity, FacilityType type) {
    return table::kDecimals[data::index(type)][index(quantity)] != kNoResult;
}
/// The caption of the box on that type's panel, or the quantity's own.
[[nodiscard]] const char* captionOf(Quantity quantity, FacilityType type);
/// The label of the result in the report of that type.
[[nodiscard]] const char* reportLabel(Quantity quantity, FacilityType type);
/// The text that the result box of that type shows for the value.
[[nodiscard]] std::string boxText(Quantity quantity, FacilityType type, float value);

}  // namespace mero::design
