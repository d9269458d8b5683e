// SPDX-License-Identifier: MIT
/// Project files of the window. They hold the inputs as designs without a window read them, and beside them
/// the window's exact state.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/rain_database.h"
#include "forms/keeping/window_state.h"
#include "platform/files/read_file.h"
#include "project/read_project.h"

namespace mero::forms {

/// What a project is read with: nothing of it is changed.
struct ProjectSource {
    data::RainDatabase& rain_database;
    std::string folder;  ///< the program's
};

struct Opened {
    WindowState state;
    /// What a newer program wrote and this one does not know, as JSON; given back when the project is saved.
    std::string kept;
    /// What could not be taken, in Czech, for the user: the place in the file and the reason.
    std::vector<std::string> remarks;
    platform::FileStamp stamp;
};

/// The state of a window as it opens: an empty project.
[[nodiscard]] const WindowState& openingState();

/// Reads a project file. The inputs count: when somebody changed them outside the window, or the file has
/// nothing else, they are entered by a user's events into a window that nobody sees.
/// @throws ProjectError in Czech when the file cannot be read or is no project
[[nodiscard]] Opened openProject(const std::string& path, const ProjectSource& source);

/// The same of a document in memory; the stamp is empty.
/// @param name of the file, for the errors
[[nodiscard]] Opened readProjectText(std::string_view json, const std::string& name,
                                     const ProjectSource& source);

/// The document of a project file.
/// @param kept of the file that was opened, "" for a new project
[[nodiscard]] std::string projectText(const WindowState& state, const std::string& kept);

/// Writes a project file, whole or not at all, and flushes it to the disk.
/// @throws ProjectError in Czech; an old file is unchanged then
platform::FileStamp saveProject(const std::string& path, const WindowState& state, const std::string& kept);

}  // namespace mero::forms
