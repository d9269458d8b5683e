// SPDX-License-Identifier: MIT
/// A state that changed without a step, as by choosing a tab, belongs to the step before.
#include "forms/keeping/history.h"

#include <utility>

#include "forms/keeping/same_project.h"
#include "forms/keeping/step_name.h"

namespace mero::forms {
namespace {

bool goesOn(const platform::Control& control) {
    return dynamic_cast<const platform::TextBox*>(&control) != nullptr ||
           dynamic_cast<const platform::UpDown*>(&control) != nullptr;
}

bool isTab(const platform::Control* control) {
    return dynamic_cast<const platform::TabControl*>(control) != nullptr;
}

}  // namespace

History::History(Program& program, std::shared_ptr<OpenProject> project) : program_(&program) {
    push(stateOf(program), std::move(project), {});
}

void History::beginStep(const platform::Control& control) {
    const platform::Form* main = &program_->window();
    const bool in_dialog = &control.form() != main;
    // The click that opened the dialog began the step.
    const bool just_opened =
        dynamic_cast<const platform::Button*>(step_) != nullptr && &step_->form() == main;
    if (!in_dialog || !just_opened) {
        endStep();
    }
    step_ = &control;
    joining_ = goesOn(control) ? &control : nullptr;
    dialog_ = in_dialog ? &control.form() : nullptr;
}

void History::endStep() {
    const platform::Control* step = std::exchange(step_, nullptr);
    joining_ = nullptr;
    dialog_ = nullptr;
    WindowState now = stateOf(*program_);
    Moment& moment = moments_[at_];
    if (isSameProject(now, moment.state)) {
        return;
    }
    if (step == nullptr || isTab(step)) {
        moment.state = std::move(now);
        return;
    }
    push(std::move(now), moment.project, {stepName(program_->window(), *step), step});
}

void History::push(WindowState state, std::shared_ptr<OpenProject> project, Step step) {
    if (!moments_.empty()) {
        moments_.resize(++at_);
    }
    moments_.push_back({std::move(state), std::move(project), std::move(step)});
    if (moments_.size() > kMostSteps + 1) {
        moments_.pop_front();
        --at_;
    }
}

std::optional<std::string> History::undoName() {
    endStep();
    return at_ == 0 ? std::nullopt : std::optional(moments_[at_].step.name);
}

std::optional<std::string> History::redoName() {
    endStep();
    return at_ + 1 == moments_.size() ? std::nullopt : std::optional(moments_[at_ + 1].step.name);
}

std::optional<History::Step> History::undo() {
    endStep();
    if (at_ == 0) {
        return std::nullopt;
    }
    const Step undone = moments_[at_].step;
    travel(at_ - 1);
    return undone;
}

std::optional<History::Step> History::redo() {
    endStep();
    if (at_ + 1 == moments_.size()) {
        return std::nullopt;
    }
    travel(at_ + 1);
    return moments_[at_].step;
}

void History::travel(std::size_t to) {
    at_ = to;
    travelling_ = true;
    restore(*program_, moments_[to].state);
    travelling_ = false;
}

void History::enter(const std::string& name, const WindowState& state, std::shared_ptr<OpenProject> project) {
    endStep();
    push(state, std::move(project), {name, nullptr});
    travel(at_);
}

}  // namespace mero::forms
