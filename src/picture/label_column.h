// SPDX-License-Identifier: MIT
/// A column of labels beside a drawing: each as near as possible to what it names, none over another.
#pragma once

#include <cstddef>
#include <vector>

namespace mero::picture {

/// Tops for labels of one height whose middles want to be at `wanted`, between `top` and `bottom`.
/// @param wanted middles in the order of importance
/// @return one top per label that found room, in the order of `wanted`; the last ones are left out
[[nodiscard]] std::vector<double> labelTops(const std::vector<double>& wanted, double height, double top,
                                            double bottom);

}  // namespace mero::picture
