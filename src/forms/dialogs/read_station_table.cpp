// SPDX-License-Identifier: MIT
/// frmIntDialog::ReadStationTable: what of a station's rows goes into which shared value.
/// A missing field or a bad value is passed over: the position keeps what it held.
#include <array>
#include <optional>

#include "forms/dialogs/frm_int_dialog.h"
#include "platform/numbers/checked.h"

namespace mero::forms {
namespace {

/// Why the last read of a field failed. It is never cleared from row to row.
enum class LastError { None, ItemNotFound, Other };

/// Intensity fields in the order of the periodicities 5, 2, 1, 0.5, 0.2, 0.1, 0.05.
constexpr std::array<const char*, data::kPeriodicityCount> kFields{"5", "2", "1", "05", "02", "01", "005"};
/// Stands in for the last field in tables that lack it.
constexpr const char* kSubstituteOfLastField = "004";

/// Reads the fields of one row, remembering the last error.
class RowReader {
  public:
    RowReader(const data::StationTable& table, std::size_t row, LastError& last_error)
        : table_(&table), row_(row), last_error_(&last_error) {}

    /// The field's number, nothing when the field is missing or holds none.
    [[nodiscard]] std::optional<double> read(const char* field) const {
        const std::optional<std::size_t> column = data::columnIndex(*table_, field);
        if (!column) {
            *last_error_ = LastError::ItemNotFound;
            return std::nullopt;
        }
        const std::optional<double> value = table_->rows[row_][*column];
        if (!value) {
            *last_error_ = LastError::Other;
        }
        return value;
    }

    /// Stores the field's number as Single; the slot keeps its value when there is none.
    void storeSingle(const char* field, float& slot) const {
        const std::optional<double> value = read(field);
        if (!value) {
            return;
        }
        try {
            slot = numbers::toSingle(*value);
        } catch (const RuntimeError&) {
            *last_error_ = LastError::Other;
        }
    }

    /// Stores the field's number as 16-bit Integer; the slot keeps its value when there is none.
    void storeInteger(const char* field, std::int16_t& slot) const {
        const std::optional<double> value = read(field);
        if (!value) {
            return;
        }
        try {
            slot = numbers::toInteger(*value);
        } catch (const RuntimeError&) {
            *last_error_ = LastError::Other;
        }
    }

  private:
    const data::StationTable* table_;
    std::size_t row_;
    LastError* last_error_;
};

}  // namespace

void frmIntDialog::ReadStationTable(std::int16_t station_number, const std::string& database_path) {
    const data::StationTable table = database_->read(station_number, database_path);
    lblDemo.setVisible(table.demonstration);
    LastError last_error = LastError::None;
    for (std::size_t row = 0; row < table.rows.size() && row < data::kDurationCount; ++row) {
        const RowReader reader(table, row, last_error);
        reader.storeInteger("doba", values_->DobaStanice[row]);
        for (std::size_t k = 0; k < kFields.size(); ++k) {
            reader.storeSingle(kFields[k], values_->IntenzitaStanice[k][row]);
        }
        if (last_error == LastError::ItemNotFound) {
            reader.storeSingle(kSubstituteOfLastField, values_->IntenzitaStanice.back()[row]);
        }
    }
}

}  // namespace mero::forms
