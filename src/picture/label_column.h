// SPDX-License-Identifier: MIT
/// Places a column of labels beside a drawing: each close to what it names, without overlaps.
#pragma once

#include <cstddef>
#include <vector>

namespace mero::picture {

/// Tops of labels of one height whose middles should be at `wanted`, between `top` and `bottom`.
/// @param wanted middles in the order of importance
/// @return one top per label that fits, in the order of `wanted`; the last ones are dropped
[[nodiscard]] std::vector<double> labelTops(const std::vector<double>& wanted, double height, double top,
                                            double bottom);

}  // namespace mero::picture
