// SPDX-License-Identifier: MIT
/// Predicts the stored values from the texts of the fields only.
/// A quantity may have several boxes; the one whose text changed last decides.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "forms/calc/program.h"

namespace mero::monkey {

class FieldModel {
  public:
    /// Observes the boxes of the main window from now on. @param program outlives the model
    explicit FieldModel(forms::Program& program);
    FieldModel(const FieldModel&) = delete;
    FieldModel& operator=(const FieldModel&) = delete;

    /// The soil dialog stores its coefficient at the click, before the field shows it.
    void soilWasPicked(int row) { picked_soil_ = row; }

    /// Describes a value that differs from the prediction; empty when none does.
    [[nodiscard]] std::string disagreement() const;

  private:
    enum class Rule {
        Number,      ///< empty is 0; a text that is not a number is cleared
        Area,        ///< the same; a calculation that fails sets 0 without the field
        Count,       ///< the same as whole number
        Filtration,  ///< a text that is not a number may stay if it has an "e"
        Unguarded,   ///< a text that is not a number stays; the value does not change
    };
    struct Quantity {
        std::string name;
        Rule rule;
        std::function<double()> stored;
        const platform::TextBox* last_changed = nullptr;
    };
    struct Text {
        const platform::TextBox* box;
        const std::string* stored;
    };
    using Values = data::modPublicVariables;

    void watch(Rule rule, float Values::*stored, const std::vector<std::string>& boxes);
    void watch(std::string name, Rule rule, std::function<double()> stored,
               const std::vector<std::string>& boxes);
    void watchText(const std::string& box, const std::string& stored);
    [[nodiscard]] std::string judge(const Quantity& quantity) const;
    [[nodiscard]] std::string judgeStrange(const Quantity& quantity, const std::string& text) const;

    forms::Program* program_;
    std::vector<std::unique_ptr<Quantity>> quantities_;
    std::vector<Text> texts_;
    int picked_soil_ = 0;  ///< row of the soil dialog, 0 once the field changed after it
};

}  // namespace mero::monkey
