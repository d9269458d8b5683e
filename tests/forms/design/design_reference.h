// SPDX-License-Identifier: MIT
/// The procedures of the six types written down once more, for whole designs: extended precision, a rounding
/// to Single at each store, the detour through the fields that read themselves back.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "forms/calc/frm_calc_controls.h"
#include "forms/design/random_site.h"
#include "support/message_box.h"

namespace mero::forms::test {

/// What a user sees of a design.
struct Outcome {
    std::map<std::string, std::string> texts;  ///< by the name of the result box
    std::vector<mero::test::MessageBox> messages;
    std::vector<int> errors;
    calc::Rain picked;
    /// Two rains are equal on paper, or a divisor is next to 0: extended precision may decide otherwise.
    bool hangs_on_rounding = false;

    bool operator==(const Outcome&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Outcome& outcome);

/// What choosing the type, typing the site and calculating must show.
Outcome expectedOutcome(FacilityType type, const RandomSite& site);

}  // namespace mero::forms::test
