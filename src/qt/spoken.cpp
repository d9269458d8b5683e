// SPDX-License-Identifier: MIT
/// Names and roles for assistive technology.
/// Only the role and the link's action are replaced; everything else is left to the widget's class.
#include "qt/spoken.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>

namespace mero::qt {
namespace {

constexpr const char* kRoleProperty = "mero_role";

class SpokenWidget : public QAccessibleWidget {
  public:
    SpokenWidget(QWidget* widget, QAccessible::Role role) : QAccessibleWidget(widget, role) {}

    [[nodiscard]] QString text(QAccessible::Text of) const override {
        const auto* label = qobject_cast<const QLabel*>(widget());
        const bool plain = label != nullptr && widget()->accessibleName().isEmpty();
        return of == QAccessible::Name && plain ? label->text() : QAccessibleWidget::text(of);
    }
    [[nodiscard]] QStringList actionNames() const override {
        return pressable() ? QStringList{pressAction()} : QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override {
        if (!pressable() || name != pressAction()) {
            QAccessibleWidget::doAction(name);
            return;
        }
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent key(type, Qt::Key_Space, Qt::NoModifier);
            QApplication::sendEvent(widget(), &key);
        }
    }

  private:
    [[nodiscard]] bool pressable() const { return role() == QAccessible::Link && widget()->isEnabled(); }
};

QAccessibleInterface* spokenWidget(const QString& /*class_name*/, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    const QVariant role = widget == nullptr ? QVariant() : widget->property(kRoleProperty);
    return role.isValid() ? new SpokenWidget(widget, static_cast<QAccessible::Role>(role.toInt())) : nullptr;
}

}  // namespace

void describe(QWidget& widget, const QString& caption, const QString& unit) {
    const QString plain = caption.endsWith(QLatin1Char(':')) ? caption.chopped(1) : caption;
    widget.setAccessibleName(unit.isEmpty() ? plain : plain + QLatin1String(", ") + unit);
}

void speakAs(QWidget& widget, QAccessible::Role role) {
    [[maybe_unused]] static const bool installed = [] {
        QAccessible::installFactory(spokenWidget);
        return true;
    }();
    widget.setProperty(kRoleProperty, static_cast<int>(role));
}

}  // namespace mero::qt
