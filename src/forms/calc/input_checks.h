// SPDX-License-Identifier: MIT
/// The checks of the calculate command: which inputs of a type must not be zero or negative.
/// All problems of a page are told at once, one line each.
#pragma once

#include <string>

#include "data/mod_public_variables.h"

namespace mero::forms {

/// The texts of the failed checks of the type in their order, each ended by "\r\n"; empty when all pass.
/// @param type       3 to 6; other types have no checks
/// @param sand_layer the shaft variant with a sand layer is selected
[[nodiscard]] std::string failedChecks(int type, const data::modPublicVariables& values, bool sand_layer);

}  // namespace mero::forms
