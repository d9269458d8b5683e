// SPDX-License-Identifier: MIT
/// Which rains in use come from a demonstration database. Own values are typed row by row, and the picked
/// rain outlives the table that it was picked from.
#pragma once

#include <array>

#include "data/mod_public_variables.h"

namespace mero::forms {

/// What is known of the rains in use.
struct DemonstrationRains {
    bool station = false;                           ///< of the station's table that was read last
    std::array<bool, data::kDurationCount> rows{};  ///< of the rain table
    bool picked = false;                            ///< of a picked rain that is no row of the table any more

    friend bool operator==(const DemonstrationRains&, const DemonstrationRains&) = default;
};

class DemonstrationUse {
  public:
    [[nodiscard]] const DemonstrationRains& rains() const { return rains_; }
    void restore(const DemonstrationRains& rains) { rains_ = rains; }

    /// A station's table was read; its values are not in use yet.
    void stationRead(bool demonstration) { rains_.station = demonstration; }
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

    DemonstrationRains rains_;
};

}  // namespace mero::forms
