// SPDX-License-Identifier: MIT
/// A rain database in memory: stations by their number, and a log of reads.
/// Some tables are odd, as in real files: too many rows, too few, nulls, the substitute field.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "data/rain_database.h"
#include "platform/numbers/runtime_error.h"

namespace mero::test {

class FakeRainDatabase : public data::RainDatabase {
  public:
    using Value = data::StationTable::Value;

    [[nodiscard]] data::StationTable read(std::int16_t station_number, const std::string& path) override {
        asked.emplace_back(station_number, path);
        if (failure) {
            throw RuntimeError(*failure);
        }
        const auto found = tables.find(station_number);
        if (found == tables.end()) {
            throw RuntimeError(data::kTableNotFound, "chybí tabulka " + data::tableName(station_number),
                               RuntimeError::Effect::EndsProgram);
        }
        return found->second;
    }

    /// A table whose value in row r (from 1) of intensity field k (from 1) is 100 * k + r, and whose
    /// durations are 5 * r.
    /// @param last_field name of the seventh intensity field: "005" or its substitute "004"
    static data::StationTable regular(int rows, const std::string& last_field = "005") {
        data::StationTable table;
        table.columns = {"doba", "5", "2", "1", "05", "02", "01", last_field};
        for (int r = 1; r <= rows; ++r) {
            std::vector<Value> row{5.0 * r};
            for (int k = 1; k <= 7; ++k) {
                row.emplace_back(100.0 * k + r);
            }
            table.rows.push_back(std::move(row));
        }
        return table;
    }

    std::map<std::int16_t, data::StationTable> tables;
    std::optional<RuntimeError> failure;
    std::vector<std::pair<std::int16_t, std::string>> asked;
};

}  // namespace mero::test
