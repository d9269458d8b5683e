// SPDX-License-Identifier: MIT
/// Pictures as widgets: a sheet with the colours of a text field.
#include "qt/picture_view.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QPainter>
#include <utility>

#include "qt/copy_menu.h"
#include "qt/look.h"
#include "qt/picture_painter.h"
#include "qt/texts.h"

namespace mero::qt {

PictureView::PictureView(QWidget& parent, const QString& name, Source source)
    : QWidget(&parent), source_(std::move(source)) {
    setAccessibleName(name);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PictureView::setRoom(QSize liked, QSize least) {
    liked_ = liked;
    least_ = least;
    updateGeometry();
}

QSize PictureView::inPixels(const QSize& room) const {
    return {textWidth(*this, room.width()), fontMetrics().height() * room.height()};
}

QSize PictureView::sizeHint() const {
    return inPixels(liked_);
}

QSize PictureView::minimumSizeHint() const {
    return inPixels(least_);
}

void PictureView::paintEvent(QPaintEvent* /*event*/) {
    const picture::Drawing drawing =
        source_({static_cast<double>(width()), static_cast<double>(height())}, textSizes(font()));
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Active, QPalette::Base));
    paintDrawing(painter, drawing, palette(), font());
    const QString summary = shown(drawing.summary);
    if (accessibleDescription() != summary) {
        setAccessibleDescription(summary);
    }
}

void PictureView::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu(this);
    connect(menu.addAction(QStringLiteral("Kopírovat jako obrázek")), &QAction::triggered, this,
            [this] { copyAsPicture(*this, source_); });
    connect(menu.addAction(QStringLiteral("Kopírovat jako SVG")), &QAction::triggered, this,
            [this] { copyAsSvg(*this, source_); });
    menu.exec(event->globalPos());
}

}  // namespace mero::qt
