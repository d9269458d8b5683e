// SPDX-License-Identifier: MIT
/// Report sections of the combined swale and trench object and of the trench with or without a drain.
#include "report/html_rows.h"
#include "report/type_sections.h"

namespace mero::report {
namespace {

using design::Input;
using design::Quantity;

std::string trenchRows(const ReportData& data) {
    return inputRow(data, Input::FillPorosity, unit::kNone) +
           inputRow(data, Input::TrenchWidth, unit::kMetres) +
           inputRow(data, Input::TrenchHeight, unit::kMetres);
}

std::string throttledOverflowLine(const ReportData& data) {
    return line({
        optionHeader(design::kOverflowCaption),
        inputRow(data, Input::OverflowInnerDiameter, unit::kMillimetres),
        inputRow(data, Input::OverflowOuterDiameter, unit::kMillimetres),
        inputRow(data, Input::ThrottledOutflow, unit::kLitresPerSecondHectare),
        inputRow(data, Input::OverflowPipeCount, unit::kNone),
    });
}

std::string drainLine(const ReportData& data) {
    return line({
        optionHeader(design::kDrainCaption),
        inputRow(data, Input::DrainInnerDiameter, unit::kMillimetres),
        inputRow(data, Input::DrainOuterDiameter, unit::kMillimetres),
        inputRow(data, Input::DrainPipeCount, unit::kNone),
        inputRow(data, Input::OutletArea, unit::kSquareCentimetresPerMetre),
        inputRow(data, Input::OutletVelocity, unit::kMetresPerSecond),
    });
}

}  // namespace

std::string combinedSection(const ReportData& data) {
    std::string section = line({
        siteInputs(data),
        kResultsHeading,
        kTableStart,
        valueRow(design::reportLabel(Input::Soil), data.options.soil_caption, unit::kNone),
        valueRow(design::reportLabel(Input::SwaleFiltration), scientific(data.numbers.txtSoucFiltrPruleh),
                 unit::kMetresPerSecond),
        inputRow(data, Input::SafetyFactor, unit::kNone),
        trenchRows(data),
    });
    if (data.options.overflow) {
        section += throttledOverflowLine(data);
    }
    section += line({
        kRuleRow,
        resultRow(data, Quantity::InfiltrationArea, unit::kSquareMetres),
        resultRow(data, Quantity::StorageVolume, unit::kCubicMetresOpen),
        resultRow(data, Quantity::TrenchLength, unit::kMetresOpen),
        resultRow(data, Quantity::SwaleWidth, unit::kMetresOpen),
        resultRow(data, Quantity::SwaleDepth, unit::kMetresOpen),
        resultRow(data, Quantity::EmptyingTime, unit::kHoursOpen),
        kTableEnd,
    });
    return section;
}

std::string trenchSection(const ReportData& data) {
    std::string section = line({
        siteInputs(data),
        kResultsHeading,
        kTableStart,
        inputRow(data, Input::SafetyFactor, unit::kNone),
        trenchRows(data),
    });
    if (data.options.drain) {
        section += drainLine(data);
    }
    section += line({
        kRuleRow,
        resultRow(data, Quantity::InfiltrationArea, unit::kSquareMetres),
        resultRow(data, Quantity::StorageVolume, unit::kCubicMetresOpen),
        resultRow(data, Quantity::TrenchLength, unit::kMetresOpen),
        kTableEnd,
    });
    return section;
}

}  // namespace mero::report
