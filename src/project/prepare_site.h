// SPDX-License-Identifier: MIT
/// From a project's inputs to the site that a design starts from.
#pragma once

#include "design/site.h"
#include "project/project.h"
#include "project/rain_store.h"

namespace mero::project {

/// The reduced area, the nine rains and the picked row. Nothing is allocated.
/// @param store holds the station of the inputs, if they name one
[[nodiscard]] design::Site prepareSite(const Inputs& inputs, const RainStore& store);

}  // namespace mero::project
