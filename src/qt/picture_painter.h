// SPDX-License-Identifier: MIT
/// Paints drawings: fills, patterns and pens, all colours mixed from the palette, all sizes from the font.
#pragma once

#include <QFont>
#include <QPainter>
#include <QPalette>

#include "picture/drawing.h"

namespace mero::qt {

/// The fonts of a drawing: what is strong is bold.
[[nodiscard]] QFont pictureFont(const QFont& font, picture::Emphasis emphasis);

/// Text sizes in that font.
[[nodiscard]] picture::TextSizes textSizes(const QFont& font);

/// Fill and ink of what a drawing shows, in the colours of the palette.
[[nodiscard]] QColor fillColour(const QPalette& palette, picture::Material material);
[[nodiscard]] QColor inkColour(const QPalette& palette, picture::Stroke stroke);
/// Colour of a series in a chart; on dark paper a light one of the same hue.
[[nodiscard]] QColor seriesColour(const QPalette& palette, std::size_t series);
[[nodiscard]] QColor textColour(const QPalette& palette, picture::Emphasis emphasis);

void paintDrawing(QPainter& painter, const picture::Drawing& drawing, const QPalette& palette,
                  const QFont& font);

}  // namespace mero::qt
