// SPDX-License-Identifier: MIT
/// What a user enters about one facility: the fields of the six panels as plain numbers.
/// The fields of all types stand side by side, so that a sweep can change the type and keep the rest.
#pragma once

#include <cstdint>

#include "data/design_numbers.h"
#include "data/facility_type.h"

namespace mero::design {

using data::FacilityType;
using data::kFacilityTypes;
using data::ShaftShape;

/// Pipes as they are given: the sub-panel of the overflow or of the drain.
struct Pipes : data::PipeInputs {
    bool given = false;  ///< the check box of the page is ticked and its sub-panel filled in
};

/// The inputs of all panels. Those that are not given are the ones that the window opens with.
struct Facility : data::FacilityInputs {
    Facility() : FacilityInputs(data::kOpeningInputs) {}

    FacilityType type = FacilityType::Surface;

    /// Swale, and the swale of the combined object: 0 medium to fine sand, 1 silt and sand.
    int soil_option = 0;

    Pipes overflow{data::kOpeningPipes};  ///< combined object
    Pipes drain{data::kOpeningPipes};     ///< trench

    // Shaft. A ring of the catalogue replaces shape and dimensions.
    int catalogue_row = -1;  ///< rows of the round catalogue, then of the rectangular one; -1: typed in
    ShaftShape shape = ShaftShape::Round;
    bool sand_layer = false;        ///< variant "typ B"
    float inner_diameter_m = 0.0F;  ///< of a round shaft
    float inner_width_m = 0.0F;     ///< of a rectangular shaft; its other side is txtPrumerSachtyVnej

    bool upstream_settling = false;  ///< tank
};

}  // namespace mero::design
