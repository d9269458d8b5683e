// SPDX-License-Identifier: MIT
/// Report section of shaft infiltration.
#include "platform/numbers/number_text.h"
#include "report/html_rows.h"
#include "report/type_sections.h"

namespace mero::report {
namespace {

/// One line for a round shaft, two for a rectangular one, none for any other shape.
std::string crossSectionLines(const ShaftValues& shaft) {
    if (shaft.shape == 0) {
        return line(
            {valueRow("Vnitřní průměr šachty", twoDecimals(shaft.inner_diameter_m), unit::kMetresOpen)});
    }
    if (shaft.shape == 1) {
        return line({valueRow("Šířka šachty", twoDecimals(shaft.side1_m), unit::kMetresOpen)}) +
               line({valueRow("Délka šachty", twoDecimals(shaft.side2_m), unit::kMetresOpen)});
    }
    return {};
}

}  // namespace

std::string shaftSection(const ReportData& data) {
    const ShaftValues& shaft = data.shaft;
    std::string section = line({
        siteInputs(data),
        kResultsHeading,
        kTableStart,
        valueRow("Součinitel bezpečnosti", twoDecimals(data.safety_factor), unit::kNoneOpen),
        valueRow("Nezámrzná hloubka přítoku", twoDecimals(shaft.inflow_depth_m), unit::kMetresOpen),
        valueRow("Typ šachty", shaft.ring, unit::kNoneOpen),
        valueRow("Počet šachet", numbers::general(shaft.count), unit::kNoneOpen),
    });
    section += crossSectionLines(shaft);
    section += line({
        valueRow("Tloušťka stěny", twoDecimals(shaft.wall_thickness_m), unit::kMetresOpen),
        valueRow("Výška vzdutí", twoDecimals(data.water_depth_m), unit::kMetresOpen),
        valueRow("Výška filtrační vrstvy", twoDecimals(shaft.filter_layer_m), unit::kMetresOpen),
    });
    if (shaft.sand_layer) {
        section += line(
            {valueRow("Výška vrstvy písku/jem. štěrku", twoDecimals(shaft.sand_layer_m), unit::kMetresOpen)});
    }
    section += line({
        kRuleRow,
        valueRow("Potřebná hloubka šachty", twoDecimals(shaft.required_depth_m), unit::kMetresOpen),
        valueRow("Min. hloubka podzemní vody", twoDecimals(shaft.min_groundwater_depth_m), unit::kMetresOpen),
        valueRow("Potřebný součinitel filtrace filtru", scientific(shaft.required_filtration_m_s),
                 unit::kMetresPerSecondOpen),
        valueRow("Vsakovací plocha", twoDecimals(data.infiltration_area_m2), unit::kSquareMetresOpen),
        kTableEnd,
    });
    return section;
}

}  // namespace mero::report
