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
#include "forms/keeping/project_file.h"
#include "forms/keeping/window_state.h"

namespace mero::forms {

/// A project and its file. The steps of the history that belong to it share it.
struct OpenProject {
    std::string path;   ///< empty until it is saved
    WindowState saved;  ///< as the file has it, or as the window opened
    std::string kept;   ///< what a newer program wrote into the file
    platform::FileStamp stamp;
    /// It was taken from a recovery copy: the file has something else than `saved`.
    bool recovered = false;
    std::string recovery_copy;  ///< file with what is not saved, empty while there is none
};

class ProjectWork {
  public:
    /// @param program whose window has just been opened
    /// @param source  what project files are read with
    ProjectWork(Program& program, const ProjectSource& source);
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
    /// Opens a project. The one before comes back by undo. To be called as an event.
    /// @return what could not be taken, in Czech
    /// @throws ProjectError in Czech; the window keeps what it has
    std::vector<std::string> open(const std::string& path);
    /// Takes up what a recovery copy holds. @param origin the project's own file, "" where it had none
    std::vector<std::string> recover(const std::string& copy, const std::string& origin);

    /// Has somebody else changed the file since it was opened or saved?
    [[nodiscard]] bool changedOnDisk() const;
    /// Saves the project; from now on the path is its file. @throws ProjectError in Czech
    void save(const std::string& path);

  private:
    Program* program_;
    ProjectSource source_;
    History history_;
};

}  // namespace mero::forms
