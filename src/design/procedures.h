// SPDX-License-Identifier: MIT
/// The procedures of all types by the type that is chosen while the program runs.
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
template <Sink S>
void calculateArea(S& sink, FacilityType type) {
    switch (type) {
        case FacilityType::None:
            sink.numbers().txtVsakPlocha = 0.0F;
            break;
        case FacilityType::Surface:
            surface::calculate(sink);
            break;
        case FacilityType::Swale:
            swale::calculate(sink);
            break;
        case FacilityType::SwaleTrench:
            swale_trench::calculateArea(sink);
            break;
        case FacilityType::Trench:
            trench::calculateArea(sink);
            break;
        case FacilityType::Shaft:
            shaft::calculate(sink);
            break;
        case FacilityType::Tank:
            break;
    }
}

/// Sizes and judges the facility. Surface infiltration is finished by calculateArea().
template <Sink S>
void calculateDesign(S& sink, FacilityType type) {
    switch (type) {
        case FacilityType::None:
        case FacilityType::Surface:
            break;
        case FacilityType::Swale:
            swale::design(sink);
            break;
        case FacilityType::SwaleTrench:
            swale_trench::design(sink);
            break;
        case FacilityType::Trench:
            trench::design(sink);
            break;
        case FacilityType::Shaft:
            shaft::design(sink);
            break;
        case FacilityType::Tank:
            tank::design(sink);
            break;
    }
}

/// The checks of the calculate command; types without the command have none and pass.
/// @return true when all passed
template <Sink S>
[[nodiscard]] bool passChecks(S& sink, FacilityType type, bool sand_layer) {
    switch (type) {
        case FacilityType::SwaleTrench:
            return checks::pass<FacilityType::SwaleTrench>(sink, sand_layer);
        case FacilityType::Trench:
            return checks::pass<FacilityType::Trench>(sink, sand_layer);
        case FacilityType::Shaft:
            return checks::pass<FacilityType::Shaft>(sink, sand_layer);
        case FacilityType::Tank:
            return checks::pass<FacilityType::Tank>(sink, sand_layer);
        case FacilityType::None:
        case FacilityType::Surface:
        case FacilityType::Swale:
            break;
    }
    return true;
}

/// The confirmation of the pipes' sub-panel; other types have none.
template <Sink S>
void confirmPipes(S& sink, FacilityType type) {
    if (type == FacilityType::SwaleTrench) {
        pipes::confirmOverflow(sink);
    } else if (type == FacilityType::Trench) {
        pipes::confirmDrain(sink);
    }
}

/// Empties the boxes of a type that was chosen, before it is calculated anew.
template <Sink S>
void clearBoxes(S& sink, FacilityType type) {
    for (const ResultBox& box : table::boxesOf(type)) {
        if (box.cleared_text != nullptr) {
            sink.clear(box.quantity);
        }
    }
}

}  // namespace mero::design
