// SPDX-License-Identifier: MIT
/// modDefaultData: the fixed reference tables of the program and the defaults of five inputs.
/// Nothing is read from files; only the rain intensities come from outside.
#pragma once

#include "data/mod_public_variables.h"

namespace mero::data {

/// Fills every reference table and sets the five default inputs (safety factor 1.2, porosity 0.35, one pipe,
/// seepage path 1.5 m, one shaft). Calling it again writes the same values again.
void LoadDefaultData(modPublicVariables& values);

}  // namespace mero::data
