// SPDX-License-Identifier: MIT
/// Builds, places and closes the windows of forms.
/// The close box only requests closing; the form decides.
#include "qt/form_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "qt/focus_ring.h"
#include "qt/mnemonics.h"
#include "qt/texts.h"

namespace mero::qt {
namespace {

using platform::Aspect;

/// Offsets of a dialog from the main window [twips, 1/1440 inch].
constexpr int kLeftTwips = 5880;
constexpr int kTopTwips = 1080;
constexpr int kTwipsPerInch = 1440;

/// Scrolls the content of a dialog that is too large for the screen; otherwise it is invisible.
class ContentArea : public QScrollArea {
  public:
    explicit ContentArea(QWidget& window) : QScrollArea(&window) {
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setFocusPolicy(Qt::NoFocus);
    }

    [[nodiscard]] QSize sizeHint() const override {
        return widget() == nullptr ? QScrollArea::sizeHint() : widget()->sizeHint();
    }
    [[nodiscard]] QSize minimumSizeHint() const override {
        if (widget() == nullptr) {
            return QScrollArea::minimumSizeHint();
        }
        const QSize screen_size = screen()->availableGeometry().size();
        return widget()->minimumSizeHint().boundedTo(screen_size * kShareOfScreen);
    }

  protected:
    bool event(QEvent* event) override {
        const bool handled = QScrollArea::event(event);
        if (event->type() == QEvent::LayoutRequest) {
            updateGeometry();
        }
        return handled;
    }

  private:
    static constexpr double kShareOfScreen = 0.8;
};

}  // namespace

FormWindow::FormWindow(WidgetKit& kit, platform::Form& form, FormWindow* owner)
    : QWidget(owner, owner == nullptr ? Qt::Window : Qt::Dialog | Qt::WindowCloseButtonHint),
      kit_(&kit),
      form_(&form),
      owner_(owner) {
    speakAs(*this, owner == nullptr ? QAccessible::Window : QAccessible::Dialog);
    kit.add(form, *this);
    setObjectName(shown(form.name()));
    setWindowTitle(shown(form.title()));
    follow(form, *this, [this](Aspect aspect) {
        if (aspect == Aspect::Visible) {
            form_->visible() ? showForm() : hideForm();
        } else if (aspect == Aspect::Enabled) {
            setFormEnabled(form_->enabled());
        }
    });
}

void FormWindow::showForm() {
    if (content_ == nullptr) {
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        if (owner_ == nullptr) {
            content_ = new QWidget(this);
            layout->addWidget(content_);
        } else {
            auto* area = new ContentArea(*this);
            content_ = new QWidget(area);
            area->setWidget(content_);
            layout->addWidget(area);
        }
        addFocusRing(*this);
        build(*content_);
        if (owner_ != nullptr) {
            addMnemonics(*content_, {});
        }
        content_->setEnabled(form_->enabled());
    }
    const bool opens = owner_ != nullptr && !isVisible();
    if (opens) {
        fitContent();
        placeOverOwner();
    }
    show();
    if (opens) {
        // Only now is the size of the window system's frame known.
        moveOntoScreen(pos());
    }
    raise();
    activateWindow();
    if (opens) {
        focusFirst(*content_);
    } else if (focusWidget() == nullptr) {
        focusNextChild();
    }
}

void FormWindow::hideForm() {
    hide();
    if (windowHandle() != nullptr) {
        // Qt connects a window whenever it becomes active, and does not disconnect one that was hidden
        // meanwhile.
        disconnect(windowHandle(), &QWindow::focusObjectChanged, qApp, nullptr);
    }
    if (owner_ != nullptr && owner_->isVisible()) {
        owner_->activateWindow();
    }
}

void FormWindow::setFormEnabled(bool enabled) {
    if (content_ == nullptr || content_->isEnabled() == enabled) {
        return;
    }
    if (!enabled) {
        focus_before_disabling_ = focusWidget();
    }
    content_->setEnabled(enabled);
    if (enabled && !focus_before_disabling_.isNull() && focus_before_disabling_->isEnabled()) {
        focus_before_disabling_->setFocus(Qt::ActiveWindowFocusReason);
    }
}

void FormWindow::fitContent() {
    // From the inside out, so that each size is known before the next one needs it.
    for (QWidget* holder = content_; holder != this; holder = holder->parentWidget()) {
        if (holder->layout() != nullptr) {
            holder->layout()->activate();
        }
        QEvent request(QEvent::LayoutRequest);
        QApplication::sendEvent(holder->parentWidget(), &request);
    }
    layout()->activate();
    resize(sizeHint().boundedTo(roomOnScreen()));
}

QSize FormWindow::roomOnScreen() const {
    // The window manager's frame is known only after the window was shown.
    const QSize frame =
        isVisible() ? frameSize() - size() : QSize(0, style()->pixelMetric(QStyle::PM_TitleBarHeight));
    return screen()->availableGeometry().size() - frame;
}

void FormWindow::confirmWith(QPushButton& button) {
    confirm_ = &button;
    button.setDefault(true);
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (owner_ != nullptr && event->key() == Qt::Key_Escape) {
        close();
    } else if (enter && !confirm_.isNull()) {
        confirm_->click();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void FormWindow::placeOverOwner() {
    const QPoint offset = QPoint(kLeftTwips, kTopTwips) * owner_->logicalDpiX() / kTwipsPerInch;
    moveOntoScreen(owner_->frameGeometry().topLeft() + offset);
}

void FormWindow::moveOntoScreen(QPoint wanted) {
    const QRect room = owner_->screen()->availableGeometry();
    const QSize size = frameGeometry().size();
    move(std::clamp(wanted.x(), room.left(), std::max(room.left(), room.right() + 1 - size.width())),
         std::clamp(wanted.y(), room.top(), std::max(room.top(), room.bottom() + 1 - size.height())));
}

void FormWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    // A dialog may grow when it shows something later.
    if (owner_ != nullptr && isVisible() && !owner_->screen()->availableGeometry().contains(geometry())) {
        moveOntoScreen(pos());
    }
}

void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (!form_->enabled()) {
        QApplication::alert(this);
        return;
    }
    if (owner_ == nullptr) {
        // The end of the user's session must not wait for somebody to close a box.
        kit_->typing().forget();
    }
    kit_->enter([this] { form_->userCloses(); });
    // An unanswered close request would block the end of the user's session.
    event->setAccepted(!form_->visible());
}

}  // namespace mero::qt
