// SPDX-License-Identifier: MIT
/// Decides before the text changes, so that the history of undo and redo never sees what was refused.
#include "qt/number_line.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMenu>
#include <algorithm>
#include <utility>

#include "qt/balloon.h"
#include "qt/clipboard_text.h"
#include "qt/number_messages.h"
#include "qt/texts.h"
#include "qt/undo_keys.h"

namespace mero::qt {
namespace {

using numbers::FieldText;
using numbers::NotTaken;
using numbers::Typed;

bool typesText(const QKeyEvent& event) {
    const bool command = (event.modifiers() & Qt::ControlModifier) != 0;
    return !event.text().isEmpty() && event.text().front().isPrint() && !command;
}

/// Ctrl+Y redoes on any desktop, not only where it is the desktop's own key.
bool redoes(const QKeyEvent& event) {
    return event.matches(QKeySequence::Redo) ||
           (event.key() == Qt::Key_Y && event.modifiers() == Qt::ControlModifier);
}

QString withoutBlanks(const QString& text) {
    return QString(text).remove(QLatin1Char(' '));
}

}  // namespace

bool NumberLine::eventFilter(QObject* watched, QEvent* event) {
    if (watched == this && cleans()) {
        const auto* focus = dynamic_cast<QFocusEvent*>(event);
        const bool leaves = event->type() == QEvent::FocusOut && focus != nullptr &&
                            focus->reason() != Qt::ActiveWindowFocusReason &&
                            focus->reason() != Qt::PopupFocusReason;
        // A button's mnemonic presses it without taking the focus from the field.
        const auto* key = dynamic_cast<QKeyEvent*>(event);
        const bool mnemonic = event->type() == QEvent::ShortcutOverride && key != nullptr &&
                              (key->modifiers() & Qt::AltModifier) != 0;
        if (leaves || mnemonic) {
            finish();
        }
    }
    return QLineEdit::eventFilter(watched, event);
}

void NumberLine::keyPressEvent(QKeyEvent* event) {
    if (!cleans()) {
        const bool offers = !isReadOnly() && paste_cells && event->matches(QKeySequence::Paste);
        if (!offers || !paste_cells(clipboardText(QClipboard::Clipboard))) {
            QLineEdit::keyPressEvent(event);
        }
    } else if (event->matches(QKeySequence::Paste)) {
        const bool selected =
            event->key() == Qt::Key_Insert && (event->modifiers() & Qt::ControlModifier) != 0;
        paste(clipboardText(selected ? QClipboard::Selection : QClipboard::Clipboard));
    } else if (event->matches(QKeySequence::Undo)) {
        travel(true);
    } else if (redoes(*event)) {
        travel(false);
    } else if (deleteByKey(*event)) {
        event->accept();
    } else if (typesText(*event)) {
        type(event->text());
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void NumberLine::inputMethodEvent(QInputMethodEvent* event) {
    if (!cleans() || event->commitString().isEmpty()) {
        QLineEdit::inputMethodEvent(event);
        return;
    }
    QInputMethodEvent nothing(QString(), event->attributes());
    QLineEdit::inputMethodEvent(&nothing);
    // An input method commits single keys as well as whole words.
    if (event->commitString().size() == 1) {
        type(event->commitString());
    } else {
        paste(event->commitString());
    }
    event->accept();
}

void NumberLine::dropEvent(QDropEvent* event) {
    if (!cleans()) {
        QLineEdit::dropEvent(event);
        return;
    }
    QDragLeaveEvent ended;
    dragLeaveEvent(&ended);
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // Dropped on a number, a number takes its place: digits inside digits would be a third one.
    selectAll();
    paste(textOf(*event->mimeData()));
}

void NumberLine::mouseReleaseEvent(QMouseEvent* event) {
    if (!cleans() || event->button() != Qt::MiddleButton || !QApplication::clipboard()->supportsSelection()) {
        QLineEdit::mouseReleaseEvent(event);
        return;
    }
    // The selection that is pasted may be this field's own, which ends when other text is selected.
    const QString text = clipboardText(QClipboard::Selection);
    deselect();
    paste(text);
}

void NumberLine::contextMenuEvent(QContextMenuEvent* event) {
    if (!cleans()) {
        QLineEdit::contextMenuEvent(event);
        return;
    }
    // The standard menu would paste the text as it is.
    QMenu menu(this);
    const auto add = [&menu, this](const QString& text, const char* name, QKeySequence::StandardKey key,
                                   bool enabled, const std::function<void()>& action) {
        QAction* added = menu.addAction(text, key, this, action);
        added->setObjectName(QLatin1String(name));
        added->setEnabled(enabled);
    };
    const auto remove = [this] { removeText(selectionStart(), selectionEnd()); };
    if (!isUndoneByWindow(*this)) {
        add(QStringLiteral("Zpět"), "undo", QKeySequence::Undo, isUndoAvailable(), [this] { travel(true); });
        add(QStringLiteral("Znovu"), "redo", QKeySequence::Redo, isRedoAvailable(),
            [this] { travel(false); });
        menu.addSeparator();
    }
    add(QStringLiteral("Vyjmout"), "cut", QKeySequence::Cut, hasSelectedText(), [this, remove] {
        copy();
        remove();
    });
    add(QStringLiteral("Kopírovat"), "copy", QKeySequence::Copy, hasSelectedText(), [this] { copy(); });
    add(QStringLiteral("Vložit"), "paste", QKeySequence::Paste, true,
        [this] { paste(clipboardText(QClipboard::Clipboard)); });
    add(QStringLiteral("Smazat"), "delete", QKeySequence::Delete, hasSelectedText(), remove);
    menu.addSeparator();
    add(QStringLiteral("Vybrat vše"), "select-all", QKeySequence::SelectAll, !text().isEmpty(),
        [this] { selectAll(); });
    menu.exec(event->globalPos());
}

void NumberLine::focusInEvent(QFocusEvent* event) {
    if (numbers::isFinished(stored(text()))) {
        entered_with_ = text();
    }
    QLineEdit::focusInEvent(event);
}

FieldText NumberLine::sides() const {
    const qsizetype from = hasSelectedText() ? selectionStart() : cursorPosition();
    const qsizetype to = hasSelectedText() ? selectionEnd() : cursorPosition();
    return {stored(text().left(from)), stored(text().mid(to))};
}

void NumberLine::type(const QString& text) {
    for (const QChar character : text) {
        const Typed after = numbers::typed(sides(), stored(QString(character)), entry_->kind);
        if (const auto* taken = std::get_if<FieldText>(&after)) {
            change(*taken);
        } else {
            tell(std::get<NotTaken>(after));
        }
    }
}

void NumberLine::paste(const QString& text) {
    if (paste_cells && paste_cells(text)) {
        return;
    }
    const Typed after = numbers::pasted(sides(), stored(text), entry_->kind, stored(entry_->unit));
    if (const auto* taken = std::get_if<FieldText>(&after)) {
        change(*taken);
    } else {
        tell(std::get<NotTaken>(after), text);
    }
}

bool NumberLine::deleteByKey(QKeyEvent& event) {
    const qsizetype cursor = cursorPosition();
    const qsizetype end = text().size();
    const bool backspace = event.key() == Qt::Key_Backspace;
    if (event.matches(QKeySequence::Cut)) {
        copy();
        removeText(selectionStart(), selectionEnd());
    } else if (event.matches(QKeySequence::DeleteCompleteLine)) {
        removeText(0, end);
    } else if (hasSelectedText() && (backspace || event.matches(QKeySequence::Delete))) {
        removeText(selectionStart(), selectionEnd());
    } else if (event.matches(QKeySequence::DeleteStartOfWord)) {
        removeText(0, cursor);
    } else if (event.matches(QKeySequence::DeleteEndOfWord) || event.matches(QKeySequence::DeleteEndOfLine)) {
        removeText(cursor, end);
    } else if (event.matches(QKeySequence::Delete)) {
        removeText(cursor, std::min(cursor + 1, end));
    } else if (backspace) {
        removeText(std::max<qsizetype>(cursor - 1, 0), cursor);
    } else {
        return false;
    }
    return true;
}

void NumberLine::removeText(qsizetype from, qsizetype to) {
    if (from < 0 || from >= to) {
        return;
    }
    const Typed after = numbers::remaining({stored(text().left(from)), stored(text().mid(to))}, entry_->kind);
    if (const auto* taken = std::get_if<FieldText>(&after)) {
        change(*taken);
    } else {
        tell(NotTaken::NoNumber);
    }
}

void NumberLine::change(const FieldText& after) {
    const QString before = text();
    const QString wanted = shown(after.whole());
    const auto cursor = static_cast<qsizetype>(after.left.size());
    if (wanted == before) {
        // The same text over the selected one ends the selection, so that the next key does not replace it.
        deselect();
        setCursorPosition(static_cast<int>(cursor));
        return;
    }
    // Only what differs is replaced, so that keys typed one after the other are undone together.
    const auto common = [](const auto& first, const auto& second, qsizetype most) {
        qsizetype length = 0;
        while (length < most && first[length] == second[length]) {
            ++length;
        }
        return length;
    };
    const qsizetype shorter = std::min(before.size(), wanted.size());
    const qsizetype head = common(before.constData(), wanted.constData(), std::min(shorter, cursor));
    const qsizetype tail =
        common(before.crbegin(), wanted.crbegin(), std::min(shorter - head, wanted.size() - cursor));
    const qsizetype removed = before.size() - head - tail;
    const QString inserted = wanted.mid(head, wanted.size() - head - tail);
    if (removed > 0) {
        setSelection(static_cast<int>(head), static_cast<int>(removed));
    } else {
        deselect();
        setCursorPosition(static_cast<int>(head));
    }
    if (inserted.isEmpty()) {
        del();
    } else {
        insert(inserted);
    }
    if (text() == wanted && cursorPosition() != cursor) {
        setCursorPosition(static_cast<int>(cursor));
    }
}

void NumberLine::travel(bool back) {
    const QString before = text();
    back ? undo() : redo();
    if (text() != before && !numbers::mayStand(stored(withoutBlanks(text())), entry_->kind)) {
        back ? redo() : undo();
    }
}

void NumberLine::finish() {
    const QString half = text();
    if (numbers::isFinished(stored(half))) {
        return;
    }
    selectAll();
    entered_with_.isEmpty() ? del() : insert(entered_with_);
    showBalloon(*this, halfNumberMessage(half, text()));
}

void NumberLine::tell(NotTaken reason, const QString& pasted) {
    showBalloon(*this,
                pasted.isNull() ? typingMessage(reason, *entry_) : pastingMessage(reason, pasted, *entry_));
}

}  // namespace mero::qt
