// SPDX-License-Identifier: MIT
/// The balloon is a child of the field's window, so it moves with the window and never takes the focus.
#include "qt/balloon.h"

#include <QAccessible>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QTimer>

#include "qt/look.h"
#include "qt/spoken.h"

namespace mero::qt {
namespace {

/// A wrong key is often followed by right ones at once: the text stays until it can have been read.
constexpr int kLeastMs = 1500;
constexpr int kUsualMs = 8000;
/// A slow reader's time for a character; a long text stays longer.
constexpr int kMsPerCharacter = 120;
constexpr int kWidestLine = 60;

bool isModifier(int key) {
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_AltGr ||
           key == Qt::Key_Meta || key == Qt::Key_CapsLock || key == Qt::Key_NumLock;
}

class Balloon : public QLabel {
  public:
    explicit Balloon(QWidget& window) : QLabel(&window) {
        speakAs(*this, QAccessible::AlertMessage);
        setObjectName(QStringLiteral("balloon"));
        setTextFormat(Qt::PlainText);
        setWordWrap(true);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setBackgroundRole(QPalette::ToolTipBase);
        setForegroundRole(QPalette::ToolTipText);
        hide();
        timer_.setSingleShot(true);
        connect(&timer_, &QTimer::timeout, this, [this] { vanish(); });
    }

    void tell(QWidget& at, const QString& text, const QRect& spot) {
        vanish();
        at_ = &at;
        setText(text);
        setMargin(gap(*this) / 2 + 2);
        place(spot.isValid() ? spot : at.rect());
        show();
        raise();
        // Not every screen reader notices a new widget, but all read a changed description.
        former_description_ = at.accessibleDescription();
        at.setAccessibleDescription(text);
        QAccessibleEvent alert(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
        shown_.start();
        timer_.start(qMax(kUsualMs, kMsPerCharacter * static_cast<int>(text.size())));
        QApplication::instance()->installEventFilter(this);
    }

    void vanish() {
        QApplication::instance()->removeEventFilter(this);
        timer_.stop();
        hide();
        if (!at_.isNull()) {
            at_->setAccessibleDescription(former_description_);
        }
        at_.clear();
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        switch (event->type()) {
            case QEvent::KeyPress: {
                const auto* key = dynamic_cast<QKeyEvent*>(event);
                if (key != nullptr && !isModifier(key->key()) && shown_.hasExpired(kLeastMs)) {
                    vanish();
                }
                break;
            }
            case QEvent::MouseButtonPress:
            case QEvent::Wheel:
                vanish();
                break;
            case QEvent::Hide:
                if (watched == at_.data()) {
                    vanish();
                }
                break;
            case QEvent::Resize:
                if (watched == window()) {
                    vanish();
                }
                break;
            default:
                break;
        }
        return QLabel::eventFilter(watched, event);
    }

  protected:
    void paintEvent(QPaintEvent* event) override {
        QPainter painter(this);
        const QColor paper = palette().color(QPalette::ToolTipBase);
        const QColor ink = palette().color(QPalette::ToolTipText);
        constexpr double kEdge = 0.6;
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(mixed(paper, ink, kEdge), 1.0));
        painter.setBrush(paper);
        constexpr double kHalfLine = 0.5;
        painter.drawRoundedRect(QRectF(rect()).adjusted(kHalfLine, kHalfLine, -kHalfLine, -kHalfLine),
                                margin() / 2.0, margin() / 2.0);
        painter.end();
        QLabel::paintEvent(event);
    }

  private:
    /// Below the spot, above it where there is no room below, and always inside the window.
    void place(const QRect& spot) {
        const QRect room = window()->rect();
        const int widest = qMin(textWidth(*this, kWidestLine), room.width());
        const int one_line = fontMetrics().horizontalAdvance(text()) + 2 * margin() + 2;
        const int width = qMin(widest, one_line);
        const QSize size(width, heightForWidth(width));
        const QPoint corner = at_->mapTo(window(), spot.bottomLeft());
        const int apart = gap(*this) / 2;
        int top = corner.y() + apart;
        if (top + size.height() > room.height()) {
            top = qMax(0, corner.y() - spot.height() - apart - size.height());
        }
        const int left = qBound(0, corner.x(), qMax(0, room.width() - size.width()));
        setGeometry(QRect(QPoint(left, top), size));
    }

    QPointer<QWidget> at_;
    QString former_description_;
    QElapsedTimer shown_;
    QTimer timer_;
};

Balloon* balloonOf(const QWidget& window) {
    for (QObject* child : window.children()) {
        if (auto* balloon = dynamic_cast<Balloon*>(child)) {
            return balloon;
        }
    }
    return nullptr;
}

}  // namespace

void showBalloon(QWidget& at, const QString& text, const QRect& spot) {
    hideBalloon();
    QWidget& window = *at.window();
    Balloon* balloon = balloonOf(window);
    if (balloon == nullptr) {
        balloon = new Balloon(window);
    }
    balloon->tell(at, text, spot);
}

void hideBalloon() {
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (Balloon* balloon = balloonOf(*window)) {
            balloon->vanish();
        }
    }
}

QString balloonText() {
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        const Balloon* balloon = balloonOf(*window);
        if (balloon != nullptr && balloon->isVisible()) {
            return balloon->text();
        }
    }
    return {};
}

}  // namespace mero::qt
