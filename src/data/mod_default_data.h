// SPDX-License-Identifier: MIT
/// modDefaultData: the fixed reference tables of the program and the defaults of five inputs.
/// They are compiled in; only the rain intensities are read from a file.
#pragma once

#include "data/mod_public_variables.h"

namespace mero::data {

/// Fills every reference table and sets the five default inputs (safety factor 1.2, porosity 0.35, one pipe,
/// seepage path 1.5 m, one shaft). Calling it again writes the same values again.
void LoadDefaultData(modPublicVariables& values);

}  // namespace mero::data
