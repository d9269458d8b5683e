// SPDX-License-Identifier: MIT
/// Report section of infiltration tanks.
#include "report/html_rows.h"
#include "report/type_sections.h"

namespace mero::report {

using design::Input;
using design::Quantity;

std::string tankSection(const ReportData& data) {
    std::string section = line({
        siteInputs(data),
        kResultsHeading,
        kTableStart,
        inputRow(data, Input::SafetyFactor, unit::kNoneOpen),
        // The unit of the bottom length stands one row too high; the report's bytes are a fixed interface.
        inputRow(data, Input::SpecificInfiltration, unit::kMetresOpen),
        inputRow(data, Input::BottomLength, unit::kNoneOpen),
        inputRow(data, Input::BottomWidth, unit::kMetresOpen),
        inputRow(data, Input::TankDepth, unit::kMetresOpen),
        valueRow(design::reportLabel(Input::SideSlope),
                 "1 : ", "</TH><TH valign=bottom align=left width=250>"),
        twoDecimals(data.numbers.txtSklonSvahuNadrz),
        "</TH>",
    });
    if (data.options.upstream_settling) {
        section += line({optionHeader(design::reportLabel(Input::UpstreamSettling))});
    }
    section += line({
        kRuleRow,
        resultRow(data, Quantity::InfiltrationFlow, unit::kCubicMetresPerSecondOpen),
        resultRow(data, Quantity::StorageVolume, unit::kCubicMetresOpen),
        resultRow(data, Quantity::TankVolume, unit::kCubicMetresOpen),
        kTableEnd,
    });
    return section;
}

}  // namespace mero::report
