// SPDX-License-Identifier: MIT
/// Typing into fields, and fields filled by the program.
#include "qt/text_fields.h"

#include <gmock/gmock.h>

#include <QFocusEvent>
#include <QTest>
#include <vector>

#include "qt/bench_form.h"
#include "qt/look.h"
#include "qt/texts.h"

namespace mero::qt {
namespace {

using platform::Key;
using platform::TextBox;
using testing::ElementsAre;

class TextField : public testing::Test {
  protected:
    BenchForm bench;
    TextBox box{bench.form, "txtHPV", "1.2"};
    std::vector<std::string> changes;
    BenchWindow window;
    QLineEdit& line = window.put(makeLineEdit(bench.kit, box, window));

    void SetUp() override {
        box.changed = [this] { changes.push_back(box.text()); };
    }
};

TEST_F(TextField, OpensWithTheControlsTextAndName) {
    EXPECT_EQ(line.text(), "1.2");
    EXPECT_EQ(line.objectName(), "txtHPV");
    EXPECT_EQ(bench.kit.find(box), &line);
}

TEST_F(TextField, EachKeyIsOneChange) {
    line.clear();
    QTest::keyClicks(&line, "1e-5");
    EXPECT_THAT(changes, ElementsAre("1", "1e", "1e-", "1e-5"));
}

TEST_F(TextField, CodeIsShownAndDoesNotComeBack) {
    box.setText("428.6");
    EXPECT_EQ(line.text(), "428.6");
    EXPECT_THAT(changes, ElementsAre("428.6")) << "only the assignment's own";
    EXPECT_EQ(bench.entered, 0);
}

TEST_F(TextField, AShownTextRunsNothing) {
    box.showText("5");
    EXPECT_EQ(line.text(), "5");
    EXPECT_TRUE(changes.empty());
}

TEST_F(TextField, TypingGoesOnFromWhatTheHandlerLeft) {
    box.changed = [this] {
        changes.push_back(box.text());
        if (box.text().ends_with("x")) {
            box.setText("");
        }
    };
    line.clear();
    QTest::keyClicks(&line, "1x2");
    EXPECT_THAT(changes, ElementsAre("1", "1x", "", "2"));
    EXPECT_EQ(line.text(), "2");
}

TEST_F(TextField, TheCursorStaysWhereOneTypes) {
    line.setCursorPosition(1);
    QTest::keyClicks(&line, "05");
    EXPECT_EQ(box.text(), "105.2");
    EXPECT_EQ(line.cursorPosition(), 3);
}

TEST_F(TextField, PastedLineBreaksAndTabsAreDropped) {
    line.selectAll();
    line.insert("Dům\r\nu\třeky");
    EXPECT_EQ(box.text(), "Důmuřeky");
    EXPECT_EQ(line.text(), shown(box.text()));
}

TEST_F(TextField, PastingTheSameTextIsNoChange) {
    line.selectAll();
    line.insert("1.2");
    EXPECT_TRUE(changes.empty());
}

TEST_F(TextField, EnterAndEscapeReachTheKeyHandler) {
    std::vector<Key> keys;
    box.key_pressed = [&](Key key) { keys.push_back(key); };
    QTest::keyClick(&line, Qt::Key_Return);
    QTest::keyClick(&line, Qt::Key_Enter);
    QTest::keyClick(&line, Qt::Key_Escape);
    EXPECT_THAT(keys, ElementsAre(Key::Enter, Key::Enter, Key::Escape));
    EXPECT_EQ(line.text(), "1.2");
}

TEST_F(TextField, FollowsEnabledVisibleAndGreyed) {
    box.setEnabled(false);
    EXPECT_FALSE(line.isEnabled());
    const QColor normal = line.palette().color(QPalette::Active, QPalette::Base);
    box.setGreyed(true);
    EXPECT_EQ(line.palette().color(QPalette::Active, QPalette::Base),
              window.palette().color(QPalette::Active, QPalette::Button));
    box.setGreyed(false);
    EXPECT_EQ(line.palette().color(QPalette::Active, QPalette::Base), normal);
    box.hide();
    EXPECT_FALSE(line.isVisible());
}

TEST_F(TextField, AResultCannotBeTypedIntoButIsWritten) {
    showAsResult(line);
    QTest::keyClicks(&line, "9");
    EXPECT_TRUE(changes.empty());
    box.setText("7.5");
    EXPECT_EQ(line.text(), "7.5");
}

TEST_F(TextField, ATextLongerThanUsualIsNotCut) {
    line.selectAll();
    line.insert(QString(100'000, 'a'));
    EXPECT_EQ(box.text().size(), 100'000U);
}

TEST_F(TextField, AControlOutlivesItsWidget) {
    delete &line;
    box.setText("2");
    EXPECT_EQ(bench.kit.find(box), nullptr);
}

void sendFocus(QWidget& widget, QEvent::Type type, Qt::FocusReason reason) {
    QFocusEvent event(type, reason);
    QApplication::sendEvent(&widget, &event);
}

TEST(Focus, OfAPersonRunsTheHandlersButNotWhenWindowsChange) {
    BenchForm bench;
    TextBox box(bench.form, "txtSoucFiltrace");
    BenchWindow window;
    QLineEdit& line = window.put(makeLineEdit(bench.kit, box, window));
    std::string log;
    box.got_focus = [&] { log += '+'; };
    box.lost_focus = [&] { log += '-'; };
    sendFocus(line, QEvent::FocusIn, Qt::TabFocusReason);
    sendFocus(line, QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    sendFocus(line, QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    sendFocus(line, QEvent::FocusOut, Qt::PopupFocusReason);
    sendFocus(line, QEvent::FocusOut, Qt::MouseFocusReason);
    EXPECT_EQ(log, "+-");
}

TEST(Focus, OfTheWindowSystemRunsNothingWhileAScriptWorks) {
    BenchForm bench(FocusEvents::RunNothing);
    TextBox box(bench.form, "txtSoucFiltrace");
    BenchWindow window;
    QLineEdit& line = window.put(makeLineEdit(bench.kit, box, window));
    bool ran = false;
    box.got_focus = box.lost_focus = [&] { ran = true; };
    sendFocus(line, QEvent::FocusIn, Qt::MouseFocusReason);
    sendFocus(line, QEvent::FocusOut, Qt::MouseFocusReason);
    EXPECT_FALSE(ran);
}

class TextArea : public testing::Test {
  protected:
    TextArea() { box.setMultiLine(true); }

    BenchForm bench;
    TextBox box{bench.form, "txtDetails"};
    BenchWindow window;
    QPlainTextEdit& area = window.put(makeTextArea(bench.kit, box, window));
};

TEST_F(TextArea, StoresLineBreaksAsTwoCharacters) {
    int changes = 0;
    box.changed = [&] { ++changes; };
    QTest::keyClicks(&area, "a");
    QTest::keyClick(&area, Qt::Key_Return);
    QTest::keyClicks(&area, "b");
    EXPECT_EQ(box.text(), "a\r\nb");
    EXPECT_EQ(changes, 3);
}

TEST_F(TextArea, ShowsWhatCodeAssignsWithoutEcho) {
    int changes = 0;
    box.changed = [&] { ++changes; };
    box.setText("první\r\ndruhý");
    EXPECT_EQ(area.toPlainText(), "první\ndruhý");
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(bench.entered, 0);
}

TEST_F(TextArea, BackspaceTakesAWholeLineBreak) {
    box.setText("a\r\n");
    area.moveCursor(QTextCursor::End);
    QTest::keyClick(&area, Qt::Key_Backspace);
    EXPECT_EQ(box.text(), "a");
}

}  // namespace
}  // namespace mero::qt
