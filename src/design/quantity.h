// SPDX-License-Identifier: MIT
/// The results of a design: what they are called, in which unit, where they are stored and shown.
/// The order is the order of the columns of a sweep.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "data/design_numbers.h"
#include "data/facility_type.h"

namespace mero::design {

using data::FacilityType;

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

/// All quantities in their order.
[[nodiscard]] std::span<const QuantityInfo, kQuantityCount> quantities();
[[nodiscard]] const QuantityInfo& info(Quantity quantity);
/// The boxes of the type's panel from top to bottom.
[[nodiscard]] std::span<const ResultBox> resultBoxes(FacilityType type);
/// The box of that type's panel, null when it has none.
[[nodiscard]] const ResultBox* resultBox(Quantity quantity, FacilityType type);
/// The name of a control of the tables on that type's panel: "txtVsakPlocha(#)" gives `txtVsakPlocha(1)`.
[[nodiscard]] std::string controlName(std::string_view box, FacilityType type);

/// Can a facility of that type have this result?
[[nodiscard]] bool belongsTo(Quantity quantity, FacilityType type);
/// The caption of the box on that type's panel, or the quantity's own.
[[nodiscard]] const char* captionOf(Quantity quantity, FacilityType type);
/// The label of the result in the report of that type.
[[nodiscard]] const char* reportLabel(Quantity quantity, FacilityType type);
/// The text that the result box of that type shows for the value.
[[nodiscard]] std::string boxText(Quantity quantity, FacilityType type, float value);

}  // namespace mero::design
