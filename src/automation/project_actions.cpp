// SPDX-License-Identifier: MIT
/// The actions of the script language on projects and on the steps of the window.
/// A project that cannot be opened or saved changes nothing and is told by a line of the trace.
#include "automation/script_runner.h"
#include "forms/keeping/project_work.h"
#include "project/read_project.h"

namespace mero::automation {

std::string ScriptRunner::absolute(const std::string& path) const {
    return path.starts_with('/') ? path : program_->surroundings().folder + "/" + path;
}

void ScriptRunner::refuseProject(const std::string& path, const std::string& why) {
    desk_->print(JsonLine().add("project", "refused").add("path", path).add("why", why));
}

void ScriptRunner::beginWork() {
    if (work_ == nullptr) {
        const forms::Surroundings& around = program_->surroundings();
        work_ = &own_work_.emplace(*program_, forms::ProjectSource{around.rain_database, around.folder});
    }
}

void ScriptRunner::openProject(const Words& words) {
    const std::string& path = words[0].text;
    try {
        std::vector<std::string> remarks;
        program_->enter([&] { remarks = work_->open(absolute(path)); });
        desk_->print(JsonLine().add("project", "opened").add("path", path).add("remarks", remarks));
    } catch (const project::ProjectError& error) {
        refuseProject(path, error.what());
    }
}

void ScriptRunner::saveProject(const Words& words) {
    const std::string& path = words[0].text;
    try {
        work_->save(absolute(path));
        desk_->print(JsonLine().add("project", "saved").add("path", path));
    } catch (const project::ProjectError& error) {
        refuseProject(path, error.what());
    }
}

void ScriptRunner::newProject(const Words& /*words*/) {
    program_->enter([this] { work_->startNew(); });
    desk_->print(JsonLine().add("project", "new"));
}

void ScriptRunner::undo(const Words& /*words*/) {
    std::optional<forms::History::Step> step;
    program_->enter([&] { step = work_->history().undo(); });
    desk_->print(JsonLine().add("undo", step ? std::optional(step->name) : std::nullopt));
}

void ScriptRunner::redo(const Words& /*words*/) {
    std::optional<forms::History::Step> step;
    program_->enter([&] { step = work_->history().redo(); });
    desk_->print(JsonLine().add("redo", step ? std::optional(step->name) : std::nullopt));
}

}  // namespace mero::automation
