// SPDX-License-Identifier: MIT
/// Appends the rows to one text.
/// A missing result is an empty cell, not a 0.
#include "sweep/csv.h"

#include <algorithm>

#include "platform/numbers/append_number.h"
#include "platform/numbers/number_text.h"

namespace mero::sweep {

using design::Quantity;

std::string csvCell(std::string_view text) {
    if (text.find_first_of(",\"\r\n") == std::string_view::npos) {
        return std::string(text);
    }
    std::string cell = "\"";
    for (const char c : text) {
        cell += c == '"' ? std::string("\"\"") : std::string(1, c);
    }
    return cell + '"';
}

CsvTable::CsvTable(const Variants& variants, const project::RainStore& rain)
    : variants_(&variants), rain_(&rain) {
    for (const design::QuantityInfo& quantity : design::quantities()) {
        const bool wanted = std::any_of(
            design::kFacilityTypes.begin(), design::kFacilityTypes.end(), [&](design::FacilityType type) {
                return variants.hasType(type) && design::belongsTo(quantity.quantity, type);
            });
        if (wanted) {
            results_.push_back(quantity.quantity);
        }
    }
    for (const Variation& variation : variants.variations()) {
        auto& cells = cells_.emplace_back();
        for (std::size_t i = 0; i < variation.size(); ++i) {
            cells.push_back(csvCell(variation.text(i)));
        }
    }
}

std::string CsvTable::header() const {
    std::string text;
    for (const Variation& variation : variants_->variations()) {
        text += csvCell(variation.path()) + ',';
    }
    for (const Quantity quantity : results_) {
        text += design::info(quantity).name;
        text += ',';
    }
    return text + "verdicts,runtime_error\r\n";
}

void CsvTable::appendRows(std::uint64_t first, std::uint64_t count, std::string& text) const {
    VariantWalk walk(*variants_, first);
    for (std::uint64_t n = 0; n < count; ++n) {
        appendRow(walk, text);
        walk.next();
    }
}

void CsvTable::appendRow(const VariantWalk& walk, std::string& text) const {
    for (std::size_t i = 0; i < cells_.size(); ++i) {
        text += cells_[i][walk.positions()[i]];
        text += ',';
    }
    const design::DesignResult result = walk.design(*rain_);
    for (const Quantity quantity : results_) {
        if (result.has(quantity)) {
            numbers::appendGeneral(text, result.value(quantity));
        }
        text += ',';
    }
    bool first = true;
    for (const design::Verdict& verdict : result.verdicts.all()) {
        if (!first) {
            text += ' ';
        }
        first = false;
        text += design::info(verdict.id).code;
    }
    text += ',';
    if (const auto error = result.firstError()) {
        text += numbers::general(static_cast<int>(*error));
    }
    text += "\r\n";
}

}  // namespace mero::sweep
