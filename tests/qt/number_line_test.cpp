// SPDX-License-Identifier: MIT
/// A person's keys, pastes, drops and input methods in a number field.
#include "qt/number_line.h"

#include <gmock/gmock.h>

#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QTimer>
#include <array>
#include <random>
#include <vector>

#include "qt/balloon.h"
#include "qt/bench_form.h"
#include "qt/text_fields.h"

namespace mero::qt {
namespace {

using numbers::NumberField;
using platform::TextBox;
using testing::ElementsAre;

class NumberFieldTest : public testing::Test {
  protected:
    explicit NumberFieldTest(NumberEntry entry = {NumberField::Plain, "m"}) : entry_(std::move(entry)) {}

    NumberEntry entry_;
    BenchForm bench;
    TextBox box{bench.form, "txtSirkaRyhy"};
    std::vector<std::string> changes;
    BenchWindow window;
    NumberLine& line = window.put(makeNumberLine(bench.kit, box, window, entry_));
    QLineEdit& other = window.put(*new QLineEdit(&window));

    void SetUp() override {
        box.changed = [this] { changes.push_back(box.text()); };
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        line.setFocus();
        hideBalloon();
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&line, key, modifiers); }
    void press(QKeySequence::StandardKey sequence) { QTest::keySequence(&line, sequence); }
    void drop(const QMimeData& data) {
        const auto actions = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter({3, 3}, actions, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&line, &enter);
        QDropEvent dropped({3, 3}, actions, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&line, &dropped);
    }
    void paste(const QString& text) {
        QApplication::clipboard()->setText(text);
        press(QKeySequence::Paste);
    }
};

class ExponentFieldTest : public NumberFieldTest {
  protected:
    ExponentFieldTest() : NumberFieldTest({NumberField::WithExponent, "m/s"}) {}
};

TEST_F(NumberFieldTest, ACommaIsAPoint) {
    QTest::keyClicks(&line, "0,8");
    EXPECT_THAT(changes, ElementsAre("0", "0.", "0.8"));
    EXPECT_EQ(line.text(), "0.8");
    EXPECT_EQ(balloonText(), "");
}

TEST_F(NumberFieldTest, TheKeypadsDecimalKeyIsAPointWhateverItTypes) {
    QTest::keyClicks(&line, "1");
    QTest::keyClick(&line, ',', Qt::KeypadModifier);
    QTest::keyClicks(&line, "5");
    EXPECT_EQ(box.text(), "1.5");
}

TEST_F(NumberFieldTest, ADigitOverTheSameSelectedDigitEndsTheSelection) {
    QTest::keyClicks(&line, "1");
    line.selectAll();
    QTest::keyClicks(&line, "1,5");
    EXPECT_EQ(box.text(), "1.5");
}

TEST_F(NumberFieldTest, DigitsAndEditingKeysDoWhatTheyDoInAnyField) {
    QLineEdit& plain = window.put(*new QLineEdit(&window));
    constexpr std::array kKeys{Qt::Key_1,    Qt::Key_1,   Qt::Key_2,    Qt::Key_Backspace, Qt::Key_Delete,
                               Qt::Key_Home, Qt::Key_End, Qt::Key_Left, Qt::Key_Right};
    std::mt19937 random(20261121);
    for (int step = 0; step < 3000; ++step) {
        const Qt::Key key = kKeys.at(random() % kKeys.size());
        const bool moves =
            key == Qt::Key_Home || key == Qt::Key_End || key == Qt::Key_Left || key == Qt::Key_Right;
        const bool selects = moves && random() % 3 == 0;
        const auto modifiers = selects ? Qt::ShiftModifier : Qt::NoModifier;
        for (QLineEdit* field : {static_cast<QLineEdit*>(&line), &plain}) {
            QTest::keyClick(field, key, modifiers);
        }
        ASSERT_EQ(line.text().toStdString(), plain.text().toStdString()) << step;
        ASSERT_EQ(line.cursorPosition(), plain.cursorPosition()) << step << ' ' << qPrintable(plain.text());
        ASSERT_EQ(line.selectedText(), plain.selectedText()) << step << ' ' << qPrintable(plain.text());
        if (plain.text().size() > 30) {  // longer ones are more than a Single holds
            line.clear();
            plain.clear();
        }
    }
}

TEST_F(NumberFieldTest, BlanksThatGroupDigitsAreNotTyped) {
    QTest::keyClicks(&line, "1 200");
    EXPECT_THAT(changes, ElementsAre("1", "12", "120", "1200"));
}

TEST_F(NumberFieldTest, ALetterIsToldAndChangesNothing) {
    QTest::keyClicks(&line, "12x");
    EXPECT_EQ(box.text(), "12");
    EXPECT_EQ(balloonText(), "Sem patří číslo, například 12.5.");
}

TEST_F(NumberFieldTest, ASecondPointIsToldAndChangesNothing) {
    QTest::keyClicks(&line, "1,5,");
    EXPECT_EQ(box.text(), "1.5");
    EXPECT_EQ(balloonText(), "Číslo má jen jednu desetinnou tečku nebo čárku.");
}

TEST_F(NumberFieldTest, APastedNumberIsCleanedAsAWhole) {
    for (const char* text : {"1 200,5 m", "1\u00A0200,5\u00A0m\r\n", "+1\u202F200.5", "\t1200,5\n"}) {
        line.selectAll();
        key(Qt::Key_Delete);
        changes.clear();
        paste(QString::fromUtf8(text));
        EXPECT_THAT(changes, ElementsAre("1200.5")) << text;
    }
    EXPECT_EQ(balloonText(), "");
}

TEST_F(NumberFieldTest, WhatIsNoNumberIsNotPasted) {
    paste("2,5");
    line.selectAll();
    for (const char* text : {"1.200,5", "1,200.5", "x", "", "500 mm", "434\n320", "-5", "1e99"}) {
        paste(QString::fromUtf8(text));
        EXPECT_EQ(box.text(), "2.5") << text;
        EXPECT_THAT(balloonText().toStdString(), testing::StartsWith("Nevloženo: ")) << text;
        hideBalloon();
    }
    EXPECT_THAT(changes, ElementsAre("2.5"));
}

TEST_F(NumberFieldTest, TheReasonQuotesWhatWasNotPasted) {
    paste("500 mm");
    EXPECT_EQ(balloonText(), "Nevloženo: „500 mm“ má jinou jednotku než m.");
}

TEST_F(NumberFieldTest, AnExponentIsPastedAsAPlainNumber) {
    paste("1,5E-3");
    EXPECT_EQ(box.text(), "0.0015");
}

TEST_F(NumberFieldTest, HtmlAloneIsPastedAsItsText) {
    auto* html = new QMimeData;
    html->setHtml("<p><b>1&nbsp;200,5</b></p>");
    QApplication::clipboard()->setMimeData(html);
    press(QKeySequence::Paste);
    EXPECT_EQ(box.text(), "1200.5");
}

TEST_F(NumberFieldTest, APasteReplacesTheSelection) {
    QTest::keyClicks(&line, "12.5");
    line.setSelection(0, 2);
    paste("7");
    EXPECT_EQ(box.text(), "7.5");
}

TEST_F(NumberFieldTest, ADropTakesThePlaceOfTheNumber) {
    QTest::keyClicks(&line, "12.5");
    QMimeData data;
    data.setText("0,7 m");
    drop(data);
    EXPECT_EQ(box.text(), "0.7");
}

TEST_F(NumberFieldTest, ARefusedDropLeavesTheNumber) {
    QTest::keyClicks(&line, "12.5");
    QMimeData data;
    data.setText("Brno");
    drop(data);
    EXPECT_EQ(box.text(), "12.5");
    EXPECT_EQ(balloonText(), "Nevloženo: „Brno“ není číslo.");
}

TEST_F(NumberFieldTest, AnInputMethodIsCleanedToo) {
    for (const char* commit : {"1 200,5", "á", "x", ","}) {
        QInputMethodEvent event;
        event.setCommitString(QString::fromUtf8(commit));
        QApplication::sendEvent(&line, &event);
    }
    EXPECT_EQ(box.text(), "1200.5");
}

TEST_F(NumberFieldTest, TheMenuPastesTheSameWay) {
    QApplication::clipboard()->setText("1 200,5 m");
    QTimer::singleShot(0, [] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        auto* paste = menu->findChild<QAction*>("paste");
        ASSERT_NE(paste, nullptr);
        paste->trigger();
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, {3, 3}, line.mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(&line, &event);
    EXPECT_EQ(box.text(), "1200.5");
}

TEST_F(NumberFieldTest, UndoAndRedoWorkAcrossARefusedPaste) {
    QTest::keyClicks(&line, "12");
    paste("34,5");
    EXPECT_EQ(box.text(), "1234.5");
    press(QKeySequence::Undo);
    paste("x");
    press(QKeySequence::Redo);
    EXPECT_EQ(box.text(), "1234.5") << "the refused paste left the history alone";
}

TEST_F(NumberFieldTest, UndoAndRedoWorkAcrossACleanedPaste) {
    QTest::keyClicks(&line, "12");
    line.selectAll();
    paste("1 200,5 m");
    QTest::keyClicks(&line, "6");
    EXPECT_EQ(box.text(), "1200.56");
    while (line.isUndoAvailable() && line.text() != "12") {
        press(QKeySequence::Undo);
        EXPECT_TRUE(numbers::isFinished(box.text())) << box.text();
    }
    EXPECT_EQ(box.text(), "12");
    while (line.isRedoAvailable()) {
        press(QKeySequence::Redo);
    }
    EXPECT_EQ(box.text(), "1200.56");
}

TEST_F(NumberFieldTest, KeysTypedInARowAreUndoneTogether) {
    QTest::keyClicks(&line, "0,85");
    press(QKeySequence::Undo);
    EXPECT_EQ(box.text(), "");
    press(QKeySequence::Redo);
    EXPECT_EQ(box.text(), "0.85");
    press(QKeySequence::Undo);
    key(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(box.text(), "0.85");
}

TEST_F(NumberFieldTest, DeletingKeysLeaveANumberOrNothing) {
    QTest::keyClicks(&line, "0.5");
    key(Qt::Key_Backspace);
    EXPECT_EQ(box.text(), "0.");
    key(Qt::Key_Home);
    key(Qt::Key_Delete);
    EXPECT_EQ(box.text(), "") << "a point alone is nothing";
}

TEST_F(NumberFieldTest, APersonMayEmptyTheField) {
    QTest::keyClicks(&line, "12");
    line.selectAll();
    key(Qt::Key_Delete);
    EXPECT_EQ(box.text(), "");
    press(QKeySequence::Undo);
    EXPECT_EQ(box.text(), "12");
}

TEST_F(NumberFieldTest, CuttingGoesToTheClipboard) {
    QTest::keyClicks(&line, "12.5");
    line.selectAll();
    press(QKeySequence::Cut);
    EXPECT_EQ(box.text(), "");
    EXPECT_EQ(QApplication::clipboard()->text(), "12.5");
}

TEST_F(NumberFieldTest, AResultLosesItsGroupsWhenItIsEdited) {
    box.setText("1 234.5");
    line.end(false);
    QTest::keyClicks(&line, "6");
    EXPECT_EQ(box.text(), "1234.56");
}

TEST_F(NumberFieldTest, WithoutAPersonItTakesAnyText) {
    BenchForm script(FocusEvents::RunNothing);
    TextBox raw(script.form, "txtHPV");
    QLineEdit& field = window.put(makeNumberLine(script.kit, raw, window, entry_));
    QTest::keyClicks(&field, "1,5x");
    EXPECT_EQ(raw.text(), "1,5x");
    delete &field;
}

TEST_F(ExponentFieldTest, AnExponentIsTypedInEitherCase) {
    QTest::keyClicks(&line, "1,5E-4");
    EXPECT_THAT(changes, ElementsAre("1", "1.", "1.5", "1.5e", "1.5e-", "1.5e-4"));
}

TEST_F(ExponentFieldTest, ErasingAnExponentWrittenByTheProgramDoesNotEmptyTheField) {
    box.setText("1.0E-04");
    line.end(false);
    changes.clear();
    for (int i = 0; i < 3; ++i) {
        key(Qt::Key_Backspace);
    }
    EXPECT_THAT(changes, ElementsAre("1.0E-0", "1.0e-", "1.0e"));
}

TEST_F(ExponentFieldTest, LeftWithHalfAnExponentItHoldsWhatItHeld) {
    std::string when_left;
    box.lost_focus = [this, &when_left] { when_left = box.text(); };
    box.setText("2.0E-04");
    other.setFocus();
    line.setFocus();
    line.selectAll();
    QTest::keyClicks(&line, "5e-");
    EXPECT_EQ(box.text(), "5e-");
    other.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(box.text(), "2.0E-04");
    EXPECT_EQ(when_left, "2.0E-04") << "before the handler of leaving";
    EXPECT_EQ(balloonText(), "„5e-“ není dopsané číslo, v poli zůstalo 2.0E-04.");
}

TEST_F(ExponentFieldTest, SwitchingWindowsIsNotLeaving) {
    QTest::keyClicks(&line, "5e-");
    QFocusEvent away(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(&line, &away);
    EXPECT_EQ(box.text(), "5e-");
}

TEST_F(ExponentFieldTest, AMnemonicDoesNotCalculateWithHalfAnExponent) {
    QTest::keyClicks(&line, "5e-");
    QKeyEvent mnemonic(QEvent::ShortcutOverride, Qt::Key_V, Qt::AltModifier);
    QApplication::sendEvent(&line, &mnemonic);
    EXPECT_EQ(box.text(), "");
}

}  // namespace
}  // namespace mero::qt
