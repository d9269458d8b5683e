// SPDX-License-Identifier: MIT
/// Which rains in use come from a demonstration database. Own values are typed row by row, and the picked
/// rain outlives the table that it was picked from.
#pragma once

#include <array>

#include "data/mod_public_variables.h"

namespace mero::forms {

class DemonstrationUse {
  public:
    /// A station's table was read; its values are not in use yet.
    void stationRead(bool demonstration) { station_ = demonstration; }
    /// The station's values are about to replace the rain table.
    void tableTaken(const data::modPublicVariables& values);
    /// A duration of the table is about to be typed; its intensity stays what it is.
    void durationTyped(const data::modPublicVariables& values);
    /// The intensity of a row is about to be typed. @param row from 0
    void intensityTyped(const data::modPublicVariables& values, std::size_t row);

    /// Does a rain of the table, or the picked rain, come from a demonstration database?
    [[nodiscard]] bool inUse(const data::modPublicVariables& values) const;

  private:
    /// The picked rain is one of the table's rows, or was before the table changed.
    [[nodiscard]] bool isPickedDemonstration(const data::modPublicVariables& values) const;

    bool station_ = false;
    std::array<bool, data::kDurationCount> rows_{};
    bool picked_ = false;  ///< of a picked rain that is no row of the table any more
};

}  // namespace mero::forms
