// SPDX-License-Identifier: MIT
/// What the results report reads: texts in UTF-8, the numbers of the design, the options of the panels.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "calc/rain.h"
#include "data/design_numbers.h"
#include "data/facility_type.h"
#include "data/mod_public_variables.h"

namespace mero::report {

/// One line of the drained-area list.
struct PartialArea {
    float area_m2 = 0;
    float runoff_coefficient = 0;
    std::string surface;
};

/// The nine rains. The chosen one is the row whose duration is VybranaDoba.
struct RainValues {
    std::string station;               ///< VybranaStanice
    std::string periodicity;           ///< VybranaPeriodicita
    std::array<calc::Rain, 9> rows{};  ///< DobaTrvani, IntenzitaDeste
};

/// The options of the chosen type's panel.
struct Options {
    std::string soil_caption;  ///< caption of the soil option of a swale (SoilVariant)
    bool overflow = false;     ///< chkSelPretok(3)
    bool drain = false;        ///< chkSelPretok(4)
    data::ShaftShape shape = data::ShaftShape::Round;
    bool sand_layer = false;         ///< SoilVariant is 1 ("typ B")
    std::string ring;                ///< text of cboTypSachty as shown
    bool upstream_settling = false;  ///< chkPredUsaz
};

/// Everything that one report shows. Every number must be finite.
struct ReportData {
    data::ProjectTexts texts;  ///< the description with "<br>" for its line breaks
    /// None has no section of its own.
    data::FacilityType type = data::FacilityType::None;
    std::string type_name;  ///< TypyZasakovani(SelectedType)
    RainValues rain;
    std::vector<PartialArea> partial_areas;  ///< the entries, without the spare last slot
    data::DesignNumbers numbers;
    Options options;
    std::string date;  ///< date of the calculation in the regional short format
    std::string time;  ///< its time in the regional short format
};

/// Replaces every CR LF pair by a line-break tag, as the description has it in the report.
[[nodiscard]] std::string withBreakTags(const std::string& text);

}  // namespace mero::report
