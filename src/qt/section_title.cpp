// SPDX-License-Identifier: MIT
/// Draws the title and its line.
#include "qt/section_title.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <utility>

#include "qt/contrast.h"
#include "qt/look.h"

namespace mero::qt {

SectionTitle::SectionTitle(const QString& text, QWidget& parent) : QLabel(text, &parent) {
    setTextFormat(Qt::PlainText);
    setFont(titleFont(font()));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    colour();
}

void SectionTitle::colour() {
    // Setting the colour sends a palette change event too.
    if (!std::exchange(colouring_, true)) {
        QPalette own;
        own.setColor(QPalette::WindowText, titleColour(QApplication::palette()));
        setPalette(own);
        colouring_ = false;
    }
}

void SectionTitle::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange) {
        colour();
    }
}

void SectionTitle::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    QPainter painter(this);
    const int left = fontMetrics().horizontalAdvance(text()) + gap(*this);
    painter.fillRect(QRect(left, height() / 2, width() - left, 1), dividerColour(QApplication::palette()));
}

}  // namespace mero::qt
