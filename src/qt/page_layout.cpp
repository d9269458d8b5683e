// SPDX-License-Identifier: MIT
/// Lays out pages for small and large windows.
/// FlowPair computes its minimum width itself: a box layout only knows that of its current direction.
#include "qt/page_layout.h"

#include <QEvent>
#include <QVBoxLayout>

#include "qt/look.h"

namespace mero::qt {

FlowPair::FlowPair(QWidget& parent)
    : QWidget(&parent), layout_(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->setSpacing(gap(*this));
}

void FlowPair::add(QWidget& widget, int stretch) {
    layout_->addWidget(&widget, stretch);
}

bool FlowPair::fitsBeside(int width) const {
    int needed = 0;
    for (int i = 0; i < layout_->count(); ++i) {
        needed += layout_->itemAt(i)->minimumSize().width() + (i > 0 ? layout_->spacing() : 0);
    }
    return needed <= width;
}

void FlowPair::choose() {
    const auto direction = fitsBeside(width()) ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
    if (layout_->direction() != direction) {
        layout_->setDirection(direction);
        updateGeometry();
    }
}

QSize FlowPair::minimumSizeHint() const {
    QSize least;
    for (int i = 0; i < layout_->count(); ++i) {
        least = least.expandedTo(layout_->itemAt(i)->minimumSize());
    }
    return {least.width(), layout_->minimumSize().height()};
}

QSize FlowPair::sizeHint() const {
    return layout_->sizeHint();
}

void FlowPair::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    choose();
}

bool FlowPair::event(QEvent* event) {
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest) {
        choose();
    }
    return handled;
}

QWidget& makeScrollPage(QWidget& page) {
    auto* whole = new QVBoxLayout(&page);
    whole->setContentsMargins(0, 0, 0, 0);
    auto* area = new QScrollArea(&page);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    whole->addWidget(area);
    auto* content = new QWidget(area);
    area->setWidget(content);
    return *content;
}

QWidget& makeRow(QWidget& parent) {
    auto& row = *new QWidget(&parent);
    auto* layout = new QHBoxLayout(&row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap(row) * 2);
    return row;
}

}  // namespace mero::qt
