// SPDX-License-Identifier: MIT
// The program's icon: available in every size that desktops request, small ones undistorted.
#include "app/mero/window_icon.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPixmap>

namespace mero::app {
namespace {

class IconSize : public testing::TestWithParam<int> {};

TEST_P(IconSize, IsDrawnForIt) {
    const QSize wanted(GetParam(), GetParam());
    const QIcon icon = programIcon();
    EXPECT_TRUE(icon.availableSizes().contains(wanted));
    const QImage picture = icon.pixmap(wanted).toImage();
    ASSERT_EQ(picture.size(), wanted);
    // A blue drop in the middle, soil at the bottom, nothing in the corner.
    const QColor middle = picture.pixelColor(wanted.width() / 2, wanted.height() * 6 / 10);
    EXPECT_GT(middle.blue(), middle.red() + 80);
    const QColor soil = picture.pixelColor(wanted.width() / 2, wanted.height() * 9 / 10);
    EXPECT_GT(soil.red(), soil.blue());
    EXPECT_EQ(soil.alpha(), 255);
    EXPECT_EQ(picture.pixelColor(0, 0).alpha(), 0);
}

INSTANTIATE_TEST_SUITE_P(Of, IconSize, testing::Values(16, 22, 24, 32, 48, 64, 128, 256));

TEST(WindowIcon, IsOnEveryWindowAndNamesTheDesktopsEntry) {
    wearIcon();
    EXPECT_FALSE(QApplication::windowIcon().isNull());
    EXPECT_EQ(QApplication::windowIcon().availableSizes(), programIcon().availableSizes());
    EXPECT_EQ(QGuiApplication::desktopFileName(), QStringLiteral("mero"));
}

}  // namespace
}  // namespace mero::app
