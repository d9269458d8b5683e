// SPDX-License-Identifier: MIT
/// Acts on the real widgets.
/// Events are sent directly to the widget, so that a script runs the same whichever window is active.
#include "app/mero/qt_user.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollArea>
#include <QTabBar>
#include <QTextCursor>
#include <QToolButton>
#include <stdexcept>

#include "qt/grid_view.h"
#include "qt/tab_view.h"
#include "qt/texts.h"

namespace mero::app {
namespace {

using platform::Control;
using platform::TextBox;

/// Makes a read-only field writable during this object's lifetime.
template <typename Field>
class Writable {
  public:
    explicit Writable(Field& field) : field_(&field), read_only_(field.isReadOnly()) {
        field.setReadOnly(false);
    }
    ~Writable() { field_->setReadOnly(read_only_); }
    Writable(const Writable&) = delete;
    Writable& operator=(const Writable&) = delete;
    Writable(Writable&&) = delete;
    Writable& operator=(Writable&&) = delete;

  private:
    Field* field_;
    bool read_only_;
};

/// Keeps keys that no control handled from the window: a script presses a key only in one control, while for
/// a person Enter and Escape also confirm and close a dialog.
class KeysKeptFromWindow : public QObject {
  public:
    explicit KeysKeptFromWindow(QWidget& window) { window.installEventFilter(this); }
    bool eventFilter(QObject* /*window*/, QEvent* event) override {
        return event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    }
};

void pressKey(QWidget& widget, int key, const QString& text = {}) {
    const KeysKeptFromWindow kept(*widget.window());
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(&widget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(&widget, &release);
}

void clickAt(QWidget& widget, QPoint position) {
    const QPoint global = widget.mapToGlobal(position);
    QMouseEvent press(QEvent::MouseButtonPress, position, global, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(&widget, &press);
    QMouseEvent release(QEvent::MouseButtonRelease, position, global, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QApplication::sendEvent(&widget, &release);
}

/// Processes pending events between the actions.
void settle() {
    QApplication::processEvents();
}

/// True when a key types this character; other characters are sent as from an input method.
bool isKey(const QString& character) {
    return character.size() == 1 && character.front().isPrint();
}

}  // namespace

template <typename Widget>
Widget& QtUser::widgetOf(const Control& control) const {
    auto* widget = dynamic_cast<Widget*>(kit_->find(control));
    if (widget == nullptr) {
        throw std::logic_error("no widget for " + control.name());
    }
    for (QWidget* holder = widget->parentWidget(); holder != nullptr; holder = holder->parentWidget()) {
        if (auto* area = dynamic_cast<QScrollArea*>(holder)) {
            area->ensureWidgetVisible(widget);
        }
    }
    return *widget;
}

void QtUser::inField(const TextBox& box, const std::function<void(QLineEdit&)>& in_line,
                     const std::function<void(QPlainTextEdit&)>& in_area) const {
    if (box.multiLine()) {
        auto& area = widgetOf<QPlainTextEdit>(box);
        const Writable<QPlainTextEdit> writable(area);
        area.moveCursor(QTextCursor::End);
        in_area(area);
    } else {
        auto& line = widgetOf<QLineEdit>(box);
        const Writable<QLineEdit> writable(line);
        line.end(false);
        in_line(line);
    }
    settle();
}

void QtUser::typeCharacter(TextBox& box, const std::string& character) {
    const QString text = qt::shown(box.accepted(character));
    if (text.isEmpty()) {
        return;
    }
    inField(
        box,
        [&](QLineEdit& line) {
            if (isKey(text)) {
                pressKey(line, 0, text);
            } else {
                line.insert(text);
            }
        },
        [&](QPlainTextEdit& area) {
            if (text == QLatin1String("\r\n")) {
                pressKey(area, Qt::Key_Return, QStringLiteral("\r"));
            } else if (isKey(text)) {
                pressKey(area, 0, text);
            } else {
                area.insertPlainText(text);
            }
        });
}

void QtUser::eraseCharacter(TextBox& box) {
    inField(
        box, [](QLineEdit& line) { pressKey(line, Qt::Key_Backspace); },
        [](QPlainTextEdit& area) { pressKey(area, Qt::Key_Backspace); });
}

void QtUser::paste(TextBox& box, const std::string& text) {
    inField(
        box,
        [&](QLineEdit& line) {
            line.selectAll();
            line.insert(qt::shown(text));
        },
        [&](QPlainTextEdit& area) {
            QTextCursor cursor(area.document());
            cursor.select(QTextCursor::Document);
            cursor.insertText(qt::shown(text).replace(QLatin1String("\r\n"), QLatin1String("\n")));
        });
}

void QtUser::press(TextBox& box, platform::Key key) {
    const int pressed = key == platform::Key::Enter ? Qt::Key_Return : Qt::Key_Escape;
    inField(
        box, [&](QLineEdit& line) { pressKey(line, pressed); },
        // Line breaks are typed as text, so the key only has to run the box's handler.
        [&](QPlainTextEdit&) { kit_->enter([&] { box.userKey(key); }); });
}

void QtUser::focus(Control& control) {
    widgetOf<QWidget>(control).setFocus(Qt::OtherFocusReason);
    kit_->enter([&] {
        if (const auto* box = dynamic_cast<TextBox*>(&control)) {
            box->userGotFocus();
        } else if (const auto* list = dynamic_cast<platform::DropList*>(&control)) {
            list->userGotFocus();
        }
    });
    settle();
}

void QtUser::leave(Control& control) {
    widgetOf<QWidget>(control).clearFocus();
    kit_->enter([&] {
        if (const auto* box = dynamic_cast<TextBox*>(&control)) {
            box->userLostFocus();
        }
    });
    settle();
}

void QtUser::clickWidget(const Control& control) const {
    auto& widget = widgetOf<QWidget>(control);
    // A button widened by its layout may respond only near its text, so the click goes within the size hint.
    const QSize size = widget.size().boundedTo(widget.sizeHint());
    clickAt(widget, {size.width() / 2, widget.height() / 2});
    settle();
}

void QtUser::click(platform::Button& button) {
    clickWidget(button);
}

void QtUser::click(platform::OptionButton& option) {
    clickWidget(option);
}

void QtUser::click(platform::CheckBox& box) {
    clickWidget(box);
}

void QtUser::click(platform::Label& label) {
    clickWidget(label);
}

void QtUser::select(platform::DropList& list, int position) {
    auto& combo = widgetOf<QComboBox>(list);
    combo.setCurrentIndex(position);
    emit combo.activated(position);
    settle();
}

void QtUser::spin(platform::UpDown& control, platform::UpDown::Direction direction) {
    const bool up = direction == platform::UpDown::Direction::Up;
    auto* arrow = widgetOf<QWidget>(control).findChild<QToolButton*>(up ? QStringLiteral("up")
                                                                        : QStringLiteral("down"));
    clickAt(*arrow, arrow->rect().center());
    settle();
}

void QtUser::clickCell(platform::Grid& grid, platform::GridCell cell) {
    auto& view = widgetOf<qt::GridView>(grid);
    view.reveal(cell);
    clickAt(*view.viewport(), view.cellRect(cell).center());
    settle();
}

void QtUser::chooseTab(platform::TabControl& tabs, int position) {
    auto& view = widgetOf<qt::TabView>(tabs);
    clickAt(*view.tabBar(), view.tabRect(position).center());
    settle();
}

void QtUser::tick() {
    kit_->enter([this] { program_->window().Timer1_Timer(); });
    settle();
}

void QtUser::close(platform::Form& form) {
    widgetOf<QWidget>(form).close();
    settle();
}

}  // namespace mero::app
