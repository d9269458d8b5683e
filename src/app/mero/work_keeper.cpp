// SPDX-License-Identifier: MIT
/// The state is taken at once and written later, by another thread.
#include "app/mero/work_keeper.h"

#include <utility>

#include "forms/keeping/project_file.h"

namespace mero::app {

void WorkKeeper::keep() {
    forms::OpenProject& project = work_->project();
    if (!work_->changed()) {
        drop(project);
        return;
    }
    forms::WindowState state = stateOf(*program_);
    if (last_copy_ == project.recovery_copy && last_ == state) {
        return;
    }
    if (project.recovery_copy.empty()) {
        project.recovery_copy = copies_.make(project.path);
    }
    if (project.recovery_copy.empty()) {
        return;  // there is no place for it
    }
    if (last_copy_ != project.recovery_copy) {
        writer_.wait();  // the copy of another project must not be left out
    }
    last_copy_ = project.recovery_copy;
    last_ = state;
    writer_.write([path = last_copy_, state = std::move(state), kept = project.kept] {
        RecoveryCopies::write(path, forms::projectText(state, kept));
    });
}

void WorkKeeper::keepNow() {
    keep();
    writer_.wait();
}

void WorkKeeper::drop(forms::OpenProject& project) {
    if (project.recovery_copy.empty()) {
        return;
    }
    writer_.wait();
    RecoveryCopies::remove(project.recovery_copy);
    project.recovery_copy.clear();
    last_.reset();
    last_copy_.clear();
}

LostCopy WorkKeeper::take() {
    LostCopy first = std::move(lost_.front());
    lost_.erase(lost_.begin());
    return first;
}

}  // namespace mero::app
