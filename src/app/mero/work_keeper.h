// SPDX-License-Identifier: MIT
/// Keeps unsaved work in recovery copies while a user works, and hands out what programs before have lost.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/keeping/recovery_copies.h"
#include "app/keeping/recovery_writer.h"
#include "forms/calc/program.h"
#include "forms/keeping/project_work.h"

namespace mero::app {

class WorkKeeper {
  public:
    /// @param folder of recovery copies, "" to keep nothing
    WorkKeeper(const forms::Program& program, forms::ProjectWork& work, const std::string& folder)
        : program_(&program), work_(&work), copies_(folder) {}

    /// Writes the copy when the project is changed and the copy has something else; removes it when nothing
    /// is unsaved. Takes some 100 microseconds: the file is written in the background.
    void keep();
    /// The same, and returns when the copy is on the disk.
    void keepNow();

    /// What programs before have lost, the latest first. The latest is offered first.
    void findLost() { lost_ = copies_.takeLost(); }
    [[nodiscard]] const std::vector<LostCopy>& lost() const { return lost_; }
    /// The latest is not offered any more. @return it
    LostCopy take();

  private:
    void drop(forms::OpenProject& project);

    const forms::Program* program_;
    forms::ProjectWork* work_;
    RecoveryCopies copies_;
    RecoveryWriter writer_;
    std::optional<forms::WindowState> last_;  ///< in the copy that was written last
    std::string last_copy_;
    std::vector<LostCopy> lost_;
};

}  // namespace mero::app
