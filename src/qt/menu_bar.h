// SPDX-License-Identifier: MIT
/// A window's menu bar, from tables of entries. The keys work from the start; a menu is filled when it opens.
#pragma once

#include <QKeySequence>
#include <QList>
#include <QMenuBar>
#include <QString>
#include <functional>
#include <vector>

#include "qt/mnemonics.h"

namespace mero::qt {

/// What an entry shows when its menu opens.
struct EntryLook {
    bool enabled = true;
    QString text = {};  ///< in place of the entry's own; empty for that
};

struct MenuEntry {
    QString name;  ///< of the action, for tests
    QString text;  ///< with its mnemonic; empty for a separator
    QList<QKeySequence> keys = {};
    std::function<void()> run = {};
    /// Asked when the menu opens and before a key runs the entry. Without it the entry is always enabled.
    std::function<EntryLook()> look = {};
    /// Entries of a submenu, asked when it opens.
    std::function<std::vector<MenuEntry>()> entries = {};
};

[[nodiscard]] inline MenuEntry separator() {
    return {};
}

struct Menu {
    QString title;
    std::vector<MenuEntry> entries;
};

/// Makes the bar above the content of the window. Keys and entries work while the window does, and not while
/// the content is disabled.
QMenuBar& makeMenuBar(QWidget& content, std::vector<Menu> menus);

/// The letters that the titles take.
[[nodiscard]] Letters lettersOf(const std::vector<Menu>& menus);

}  // namespace mero::qt
