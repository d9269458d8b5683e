// SPDX-License-Identifier: MIT
/// The shaft catalogues as one list, which a project and a sweep choose from by number or designation.
/// The rows are the reference tables'; the round ones come first.
#pragma once

#include <span>
#include <string>

#include "data/facility_type.h"

namespace mero::design {

struct CatalogueShaft {
    data::ShaftShape shape;
    std::string designation;
    float side1_m;  ///< inner diameter, or first inner side
    float side2_m;  ///< second inner side, 0 for a round shaft
    float wall_m;
};

/// All rows.
[[nodiscard]] std::span<const CatalogueShaft> shaftCatalogue();
/// The rows of one shape.
[[nodiscard]] std::span<const CatalogueShaft> shaftCatalogue(data::ShaftShape shape);

}  // namespace mero::design
