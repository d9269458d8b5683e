// SPDX-License-Identifier: MIT
/// The results of a design by name: what they are called in a file, on the panel, and in which unit they are.
/// The order is the order of the columns of a sweep.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "design/facility.h"

namespace mero::design {

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

struct QuantityInfo {
    Quantity quantity;
    const char* name;   ///< in JSON and CSV, with the unit: `storage_volume_m3`
    const char* label;  ///< Czech caption of the box that shows it
    const char* unit;   ///< as it is printed, "" for a pure number
    int decimals;  ///< of the box, kScientific for the pattern "0.0E+00", kGeneral for a value without a box
    std::uint8_t types;  ///< bit n: the type n can have this result
};

inline constexpr int kScientific = -1;
inline constexpr int kGeneral = -2;

/// All quantities in their order.
[[nodiscard]] const std::array<QuantityInfo, kQuantityCount>& quantities();
[[nodiscard]] const QuantityInfo& info(Quantity quantity);
/// Can a facility of that type have this result?
[[nodiscard]] bool belongsTo(Quantity quantity, FacilityType type);
/// The text that the result box of that type shows for the value.
[[nodiscard]] std::string boxText(Quantity quantity, FacilityType type, float value);

}  // namespace mero::design
