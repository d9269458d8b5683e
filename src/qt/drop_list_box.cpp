// SPDX-License-Identifier: MIT
/// Binds drop-down lists to combo boxes.
/// Only `activated` is observed: it is emitted for the user's choice, not for filling and selecting by code.
#include "qt/drop_list_box.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <functional>
#include <utility>

#include "qt/field_keys.h"
#include "qt/program_style.h"
#include "qt/texts.h"

namespace mero::qt {
namespace {

using platform::Aspect;
using platform::DropList;

constexpr int kVisibleEntries = 20;

/// Opens the list below its box with a limited number of entries, instead of over the whole screen.
class ListStyle : public ProgramStyle {
  public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        return hint == SH_ComboBox_Popup ? 0 : ProgramStyle::styleHint(hint, option, widget, data);
    }
};

/// A closed list in which arrows, letters and the wheel only move. Enter and leaving the list choose the
/// entry then shown, Escape shows the chosen one again.
class MovingList : public QComboBox {
  public:
    using QComboBox::QComboBox;

    /// True while a key or the wheel moves in the closed list.
    [[nodiscard]] bool moves() const { return moves_; }
    /// False while the focus came by code, as with a tab that gives it back to the list.
    [[nodiscard]] bool entered() const { return entered_; }
    void noteEntering() { entered_ = true; }
    /// Called with Enter and when the list is left.
    std::function<void()> take = [] {};
    /// Called with Escape; false when there is nothing to take back.
    std::function<bool()> take_back = [] { return false; };

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        const int key = event->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            take();
        } else if (key == Qt::Key_Escape && take_back()) {
            return;
        }
        move([&] { QComboBox::keyPressEvent(event); });
    }
    void wheelEvent(QWheelEvent* event) override {
        move([&] { QComboBox::wheelEvent(event); });
    }
    void focusOutEvent(QFocusEvent* event) override {
        QComboBox::focusOutEvent(event);
        if (countsAsLeaving(event->reason())) {
            take();
            entered_ = false;
        }
    }

  private:
    void move(const std::function<void()>& act) {
        moves_ = true;
        act();
        moves_ = false;
    }

    bool moves_ = false;
    bool entered_ = false;
};

void showItems(QComboBox& combo, const DropList& list) {
    const QSignalBlocker silence(combo);
    const auto& items = list.items();
    const auto shared = qMin(combo.count(), static_cast<int>(items.size()));
    int same = 0;
    while (same < shared && combo.itemText(same) == shown(items[static_cast<std::size_t>(same)])) {
        ++same;
    }
    while (combo.count() > same) {
        combo.removeItem(combo.count() - 1);
    }
    for (auto i = static_cast<std::size_t>(same); i < items.size(); ++i) {
        combo.addItem(shown(items[i]));
    }
    combo.setCurrentIndex(list.position());
}

void showPosition(QComboBox& combo, const DropList& list) {
    const QSignalBlocker silence(combo);
    combo.setCurrentIndex(list.position());
}

/// Binds the list to its box, except for the person's choice.
void bindList(WidgetKit& kit, DropList& list, QComboBox& combo, std::function<void()> got) {
    auto* style = new ListStyle;
    style->setParent(&combo);
    combo.setStyle(style);
    combo.setMaxVisibleItems(kVisibleEntries);
    combo.setSizeAdjustPolicy(QComboBox::AdjustToContents);
    keepWheelForFocus(combo);
    showItems(combo, list);
    bindCommon(kit, list, combo);
    bindFocus(kit, combo, std::move(got), {});
    follow(list, combo, [&list, &combo](Aspect aspect) {
        if (aspect == Aspect::Items) {
            showItems(combo, list);
        } else if (aspect == Aspect::Position) {
            showPosition(combo, list);
        }
    });
}

void choose(const WidgetKit& kit, DropList& list, QComboBox& combo, int position) {
    kit.enter([&list, position] { list.userSelect(position); });
    showPosition(combo, list);
}

}  // namespace

QComboBox& makeDropList(WidgetKit& kit, DropList& list, QWidget& parent) {
    auto& combo = *new QComboBox(&parent);
    bindList(kit, list, combo, [&list] { list.userGotFocus(); });
    QObject::connect(&combo, &QComboBox::activated, &combo,
                     [&kit, &list, &combo](int position) { choose(kit, list, combo, position); });
    return combo;
}

QComboBox& makeMovingList(WidgetKit& kit, DropList& list, QWidget& parent) {
    auto& combo = *new MovingList(&parent);
    const auto enter = [&list, &combo] {
        combo.noteEntering();
        list.userGotFocus();
    };
    bindList(kit, list, combo, enter);
    const auto is_moved = [&list, &combo] {
        return combo.isEnabled() && combo.currentIndex() != list.position();
    };
    // Nobody chooses past the guard on entering. Its message leads to a field only after its box is closed.
    const auto choose_entered = [&kit, &list, &combo, enter](int position) {
        if (!kit.servesPerson() || combo.entered()) {
            choose(kit, list, combo, position);
            return;
        }
        // The list that the guard leaves must not take the entry.
        showPosition(combo, list);
        kit.enter(enter);
        later(combo, [&kit, &list, &combo, position] {
            if (combo.isVisible() && position < combo.count()) {
                choose(kit, list, combo, position);
            }
        });
    };
    combo.take = [&combo, is_moved, choose_entered] {
        if (is_moved()) {
            choose_entered(combo.currentIndex());
        }
    };
    combo.take_back = [&list, &combo, is_moved] {
        const bool moved = is_moved();
        showPosition(combo, list);
        return moved;
    };
    QObject::connect(&combo, &QComboBox::activated, &combo, [&combo, choose_entered](int position) {
        if (!combo.moves()) {
            choose_entered(position);
        }
    });
    return combo;
}

}  // namespace mero::qt
