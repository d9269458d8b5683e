// SPDX-License-Identifier: MIT
/// `mero-batch stations`: lists the rain-gauge stations or prints the rain table of one.
#pragma once

#include <span>
#include <string_view>

namespace mero::app {

/// @param arguments what follows "stations"
/// @return the exit status
[[nodiscard]] int stationsCommand(std::span<const std::string_view> arguments);

}  // namespace mero::app
