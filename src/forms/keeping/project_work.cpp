// SPDX-License-Identifier: MIT
/// Listens to what the user does, for the history.
#include "forms/keeping/project_work.h"

#include <utility>

#include "forms/keeping/same_project.h"

namespace mero::forms {
namespace {

std::shared_ptr<OpenProject> newProject(const WindowState& opening) {
    auto project = std::make_shared<OpenProject>();
    project->saved = opening;
    return project;
}

std::shared_ptr<OpenProject> openedProject(const std::string& path, const Opened& opened) {
    auto project = newProject(opened.state);
    project->path = path;
    project->kept = opened.kept;
    project->stamp = opened.stamp;
    return project;
}

}  // namespace

ProjectWork::ProjectWork(Program& program, const ProjectSource& source)
    : program_(&program), source_(source), history_(program, newProject(stateOf(program))) {
    for (platform::Form* form : program.forms()) {
        form->before_user_acts = [this](const platform::Control& control) {
            history_.beforeUserActs(control);
            if (acted) {
                acted();
            }
        };
    }
}

ProjectWork::~ProjectWork() {
    for (platform::Form* form : program_->forms()) {
        form->before_user_acts = nullptr;
    }
}

bool ProjectWork::changed() const {
    return project().recovered || !isSameProject(stateOf(*program_), project().saved);
}

void ProjectWork::startNew() {
    history_.enter("Nový projekt", openingState(), newProject(openingState()));
}

std::vector<std::string> ProjectWork::open(const std::string& path) {
    const Opened opened = openProject(path, source_);
    history_.enter("Otevření projektu", opened.state, openedProject(path, opened));
    return opened.remarks;
}

std::vector<std::string> ProjectWork::recover(const std::string& copy, const std::string& origin) {
    const Opened opened = openProject(copy, source_);
    auto project = openedProject(origin, opened);
    project->recovered = true;
    project->recovery_copy = copy;
    // Whoever changed the file since the work began is not asked about.
    const auto file = platform::readStamped(origin, platform::kLongestTextFile);
    project->stamp = file.failure == platform::ReadFailure::None ? file.stamp : platform::FileStamp();
    history_.enter("Obnovení projektu", opened.state, std::move(project));
    return opened.remarks;
}

bool ProjectWork::changedOnDisk() const {
    return !project().path.empty() && platform::changedSince(project().path, project().stamp);
}

void ProjectWork::save(const std::string& path) {
    OpenProject& project = history_.project();
    WindowState state = stateOf(*program_);
    project.stamp = saveProject(path, state, project.kept);
    project.path = path;
    project.saved = std::move(state);
    project.recovered = false;
}

}  // namespace mero::forms
