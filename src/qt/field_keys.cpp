// SPDX-License-Identifier: MIT
/// Event filters for keys and the wheel.
/// Each causes the same event as a click, so the handlers need not distinguish them.
#include "qt/field_keys.h"

#include <QKeyEvent>
#include <QWheelEvent>
#include <optional>

namespace mero::qt {
namespace {

using platform::UpDown;

/// Steps of an arrow key in a row or column of options; right is forward, as Czech is written.
std::optional<int> stepOf(int key) {
    switch (key) {
        case Qt::Key_Right:
        case Qt::Key_Down:
            return 1;
        case Qt::Key_Left:
        case Qt::Key_Up:
            return -1;
        default:
            return std::nullopt;
    }
}

class OptionArrows : public QObject {
  public:
    explicit OptionArrows(QRadioButton& radio) : QObject(&radio), radio_(&radio) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::KeyPress) {
            const auto step = stepOf(dynamic_cast<QKeyEvent&>(*event).key());
            if (step) {
                go(*step);
                return true;
            }
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    void go(int step) {
        QList<QRadioButton*> group;
        for (auto* each :
             radio_->parentWidget()->findChildren<QRadioButton*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (each->isVisible() && each->isEnabled()) {
                group.append(each);
            }
        }
        const qsizetype here = group.indexOf(radio_);
        if (here >= 0 && group.size() > 1) {
            QRadioButton* next = group[(here + step + group.size()) % group.size()];
            next->setFocus(Qt::TabFocusReason);
            next->click();
        }
    }

    QRadioButton* radio_;
};

class SpinKeys : public QObject {
  public:
    SpinKeys(WidgetKit& kit, UpDown& control, QLineEdit& field)
        : QObject(&field), kit_(&kit), control_(&control), field_(&field) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::KeyPress) {
            const int key = dynamic_cast<QKeyEvent&>(*event).key();
            if (key == Qt::Key_Up || key == Qt::Key_Down) {
                spin(key == Qt::Key_Up);
                return true;
            }
        } else if (event->type() == QEvent::Wheel && field_->hasFocus()) {
            turned_ += dynamic_cast<QWheelEvent&>(*event).angleDelta().y();
            for (; qAbs(turned_) >= QWheelEvent::DefaultDeltasPerStep;
                 turned_ -= (turned_ > 0 ? 1 : -1) * QWheelEvent::DefaultDeltasPerStep) {
                spin(turned_ > 0);
            }
            return true;
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    void spin(bool up) {
        if (control_->reachable()) {
            kit_->enter([&] { control_->userSpin(up ? UpDown::Direction::Up : UpDown::Direction::Down); });
        }
    }

    WidgetKit* kit_;
    UpDown* control_;
    QLineEdit* field_;
    int turned_ = 0;  ///< rotation so far of a wheel without steps
};

class WheelGuard : public QObject {
  public:
    explicit WheelGuard(QWidget& widget) : QObject(&widget), widget_(&widget) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Wheel && !widget_->hasFocus()) {
            event->ignore();
            return true;
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    QWidget* widget_;
};

}  // namespace

void chooseByArrows(QRadioButton& radio) {
    radio.installEventFilter(new OptionArrows(radio));
}

void spinByKeys(WidgetKit& kit, UpDown& control, QLineEdit& field) {
    field.installEventFilter(new SpinKeys(kit, control, field));
}

void keepWheelForFocus(QWidget& widget) {
    // The wheel must not set the focus either, because focusing a list runs a handler.
    widget.setFocusPolicy(Qt::StrongFocus);
    widget.installEventFilter(new WheelGuard(widget));
}

}  // namespace mero::qt
