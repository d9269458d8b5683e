// SPDX-License-Identifier: MIT
/// The table of inputs, what is told about them: meaning, usual values, and the limits beyond which a value
/// is more likely a slip of the pen than an input. The limits refuse nothing and are this program's own
/// judgement.
#pragma once

#include "design/input.h"

namespace mero::design {

struct InputGuide {
    Input input = Input::Station;
    const char* meaning = "";  ///< Czech, no full stop
    const char* usual = "";    ///< Czech, as the manual prints it: "0.5 až 3"; "" where there is none
    /// Plausible values lie between these, both included. Equal where there are no limits.
    float least = 0.0F;
    float most = 0.0F;
};

[[nodiscard]] const InputGuide& guide(Input input);

/// Meaning, unit, usual values and default of an input, one a line.
[[nodiscard]] std::string explanation(const PanelInput& input);

/// Is the value beyond the limits? A value of 0 is not: it means not given, and the checks refuse it.
[[nodiscard]] bool isImplausible(Input input, float value);

/// A runoff coefficient above this is implausible.
inline constexpr float kMostRunoff = 1.0F;

}  // namespace mero::design
