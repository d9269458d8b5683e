// SPDX-License-Identifier: MIT
/// Texts of the clipboard and of drops, whatever format they come in.
#pragma once

#include <QClipboard>
#include <QMimeData>
#include <QString>

namespace mero::qt {

/// The plain text; where there is only HTML, its table with a tab between cells, or its text.
[[nodiscard]] QString textOf(const QMimeData& data);

[[nodiscard]] QString clipboardText(QClipboard::Mode mode);

}  // namespace mero::qt
