// SPDX-License-Identifier: MIT
/// Report sections of surface infiltration and of swales, and the block of site inputs that all types share.
#include "report/html_rows.h"
#include "report/type_sections.h"

namespace mero::report {

std::string siteInputs(const ReportData& data) {
    std::string block(kTableStart);
    block += valueRow("Celková odvodňovaná plocha", twoDecimals(data.drained_area_m2), unit::kSquareMetres);
    block += valueRow("Součinitel filtrace podloží", scientific(data.subsoil_filtration_m_s),
                      "</TH><TD valign=bottom align=left width=250><b>m/s - </b>(");
    block += data.subsoil;
    block += ")</TD></TR>";
    block += valueRow("Hladina podzemní vody", twoDecimals(data.groundwater_depth_m), unit::kMetres);
    block += "</table><br><hr>";
    return block;
}

std::string surfaceSection(const ReportData& data) {
    return line({siteInputs(data), kResultsHeading, kTableStart,
                 valueRow("Vsakovací plocha", twoDecimals(data.infiltration_area_m2),
                          unit::kSquareMetresEndOfTable)});
}

std::string swaleSection(const ReportData& data) {
    return line({
        siteInputs(data),
        kResultsHeading,
        kTableStart,
        valueRow("Typ půdy", data.swale.soil_caption, unit::kNone),
        valueRow("Součinitel bezpečnosti", twoDecimals(data.safety_factor), unit::kNone),
        kRuleRow,
        valueRow("Vsakovací plocha", twoDecimals(data.infiltration_area_m2), unit::kSquareMetres),
        valueRow("Objem akumulace průlehu", twoDecimals(data.storage_volume_m3), unit::kCubicMetres),
        valueRow("Výška vzdutí", twoDecimals(data.water_depth_m), unit::kMetres),
        valueRow("Doba prázdnění průlehu", twoDecimals(data.swale.emptying_time_h), unit::kHours),
        kTableEnd,
    });
}

}  // namespace mero::report
