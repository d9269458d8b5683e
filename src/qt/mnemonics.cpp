// SPDX-License-Identifier: MIT
/// Chooses the letters: the first of a word if possible, and only unaccented letters, which every keyboard
/// has. Only the window's texts are marked; the forms' captions are not changed.
#include "qt/mnemonics.h"

#include <QAbstractButton>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcutEvent>
#include <optional>

namespace mero::qt {
namespace {

constexpr const char* kAlternativeProperty = "mero_alternative";
constexpr QLatin1Char kMark('&');

bool isPlainLetter(QChar letter) {
    return letter.unicode() < 128 && letter.isLetter();
}

/// Position of the mark: before the first free letter that begins a word, else before any free letter.
std::optional<qsizetype> choose(const QString& text, const Letters& taken) {
    if (text.contains(kMark)) {
        return std::nullopt;
    }
    std::optional<qsizetype> inside;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!isPlainLetter(text[i]) || taken.contains(text[i].toLower())) {
            continue;
        }
        if (i == 0 || text[i - 1].isSpace()) {
            return i;
        }
        inside = inside.value_or(i);
    }
    return inside;
}

/// The text with its mark; unchanged when no letter is free.
QString marked(const QString& text, Letters& taken) {
    const auto place = choose(text, taken);
    if (!place) {
        return text;
    }
    taken.insert(text[*place].toLower());
    return QString(text).insert(*place, kMark);
}

/// Buttons choose first: there is no other quick way to reach them.
enum class Turn { Buttons, Fields };

void mark(QWidget& widget, Turn turn, Letters& taken) {
    if ((turn == Turn::Buttons) != (qobject_cast<QPushButton*>(&widget) != nullptr)) {
        return;
    }
    if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
        button->setText(marked(button->text(), taken));
    } else if (auto* label = qobject_cast<QLabel*>(&widget); label != nullptr && label->buddy() != nullptr) {
        // Results are read-only: the letters are kept for the inputs.
        const auto* line = qobject_cast<const QLineEdit*>(label->buddy());
        const bool result = line != nullptr && line->isReadOnly();
        if (!result && (label->buddy()->focusPolicy() & Qt::TabFocus) != 0) {
            label->setText(marked(label->text(), taken));
        }
    }
}

/// Marks the widgets below `root` except in alternative panels.
void markBelow(QWidget& root, Turn turn, Letters& taken) {
    for (auto* child : root.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!child->property(kAlternativeProperty).toBool()) {
            mark(*child, turn, taken);
            markBelow(*child, turn, taken);
        }
    }
}

class MnemonicFocus : public QObject {
  public:
    explicit MnemonicFocus(QWidget& button) : QObject(&button), button_(&button) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Shortcut) {
            button_->setFocus(Qt::ShortcutFocusReason);
            auto* button = qobject_cast<QAbstractButton*>(button_);
            if (button != nullptr && !dynamic_cast<QShortcutEvent&>(*event).isAmbiguous()) {
                // At once: Qt's click comes later, below a box that leaving the field may open meanwhile.
                button->click();
                return true;
            }
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    QWidget* button_;
};

}  // namespace

Letters addMnemonics(QTabWidget& tabs, Letters taken) {
    for (int position = 0; position < tabs.count(); ++position) {
        tabs.setTabText(position, marked(tabs.tabText(position), taken));
    }
    return taken;
}

void addMnemonics(QWidget& root, Letters taken) {
    markBelow(root, Turn::Buttons, taken);
    markBelow(root, Turn::Fields, taken);
    for (auto* panel : root.findChildren<QWidget*>()) {
        if (panel->property(kAlternativeProperty).toBool()) {
            addMnemonics(*panel, taken);
        }
    }
}

void markAlternative(QWidget& panel) {
    panel.setProperty(kAlternativeProperty, true);
}

void focusByMnemonic(QWidget& button) {
    button.installEventFilter(new MnemonicFocus(button));
}

}  // namespace mero::qt
