// SPDX-License-Identifier: MIT
/// Contrast of colours, as the accessibility guidelines (WCAG 2) define it.
#pragma once

#include <QColor>
#include <QPalette>

namespace mero::qt {

/// Least contrast of the outline of a control to what is inside and around it.
inline constexpr double kOutlineContrast = 3;
/// Least contrast of a text to its background.
inline constexpr double kTextContrast = 4.5;

/// 1 for equal colours, 21 for black and white.
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

/// The faintest grey of the palette that outlines a control: kOutlineContrast to fields, buttons, cards
/// and windows.
[[nodiscard]] QColor outlineColour(const QPalette& palette);

/// The fill of cards, on which fields and texts stand.
[[nodiscard]] QColor cardColour(const QPalette& palette);
/// The fill of titles of cards and of headings of tables.
[[nodiscard]] QColor titleStripColour(const QPalette& palette);
/// The text of titles: the links' colour where it is legible on the strip.
[[nodiscard]] QColor titleColour(const QPalette& palette);
/// The fill of the button that a page is about: the colour of selections, as strong as its text needs.
[[nodiscard]] QColor primaryColour(const QPalette& palette);
/// Thin lines that only divide; nothing depends on seeing them.
[[nodiscard]] QColor dividerColour(const QPalette& palette);

}  // namespace mero::qt
