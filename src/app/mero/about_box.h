// SPDX-License-Identifier: MIT
/// The box "O programu": version, data in use, licences.
#pragma once

#include <QString>
#include <QWidget>
#include <optional>
#include <string>

namespace mero::app {

/// The rain database that the program reads.
struct DataInUse {
    std::string path;
    int stations = 0;
    /// Whether its values are computed for demonstration; nothing where it cannot be read.
    std::optional<bool> demonstration;
};

void showAbout(QWidget* parent, const QString& version, const DataInUse& data);

}  // namespace mero::app
