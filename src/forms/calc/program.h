// SPDX-License-Identifier: MIT
/// One running program: its shared values, its main window, and the one place where events enter.
/// A second program in the same process is simply a second object.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "data/mod_public_variables.h"
#include "forms/calc/frm_calc.h"

namespace mero::forms {

class Program {
  public:
    explicit Program(const Surroundings& surroundings);

    /// Loads the main window and shows it.
    void start();

    /// Runs an event: a widget's signal, a script's action. A run-time error that no handler trapped is
    /// reported here, the event is abandoned, and the program goes on with what is stored; an error that ends
    /// the program ends it after the report.
    void enter(const std::function<void()>& event);

    /// Closes the main window and so the program.
    void close();

    [[nodiscard]] bool ended() const { return ended_; }
    /// 0 after an ordinary end, 1 when a run-time error ended the program.
    [[nodiscard]] int exitStatus() const { return exit_status_; }
    /// Called once, when the program has ended.
    std::function<void()> on_ended;

    [[nodiscard]] const Surroundings& surroundings() const { return surroundings_; }
    [[nodiscard]] frmCalc& window() { return window_; }
    [[nodiscard]] const frmCalc& window() const { return window_; }
    [[nodiscard]] const data::modPublicVariables& values() const { return values_; }
    /// For restoring another moment of the window; the forms change them by their handlers.
    [[nodiscard]] data::modPublicVariables& restoredValues() { return values_; }
    /// The form of that name, null when there is none.
    [[nodiscard]] platform::Form* form(std::string_view name);
    /// All four forms, the main window first.
    [[nodiscard]] std::vector<platform::Form*> forms();

  private:
    void end(int exit_status);

    Surroundings surroundings_;
    data::modPublicVariables values_;
    frmCalc window_;
    bool ended_ = false;
    int exit_status_ = 0;
};

}  // namespace mero::forms
