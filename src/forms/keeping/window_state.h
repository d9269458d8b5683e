// SPDX-License-Identifier: MIT
/// Everything in the main window that outlives an event, as one value: a program that takes it goes on as the
/// one that gave it would have. For opening a project, undo and redo.
#pragma once

#include <array>
#include <vector>

#include "data/mod_public_variables.h"
#include "forms/calc/calculation_record.h"
#include "forms/calc/program.h"
#include "forms/dialogs/demonstration_use.h"
#include "platform/controls/control_state.h"

namespace mero::forms {

/// Not in it: the current tab, the report and description views with their buttons, the clock's label, and
/// the dialogs, which are filled afresh when they open.
struct WindowState {
    // Shared values. The other reference tables never change.
    std::array<float, data::kDurationCount> durations_min{};
    data::RainValues rain;
    data::DrainedAreaValues areas;
    data::ProjectTexts texts;
    data::DesignNumbers numbers;
    /// The path of the rain database is set when a dialog is opened first.
    bool knows_database = false;

    // Of the main window.
    int type_group = 0;
    FacilityType selected_type = FacilityType::None;
    int soil_variant = 0;
    data::ShaftShape shaft_shape = data::ShaftShape::Round;
    CalculationRecord::Calculations calculations;
    DemonstrationRains demonstration;

    /// Of the controls that belong to a state, in the order of keptControls().
    std::vector<platform::ControlState> controls;

    friend bool operator==(const WindowState&, const WindowState&) = default;
};

/// The controls whose states are kept; the same ones in the same order in every program.
[[nodiscard]] std::vector<platform::Control*> keptControls(const frmCalc& window);

/// Takes some 10 microseconds. An open dialog does not count.
[[nodiscard]] WindowState stateOf(const Program& program);

/// Brings the window to a state. Open dialogs are closed first, and the tabs "Popis technologie" and
/// "Výsledky", whose content would be out of date, are left for "Výpočet", both as if a user did it. No other
/// handler runs. Observers are notified, so widgets follow. To be called as an event (Program::enter).
/// @param state of any program
void restore(Program& program, const WindowState& state);

}  // namespace mero::forms
