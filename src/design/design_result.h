// SPDX-License-Identifier: MIT
/// What a design leaves behind: the stored numbers, which boxes show one, and the verdicts in their order.
/// A plain value that allocates nothing, so that a sweep makes millions of them.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <stdexcept>

#include "calc/rain.h"
#include "data/design_numbers.h"
#include "design/quantity.h"
#include "design/verdict.h"

namespace mero::design {

/// The verdicts of one design. A list that is full refuses one more.
class VerdictList {
  public:
    /// More than any design gives: the guards, seven input checks, and those of the design itself.
    static constexpr std::size_t kMost = 16;

    // Verdicts are not set before they are added: a sweep would spend more time on that than on a small
    // design.
    VerdictList() {}  // NOLINT(cppcoreguidelines-pro-type-member-init,modernize-use-equals-default)

    /// @throws std::length_error when the list is full
    void add(const Verdict& verdict) {
        if (count_ == kMost) {
            throw std::length_error("more verdicts than a design can have");
        }
        verdicts_[count_++] = verdict;
    }
    [[nodiscard]] std::span<const Verdict> all() const { return {verdicts_.data(), count_}; }
    [[nodiscard]] bool empty() const { return count_ == 0; }

  private:
    std::size_t count_ = 0;
    std::array<Verdict, kMost> verdicts_;
};

class DesignResult {
  public:
    // What was written is read only where it is shown, so nothing is set beforehand.
    DesignResult() {}  // NOLINT(cppcoreguidelines-pro-type-member-init,modernize-use-equals-default)

    /// The stored value; 0 where nothing was stored.
    [[nodiscard]] float value(Quantity quantity) const { return numbers.*info(quantity).stored; }
    /// Is there a result: does its box show a number?
    [[nodiscard]] bool has(Quantity quantity) const { return (shown_ & table::bit(quantity)) != 0; }
    /// What the box was given: the value before a field with a change rule rounded it.
    [[nodiscard]] float written(Quantity quantity) const {
        return info(quantity).stores_back && has(quantity) ? written_[index(quantity)] : value(quantity);
    }

    /// Marks the result as shown with the value that is stored.
    void show(Quantity quantity) { shown_ |= table::bit(quantity); }
    /// Marks the result of a field with a change rule, and keeps what the field was given.
    void show(Quantity quantity, float written) {
        written_[index(quantity)] = written;
        show(quantity);
    }
    /// Empties the box; what is stored stays.
    void clear(Quantity quantity) { shown_ &= ~table::bit(quantity); }

    [[nodiscard]] calc::Rain pickedRain() const { return {numbers.VybranaDoba, numbers.VybranaIntenzita}; }
    /// The first run-time error, nothing without one.
    [[nodiscard]] std::optional<ErrorNumber> firstError() const {
        for (const Verdict& verdict : verdicts.all()) {
            if (isRuntimeError(verdict.id)) {
                return errorNumber(verdict.id);
            }
        }
        return std::nullopt;
    }

    data::DesignNumbers numbers;
    VerdictList verdicts;
    bool type_chosen = false;  ///< the type stayed chosen: only then is there a report
    bool completed = false;    ///< the design came to its end
    bool pipes = false;        ///< the check box of the overflow or the drain is ticked at the end

  private:
    table::QuantitySet shown_ = 0;
    std::array<float, kQuantityCount> written_;
};

}  // namespace mero::design
