// SPDX-License-Identifier: MIT
/// One table of a Jet database file, read whole or not at all.
/// Catalog and rows; the fields have a file of their own.
#pragma once

#include <string>

#include "data/rain_database.h"

namespace mero::rain {

/// Reads a table, its name in any case, and whether the file has the table `Demo`.
///
/// What a sound file cannot hold is a failed read: another number of rows than the table's header promises,
/// two tables of one name or at one place, fields that overlap, rows on a page of another table.
/// @throws TableError CannotOpen, TableMissing or ReadFailed
[[nodiscard]] data::StationTable readTable(const std::string& path, const std::string& table_name);

}  // namespace mero::rain
