// SPDX-License-Identifier: MIT
/// What the last calculation of each type went by and what it told, so that the window can say whether the
/// results beside the inputs still belong to them.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

#include "data/facility_type.h"
#include "data/mod_public_variables.h"
#include "design/verdict.h"

namespace mero::forms {

using data::FacilityType;

/// Inputs and results at one moment: the stored numbers, the rain table, the options.
struct CalculationState {
    data::DesignNumbers numbers;
    std::array<float, data::kDurationCount> durations_min{};
    std::array<float, data::kDurationCount> intensities_l_s_ha{};
    std::int8_t soil_option = -1;  ///< 0, 1, or -1 when none is selected
    bool sand_layer = false;
    bool upstream_settling = false;
    bool pipes_ticked = false;  ///< overflow (combined object) or drain (trench)
    data::ShaftShape shaft_shape = data::ShaftShape::Round;

    friend bool operator==(const CalculationState&, const CalculationState&) = default;
};

/// Would the type's calculation read the same? What the type does not read may differ.
[[nodiscard]] bool sameInputs(FacilityType type, const CalculationState& a, const CalculationState& b);
/// Are the stored results of the type, and the rain that counted, the same?
[[nodiscard]] bool sameResults(FacilityType type, const CalculationState& a, const CalculationState& b);

/// How a calculation ended.
enum class CalculationEnd : std::uint8_t {
    None,     ///< there was none
    Running,  ///< not yet: a message box is open
    Done,     ///< the procedure came to its end or to a verdict that stops it
    Refused,  ///< by the checks of its inputs
    Failed,   ///< by a run-time error
};

struct Calculation {
    CalculationEnd end = CalculationEnd::None;
    CalculationState state;                 ///< at the end
    std::vector<design::Verdict> verdicts;  ///< in the order in which they were told

    friend bool operator==(const Calculation&, const Calculation&) = default;
};

class CalculationRecord {
  public:
    void begin(FacilityType type);
    /// The first verdict of a live type begins its calculation.
    void tell(FacilityType type, const design::Verdict& verdict);
    void end(FacilityType type, CalculationEnd how, const CalculationState& state);

    /// The last calculation of each type, by its number.
    using Calculations = std::array<Calculation, data::kTypeSlots>;
    [[nodiscard]] const Calculations& all() const { return last_; }
    /// Takes those of another moment.
    void restore(const Calculations& calculations);

    /// Called when a calculation ended, whatever came of it, and when others were taken.
    std::function<void()> ended;

    [[nodiscard]] const Calculation& last(FacilityType type) const { return last_[data::index(type)]; }

  private:
    Calculations last_;
};

}  // namespace mero::forms
