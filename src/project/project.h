// SPDX-License-Identifier: MIT
/// A project as a file holds it: the texts of the report and everything that is entered in the window.
/// The numbers stand apart from the texts, because a sweep copies and changes only them.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "calc/rain.h"
#include "data/mod_public_variables.h"
#include "design/facility.h"

namespace mero::project {

/// The version that is written into files. Files without one are of version 1: the inputs of one design,
/// without the window.
inline constexpr int kVersion = 2;

struct PartialArea {
    float area_m2 = 0.0F;
    float runoff_coefficient = 0.0F;
};

/// The choices of the rain dialog.
struct RainChoice {
    int station = 0;      ///< position in the list of stations, 0: own values
    int periodicity = 0;  ///< position in the list of periodicities
    /// Duration of the row that is picked as design rain [min], negative: none picked.
    float design_duration_min = -1.0F;
    bool picks_row = false;
    /// Own values. The durations hold for a station too: they are then the nine of the reference table.
    std::array<float, calc::kRainRows> durations_min{};
    std::array<float, calc::kRainRows> intensities_l_s_ha{};
};

/// All numbers and choices.
struct Inputs {
    RainChoice rain;
    std::vector<PartialArea> areas;
    float filtration_m_s = 0.0F;
    float groundwater_depth_m = 0.0F;
    design::Facility facility;
};

/// All texts. They do not touch the results. The lines of the description end with "\r\n", as a box of
/// several lines holds them.
struct Texts : data::ProjectTexts {
    std::vector<std::string> surfaces;  ///< one for each partial area
};

/// The tables that projects are read against: stations, periodicities, durations. Filled once; nobody changes
/// them, so all threads read them.
[[nodiscard]] const data::ReferenceTables& reference();

struct Project {
    Texts texts;
    Inputs inputs;
    /// Paths of all values that the file gives: `facility.trench_width_m`, `areas[0].area_m2`.
    std::vector<std::string> given;
};

}  // namespace mero::project
