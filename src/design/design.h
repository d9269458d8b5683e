// SPDX-License-Identifier: MIT
/// A whole design without the window, with exactly the window's results.
/// It runs the same procedures as the main window does when a user, in a fresh program, enters each input
/// once.
///
/// The order: groundwater, design rain, drained areas, filtration coefficient; then the type; then the fields
/// of its panel from top to bottom with the safety factor last (before the sub-panel of the pipes), each
/// field left after it was filled in; then the calculate button where the type has one. A field whose text
/// would not change is not touched. A run-time error abandons its event only, as in the window.
#pragma once

#include "design/design_result.h"
#include "design/facility.h"
#include "design/site.h"

namespace mero::design {

/// Runs the design. Nothing is allocated unless a run-time error is thrown on the way.
[[nodiscard]] DesignResult design(const Site& site, const Facility& facility);

}  // namespace mero::design
