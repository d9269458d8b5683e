// SPDX-License-Identifier: MIT
/// Loads the icon in all its sizes. Small sizes are separate drawings, so the list names every size.
#include "app/mero/window_icon.h"

#include <QApplication>

namespace mero::app {
namespace {

constexpr int kSizes[] = {16, 22, 24, 32, 48, 64, 128, 256};

}  // namespace

QIcon programIcon() {
    QIcon icon;
    for (const int size : kSizes) {
        icon.addFile(QStringLiteral(":/icons/%1x%1/apps/mero.png").arg(size), QSize(size, size));
    }
    return icon;
}

void wearIcon() {
    QApplication::setWindowIcon(programIcon());
    QGuiApplication::setDesktopFileName(QStringLiteral("mero"));
}

}  // namespace mero::app
