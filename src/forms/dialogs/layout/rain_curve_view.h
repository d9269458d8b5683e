// SPDX-License-Identifier: MIT
/// The curve of the nine intensities in the rain dialog.
#pragma once

#include <QWidget>

#include "forms/dialogs/frm_int_dialog.h"

namespace mero::forms {

/// Follows every edit of the table and every choice.
QWidget& makeRainCurve(frmIntDialog& form, QWidget& parent);

}  // namespace mero::forms
