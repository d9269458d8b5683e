// SPDX-License-Identifier: MIT
/// The actions of the script language on projects.
/// A project that cannot be opened or saved changes nothing and is told by a line of the trace.
#include "automation/script_runner.h"
#include "forms/keeping/project_file.h"

namespace mero::automation {

std::string ScriptRunner::absolute(const std::string& path) const {
    return path.starts_with('/') ? path : program_->surroundings().folder + "/" + path;
}

void ScriptRunner::refuseProject(const std::string& path, const std::string& why) {
    desk_->print(JsonLine().add("project", "refused").add("path", path).add("why", why));
}

void ScriptRunner::openProject(const Words& words) {
    const std::string& path = words[0].text;
    const forms::Surroundings& around = program_->surroundings();
    try {
        const forms::Opened opened =
            forms::openProject(absolute(path), {around.rain_database, around.folder});
        program_->enter([&] { forms::restore(*program_, opened.state); });
        kept_ = opened.kept;
        desk_->print(JsonLine().add("project", "opened").add("path", path).add("remarks", opened.remarks));
    } catch (const project::ProjectError& error) {
        refuseProject(path, error.what());
    }
}

void ScriptRunner::saveProject(const Words& words) {
    const std::string& path = words[0].text;
    try {
        forms::saveProject(absolute(path), forms::stateOf(*program_), kept_);
        desk_->print(JsonLine().add("project", "saved").add("path", path));
    } catch (const project::ProjectError& error) {
        refuseProject(path, error.what());
    }
}

void ScriptRunner::newProject(const Words& /*words*/) {
    program_->enter([this] { forms::restore(*program_, forms::openingState()); });
    kept_.clear();
    desk_->print(JsonLine().add("project", "new"));
}

}  // namespace mero::automation
