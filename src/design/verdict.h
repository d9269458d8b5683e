// SPDX-License-Identifier: MIT
/// What a design tells its user, as data: verdicts, refused inputs, run-time errors, each with a stable code.
/// The window shows the same texts in its message boxes.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "platform/numbers/runtime_error.h"

namespace mero::design {

enum class Verdict : std::uint8_t {
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
};

inline constexpr std::size_t kVerdictCount = static_cast<std::size_t>(Verdict::ErrorDivisionByZero) + 1;

/// How a message is meant, and which icon its box has.
enum class Severity : std::uint8_t { Information, Warning, Refusal };

struct VerdictInfo {
    Verdict verdict = Verdict::RainIntensitiesMissing;
    const char* code = "";  ///< stable: `shaft_bottom_too_close`
    const char* text = "";  ///< Czech; empty for texts that carry numbers, see messages.h
    Severity severity = Severity::Information;
    bool titled_error = false;  ///< the box has the title "Chyba" instead of the application's
};

[[nodiscard]] const std::array<VerdictInfo, kVerdictCount>& verdicts();
[[nodiscard]] const VerdictInfo& info(Verdict verdict);

/// Is it one of the input checks that are told together in one box?
[[nodiscard]] constexpr bool isInputCheck(Verdict verdict) {
    return verdict >= Verdict::SwaleFiltrationNotPositive && verdict <= Verdict::SideSlopeNegative;
}
[[nodiscard]] constexpr bool isRuntimeError(Verdict verdict) {
    return verdict >= Verdict::ErrorInvalidCall;
}
/// The run-time error behind a verdict for which isRuntimeError() holds.
[[nodiscard]] ErrorNumber errorNumber(Verdict verdict);
[[nodiscard]] Verdict verdictOf(const RuntimeError& error);

}  // namespace mero::design
