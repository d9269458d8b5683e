// SPDX-License-Identifier: MIT
/// Paints the banner in a tint of the palette, and greys by opacity, which suits light and dark desktops.
#include "forms/calc/layout/stale_banner.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QGraphicsOpacityEffect>
#include <QHBoxLayout>
#include <QPainter>
#include <utility>

#include "design/input.h"
#include "qt/look.h"

namespace mero::forms {
namespace {

/// Clearly greyed, and still legible: texts keep a contrast of some 4 : 1 on light and dark desktops.
constexpr float kFadedOpacity = 0.55F;
constexpr double kTint = 0.16;
constexpr QRgb kAmber = 0xffe08a00;

/// Covers a widget with a translucent layer; the mouse goes through it.
class Veil : public QWidget {
  public:
    explicit Veil(QWidget& covered) : QWidget(&covered) {
        setObjectName(QLatin1String(kName));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        covered.installEventFilter(this);
        resize(covered.size());
        show();
        raise();
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Resize) {
            resize(parentWidget()->size());
        }
        return QWidget::eventFilter(watched, event);
    }
    static constexpr const char* kName = "veil";

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QColor layer = palette().color(QPalette::Window);
        layer.setAlphaF(1.0F - kFadedOpacity);
        QPainter(this).fillRect(rect(), layer);
    }
};

QWidget* findVeil(const QWidget& widget) {
    return widget.findChild<QWidget*>(QLatin1String(Veil::kName), Qt::FindDirectChildrenOnly);
}

}  // namespace

StaleBanner::StaleBanner(QWidget& parent, const QString& button, std::function<void()> calculate)
    : QFrame(&parent), label_(new QLabel(this)) {
    setObjectName(QStringLiteral("stale"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(qt::gap(*this), qt::gap(*this) / 2, qt::gap(*this) / 2, qt::gap(*this) / 2);
    label_->setObjectName(QStringLiteral("staleText"));
    label_->setWordWrap(true);
    label_->setTextFormat(Qt::PlainText);
    row->addWidget(label_, 1);
    auto* push = new QPushButton(button, this);
    push->setObjectName(QStringLiteral("staleButton"));
    connect(push, &QPushButton::clicked, this, std::move(calculate));
    row->addWidget(push);
    hide();
}

void StaleBanner::tell(const QString& text) {
    if (!text.isEmpty() && label_->text() != text) {
        label_->setText(text);
    }
    setVisible(!text.isEmpty());
}

void StaleBanner::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor amber(kAmber);
    painter.setPen(amber);
    painter.setBrush(qt::mixed(palette().color(QPalette::Window), amber, kTint));
    const double radius = qt::gap(*this) / 2.0;
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

QString staleText() {
    return QStringLiteral("Vstupy se od výpočtu změnily.");
}

void setFaded(QWidget& widget, bool faded) {
    if (faded == isFaded(widget)) {
        return;
    }
    if (qobject_cast<QAbstractScrollArea*>(&widget) != nullptr) {
        if (faded) {
            new Veil(widget);
        } else {
            delete findVeil(widget);
        }
    } else if (faded) {
        auto* effect = new QGraphicsOpacityEffect(&widget);
        effect->setOpacity(static_cast<double>(kFadedOpacity));
        widget.setGraphicsEffect(effect);
    } else {
        widget.setGraphicsEffect(nullptr);
    }
}

bool isFaded(const QWidget& widget) {
    return widget.graphicsEffect() != nullptr || findVeil(widget) != nullptr;
}

void calculateAnew(qt::WidgetKit& kit, frmCalc& form, FacilityType type) {
    kit.enter([&form, type] {
        if (design::isLive(type)) {
            form.cboSelType.userSelect(form.cboSelType.position());
        } else {
            form.cmdCalcul[type].userClick();
        }
    });
}

}  // namespace mero::forms
