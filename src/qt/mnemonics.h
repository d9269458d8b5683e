// SPDX-License-Identifier: MIT
/// Underlined letters that bring the keyboard to a field or press a button together with the Alt key.
#pragma once

#include <QSet>
#include <QTabWidget>
#include <QWidget>

namespace mero::qt {

/// Letters that are given away already, small.
using Letters = QSet<QChar>;

/// Gives the tabs their letters and returns them.
Letters addMnemonics(QTabWidget& tabs);

/// Gives letters to the buttons, options and inputs below `root`. What an exclusive panel holds (see
/// `markAlternative`) shares letters with the other panels, never with what shows beside them.
void addMnemonics(QWidget& root, Letters taken);

/// A panel that never shows at the same time as its neighbours.
void markAlternative(QWidget& panel);

/// Lets a button's letter bring the focus there first, as a click would: what the field that is left has to
/// do comes before what the button does.
void focusByMnemonic(QWidget& button);

}  // namespace mero::qt
