// SPDX-License-Identifier: MIT
/// Underlined letters: with the Alt key they focus a field or press a button.
#pragma once

#include <QSet>
#include <QTabWidget>
#include <QWidget>

namespace mero::qt {

/// Letters in use, in lower case.
using Letters = QSet<QChar>;

/// Assigns letters to the tabs. @return these letters and those taken before
Letters addMnemonics(QTabWidget& tabs, Letters taken = {});

/// Assigns letters to the buttons, options and inputs below `root`. Alternative panels (see
/// `markAlternative`) may use the same letters as each other, but not those of widgets shown beside them.
void addMnemonics(QWidget& root, Letters taken);

/// Marks a panel that is never visible at the same time as its neighbours.
void markAlternative(QWidget& panel);

/// Makes a button's letter set the focus before it presses the button, as a click does: the lost-focus
/// handler of the field runs before the button's handler.
void focusByMnemonic(QWidget& button);

}  // namespace mero::qt
