// SPDX-License-Identifier: MIT
/// Binds the common properties of controls and widgets.
/// Controls never remove observers, so each observer first checks that its widget still exists.
#include "qt/widget_kit.h"

#include <QEvent>
#include <QFocusEvent>
#include <QLineEdit>
#include <QScrollArea>
#include <QTimer>
#include <utility>

#include "qt/texts.h"

namespace mero::qt {
namespace {

using platform::Aspect;

bool countsAsEntering(Qt::FocusReason reason) {
    return reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason ||
           reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

class FocusFilter : public QObject {
  public:
    FocusFilter(WidgetKit& kit, QWidget& widget, std::function<void()> got, std::function<void()> lost)
        : QObject(&widget), kit_(&kit), got_(std::move(got)), lost_(std::move(lost)) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::FocusIn && got_) {
            if (countsAsEntering(dynamic_cast<QFocusEvent&>(*event).reason())) {
                kit_->enter(got_);
            }
        } else if (event->type() == QEvent::FocusOut && lost_) {
            if (countsAsLeaving(dynamic_cast<QFocusEvent&>(*event).reason())) {
                kit_->enterLeaving(lost_);
                kit_->typing().leave();
            }
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    WidgetKit* kit_;
    std::function<void()> got_;
    std::function<void()> lost_;
};

}  // namespace

WidgetKit::WidgetKit(Gate gate, FocusEvents focus_events)
    : gate_(std::move(gate)), focus_events_(focus_events), typing_(std::make_unique<Typing>()) {}

void WidgetKit::enter(const std::function<void()>& event) const {
    typing_->settle();
    gate_(event);
}

void WidgetKit::enterTyped(QWidget& field, const std::function<void()>& event) const {
    if (servesPerson()) {
        typing_->run(field, [&] { gate_(event); });
    } else {
        gate_(event);
    }
}

bool countsAsLeaving(Qt::FocusReason reason) {
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
           reason != Qt::MenuBarFocusReason;
}

QWidget* WidgetKit::find(const platform::Control& control) const {
    const auto found = widgets_.find(&control);
    return found == widgets_.end() ? nullptr : found->second.data();
}

void follow(platform::Control& control, QWidget& widget, std::function<void(Aspect)> action) {
    control.observe([alive = QPointer<QWidget>(&widget), action = std::move(action)](Aspect aspect) {
        if (!alive.isNull()) {
            action(aspect);
        }
    });
}

void bindCommon(WidgetKit& kit, platform::Control& control, QWidget& widget) {
    kit.add(control, widget);
    widget.setObjectName(shown(control.name()));
    widget.setEnabled(control.enabled());
    if (!control.visible()) {
        widget.hide();
    }
    follow(control, widget, [&control, &widget](Aspect aspect) {
        if (aspect == Aspect::Enabled) {
            widget.setEnabled(control.enabled());
        } else if (aspect == Aspect::Visible) {
            widget.setVisible(control.visible());
        } else if (aspect == Aspect::Focus && widget.isVisible()) {
            widget.setFocus(Qt::OtherFocusReason);
        }
    });
}

void bindFocus(WidgetKit& kit, QWidget& widget, std::function<void()> got, std::function<void()> lost) {
    if (kit.servesPerson()) {
        widget.installEventFilter(new FocusFilter(kit, widget, std::move(got), std::move(lost)));
    }
}

void showInScrollAreas(QWidget& widget) {
    for (QWidget* holder = widget.parentWidget(); holder != nullptr; holder = holder->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(holder)) {
            area->ensureWidgetVisible(&widget);
        }
    }
}

void leadTo(QWidget& widget) {
    showInScrollAreas(widget);
    widget.setFocus(Qt::ActiveWindowFocusReason);
    if (auto* line = qobject_cast<QLineEdit*>(&widget)) {
        line->selectAll();
    }
}

void focusFirst(QWidget& page) {
    for (QWidget* next = page.nextInFocusChain(); next != &page; next = next->nextInFocusChain()) {
        if (page.isAncestorOf(next) && next->isVisibleTo(&page) && next->isEnabled() &&
            (next->focusPolicy() & Qt::TabFocus) == Qt::TabFocus) {
            next->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}

void later(QObject& object, std::function<void()> action) {
    auto* timer = new QTimer(&object);
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, action = std::move(action)] {
        timer->deleteLater();
        action();
    });
    timer->start(0);
}

}  // namespace mero::qt
