// SPDX-License-Identifier: MIT
/// What a design leaves behind: the stored numbers, which boxes show one, and what was told, in order.
/// A plain value without memory of its own, so that a sweep makes millions of them.
#pragma once

#include <array>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "calc/rain.h"
#include "design/quantity.h"
#include "design/verdict.h"

namespace mero::design {

/// The messages of one design in their order. No design has more than seven input checks and a few others.
class VerdictList {
  public:
    void add(Verdict verdict) {
        assert(count_ < verdicts_.size());
        verdicts_[count_++] = verdict;
    }
    [[nodiscard]] std::span<const Verdict> all() const { return {verdicts_.data(), count_}; }

  private:
    std::array<Verdict, 16> verdicts_{};
    std::size_t count_ = 0;
};

class DesignResult {
  public:
    /// The stored value; 0 where nothing was stored.
    [[nodiscard]] float value(Quantity quantity) const { return stored_[at(quantity)]; }
    /// Is there a result: does its box show a number?
    [[nodiscard]] bool has(Quantity quantity) const { return (shown_ >> at(quantity) & 1U) != 0; }
    /// What the box was given: the value before a field with a change rule rounded it.
    [[nodiscard]] float written(Quantity quantity) const { return written_[at(quantity)]; }

    /// Stores a value that no box shows yet.
    void store(Quantity quantity, float value) { stored_[at(quantity)] = value; }
    /// Shows a value in its box and keeps it.
    void show(Quantity quantity, float value) { show(quantity, value, value); }
    /// Shows a value in a box that stores back what it shows.
    void show(Quantity quantity, float value, float stored_back) {
        written_[at(quantity)] = value;
        stored_[at(quantity)] = stored_back;
        shown_ |= 1U << at(quantity);
    }
    /// Empties the box; what is stored stays.
    void clear(Quantity quantity) { shown_ &= ~(1U << at(quantity)); }

    VerdictList verdicts;
    calc::Rain picked_rain;    ///< the design rain: what the user picked, or the critical rain
    bool type_chosen = false;  ///< the type stayed chosen: only then is there a report
    bool completed = false;    ///< the design came to its end
    bool pipes = false;        ///< the check box of the overflow or the drain is ticked at the end

    // The boxes of a shaft, which the report shows.
    float shaft_side1_m = 0.0F;
    float shaft_side2_m = 0.0F;
    float shaft_wall_m = 0.0F;
    /// Filtration coefficient of the swale as its field stores it; a shaft stores its filter's there.
    float swale_filtration_m_s = 0.0F;

    /// The first run-time error, nothing without one.
    [[nodiscard]] std::optional<ErrorNumber> firstError() const {
        for (const Verdict verdict : verdicts.all()) {
            if (isRuntimeError(verdict)) {
                return errorNumber(verdict);
            }
        }
        return std::nullopt;
    }

  private:
    static constexpr std::size_t at(Quantity quantity) { return static_cast<std::size_t>(quantity); }

    std::array<float, kQuantityCount> stored_{};
    std::array<float, kQuantityCount> written_{};
    std::uint32_t shown_ = 0;
};

}  // namespace mero::design
