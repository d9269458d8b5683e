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

}  // namespace

ProjectWork::ProjectWork(Program& program)
    : program_(&program), opening_(stateOf(program)), history_(program, newProject(opening_)) {
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
    history_.enter("Nový projekt", opening_, newProject(opening_));
}

}  // namespace mero::forms
