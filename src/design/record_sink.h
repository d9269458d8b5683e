// SPDX-License-Identifier: MIT
/// The sink of a design without a window: results go into the DesignResult, rounded by arithmetic as the
/// boxes of that type's panel round them.
#pragma once

#include "design/design_result.h"
#include "design/facility.h"
#include "design/field_rounding.h"
#include "design/procedures.h"
#include "design/site.h"

namespace mero::design {

template <FacilityType type>
class RecordSink {
  public:
    RecordSink(const Site& site, const Facility& facility, DesignResult& result)
        : site_(&site), facility_(&facility), result_(&result) {}

    data::DesignNumbers& numbers() { return result_->numbers; }
    [[nodiscard]] calc::RainTable rains() const { return site_->rains; }
    [[nodiscard]] int soilOption() const { return soil_option_; }
    [[nodiscard]] bool hasSandLayer() const { return facility_->sand_layer; }
    [[nodiscard]] bool upstreamSettling() const { return facility_->upstream_settling; }
    [[nodiscard]] bool pipesTicked() const { return result_->pipes; }

    float show(Quantity quantity, float value) {
        const QuantityInfo& row = info(quantity);
        float& stored = result_->numbers.*row.stored;
        if (!row.stores_back) {
            stored = value;
            result_->show(quantity);
            return value;
        }
        stored = throughField(value, table::kDecimals[data::index(type)][index(quantity)]);
        result_->show(quantity, value);
        return stored;
    }
    void clear(Quantity quantity) {
        const QuantityInfo& row = info(quantity);
        result_->clear(quantity);
        if (row.stores_back) {
            result_->numbers.*row.stored = 0.0F;
        }
    }
    void tell(VerdictId id) { result_->verdicts.add(verdict(id, result_->numbers)); }
    void tellTogether(std::span<const VerdictId> ids) {
        for (const VerdictId id : ids) {
            tell(id);
        }
    }

    /// The boxes are cleared, and what is live is calculated anew.
    void clearResults() {
        clearBoxes<type>(*this);
        if constexpr (type == FacilityType::Surface || type == FacilityType::Swale ||
                      type == FacilityType::SwaleTrench) {
            calculateArea(OfType<type>(), *this);
        }
    }
    void closePipes(bool kept) {
        if (!kept) {
            result_->pipes = false;
            clearResults();
        }
    }
    void abandonType() { result_->type_chosen = false; }
    void complete() { result_->completed = true; }

    /// The user selects a soil option.
    void selectSoil(int option) { soil_option_ = option; }

  private:
    const Site* site_;
    const Facility* facility_;
    DesignResult* result_;
    int soil_option_ = 0;
};

}  // namespace mero::design
