// SPDX-License-Identifier: MIT
/// A closed list whose entries do much: keys and the wheel only move, Enter and leaving choose.
#include "qt/drop_list_box.h"

#include <gmock/gmock.h>

#include <QLineEdit>
#include <QTest>

#include "qt/bench_form.h"

namespace mero::qt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MovedList : public testing::Test {
  protected:
    BenchForm bench;
    platform::DropList list{bench.form, "cboSelType"};
    BenchWindow window;
    QComboBox& combo = window.put(makeMovingList(bench.kit, list, window));
    QLineEdit& next = window.put(*new QLineEdit);
    std::vector<int> chosen;

    void SetUp() override {
        for (const char* entry : {"[Vyber]", "plošné", "průleh", "rýha"}) {
            list.add(entry);
        }
        list.select(0);
        list.clicked = [this] { chosen.push_back(list.position()); };
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        next.setFocus();
        combo.setFocus(Qt::TabFocusReason);
    }
    void turnWheel() {
        QWheelEvent wheel({5, 5}, combo.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&combo, &wheel);
    }
};

TEST_F(MovedList, ArrowsAndTheWheelOnlyMove) {
    QTest::keyClick(&combo, Qt::Key_Down);
    turnWheel();
    EXPECT_EQ(combo.currentText(), "průleh");
    EXPECT_EQ(list.position(), 0);
    EXPECT_THAT(chosen, IsEmpty());
}

TEST_F(MovedList, EnterTakesTheShownEntryOnce) {
    QTest::keyClick(&combo, Qt::Key_Down);
    QTest::keyClick(&combo, Qt::Key_Down);
    QTest::keyClick(&combo, Qt::Key_Return);
    QTest::keyClick(&combo, Qt::Key_Return);
    next.setFocus(Qt::TabFocusReason);
    EXPECT_THAT(chosen, ElementsAre(2));
}

TEST_F(MovedList, LeavingTakesIt) {
    QTest::keyClick(&combo, Qt::Key_End);
    QTest::keyClick(&combo, Qt::Key_Tab);
    EXPECT_THAT(chosen, ElementsAre(3));
}

TEST_F(MovedList, AnotherWindowIsNoLeaving) {
    QTest::keyClick(&combo, Qt::Key_Down);
    QFocusEvent away(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(&combo, &away);
    EXPECT_THAT(chosen, IsEmpty());
}

TEST_F(MovedList, MovingBackTakesNothing) {
    QTest::keyClick(&combo, Qt::Key_Down);
    QTest::keyClick(&combo, Qt::Key_Up);
    QTest::keyClick(&combo, Qt::Key_Tab);
    EXPECT_THAT(chosen, IsEmpty());
}

TEST_F(MovedList, EscapeShowsTheChosenEntryAgain) {
    QTest::keyClick(&combo, Qt::Key_Down);
    QTest::keyClick(&combo, Qt::Key_Escape);
    EXPECT_EQ(combo.currentText(), "[Vyber]");
    QTest::keyClick(&combo, Qt::Key_Tab);
    EXPECT_THAT(chosen, IsEmpty());
}

TEST_F(MovedList, AnEntryOfTheOpenListIsTakenAtOnceAlsoTheSameAgain) {
    combo.setCurrentIndex(2);
    emit combo.activated(2);
    emit combo.activated(2);
    EXPECT_THAT(chosen, ElementsAre(2, 2));
}

TEST_F(MovedList, ARefusedChoiceShowsWhatIsChosen) {
    list.clicked = [this] {
        if (list.position() != 0) {
            list.select(0);
        }
    };
    QTest::keyClick(&combo, Qt::Key_Down);
    QTest::keyClick(&combo, Qt::Key_Return);
    EXPECT_EQ(combo.currentText(), "[Vyber]");
}

TEST_F(MovedList, AFocusThatCameByCodeIsGuardedBeforeTheChoice) {
    int guards = 0;
    list.got_focus = [this, &guards] {
        ++guards;
        combo.hide();
    };
    next.setFocus(Qt::TabFocusReason);
    combo.setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(guards, 0);
    QTest::keyClick(&combo, Qt::Key_Down);
    QTest::keyClick(&combo, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(guards, 1);
    EXPECT_THAT(chosen, IsEmpty()) << "the guard led away";
    EXPECT_EQ(combo.currentText(), "[Vyber]");
}

}  // namespace
}  // namespace mero::qt
