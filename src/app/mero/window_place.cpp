// SPDX-License-Identifier: MIT
/// Screens come and go between two runs, so a place counts only where the title and most of the window are
/// seen.
#include "app/mero/window_place.h"

#include <QGuiApplication>
#include <QScreen>

namespace mero::app {

WindowPlace placeOf(const QWidget& window) {
    const bool maximized = window.isMaximized() || window.isFullScreen();
    const QRect normal = maximized ? window.normalGeometry() : QRect(window.pos(), window.size());
    return {normal.x(), normal.y(), normal.width(), normal.height(), maximized};
}

bool takePlace(QWidget& window, const WindowPlace& place) {
    const QRect wanted(place.x, place.y, place.width, place.height);
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect room = screen->availableGeometry();
        const QRect seen = wanted & room;
        if (wanted.top() >= room.top() && 2 * seen.width() >= wanted.width() &&
            2 * seen.height() >= wanted.height()) {
            window.resize(wanted.size().boundedTo(room.size()));
            window.move(wanted.topLeft());
            if (place.maximized) {
                window.setWindowState(Qt::WindowMaximized);
            }
            return true;
        }
    }
    return false;
}

}  // namespace mero::app
