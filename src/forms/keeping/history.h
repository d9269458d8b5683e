// SPDX-License-Identifier: MIT
/// Undo and redo over the whole project: the states that a user's steps led to, with the steps' names.
/// A state is taken only between two steps, so that a key within a field costs two comparisons.
#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <optional>
#include <string>

#include "forms/calc/program.h"
#include "forms/keeping/window_state.h"

namespace mero::forms {

struct OpenProject;

class History {
  public:
    /// More steps forget the oldest ones.
    static constexpr std::size_t kMostSteps = 200;

    /// @param project whose states these are, as long as no other one is entered
    History(Program& program, std::shared_ptr<OpenProject> project);

    /// A user is about to act on the control. A field's text is one step, from the first key to an act on
    /// another control; so are the clicks of an up-down control in a row, and a dialog from opening to
    /// closing. All other acts are a step each, if they change anything. A tab is none.
    void beforeUserActs(const platform::Control& control) {
        if (&control != joining_ && &control.form() != dialog_ && !travelling_) {
            beginStep(control);
        }
    }

    /// The step that undo takes back, and the one that redo takes again; nothing where there is none. Ends
    /// the running step.
    [[nodiscard]] std::optional<std::string> undoName();
    [[nodiscard]] std::optional<std::string> redoName();
    /// A step that was undone or redone.
    struct Step {
        std::string name;
        const platform::Control* control = nullptr;  ///< where it was taken; null for another project
    };
    /// Undoes or redoes a step: the stored values too. To be called as an event.
    std::optional<Step> undo();
    std::optional<Step> redo();

    /// Brings the window to a state of another project; a step like others. To be called as an event.
    void enter(const std::string& name, const WindowState& state, std::shared_ptr<OpenProject> project);

    /// The project that the window shows.
    [[nodiscard]] OpenProject& project() const { return *moments_[at_].project; }

  private:
    struct Moment {
        WindowState state;
        std::shared_ptr<OpenProject> project;
        Step step;  ///< that led here
    };

    void beginStep(const platform::Control& control);
    void endStep();
    void push(WindowState state, std::shared_ptr<OpenProject> project, Step step);
    void travel(std::size_t to);

    Program* program_;
    std::deque<Moment> moments_;
    std::size_t at_ = 0;
    const platform::Control* step_ = nullptr;     ///< where the running step began, null between steps
    const platform::Control* joining_ = nullptr;  ///< the field or up-down control that goes on with it
    const platform::Form* dialog_ = nullptr;      ///< the dialog that goes on with it
    bool travelling_ = false;
};

}  // namespace mero::forms
