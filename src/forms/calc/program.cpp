// SPDX-License-Identifier: MIT
/// Start, events and end of a running program.
/// Whatever ends it, the same clean-up runs: separators restored, report file deleted.
#include "forms/calc/program.h"

#include <algorithm>

namespace mero::forms {

Program::Program(const Surroundings& surroundings)
    : surroundings_(surroundings), window_(values_, surroundings) {
    window_.close_requested = [this] { close(); };
}

void Program::start() {
    enter([this] {
        window_.Form_Load();
        window_.show();
    });
}

void Program::enter(const std::function<void()>& event) {
    if (ended_) {
        return;
    }
    try {
        event();
    } catch (const RuntimeError& error) {
        surroundings_.desk.reportError(error);
        if (error.endsProgram()) {
            end(1);
        }
    }
}

void Program::close() {
    end(0);
}

void Program::end(int exit_status) {
    if (ended_) {
        return;
    }
    ended_ = true;
    exit_status_ = exit_status;
    window_.Form_QueryUnload();
    for (platform::Form* form : forms()) {
        form->hide();
    }
    surroundings_.desk.formClosed(window_.name());
    surroundings_.desk.ended();
    if (on_ended) {
        on_ended();
    }
}

platform::Form* Program::form(std::string_view name) {
    const auto all = forms();
    const auto found = std::ranges::find(all, name, &platform::Form::name);
    return found == all.end() ? nullptr : *found;
}

std::vector<platform::Form*> Program::forms() {
    return {&window_, &window_.intDialog, &window_.areaDialog, &window_.coefDialog};
}

}  // namespace mero::forms
