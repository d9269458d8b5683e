// SPDX-License-Identifier: MIT
/// The environment variables that change the database library's results, and an environment without them.
/// The program removes them from its child's environment, and the reader again from its own.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace mero::data {

/// Encodings, debug options and a search path of the library.
inline constexpr std::array kLibraryVariables{"MDBICONV", "MDB_JET3_CHARSET", "MDBOPTS", "MDBPATH"};

/// This process's environment as "NAME=value" texts, without the library's variables.
[[nodiscard]] std::vector<std::string> readerEnvironment();

}  // namespace mero::data
