// SPDX-License-Identifier: MIT
/// Binds text boxes to widgets.
/// A handler may rewrite the text while the user types, so the widget is updated after each event.
#include "qt/text_fields.h"

#include <QKeyEvent>
#include <QSignalBlocker>
#include <utility>

#include "qt/file_drop.h"
#include "qt/look.h"
#include "qt/texts.h"
#include "qt/undo_keys.h"
#include "qt/undo_limit.h"

namespace mero::qt {
namespace {

/// A text area that asks for no more height than it needs: a page with wrapped notes is as high as all of it
/// asks for, and would scroll for lines that nobody has written. It still takes what height is left.
class TextArea : public QPlainTextEdit {
  public:
    using QPlainTextEdit::QPlainTextEdit;
    [[nodiscard]] QSize sizeHint() const override {
        return {QPlainTextEdit::sizeHint().width(), minimumSizeHint().height()};
    }
};

using platform::Aspect;
using platform::Key;
using platform::TextBox;

/// Far above any real input; the widget's default limit would silently cut a pasted text.
constexpr int kLongestText = 16'000'000;

/// Passes Enter and Escape to the box's handler. A key without a handler, and an Escape that closed no
/// editor, go on to the window.
class KeyFilter : public QObject {
  public:
    KeyFilter(WidgetKit& kit, TextBox& box, QWidget& widget) : QObject(&widget), kit_(&kit), box_(&box) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::KeyPress) {
            const auto& key_event = dynamic_cast<QKeyEvent&>(*event);
            const int key = key_event.key();
            const bool plain = (key_event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
            if (plain && box_->key_pressed && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
                kit_->enter([this] { box_->userKey(Key::Enter); });
                return true;
            }
            if (plain && box_->key_pressed && key == Qt::Key_Escape) {
                kit_->enter([this] { box_->userKey(Key::Escape); });
                return !box_->visible();
            }
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    WidgetKit* kit_;
    TextBox* box_;
};

void bindBox(WidgetKit& kit, TextBox& box, QWidget& widget) {
    bindCommon(kit, box, widget);
    bindFocus(
        kit, widget, [&box] { box.userGotFocus(); }, [&box] { box.userLostFocus(); });
    setGreyed(widget, box.greyed());
    follow(box, widget, [&box, &widget](Aspect aspect) {
        if (aspect == Aspect::Colour) {
            setGreyed(widget, box.greyed());
        }
    });
}

void showText(QLineEdit& line, const TextBox& box) {
    const QString text = shown(box.text());
    if (line.text() != text) {
        line.setText(text);
    }
}

QString withPlainBreaks(const std::string& text) {
    return shown(text).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

void showText(QPlainTextEdit& area, const TextBox& box) {
    const QString text = withPlainBreaks(box.text());
    if (area.toPlainText() != text) {
        const QSignalBlocker silence(area);
        area.setPlainText(text);
    }
}

void bindLine(WidgetKit& kit, TextBox& box, QLineEdit& line) {
    line.setMaxLength(kLongestText);
    line.setText(shown(box.text()));
    bindBox(kit, box, line);
    line.installEventFilter(new KeyFilter(kit, box, line));
    leaveUndoToWindow(line);
    leaveFilesToWindow(line);
    follow(box, line, [&box, &line](Aspect aspect) {
        if (aspect == Aspect::Text) {
            showText(line, box);
        }
    });
    QObject::connect(&line, &QLineEdit::textEdited, &line, [&kit, &box, &line](const QString& text) {
        kit.enterTyped(line, [&box, &text] { box.userEdit(stored(text)); });
        showText(line, box);
    });
    QObject::connect(&line, &QLineEdit::returnPressed, &line, [&kit] { kit.typing().settle(); });
    limitUndo(line);
}

}  // namespace

QLineEdit& makeLineEdit(WidgetKit& kit, TextBox& box, QWidget& parent) {
    auto& line = *new QLineEdit(&parent);
    bindLine(kit, box, line);
    return line;
}

NumberLine& makeNumberLine(WidgetKit& kit, TextBox& box, QWidget& parent, std::optional<NumberEntry> entry) {
    auto& line = *new NumberLine(&parent);
    bindLine(kit, box, line);
    if (kit.servesPerson()) {
        line.setEntry(std::move(entry));
        line.finishOnLeaving();
    }
    return line;
}

QPlainTextEdit& makeTextArea(WidgetKit& kit, TextBox& box, QWidget& parent) {
    auto& area = *new TextArea(withPlainBreaks(box.text()), &parent);
    area.setTabChangesFocus(true);
    area.setFocusPolicy(Qt::StrongFocus);
    bindBox(kit, box, area);
    leaveUndoToWindow(area);
    leaveFilesToWindow(*area.viewport());
    follow(box, area, [&box, &area](Aspect aspect) {
        if (aspect == Aspect::Text) {
            showText(area, box);
        }
    });
    QObject::connect(&area, &QPlainTextEdit::textChanged, &area, [&kit, &box, &area] {
        const std::string text = stored(area.toPlainText());
        kit.enterTyped(area, [&box, &text] { box.userEdit(text); });
        showText(area, box);
    });
    limitUndo(area);
    return area;
}

}  // namespace mero::qt
