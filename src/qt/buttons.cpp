// SPDX-License-Identifier: MIT
/// Binds buttons and labels to widgets.
/// A click on the selected option runs its handler again, so clicks are observed, not changes.
#include "qt/buttons.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>
#include <functional>
#include <utility>

#include "qt/field_keys.h"
#include "qt/mnemonics.h"
#include "qt/spoken.h"
#include "qt/texts.h"

namespace mero::qt {
namespace {

using platform::Aspect;
using platform::UpDown;

void showSelected(QRadioButton& radio, bool selected) {
    const QSignalBlocker silence(radio);
    // An exclusive button cannot be switched off alone, but code may leave a group without a selection.
    radio.setAutoExclusive(false);
    radio.setChecked(selected);
    radio.setAutoExclusive(true);
}

class LinkLabel : public QLabel {
  public:
    LinkLabel(const QString& text, std::function<void()> clicked, QWidget& parent)
        : QLabel(&parent), clicked_(std::move(clicked)) {
        speakAs(*this, QAccessible::Link);
        setText(text);
        setTextFormat(Qt::PlainText);
        setCursor(Qt::PointingHandCursor);
        setFocusPolicy(Qt::TabFocus);
        QFont underlined = font();
        underlined.setUnderline(true);
        setFont(underlined);
        setForegroundRole(QPalette::Link);
        setFrameShape(QFrame::NoFrame);
        setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    }

  protected:
    void mousePressEvent(QMouseEvent* event) override {
        pressed_ = event->button() == Qt::LeftButton;
        event->accept();
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (std::exchange(pressed_, false) && rect().contains(event->position().toPoint())) {
            clicked_();
        }
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
            event->key() == Qt::Key_Space) {
            clicked_();
        } else {
            QLabel::keyPressEvent(event);
        }
    }

  private:
    std::function<void()> clicked_;
    bool pressed_ = false;
};

void bindCaption(platform::Label& label, QLabel& widget) {
    follow(label, widget, [&label, &widget](Aspect aspect) {
        if (aspect == Aspect::Text) {
            widget.setText(shown(label.text()));
        }
    });
}

}  // namespace

QPushButton& makeButton(WidgetKit& kit, platform::Button& button, QWidget& parent) {
    auto& push = *new QPushButton(captionText(button.text()), &parent);
    // Enter presses the button that has the focus, not only the space bar.
    push.setAutoDefault(true);
    focusByMnemonic(push);
    bindCommon(kit, button, push);
    follow(button, push, [&button, &push](Aspect aspect) {
        if (aspect == Aspect::Text) {
            push.setText(captionText(button.text()));
        }
    });
    QObject::connect(&push, &QPushButton::clicked, &push,
                     [&kit, &button] { kit.enter([&button] { button.userClick(); }); });
    return push;
}

QRadioButton& makeOption(WidgetKit& kit, platform::OptionButton& option, QWidget& parent) {
    auto& radio = *new QRadioButton(captionText(option.text()), &parent);
    radio.setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    chooseByArrows(radio);
    bindCommon(kit, option, radio);
    showSelected(radio, option.selected());
    follow(option, radio, [&option, &radio](Aspect aspect) {
        if (aspect == Aspect::Checked) {
            showSelected(radio, option.selected());
        }
    });
    QObject::connect(&radio, &QRadioButton::clicked, &radio, [&kit, &option, &radio] {
        kit.enter([&option] { option.userClick(); });
        showSelected(radio, option.selected());
    });
    return radio;
}

QCheckBox& makeCheckBox(WidgetKit& kit, platform::CheckBox& box, QWidget& parent) {
    auto& check = *new QCheckBox(captionText(box.text()), &parent);
    check.setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    check.setChecked(box.checked());
    bindCommon(kit, box, check);
    follow(box, check, [&box, &check](Aspect aspect) {
        if (aspect == Aspect::Checked) {
            check.setChecked(box.checked());
        }
    });
    QObject::connect(&check, &QCheckBox::clicked, &check, [&kit, &box, &check] {
        kit.enter([&box] { box.userClick(); });
        check.setChecked(box.checked());
    });
    return check;
}

QLabel& makeLabel(WidgetKit& kit, platform::Label& label, QWidget& parent) {
    auto& widget = *new QLabel(shown(label.text()), &parent);
    widget.setTextFormat(Qt::PlainText);
    bindCommon(kit, label, widget);
    bindCaption(label, widget);
    return widget;
}

QLabel& makeLink(WidgetKit& kit, platform::Label& label, QWidget& parent) {
    auto& widget = *new LinkLabel(
        shown(label.text()), [&kit, &label] { kit.enter([&label] { label.userClick(); }); }, parent);
    bindCommon(kit, label, widget);
    bindCaption(label, widget);
    return widget;
}

QWidget& makeUpDown(WidgetKit& kit, UpDown& control, const QString& meaning, QWidget& parent) {
    auto& arrows = *new QWidget(&parent);
    describe(arrows, meaning);
    speakAs(arrows, QAccessible::Grouping);
    auto* column = new QVBoxLayout(&arrows);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    const auto add_arrow = [&](const char* name, const QString& way, Qt::ArrowType type,
                               UpDown::Direction direction) {
        auto* arrow = new QToolButton(&arrows);
        arrow->setObjectName(QLatin1String(name));
        arrow->setArrowType(type);
        arrow->setAutoRepeat(true);
        arrow->setFocusPolicy(Qt::NoFocus);
        describe(*arrow, arrows.accessibleName() + QLatin1String(": ") + way);
        const int height = arrows.fontMetrics().height() * 3 / 4;
        arrow->setFixedSize(height * 5 / 3, height);
        column->addWidget(arrow);
        QObject::connect(arrow, &QToolButton::clicked, arrow, [&kit, &control, direction] {
            kit.enter([&control, direction] { control.userSpin(direction); });
        });
    };
    add_arrow("up", QStringLiteral("více"), Qt::UpArrow, UpDown::Direction::Up);
    add_arrow("down", QStringLiteral("méně"), Qt::DownArrow, UpDown::Direction::Down);
    bindCommon(kit, control, arrows);
    return arrows;
}

}  // namespace mero::qt
