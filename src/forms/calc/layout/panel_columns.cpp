// SPDX-License-Identifier: MIT
/// Measures the captions and units of all types.
#include "forms/calc/layout/panel_columns.h"

#include <QStyle>
#include <algorithm>

#include "data/facility_type.h"
#include "design/input.h"
#include "design/quantity.h"
#include "qt/look.h"

namespace mero::forms {
namespace {

/// A list of the shafts' designations is as wide as a field and a unit.
constexpr int kValueCharacters = 33;

void widen(qt::FieldColumns& columns, const QWidget& widget, const char* caption, const char* unit,
           int inset = 0) {
    columns.caption =
        std::max(columns.caption, inset + qt::FieldGrid::captionWidth(widget, QString::fromUtf8(caption)));
    columns.unit = std::max(columns.unit, widget.fontMetrics().horizontalAdvance(QString::fromUtf8(unit)));
}

}  // namespace

qt::FieldColumns inputColumns(const QWidget& widget) {
    qt::FieldColumns columns;
    for (const data::FacilityType type : data::kFacilityTypes) {
        for (const design::PanelInput& row : design::panelInputs(type)) {
            const design::InputInfo& input = info(row.input);
            const int inset = design::isOfSubPanel(row.input) ? innerInset(widget) : 0;
            widen(columns, widget, row.caption == nullptr ? input.caption : row.caption, input.unit, inset);
        }
    }
    return columns;
}

qt::FieldColumns resultColumns(const QWidget& widget) {
    qt::FieldColumns columns;
    for (const data::FacilityType type : data::kFacilityTypes) {
        for (const design::ResultBox& row : design::resultBoxes(type)) {
            widen(columns, widget, design::captionOf(row.quantity, type), info(row.quantity).unit);
        }
    }
    return columns;
}

int innerInset(const QWidget& widget) {
    constexpr int kBorder = 1;
    return kBorder + widget.style()->pixelMetric(QStyle::PM_LayoutLeftMargin, nullptr, &widget);
}

int valueWidth(const QWidget& widget) {
    return qt::textWidth(widget, kValueCharacters);
}

}  // namespace mero::forms
