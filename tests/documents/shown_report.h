// SPDX-License-Identifier: MIT
/// A report with given texts as the window shows and prints it, for tests and fuzzing.
#pragma once

#include <QString>
#include <string>

#include "report/report_data.h"
#include "support/temporary_folder.h"

namespace mero::test {

enum class Painted { View, ViewAndPages };

/// What showing a report took, in processor time.
struct Shown {
    /// Reading, laying out and painting its beginning.
    double view_s = 0;
    /// Finding its pages and painting them.
    double pages_s = 0;
    int pages = 0;
    QString text;
};

class ShownReport {
  public:
    /// Shows the report of a project from a folder with the program's pages.
    [[nodiscard]] Shown show(const report::ReportData& project, Painted painted) const;
    /// Shows the sample project with this description.
    [[nodiscard]] Shown describe(const std::string& description, Painted painted) const;
    [[nodiscard]] const TemporaryFolder& folder() const { return folder_; }

  private:
    TemporaryFolder folder_{" view"};
};

}  // namespace mero::test
