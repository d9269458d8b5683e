// SPDX-License-Identifier: MIT
/// A field claims the keys that it handles before a shortcut gets them; these it must not claim.
#include "qt/undo_keys.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>

#include "qt/number_line.h"

namespace mero::qt {
namespace {

constexpr const char* kProperty = "mero_undone_by_window";

bool isUndoKey(const QKeyEvent& event) {
    return event.matches(QKeySequence::Undo) || event.matches(QKeySequence::Redo) ||
           (event.key() == Qt::Key_Y && event.modifiers() == Qt::ControlModifier);
}

/// Without the entries of the field's own history, which are the first.
void showMenu(QMenu* menu, const QPoint& position) {
    for (QAction* action : menu->actions()) {
        const bool own = action->objectName() == QLatin1String("edit-undo") ||
                         action->objectName() == QLatin1String("edit-redo");
        action->setVisible(!own && action->isVisible());
    }
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(position);
}

class UndoFilter : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress) {
            if (isUndoKey(dynamic_cast<QKeyEvent&>(*event))) {
                event->ignore();
                return true;
            }
        } else if (event->type() == QEvent::ContextMenu) {
            return showMenuOf(watched, dynamic_cast<QContextMenuEvent&>(*event));
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    static bool showMenuOf(QObject* field, const QContextMenuEvent& event) {
        // A result has no history, and a number's field a menu of its own.
        auto* line = qobject_cast<QLineEdit*>(field);
        if (line == nullptr || line->isReadOnly() || dynamic_cast<NumberLine*>(line) != nullptr) {
            return false;
        }
        showMenu(line->createStandardContextMenu(), event.globalPos());
        return true;
    }
};

}  // namespace

void undoByWindow(QWidget& window) {
    window.setProperty(kProperty, true);
}

bool isUndoneByWindow(const QWidget& field) {
    return field.window()->property(kProperty).toBool();
}

void leaveUndoToWindow(QLineEdit& line) {
    if (isUndoneByWindow(line)) {
        line.installEventFilter(new UndoFilter(&line));
    }
}

void leaveUndoToWindow(QPlainTextEdit& area) {
    if (isUndoneByWindow(area)) {
        area.setUndoRedoEnabled(false);
        area.installEventFilter(new UndoFilter(&area));
    }
}

}  // namespace mero::qt
