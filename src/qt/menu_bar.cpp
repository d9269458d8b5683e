// SPDX-License-Identifier: MIT
/// The actions belong to the content, whose keys they are; the menus only show them.
#include "qt/menu_bar.h"

#include <QAction>
#include <QMenu>
#include <memory>
#include <utility>

namespace mero::qt {
namespace {

constexpr QLatin1Char kMark('&');

/// Names of files and steps may have the character that marks mnemonics.
void showLook(QAction& action, const MenuEntry& entry) {
    if (entry.look) {
        const EntryLook look = entry.look();
        action.setEnabled(look.enabled);
        action.setText(look.text.isEmpty() ? entry.text : look.text);
    }
}

void fillSubmenu(QMenu& submenu, const std::vector<MenuEntry>& entries) {
    submenu.clear();
    for (const MenuEntry& entry : entries) {
        QAction* action = submenu.addAction(entry.text, &submenu, entry.run);
        action->setObjectName(entry.name);
        showLook(*action, entry);
    }
}

/// One menu of the bar.
class LazyMenu : public QObject {
  public:
    LazyMenu(QMenu& menu, QWidget& content, std::vector<MenuEntry> entries)
        : QObject(&menu), menu_(&menu), content_(&content), entries_(std::move(entries)) {
        actions_.resize(entries_.size());
        for (std::size_t i = 0; i < entries_.size(); ++i) {
            if (!entries_[i].keys.isEmpty()) {
                make(i);
            }
        }
        connect(&menu, &QMenu::aboutToShow, this, [this] { open(); });
    }

  private:
    QAction& make(std::size_t i) {
        const MenuEntry& entry = entries_[i];
        auto* action = new QAction(entry.text, content_);
        action->setObjectName(entry.name);
        action->setShortcuts(entry.keys);
        // Asked anew: what the menu showed may be out of date when the key comes.
        connect(action, &QAction::triggered, this, [this, i] {
            const MenuEntry& chosen = entries_[i];
            if (!chosen.look || chosen.look().enabled) {
                chosen.run();
            }
        });
        content_->addAction(action);
        actions_[i] = action;
        return *action;
    }

    void open() {
        if (!std::exchange(filled_, true)) {
            fill();
        }
        for (std::size_t i = 0; i < entries_.size(); ++i) {
            if (actions_[i] != nullptr) {
                showLook(*actions_[i], entries_[i]);
            }
        }
        // A disabled action would not hear its key.
        connect(
            menu_, &QMenu::aboutToHide, this, [this] { later(); }, Qt::SingleShotConnection);
    }

    void fill() {
        for (std::size_t i = 0; i < entries_.size(); ++i) {
            const MenuEntry& entry = entries_[i];
            if (entry.text.isEmpty()) {
                menu_->addSeparator();
            } else if (entry.entries) {
                QMenu* submenu = menu_->addMenu(entry.text);
                submenu->setObjectName(entry.name);
                connect(submenu, &QMenu::aboutToShow, this,
                        [submenu, entries = entry.entries] { fillSubmenu(*submenu, entries()); });
                actions_[i] = submenu->menuAction();
            } else {
                menu_->addAction(actions_[i] != nullptr ? actions_[i] : &make(i));
            }
        }
    }

    /// The chosen action is triggered after its menu has closed.
    void later() {
        QMetaObject::invokeMethod(
            this,
            [this] {
                for (QAction* action : actions_) {
                    if (action != nullptr && !menu_->isVisible()) {
                        action->setEnabled(true);
                    }
                }
            },
            Qt::QueuedConnection);
    }

    QMenu* menu_;
    QWidget* content_;
    std::vector<MenuEntry> entries_;
    std::vector<QAction*> actions_;  ///< made with their keys or with the menu
    bool filled_ = false;
};

}  // namespace

QMenuBar& makeMenuBar(QWidget& content, std::vector<Menu> menus) {
    auto& bar = *new QMenuBar(&content);
    bar.setObjectName(QStringLiteral("menuBar"));
    for (Menu& menu : menus) {
        new LazyMenu(*bar.addMenu(menu.title), content, std::move(menu.entries));
    }
    return bar;
}

Letters lettersOf(const std::vector<Menu>& menus) {
    Letters letters;
    for (const Menu& menu : menus) {
        const qsizetype mark = menu.title.indexOf(kMark);
        if (mark >= 0 && mark + 1 < menu.title.size()) {
            letters.insert(menu.title[mark + 1].toLower());
        }
    }
    return letters;
}

}  // namespace mero::qt
