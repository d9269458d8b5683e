// SPDX-License-Identifier: MIT
/// The shaft's dimension boxes, which keep the two diameters in use in step.
/// The calculation knows only D_i and D_a; a rectangular shaft counts by its equivalent diameters.
#pragma once

#include "calc/shaft_geometry.h"
#include "data/design_numbers.h"
#include "data/facility_type.h"
#include "design/shaft_catalogue.h"

namespace mero::design::shaft {

using data::DesignNumbers;
using data::ShaftShape;

/// @throws RuntimeError Overflow
inline void recomputeRoundOuterDiameter(DesignNumbers& numbers) {
    numbers.D_a = calc::shaft_geometry::roundOuterDiameter(numbers.D_i, numbers.txtTloustkaSteny);
}

/// @throws RuntimeError InvalidCall when the sides give no area, Overflow
inline void recomputeEquivalentDiameters(DesignNumbers& numbers) {
    const float side1_m = numbers.shaft_side1_m;
    const float side2_m = numbers.txtPrumerSachtyVnej;
    numbers.D_i = calc::shaft_geometry::equivalentInnerDiameter(side1_m, side2_m);
    numbers.D_a = calc::shaft_geometry::equivalentOuterDiameter(side1_m, side2_m, numbers.txtTloustkaSteny);
}

/// The inner diameter, or the first inner side, was stored from its box.
/// @param emptied the box is empty
inline void innerSideStored(DesignNumbers& numbers, ShaftShape shape, bool emptied) {
    if (shape == ShaftShape::Round) {
        numbers.D_i = numbers.txtPrumerSachtyVnit;
        recomputeRoundOuterDiameter(numbers);
    } else if (emptied) {
        // Only the inner diameter goes; the next edit of another box uses the side in store.
        numbers.D_i = 0.0F;
    } else {
        numbers.shaft_side1_m = numbers.txtPrumerSachtyVnit;
        recomputeEquivalentDiameters(numbers);
    }
}

/// The second inner side was stored from its box.
inline void secondSideStored(DesignNumbers& numbers, bool emptied) {
    if (!emptied) {
        recomputeEquivalentDiameters(numbers);
    }
}

/// The wall thickness was stored from its box.
inline void wallStored(DesignNumbers& numbers, ShaftShape shape, bool emptied) {
    if (shape == ShaftShape::Round) {
        recomputeRoundOuterDiameter(numbers);
    } else if (!emptied) {
        recomputeEquivalentDiameters(numbers);
    }
}

/// Stores a row of the catalogue, before the boxes show it with two decimals and store that.
inline void takeRow(DesignNumbers& numbers, const CatalogueShaft& row) {
    numbers.txtPrumerSachtyVnit = row.side1_m;
    numbers.txtTloustkaSteny = row.wall_m;
    if (row.shape == ShaftShape::Round) {
        numbers.D_i = row.side1_m;
        recomputeRoundOuterDiameter(numbers);
    } else {
        numbers.shaft_side1_m = row.side1_m;
        numbers.txtPrumerSachtyVnej = row.side2_m;
        recomputeEquivalentDiameters(numbers);
    }
}

}  // namespace mero::design::shaft
