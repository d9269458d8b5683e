// SPDX-License-Identifier: MIT
/// Report section of shaft infiltration.
#include "platform/numbers/number_text.h"
#include "report/html_rows.h"
#include "report/type_sections.h"

namespace mero::report {
namespace {

using design::Input;
using design::Quantity;

/// One line for a round shaft, two for a rectangular one, none for any other shape.
std::string crossSectionLines(const ReportData& data) {
    switch (data.options.shape) {
        case data::ShaftShape::Round:
            return line({resultRow(data, Quantity::ShaftInnerDiameter, unit::kMetresOpen)});
        case data::ShaftShape::Rectangular:
            return line({valueRow(design::reportLabel(Input::InnerWidth),
                                  twoDecimals(data.numbers.shaft_side1_m), unit::kMetresOpen)}) +
                   line({inputRow(data, Input::InnerLength, unit::kMetresOpen)});
    }
    return {};
}

}  // namespace

std::string shaftSection(const ReportData& data) {
    std::string section = line({
        siteInputs(data),
        kResultsHeading,
        kTableStart,
        inputRow(data, Input::SafetyFactor, unit::kNoneOpen),
        inputRow(data, Input::InletDepth, unit::kMetresOpen),
        valueRow(design::reportLabel(Input::CatalogueShaft), data.options.ring, unit::kNoneOpen),
        valueRow(design::reportLabel(Input::ShaftCount), numbers::general(data.numbers.txtSachtyCount),
                 unit::kNoneOpen),
    });
    section += crossSectionLines(data);
    section += line({
        inputRow(data, Input::WallThickness, unit::kMetresOpen),
        resultRow(data, Quantity::WaterDepth, unit::kMetresOpen),
        inputRow(data, Input::FilterLayer, unit::kMetresOpen),
    });
    if (data.options.sand_layer) {
        section += line({inputRow(data, Input::SandLayer, unit::kMetresOpen)});
    }
    section += line({
        kRuleRow,
        resultRow(data, Quantity::ShaftDepth, unit::kMetresOpen),
        resultRow(data, Quantity::RequiredGroundwaterDepth, unit::kMetresOpen),
        valueRow(design::reportLabel(Quantity::RequiredFilterPermeability, data.type),
                 scientific(data.numbers.txtSoucFiltrPruleh), unit::kMetresPerSecondOpen),
        resultRow(data, Quantity::InfiltrationArea, unit::kSquareMetresOpen),
        kTableEnd,
    });
    return section;
}

}  // namespace mero::report
