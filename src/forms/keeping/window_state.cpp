// SPDX-License-Identifier: MIT
/// Takes and restores the state of the main window.
/// The stored values are restored before the controls, because observers of controls read values.
#include "forms/keeping/window_state.h"

#include <algorithm>

namespace mero::forms {
namespace {

bool isOfDocumentTab(const platform::Control& control, const frmCalc& window) {
    return control.container() == &window.SSTab1.page(kTabTechnology) ||
           control.container() == &window.SSTab1.page(kTabResults);
}

template <typename Action>
void forEachKept(const frmCalc& window, Action action) {
    for (platform::Control* control : window.controls()) {
        if (!isOfDocumentTab(*control, window)) {
            action(*control);
        }
    }
}

void leaveDialogs(frmCalc& window) {
    window.intDialog.Unload();
    window.areaDialog.Unload();
    window.coefDialog.Unload();
}

void leaveDocuments(frmCalc& window) {
    const int tab = window.SSTab1.position();
    if (tab == kTabTechnology || tab == kTabResults) {
        window.SSTab1.setPosition(kTabDesign);
    }
}

void restoreValues(data::modPublicVariables& values, const WindowState& state, const frmCalc& window) {
    values.DobaTrvani = state.durations_min;
    static_cast<data::RainValues&>(values) = state.rain;
    static_cast<data::DrainedAreaValues&>(values) = state.areas;
    static_cast<data::ProjectTexts&>(values) = state.texts;
    static_cast<data::DesignNumbers&>(values) = state.numbers;
    values.CestaDatabaze = state.knows_database ? window.databasePath() : "";
}

}  // namespace

std::vector<platform::Control*> keptControls(const frmCalc& window) {
    std::vector<platform::Control*> kept;
    forEachKept(window, [&kept](platform::Control& control) { kept.push_back(&control); });
    return kept;
}

WindowState stateOf(const Program& program) {
    const frmCalc& window = program.window();
    const data::modPublicVariables& values = program.values();
    WindowState state{.durations_min = values.DobaTrvani,
                      .rain = static_cast<const data::RainValues&>(values),
                      .areas = static_cast<const data::DrainedAreaValues&>(values),
                      .texts = static_cast<const data::ProjectTexts&>(values),
                      .numbers = static_cast<const data::DesignNumbers&>(values),
                      .knows_database = !values.CestaDatabaze.empty(),
                      .type_group = window.TypeGroup,
                      .selected_type = window.SelectedType,
                      .soil_variant = window.SoilVariant,
                      .shaft_shape = window.ShaftShape,
                      .calculations = window.record().all(),
                      .demonstration = window.intDialog.demonstration().rains(),
                      .controls = {}};
    state.controls.reserve(window.controls().size());
    forEachKept(window,
                [&state](const platform::Control& control) { state.controls.push_back(control.state()); });
    return state;
}

void restore(Program& program, const WindowState& state) {
    frmCalc& window = program.window();
    leaveDialogs(window);
    leaveDocuments(window);
    restoreValues(program.restoredValues(), state, window);
    window.TypeGroup = state.type_group;
    window.SelectedType = state.selected_type;
    window.SoilVariant = state.soil_variant;
    window.ShaftShape = state.shaft_shape;
    window.intDialog.demonstration().restore(state.demonstration);
    auto next = state.controls.begin();
    forEachKept(window, [&next](platform::Control& control) { control.showState(*next++); });
    window.record().restore(state.calculations);
}

}  // namespace mero::forms
