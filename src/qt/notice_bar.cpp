// SPDX-License-Identifier: MIT
/// A long path is cut in the middle; the tool tip has it whole.
#include "qt/notice_bar.h"

#include <QAccessible>
#include <QPushButton>
#include <QTextDocument>
#include <QToolButton>
#include <utility>

#include "qt/look.h"
#include "qt/spoken.h"

namespace mero::qt {

NoticeBar::NoticeBar(QWidget& parent)
    : QFrame(&parent), row_(new QHBoxLayout(this)), text_(new QLabel(this)) {
    speakAs(*this, QAccessible::AlertMessage);
    setObjectName(QStringLiteral("notice"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::AlternateBase);
    row_->setContentsMargins(gap(*this), gap(*this) / 2, gap(*this) / 2, gap(*this) / 2);
    text_->setTextFormat(Qt::PlainText);
    text_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row_->addWidget(text_, 1);
    auto* close = new QToolButton(this);
    close->setText(QStringLiteral("×"));
    close->setAutoRaise(true);
    describe(*close, QStringLiteral("Zavřít oznámení"));
    row_->addWidget(close);
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    hide();
}

void NoticeBar::tell(const QString& text, const std::vector<Offer>& offers) {
    for (QWidget* former : std::exchange(offers_, {})) {
        former->deleteLater();
    }
    for (const Offer& offer : offers) {
        auto* button = new QPushButton(offer.caption, this);
        connect(button, &QPushButton::clicked, this, [act = offer.act] { act(); });
        row_->insertWidget(row_->count() - 1, button);
        offers_.push_back(button);
    }
    whole_ = text;
    // A tool tip takes mark-up in a file name for its own.
    text_->setToolTip(Qt::convertFromPlainText(text));
    setAccessibleName(text);
    show();
    elide();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void NoticeBar::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    elide();
}

void NoticeBar::elide() {
    row_->activate();
    text_->setText(fontMetrics().elidedText(whole_, Qt::ElideMiddle, text_->width()));
}

}  // namespace mero::qt
