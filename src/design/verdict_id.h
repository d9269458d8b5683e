// SPDX-License-Identifier: MIT
/// The messages of the program by their ids.
/// A switch over them handles every value, so a new message cannot be forgotten.
#pragma once

#include <cstddef>
#include <cstdint>

namespace mero::design {

enum class VerdictId : std::uint8_t {
    // Inputs of the first tab.
    RainIntensitiesMissing,
    DrainedAreaMissing,
    FiltrationMissing,
    DesignRainMissing,
    // The checks of the calculate command; adjacent ones share one message box.
    SwaleFiltrationNotPositive,
    SafetyFactorNotPositive,
    FillPorosityNotPositive,
    TrenchHeightNotPositive,
    TrenchWidthNotPositive,
    InletDepthNotPositive,
    FilterLayerNotPositive,
    InnerDiameterNotPositive,
    OuterDiameterNotPositive,
    SeepagePathNotPositive,
    SandLayerNotPositive,
    SpecificInfiltrationNotPositive,
    BottomLengthNotPositive,
    BottomWidthNotPositive,
    TankDepthNotPositive,
    SideSlopeNegative,
    ShaftOuterDiameterTooSmall,
    // Verdicts of the designs.
    InfiltrationAreaMissing,
    SwaleTrenchAreaSufficient,
    SwaleTrenchAreaInsufficient,
    DrainOutflowMet,
    DrainOutflowNotMet,
    ShaftGroundwaterTooHigh,
    ShaftBottomTooClose,
    ShaftFilterSufficient,
    ShaftFilterTooPermeable,
    TankVolumeSufficient,
    TankVolumeTooSmall,
    TankInfiltrationProven,
    TankInfiltrationExceeded,
    // Run-time errors: the event is abandoned, what was stored before stays.
    ErrorInvalidCall,
    ErrorOverflow,
    ErrorSubscript,
    ErrorDivisionByZero,
    // Messages of the window that no design has.
    RunoffCoefficientMissing,
    PartialAreaMissing,
    TechnologyNotChosen,
};

inline constexpr std::size_t kVerdictCount = static_cast<std::size_t>(VerdictId::TechnologyNotChosen) + 1;

[[nodiscard]] constexpr std::size_t index(VerdictId id) {
    return static_cast<std::size_t>(id);
}

/// Is it one of the input checks that share one message box?
[[nodiscard]] constexpr bool isInputCheck(VerdictId id) {
    return id >= VerdictId::SwaleFiltrationNotPositive && id <= VerdictId::SideSlopeNegative;
}

[[nodiscard]] constexpr bool isRuntimeError(VerdictId id) {
    return id >= VerdictId::ErrorInvalidCall && id <= VerdictId::ErrorDivisionByZero;
}

/// Can a design without the window have it?
[[nodiscard]] constexpr bool isOfDesigns(VerdictId id) {
    return id <= VerdictId::ErrorDivisionByZero;
}

}  // namespace mero::design
