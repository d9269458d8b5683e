// SPDX-License-Identifier: MIT
/// Reads a station's table row by row.
/// A table without the field "005" has "004", which takes its place from the first row without it.
#include "design/station_rain.h"

#include <optional>

#include "platform/numbers/checked.h"

namespace mero::design {
namespace {

using data::kIntensityFields;
using data::kSubstituteOfLastField;
static_assert(kIntensityFields.size() == data::kPeriodicityCount);

/// Reads fields of a table and remembers why the last one that failed did. A success does not clear that,
/// nor does the next row.
class FieldReader {
  public:
    explicit FieldReader(const data::StationTable& table) : table_(&table) {}

    /// Stores the field's number as Single or Integer; the slot keeps its value when there is none.
    template <typename T>
    void store(std::size_t row, const char* field, T& slot, T (*convert)(double)) {
        const auto column = data::columnIndex(*table_, field);
        if (!column) {
            field_missing_ = true;
            return;
        }
        const std::optional<double> value = table_->rows[row][*column];
        try {
            if (value) {
                slot = convert(*value);
                return;
            }
        } catch (const RuntimeError&) {
            // Too large: treated as a bad value.
        }
        field_missing_ = false;
    }

    [[nodiscard]] bool lastFailureWasMissingField() const { return field_missing_; }

  private:
    const data::StationTable* table_;
    bool field_missing_ = false;
};

}  // namespace

void readStation(const data::StationTable& table, StationIntensities& intensities_l_s_ha,
                 StationDurations& durations_min) {
    FieldReader reader(table);
    for (std::size_t row = 0; row < table.rows.size() && row < calc::kRainRows; ++row) {
        reader.store(row, "doba", durations_min[row], numbers::toInteger);
        for (std::size_t k = 0; k < kIntensityFields.size(); ++k) {
            reader.store(row, kIntensityFields[k], intensities_l_s_ha[k][row], numbers::toSingle);
        }
        if (reader.lastFailureWasMissingField()) {
            reader.store(row, kSubstituteOfLastField, intensities_l_s_ha.back()[row], numbers::toSingle);
        }
    }
}

StationRain stationRain(const data::StationTable& table) {
    StationRain rain;
    StationDurations durations{};
    readStation(table, rain.intensities_l_s_ha, durations);
    rain.demonstration = table.demonstration;
    return rain;
}

}  // namespace mero::design
