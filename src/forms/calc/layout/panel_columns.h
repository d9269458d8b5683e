// SPDX-License-Identifier: MIT
/// The widths that the six panels have in common, so that nothing jumps when another type is chosen.
#pragma once

#include <QWidget>

#include "qt/field_grid.h"

namespace mero::forms {

/// Room for the inputs of every type, in the font of `widget`.
[[nodiscard]] qt::FieldColumns inputColumns(const QWidget& widget);
/// Room for the results of every type.
[[nodiscard]] qt::FieldColumns resultColumns(const QWidget& widget);
/// How far the content of a box stands within the content around the box.
[[nodiscard]] int innerInset(const QWidget& widget);
/// Width of a field with its unit, which a list or two options may fill.
[[nodiscard]] int valueWidth(const QWidget& widget);

}  // namespace mero::forms
