// SPDX-License-Identifier: MIT
/// The actions of the script language.
/// Each action first checks its words, then that the user can reach the control, then acts.
#include "automation/inspection.h"
#include "automation/script_runner.h"

namespace mero::automation {

namespace {

/// @throws ScriptError when the word is not a whole number
int number(const Word& word) {
    const auto parsed = wholeNumber(word.text);
    if (!parsed) {
        throw ScriptError("not a whole number: " + word.text);
    }
    return *parsed;
}

}  // namespace

const std::map<std::string_view, ScriptRunner::Entry>& ScriptRunner::actions() {
    static const std::map<std::string_view, Entry> kActions{
        {"type", {&ScriptRunner::type, 2, 2}},        {"set", {&ScriptRunner::set, 2, 2}},
        {"erase", {&ScriptRunner::erase, 2, 2}},      {"focus", {&ScriptRunner::focus, 1, 1}},
        {"leave", {&ScriptRunner::leave, 1, 1}},      {"click", {&ScriptRunner::click, 1, 1}},
        {"select", {&ScriptRunner::select, 2, 2}},    {"spin", {&ScriptRunner::spin, 2, 2}},
        {"cell", {&ScriptRunner::cell, 3, 3}},        {"key", {&ScriptRunner::key, 2, 2}},
        {"tab", {&ScriptRunner::tab, 1, 1}},          {"tick", {&ScriptRunner::tick, 0, 0}},
        {"close", {&ScriptRunner::close, 1, 1}},      {"answer-save", {&ScriptRunner::answerSave, 0, 1}},
        {"get", {&ScriptRunner::get, 1, 1}},          {"value", {&ScriptRunner::value, 1, 1}},
        {"echo", {&ScriptRunner::echo, 1, 1}},        {"open", {&ScriptRunner::openProject, 1, 1}},
        {"save", {&ScriptRunner::saveProject, 1, 1}}, {"new", {&ScriptRunner::newProject, 0, 0}},
        {"undo", {&ScriptRunner::undo, 0, 0}},        {"redo", {&ScriptRunner::redo, 0, 0}},
    };
    return kActions;
}

template <typename T>
T& ScriptRunner::find(const std::string& name, const char* kind) const {
    auto* control = dynamic_cast<T*>(&find(name));
    if (control == nullptr) {
        throw ScriptError(name + " is no " + kind);
    }
    return *control;
}

void ScriptRunner::type(const Words& words) {
    auto& box = find<platform::TextBox>(words[0].text, "text box");
    if (!possible(words[0].text, box)) {
        return;
    }
    for (const std::string& character : keysOf(words[1].text)) {
        if (!stillPossible(box)) {
            return;
        }
        user_->typeCharacter(box, character);
    }
}

void ScriptRunner::set(const Words& words) {
    auto& box = find<platform::TextBox>(words[0].text, "text box");
    if (possible(words[0].text, box)) {
        user_->paste(box, box.accepted(words[1].text));
    }
}

void ScriptRunner::erase(const Words& words) {
    auto& box = find<platform::TextBox>(words[0].text, "text box");
    const int count = number(words[1]);
    if (!possible(words[0].text, box)) {
        return;
    }
    for (int i = 0; i < count && !box.text().empty() && stillPossible(box); ++i) {
        user_->eraseCharacter(box);
    }
}

void ScriptRunner::focus(const Words& words) {
    platform::Control& control = find(words[0].text);
    if (possible(words[0].text, control)) {
        user_->focus(control);
    }
}

void ScriptRunner::leave(const Words& words) {
    platform::Control& control = find(words[0].text);
    if (possible(words[0].text, control)) {
        user_->leave(control);
    }
}

void ScriptRunner::click(const Words& words) {
    const std::string& name = words[0].text;
    platform::Control& control = find(name);
    const auto click_if_possible = [&](auto* target) {
        if (target != nullptr && possible(name, *target)) {
            user_->click(*target);
        }
        return target != nullptr;
    };
    const bool clickable = click_if_possible(dynamic_cast<platform::Button*>(&control)) ||
                           click_if_possible(dynamic_cast<platform::OptionButton*>(&control)) ||
                           click_if_possible(dynamic_cast<platform::CheckBox*>(&control)) ||
                           click_if_possible(dynamic_cast<platform::Label*>(&control));
    if (!clickable) {
        throw ScriptError(name + " cannot be clicked");
    }
}

void ScriptRunner::select(const Words& words) {
    auto& list = find<platform::DropList>(words[0].text, "list");
    const std::optional<int> bare_position = words[1].quoted ? std::nullopt : std::optional(number(words[1]));
    if (!possible(words[0].text, list)) {
        return;
    }
    const int position = bare_position ? *bare_position : list.find(words[1].text);
    if (position < 0 || position >= static_cast<int>(list.items().size())) {
        throw ScriptError(words[0].text + " has no entry " + words[1].text);
    }
    user_->select(list, position);
}

void ScriptRunner::spin(const Words& words) {
    auto& control = find<platform::UpDown>(words[0].text, "up-down control");
    const bool up = words[1].text == "up";
    if (!up && words[1].text != "down") {
        throw ScriptError("a spin goes up or down");
    }
    if (possible(words[0].text, control)) {
        user_->spin(control, up ? platform::UpDown::Direction::Up : platform::UpDown::Direction::Down);
    }
}

void ScriptRunner::cell(const Words& words) {
    auto& grid = find<platform::Grid>(words[0].text, "grid");
    const platform::GridCell cell{number(words[1]), number(words[2])};
    if (!possible(words[0].text, grid)) {
        return;
    }
    if (!grid.hasDataCell(cell)) {
        throw ScriptError(words[0].text + " has no cell " + words[1].text + " " + words[2].text);
    }
    user_->clickCell(grid, cell);
}

void ScriptRunner::key(const Words& words) {
    platform::Control& control = find(words[0].text);
    const bool enter = words[1].text == "Enter";
    if (!enter && words[1].text != "Escape") {
        throw ScriptError("unknown key " + words[1].text);
    }
    if (!possible(words[0].text, control)) {
        return;
    }
    // Only text boxes handle these keys.
    if (auto* box = dynamic_cast<platform::TextBox*>(&control)) {
        user_->press(*box, enter ? platform::Key::Enter : platform::Key::Escape);
    }
}

void ScriptRunner::tab(const Words& words) {
    platform::TabControl& tabs = program_->window().SSTab1;
    const int position = number(words[0]);
    if (position >= static_cast<int>(tabs.captions().size())) {
        throw ScriptError("there is no tab " + words[0].text);
    }
    if (possible(tabs.name(), tabs)) {
        user_->chooseTab(tabs, position);
    }
}

void ScriptRunner::tick(const Words& /*words*/) {
    user_->tick();
}

void ScriptRunner::close(const Words& words) {
    platform::Form* form = program_->form(words[0].text);
    if (form == nullptr) {
        throw ScriptError("unknown form " + words[0].text);
    }
    if (possible(words[0].text, *form)) {
        user_->close(*form);
    }
}

void ScriptRunner::answerSave(const Words& words) {
    desk_->answerSave(words.empty() ? std::nullopt : std::optional(words[0].text));
}

void ScriptRunner::get(const Words& words) {
    desk_->print(stateOf(words[0].text, find(words[0].text)));
}

void ScriptRunner::value(const Words& words) {
    const auto shown = sharedValue(*program_, words[0].text);
    if (!shown) {
        throw ScriptError("unknown value " + words[0].text);
    }
    desk_->print(JsonLine().add("value", words[0].text).addJson("is", *shown));
}

void ScriptRunner::echo(const Words& words) {
    desk_->print(JsonLine().add("echo", words[0].text));
}

}  // namespace mero::automation
