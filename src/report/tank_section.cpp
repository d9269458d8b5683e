// SPDX-License-Identifier: MIT
/// Report section of infiltration tanks.
#include "report/html_rows.h"
#include "report/type_sections.h"

namespace mero::report {

std::string tankSection(const ReportData& data) {
    const TankValues& tank = data.tank;
    std::string section = line({
        siteInputs(data),
        kResultsHeading,
        kTableStart,
        valueRow("Součinitel bezpečnosti", twoDecimals(data.safety_factor), unit::kNoneOpen),
        // The unit of the bottom length stands one row too high: the report's required wording.
        valueRow("Specifická vsakovací intenzita", twoDecimals(tank.specific_infiltration_lsha),
                 unit::kMetresOpen),
        valueRow("Délka dna nádrže", twoDecimals(tank.bottom_length_m), unit::kNoneOpen),
        valueRow("Šířka dna nádrže", twoDecimals(tank.bottom_width_m), unit::kMetresOpen),
        valueRow("Hloubka nádrže", twoDecimals(tank.depth_m), unit::kMetresOpen),
        valueRow("Sklon svahů nádrže", "1 : ", "</TH><TH valign=bottom align=left width=250>"),
        twoDecimals(tank.side_slope),
        "</TH>",
    });
    if (tank.upstream_settling) {
        section += line({optionHeader("Předsazené usazování")});
    }
    section += line({
        kRuleRow,
        valueRow("Vsakovací tok", twoDecimals(tank.infiltration_flow_m3_s), unit::kCubicMetresPerSecondOpen),
        valueRow("Potřebný objem akumulace", twoDecimals(data.storage_volume_m3), unit::kCubicMetresOpen),
        valueRow("Objem dle rozměrů nádrže", twoDecimals(tank.volume_by_dimensions_m3),
                 unit::kCubicMetresOpen),
        kTableEnd,
    });
    return section;
}

}  // namespace mero::report
