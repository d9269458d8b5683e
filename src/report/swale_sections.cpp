// SPDX-License-Identifier: MIT
/// Report sections of surface infiltration and of swales, and the block of site inputs that all types share.
#include "report/html_rows.h"
#include "report/type_sections.h"

namespace mero::report {

using design::Input;
using design::Quantity;

std::string siteInputs(const ReportData& data) {
    std::string block(kTableStart);
    block += resultRow(data, Quantity::ReducedArea, unit::kSquareMetres);
    block += valueRow(design::reportLabel(Input::Filtration), scientific(data.numbers.txtSoucFiltrace),
                      "</TH><TD valign=bottom align=left width=250><b>m/s - </b>(");
    block += data.texts.txtTypPudyPodlozi;
    block += ")</TD></TR>";
    block += inputRow(data, Input::Groundwater, unit::kMetres);
    block += "</table><br><hr>";
    return block;
}

std::string surfaceSection(const ReportData& data) {
    return line({siteInputs(data), kResultsHeading, kTableStart,
                 resultRow(data, Quantity::InfiltrationArea, unit::kSquareMetresEndOfTable)});
}

std::string swaleSection(const ReportData& data) {
    return line({
        siteInputs(data),
        kResultsHeading,
        kTableStart,
        valueRow(design::reportLabel(Input::Soil), data.options.soil_caption, unit::kNone),
        inputRow(data, Input::SafetyFactor, unit::kNone),
        kRuleRow,
        resultRow(data, Quantity::InfiltrationArea, unit::kSquareMetres),
        resultRow(data, Quantity::StorageVolume, unit::kCubicMetres),
        resultRow(data, Quantity::WaterDepth, unit::kMetres),
        resultRow(data, Quantity::EmptyingTime, unit::kHours),
        kTableEnd,
    });
}

}  // namespace mero::report
