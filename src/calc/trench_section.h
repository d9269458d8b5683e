// SPDX-License-Identifier: MIT
/// Cross-section of an infiltration trench and the uptake of one metre of it.
/// Shared by the trench and by the trench under a swale.
#pragma once

#include "platform/numbers/checked.h"

namespace mero::calc {

/// A filled trench in the ground.
struct TrenchSection {
    float width_m;              ///< mean width [m]
    float height_m;             ///< height of the fill [m]
    float storage_coefficient;  ///< share of the section that holds water, including any pipes [-]
    float filtration_m_s;       ///< filtration coefficient of the subsoil [m/s]
};

/// Infiltration area per metre of trench: the width of the bottom plus half the height for the walls, which
/// are wetted from empty to full [m2/m].
[[nodiscard]] constexpr double infiltrationWidth(double width_m, double height_m) {
    return width_m + height_m / 2.0;
}

/// Uptake of one metre of trench over the time of a balance: the filling of its pores in that time, and the
/// infiltration through its infiltration area at half the saturated conductivity.
class UptakePerMetre {
  public:
    explicit UptakePerMetre(const TrenchSection& section) {
        const double width = section.width_m;
        const double height = section.height_m;
        const double filtration = section.filtration_m_s;
        pores_m2_ = width * height * static_cast<double>(section.storage_coefficient);
        soaked_m2_s_ = infiltrationWidth(width, height) * filtration / 2.0;
    }

    /// @param balance_seconds duration of the rain in seconds times the safety factor
    /// @return uptake [m3/s per m]
    /// @throws RuntimeError DivisionByZero when that time is 0
    [[nodiscard]] double over(double balance_seconds) const {
        return numbers::divideOfSingles(pores_m2_, balance_seconds) + soaked_m2_s_;
    }

  private:
    double pores_m2_;
    double soaked_m2_s_;
};

}  // namespace mero::calc
