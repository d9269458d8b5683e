// SPDX-License-Identifier: MIT
/// Checks rules on a stage that must hold after every action.
/// A fault is one line of text; the part before the colon names the broken rule.
#pragma once

#include <string>
#include <vector>

#include "automation/script_line.h"
#include "monkey/field_model.h"
#include "monkey/stage.h"

namespace mero::monkey {

class Watcher {
  public:
    /// @param stage outlives the watcher
    explicit Watcher(Stage& stage);
    Watcher(const Watcher&) = delete;
    Watcher& operator=(const Watcher&) = delete;

    /// Performs the line and checks the rules. @return the fault, empty when there is none; a line that
    /// cannot be performed is not a fault
    [[nodiscard]] std::string perform(const std::string& line);
    [[nodiscard]] Stage::Step lastStep() const { return last_step_; }

  private:
    using Words = std::vector<automation::Word>;

    void watchNumbers(platform::Form& form);
    [[nodiscard]] std::string check(const Words& words);
    [[nodiscard]] std::string checkErrors(const Words& words) const;
    [[nodiscard]] std::string checkPanels(const Words& words);
    [[nodiscard]] std::string checkDialogs() const;
    [[nodiscard]] std::string checkLists() const;
    [[nodiscard]] std::string checkMessages() const;

    Stage* stage_;
    FieldModel fields_;
    Stage::Step last_step_ = Stage::Step::Continue;
    std::string target_;       ///< the control of the running action
    std::string odd_text_;     ///< a text with inf or nan that code wrote during the running action
    std::vector<int> panels_;  ///< visible result panels after the last action
    bool kept_panel_ = false;  ///< a refused group choice left a panel of another type
};

/// True when the text contains inf or nan as a separate word, in upper or lower case.
[[nodiscard]] bool hasNoNumber(const std::string& text);

}  // namespace mero::monkey
