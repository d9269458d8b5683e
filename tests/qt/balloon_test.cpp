// SPDX-License-Identifier: MIT
/// The text beside a field.
#include "qt/balloon.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include "qt/bench_form.h"

namespace mero::qt {
namespace {

class BalloonTest : public testing::Test {
  protected:
    BenchWindow window;
    QLineEdit& first = window.put(*new QLineEdit(&window));
    QLineEdit& field = window.put(*new QLineEdit(&window));

    void SetUp() override {
        window.resize(400, 200);
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        field.setFocus();
    }
    [[nodiscard]] QLabel& balloon() const { return *window.findChild<QLabel*>(QStringLiteral("balloon")); }
};

TEST_F(BalloonTest, StandsBelowTheFieldInItsWindow) {
    showBalloon(field, QStringLiteral("Není číslo."));
    EXPECT_EQ(balloonText(), "Není číslo.");
    EXPECT_GE(balloon().y(), field.geometry().bottom());
    EXPECT_TRUE(window.rect().contains(balloon().geometry()));
}

TEST_F(BalloonTest, StandsAboveAFieldAtTheLowerEdge) {
    window.resize(400, window.minimumSizeHint().height());
    QApplication::processEvents();
    showBalloon(field, QStringLiteral("Není číslo."));
    EXPECT_LE(balloon().geometry().bottom(), field.y());
    EXPECT_TRUE(window.rect().contains(balloon().geometry()));
}

TEST_F(BalloonTest, ALongTextIsWrapped) {
    showBalloon(field, QStringLiteral("Vložený text není číslo. ").repeated(6));
    EXPECT_GT(balloon().height(), 2 * balloon().fontMetrics().lineSpacing());
    EXPECT_LE(balloon().width(), window.width());
}

TEST_F(BalloonTest, TakesNeitherFocusNorClicks) {
    showBalloon(field, QStringLiteral("Není číslo."));
    EXPECT_EQ(QApplication::focusWidget(), &field);
    EXPECT_TRUE(balloon().testAttribute(Qt::WA_TransparentForMouseEvents));
}

TEST_F(BalloonTest, GoesWithAClick) {
    showBalloon(field, QStringLiteral("Není číslo."));
    QTest::mouseClick(&first, Qt::LeftButton);
    EXPECT_EQ(balloonText(), "");
}

TEST_F(BalloonTest, StaysForAFastTypistAndGoesWithALaterKey) {
    showBalloon(field, QStringLiteral("Není číslo."));
    QTest::keyClick(&field, Qt::Key_1);
    EXPECT_EQ(balloonText(), "Není číslo.");
    QTest::qWait(1600);
    QTest::keyClick(&field, Qt::Key_Shift);
    EXPECT_EQ(balloonText(), "Není číslo.") << "a modifier is not yet a key";
    QTest::keyClick(&field, Qt::Key_2);
    EXPECT_EQ(balloonText(), "");
}

TEST_F(BalloonTest, GoesWithItsField) {
    showBalloon(field, QStringLiteral("Není číslo."));
    field.hide();
    EXPECT_EQ(balloonText(), "");
}

TEST_F(BalloonTest, OnlyTheLastOneIsShown) {
    showBalloon(field, QStringLiteral("Není číslo."));
    showBalloon(first, QStringLiteral("Jiný text."));
    EXPECT_EQ(balloonText(), "Jiný text.");
    hideBalloon();
    EXPECT_EQ(balloonText(), "");
}

TEST_F(BalloonTest, IsTheFieldsDescriptionWhileItIsShown) {
    field.setAccessibleDescription(QStringLiteral("dříve"));
    showBalloon(field, QStringLiteral("Není číslo."));
    EXPECT_EQ(field.accessibleDescription(), "Není číslo.");
    hideBalloon();
    EXPECT_EQ(field.accessibleDescription(), "dříve");
}

}  // namespace
}  // namespace mero::qt
