// SPDX-License-Identifier: MIT
/// Windows of forms.
/// Closing is the form's decision: the close box only asks it.
#include "platform/qt/form_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "platform/qt/texts.h"

namespace mero::qt {
namespace {

using platform::Aspect;

/// Offsets of a dialog from the main window [twips, 1/1440 inch].
constexpr int kLeftTwips = 5880;
constexpr int kTopTwips = 1080;
constexpr int kTwipsPerInch = 1440;

}  // namespace

FormWindow::FormWindow(WidgetKit& kit, platform::Form& form, FormWindow* owner)
    : QWidget(owner, owner == nullptr ? Qt::Window : Qt::Dialog | Qt::WindowCloseButtonHint),
      kit_(&kit),
      form_(&form),
      owner_(owner) {
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
        content_ = new QWidget(this);
        layout->addWidget(content_);
        build(*content_);
        content_->setEnabled(form_->enabled());
    }
    const bool opens = owner_ != nullptr && !isVisible();
    if (opens) {
        adjustSize();
        placeOverOwner();
    }
    show();
    if (opens) {
        // Only now is it known how much the window system's frame adds.
        moveOntoScreen(pos());
    }
    raise();
    activateWindow();
    if (focusWidget() == nullptr) {
        focusNextChild();
    }
}

void FormWindow::hideForm() {
    hide();
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

void FormWindow::placeOverOwner() {
    resize(size().boundedTo(owner_->screen()->availableGeometry().size()));
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
    // What a dialog shows later may make it larger.
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
    kit_->enter([this] {
        if (form_->close_requested) {
            form_->close_requested();
        }
    });
    // An unanswered close request would hold up the end of the user's session.
    event->setAccepted(!form_->visible());
}

}  // namespace mero::qt
