// SPDX-License-Identifier: MIT
/// Reads one table of a Jet database file, complete or not at all.
#pragma once

#include <string>

#include "data/rain_database.h"

namespace mero::rain {

/// Reads a table (its name in upper or lower case), and whether the file has the table `Demo`.
///
/// The read fails when the file is damaged: the number of rows differs from the table's header, two tables
/// have one name or position, fields overlap, a row is on a page of another table.
/// @throws TableError CannotOpen, TableMissing or ReadFailed
[[nodiscard]] data::StationTable readTable(const std::string& path, const std::string& table_name);

}  // namespace mero::rain
