// SPDX-License-Identifier: MIT
/// The procedures of all types, and what a type does that lacks one; data::withType() gives it while the
/// program runs.
#pragma once

#include "design/checks.h"
#include "design/pipes.h"
#include "design/shaft.h"
#include "design/surface.h"
#include "design/swale.h"
#include "design/swale_trench.h"
#include "design/tank.h"
#include "design/trench.h"

namespace mero::design {

/// The first size of the facility, as far as the type has one before its design.
template <FacilityType type, Sink S>
void calculateArea(OfType<type> /*type*/, S& sink) {
    if constexpr (type == FacilityType::None) {
        sink.numbers().txtVsakPlocha = 0.0F;
    }
}
/// Sizes and judges the facility. Surface infiltration is finished by calculateArea().
template <FacilityType type, Sink S>
void calculateDesign(OfType<type> /*type*/, S& /*sink*/) {}
/// The confirmation of the pipes' sub-panel; other types have none.
template <FacilityType type, Sink S>
void confirmPipes(OfType<type> /*type*/, S& /*sink*/) {}

/// Empties the boxes of a type that was chosen, before it is calculated anew.
template <FacilityType type, Sink S>
void clearBoxes(S& sink) {
    for (const ResultBox& box : table::kBoxes<type>) {
        if (box.cleared_text != nullptr) {
            sink.clear(box.quantity);
        }
    }
}

}  // namespace mero::design
