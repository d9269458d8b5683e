// SPDX-License-Identifier: MIT
/// The procedures of all types by their type; data::withType() gives it while the program runs.
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
void calculateArea(S& sink) {
    if constexpr (type == FacilityType::None) {
        sink.numbers().txtVsakPlocha = 0.0F;
    } else if constexpr (type == FacilityType::Surface) {
        surface::calculate(sink);
    } else if constexpr (type == FacilityType::Swale) {
        swale::calculate(sink);
    } else if constexpr (type == FacilityType::SwaleTrench) {
        swale_trench::calculateArea(sink);
    } else if constexpr (type == FacilityType::Trench) {
        trench::calculateArea(sink);
    } else if constexpr (type == FacilityType::Shaft) {
        shaft::calculate(sink);
    }
}

/// Sizes and judges the facility. Surface infiltration is finished by calculateArea().
template <FacilityType type, Sink S>
void calculateDesign(S& sink) {
    if constexpr (type == FacilityType::Swale) {
        swale::design(sink);
    } else if constexpr (type == FacilityType::SwaleTrench) {
        swale_trench::design(sink);
    } else if constexpr (type == FacilityType::Trench) {
        trench::design(sink);
    } else if constexpr (type == FacilityType::Shaft) {
        shaft::design(sink);
    } else if constexpr (type == FacilityType::Tank) {
        tank::design(sink);
    }
}

/// The confirmation of the pipes' sub-panel; other types have none.
template <FacilityType type, Sink S>
void confirmPipes(S& sink) {
    if constexpr (type == FacilityType::SwaleTrench) {
        pipes::confirmOverflow(sink);
    } else if constexpr (type == FacilityType::Trench) {
        pipes::confirmDrain(sink);
    }
}

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
