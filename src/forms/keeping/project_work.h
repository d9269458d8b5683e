// SPDX-License-Identifier: MIT
/// What a user works on in a window: the project, its file, whether it is changed, and the steps that led
/// here.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "forms/calc/program.h"
#include "forms/keeping/history.h"
#include "forms/keeping/window_state.h"

namespace mero::forms {

/// A project and its file. The steps of the history that belong to it share it.
struct OpenProject {
    std::string path;   ///< empty until it is saved
    WindowState saved;  ///< as the file has it, or as the window opened
    /// The file has something else than the window that was opened from it: it was taken from a recovery
    /// copy.
    bool recovered = false;
    std::string recovery_copy;  ///< file with what is not saved, empty while there is none
};

class ProjectWork {
  public:
    /// @param program whose window has just been opened
    explicit ProjectWork(Program& program);
    ~ProjectWork();
    ProjectWork(const ProjectWork&) = delete;
    ProjectWork& operator=(const ProjectWork&) = delete;
    ProjectWork(ProjectWork&&) = delete;
    ProjectWork& operator=(ProjectWork&&) = delete;

    /// Called before each act of a user in the window or a dialog.
    std::function<void()> acted;

    [[nodiscard]] OpenProject& project() const { return history_.project(); }
    [[nodiscard]] History& history() { return history_; }
    /// Is anything unsaved?
    [[nodiscard]] bool changed() const;

    /// Begins a new project, as the window opened. The one before comes back by undo. To be called as an
    /// event.
    void startNew();

  private:
    Program* program_;
    WindowState opening_;
    History history_;
};

}  // namespace mero::forms
