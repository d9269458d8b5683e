// SPDX-License-Identifier: MIT
/// The reference tables that project files are read against: stations, periodicities, durations.
#pragma once

#include "data/mod_public_variables.h"

namespace mero::project {

/// Filled once; nobody changes them, so all threads read them.
[[nodiscard]] const data::ReferenceTables& reference();

}  // namespace mero::project
