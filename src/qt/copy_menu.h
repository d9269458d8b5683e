// SPDX-License-Identifier: MIT
/// Context menus that copy more than a field: tables and pictures.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <vector>

#include "picture/drawing.h"

namespace mero::qt {

using CopiedRows = std::vector<std::vector<QString>>;

/// Copies the rows as text with tabs and as an HTML table, so that spreadsheets and word processors take
/// them.
void copyRows(const CopiedRows& rows);

/// Adds an entry to the context menu of the area and of the fields in it.
/// @param rows read when the entry is chosen
void addCopyMenu(QWidget& area, const QString& entry, std::function<CopiedRows()> rows);

/// Arranges a picture on a sheet.
using PictureSource = std::function<picture::Drawing(const picture::Sheet&, const picture::TextSizes&)>;

/// Copies the picture as pixels, as large as the widget on a screen of double density, in the widget's
/// colours.
void copyAsPicture(const QWidget& widget, const PictureSource& source);
/// Copies the picture as an SVG document of that size, on white.
void copyAsSvg(const QWidget& widget, const PictureSource& source);

}  // namespace mero::qt
