// SPDX-License-Identifier: MIT
/// What a keystroke raises is told beside the field, and has its box once when the field is left.
#include "qt/typing.h"

#include <gmock/gmock.h>

#include <QTest>

#include "qt/balloon.h"
#include "qt/bench_form.h"
#include "qt/buttons.h"
#include "qt/text_fields.h"

namespace mero::qt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kAsk = "Zadejte součinitel filtrace podloží";

/// Two fields and a button. The first field's handler complains of every text but "ok".
class TypingInAField : public testing::Test {
  protected:
    BenchForm bench;
    platform::TextBox box{bench.form, "txtSoucFiltrace"};
    platform::TextBox other{bench.form, "txtHPV"};
    platform::Button calculate{bench.form, "cmdCalcul", "Vypočítat"};
    BenchWindow window;
    QLineEdit& field = window.put(makeLineEdit(bench.kit, box, window));
    QLineEdit& next = window.put(makeLineEdit(bench.kit, other, window));
    QPushButton& button = window.put(makeButton(bench.kit, calculate, window));
    std::vector<std::string> log;

    void SetUp() override {
        box.changed = [this] {
            if (box.text() != "ok") {
                say(kAsk);
            }
        };
        calculate.clicked = [this] { log.push_back("calculated"); };
        bench.kit.typing().show_box = [this](const platform::Message& message) { say(message.text); };
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        field.setFocus();
    }
    /// As the desk does it.
    void say(const std::string& text) {
        if (!bench.kit.typing().tell({text})) {
            log.push_back("box: " + text);
        }
    }
    static void settle() { QTest::qWait(1); }
};

TEST_F(TypingInAField, TellsInABalloonAndNotInABox) {
    QTest::keyClicks(&field, "0.0002");
    settle();
    EXPECT_EQ(balloonText(), QString(kAsk));
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(TypingInAField, TheBoxComesOnceWhenTheFieldIsLeft) {
    QTest::keyClicks(&field, "0.0002");
    QTest::keyClick(&field, Qt::Key_Tab);
    settle();
    EXPECT_THAT(log, ElementsAre(std::string("box: ") + kAsk));
    EXPECT_EQ(balloonText(), "");
    next.setFocus(Qt::TabFocusReason);
    field.setFocus(Qt::TabFocusReason);
    next.setFocus(Qt::TabFocusReason);
    settle();
    EXPECT_EQ(log.size(), 1U);
}

TEST_F(TypingInAField, TheNextKeyForgetsWhatNoLongerHolds) {
    QTest::keyClicks(&field, "o");
    EXPECT_EQ(balloonText(), QString(kAsk));
    QTest::keyClicks(&field, "k");
    EXPECT_EQ(balloonText(), "");
    QTest::keyClick(&field, Qt::Key_Tab);
    settle();
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(TypingInAField, AnotherWindowIsNoLeaving) {
    QTest::keyClicks(&field, "x");
    QFocusEvent away(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(&field, &away);
    settle();
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(TypingInAField, WhatTheEndOfAnEntryRaisesHasItsBoxToo) {
    QTest::keyClicks(&field, "ok");
    QTest::keyClick(&field, Qt::Key_Tab);
    bench.kit.enterTyped(field, [this] { say(kAsk); });  // as a field that completes its text when it is left
    settle();
    EXPECT_THAT(log, ElementsAre(std::string("box: ") + kAsk));
}

TEST_F(TypingInAField, EnterAsksForTheBox) {
    QTest::keyClicks(&field, "x");
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_THAT(log, ElementsAre(std::string("box: ") + kAsk));
}

TEST_F(TypingInAField, AClickOnTheButtonIsNotSwallowedAndComesAfterTheBox) {
    QTest::keyClicks(&field, "x");
    QTest::mousePress(&button, Qt::LeftButton);
    field.clearFocus();
    QTest::qWait(60);
    EXPECT_THAT(log, IsEmpty()) << "a box now would take the release away";
    QTest::mouseRelease(&button, Qt::LeftButton);
    EXPECT_THAT(log, ElementsAre(std::string("box: ") + kAsk, "calculated"));
    settle();
    EXPECT_EQ(log.size(), 2U);
}

TEST_F(TypingInAField, WhatTheCalculationSaysItselfIsNotSaidTwice) {
    calculate.clicked = [this] { say("Sklon svahu je menší než nula."); };
    QTest::keyClicks(&field, "x");
    bench.kit.enterLeaving([this] { say(kAsk); });
    button.click();
    EXPECT_THAT(log, ElementsAre(std::string("box: ") + kAsk, "box: Sklon svahu je menší než nula."));
}

TEST_F(TypingInAField, SeveralMessagesOfOneKeyAreToldTogether) {
    box.changed = [this] {
        say("Dělení nulou");
        say(kAsk);
        say("Dělení nulou");
    };
    QTest::keyClicks(&field, "x");
    EXPECT_EQ(balloonText(), QString("Dělení nulou\n") + kAsk);
    QTest::keyClick(&field, Qt::Key_Tab);
    settle();
    EXPECT_THAT(log, ElementsAre("box: Dělení nulou", std::string("box: ") + kAsk));
}

TEST_F(TypingInAField, ClosingTheFieldsWindowAsksForNothing) {
    QTest::keyClicks(&field, "x");
    bench.kit.typing().forget();
    QTest::keyClick(&field, Qt::Key_Tab);
    settle();
    EXPECT_THAT(log, IsEmpty());
}

TEST(TypingOfAScript, HasItsBoxAtOnce) {
    BenchForm bench(FocusEvents::RunNothing);
    platform::TextBox box(bench.form, "txtSoucFiltrace");
    BenchWindow window;
    QLineEdit& field = window.put(makeLineEdit(bench.kit, box, window));
    int boxes = 0;
    box.changed = [&] { boxes += bench.kit.typing().tell({kAsk}) ? 0 : 1; };
    QTest::keyClicks(&field, "abc");
    EXPECT_EQ(boxes, 3);
    EXPECT_EQ(balloonText(), "");
}

}  // namespace
}  // namespace mero::qt
