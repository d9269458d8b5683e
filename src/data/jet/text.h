// SPDX-License-Identifier: MIT
/// Texts of a database: UTF-16, little-endian, which the values of a text column may hold compressed.
#pragma once

#include <string>
#include <vector>

#include "data/jet/bytes.h"

namespace mero::data::jet {

/// UTF-8 of a name. @throws Failure Damaged for what is no UTF-16
[[nodiscard]] std::string utf8Of(Bytes name);

/// UTF-8 of the value of a text column. @throws Failure Damaged for what is no UTF-16
[[nodiscard]] std::string textValue(Bytes value);

}  // namespace mero::data::jet
