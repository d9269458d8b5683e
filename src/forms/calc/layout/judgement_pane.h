// SPDX-License-Identifier: MIT
/// The state of a panel's results: the banner when they are stale, the rain that counted, the judgements.
#pragma once

#include <QBoxLayout>

#include "forms/calc/frm_calc.h"
#include "qt/widget_kit.h"

namespace mero::forms {

/// Adds them to the column of a panel's results, below these.
/// @param side    the widget with that column; whatever else it holds is greyed with the results
/// @param results the boxes of the results
void addResultState(qt::WidgetKit& kit, frmCalc& form, FacilityType type, QWidget& side, QBoxLayout& column,
                    QWidget& results);

/// The banner above the report. @param view the report, greyed while its results are stale
void addReportState(qt::WidgetKit& kit, frmCalc& form, QWidget& page, QBoxLayout& column, QWidget& view);

}  // namespace mero::forms
