// SPDX-License-Identifier: MIT
/// The sink of the main window: a result goes into its box, whose handlers run at once and nested, and what
/// is stored after them is what the procedure goes on with.
#pragma once

#include <array>

#include "calc/rain.h"
#include "design/sink.h"
#include "forms/calc/frm_calc_controls.h"

namespace mero::forms {

class frmCalc;

/// The selected one of two options, -1 when none is.
[[nodiscard]] int selectedOption(const platform::ControlArray<platform::OptionButton>& options);

/// The boxes of each panel that show results; null where the panel has none.
class ResultBoxes {
  public:
    explicit ResultBoxes(const frmCalcControls& form);

    [[nodiscard]] platform::TextBox* box(design::Quantity quantity, FacilityType type) const {
        return boxes_[data::index(type)][design::index(quantity)];
    }

  private:
    std::array<std::array<platform::TextBox*, design::kQuantityCount>, data::kTypeSlots> boxes_{};
};

class WindowSink {
  public:
    /// @param type whose panel it writes
    WindowSink(frmCalc& form, FacilityType type) : form_(&form), type_(type) {}

    data::DesignNumbers& numbers();
    [[nodiscard]] std::array<calc::Rain, calc::kRainRows> rains() const;
    [[nodiscard]] int soilOption() const;
    [[nodiscard]] bool hasSandLayer() const;
    [[nodiscard]] bool upstreamSettling() const;
    [[nodiscard]] bool pipesTicked() const;

    float show(design::Quantity quantity, float value);
    void clear(design::Quantity quantity);
    void tell(design::VerdictId id);
    void tellTogether(std::span<const design::VerdictId> ids);
    void clearResults();
    void closePipes(bool kept);
    void abandonType();
    void complete();

  private:
    frmCalc* form_;
    FacilityType type_;
};

static_assert(design::Sink<WindowSink>);

}  // namespace mero::forms
