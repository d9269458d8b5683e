// SPDX-License-Identifier: MIT
/// Enters a project into the real forms, as a user does, and keeps everything that was told.
/// The order of the entries is the one that design/design.h documents.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "design/messages.h"
#include "forms/calc/program.h"
#include "project/project.h"

namespace mero::design::test {

/// The rain database of the test: every station has its own made-up table.
class MadeUpRain : public data::RainDatabase {
  public:
    [[nodiscard]] data::StationTable read(std::int16_t station_number, const std::string& path) override;
};

/// A running program into which one project has been entered and calculated.
class EnteredWindow {
  public:
    explicit EnteredWindow(const project::Project& project);
    ~EnteredWindow();
    EnteredWindow(const EnteredWindow&) = delete;
    EnteredWindow& operator=(const EnteredWindow&) = delete;

    /// Every message box and every report of an error, in order.
    [[nodiscard]] const std::vector<Message>& told() const;
    [[nodiscard]] const data::modPublicVariables& values() const;
    [[nodiscard]] forms::frmCalc& window();
    /// The report as the results tab would write it now, in UTF-8.
    [[nodiscard]] std::string report();

    /// The frozen moment of the report.
    static const platform::DateTime kMoment;

  private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

}  // namespace mero::design::test
