// SPDX-License-Identifier: MIT
/// What the last calculation of a type judged, with the numbers that it compared, and what it did not judge.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "design/verdict_id.h"
#include "forms/calc/frm_calc.h"

namespace mero::forms {

enum class Judged : std::uint8_t { Holds, Fails, Not };

struct Judgement {
    Judged judged = Judged::Not;
    std::string text;  ///< Czech, one line
    /// What leads to the field: a verdict that its field mends, or a control.
    std::optional<design::VerdictId> mended_as = std::nullopt;
    const platform::Control* field = nullptr;
};

/// Empty before there is a calculation of the type.
[[nodiscard]] std::vector<Judgement> judgements(const frmCalc& form, FacilityType type);

/// "Počítáno s deštěm 30 min, 155.8 l/(s.ha), vybrán byl 15 min." Empty before there is a calculation.
[[nodiscard]] std::string countedRain(const frmCalc& form, FacilityType type);

/// One line each, with a sign in front that says how it was judged.
[[nodiscard]] std::string line(const Judgement& judgement);

}  // namespace mero::forms
