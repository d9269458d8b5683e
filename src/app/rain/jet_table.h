/// One table of a Jet database file, read whole or not at all.
/// The only place that knows libmdb.
#pragma once

#include <stdexcept>
#include <string>

#include "data/rain_database.h"
#include "data/rain_protocol.h"

namespace mero::rain {

/// Why there is no table.
class TableError : public std::runtime_error {
  public:
    TableError(data::ReaderExit exit, const std::string& what) : std::runtime_error(what), exit_(exit) {}
    [[nodiscard]] data::ReaderExit exit() const { return exit_; }

  private:
    data::ReaderExit exit_;
};

/// Reads a table, its name in any case, and whether the file has the table `Demo`.
///
/// What a sound file cannot hold is a failed read: another number of rows than the table's header promises,
/// two tables of one name or at one place, fields that overlap, rows on a page of another table.
/// @throws TableError CannotOpen, TableMissing or ReadFailed
[[nodiscard]] data::StationTable readTable(const std::string& path, const std::string& table_name);

}  // namespace mero::rain
