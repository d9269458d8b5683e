// SPDX-License-Identifier: MIT
/// The rows of a table, in the order in which they stand in the file.
#pragma once

#include <functional>
#include <optional>

#include "data/jet/table_definition.h"

namespace mero::data::jet {

/// One row. Valid as long as the file.
class Row {
  public:
    /// @throws Failure Damaged when its parts do not fit together
    Row(const TableDefinition& table, Bytes bytes);

    /// The bytes of a column, null when it has no value; a yes or no has none.
    /// @throws Failure Damaged when they are not where a value can be
    [[nodiscard]] std::optional<Bytes> value(const Column& column) const;
    /// A yes or no.
    [[nodiscard]] bool flag(const Column& column) const;

  private:
    [[nodiscard]] std::size_t variableStart(std::size_t number) const;

    Bytes bytes_;
    std::size_t columns_;
    std::size_t flags_at_;      ///< a bit for each column, set when it has a value
    std::size_t variable_ = 0;  ///< columns of variable length
    std::size_t fixed_end_ = 0;
};

/// Calls `action` for each row. @throws Failure Damaged, also when the table has another number of rows than
/// its definition says
void forEachRow(const File& file, const TableDefinition& table,
                const std::function<void(const Row&)>& action);

}  // namespace mero::data::jet
