// SPDX-License-Identifier: MIT
/// Clicking buttons, options, boxes, links and arrows; states that the program sets.
#include "qt/buttons.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QToolButton>

#include "qt/bench_form.h"
#include "qt/drop_list_box.h"

namespace mero::qt {
namespace {

using platform::OptionButton;

TEST(PushButton, RunsItsHandlerOnceAClickAndNeverWhileDisabled) {
    BenchForm bench;
    platform::Button button(bench.form, "cmdOK", "Tom & Jerry");
    BenchWindow window;
    QPushButton& push = window.put(makeButton(bench.kit, button, window));
    int clicks = 0;
    button.clicked = [&] { ++clicks; };
    EXPECT_EQ(push.text(), "Tom && Jerry") << "an ampersand is shown, not a keyboard mark";
    QTest::mouseClick(&push, Qt::LeftButton);
    QTest::keyClick(&push, Qt::Key_Space);
    EXPECT_EQ(clicks, 2);
    button.setEnabled(false);
    QTest::mouseClick(&push, Qt::LeftButton);
    EXPECT_EQ(clicks, 2);
}

class Options : public testing::Test {
  protected:
    BenchForm bench;
    OptionButton::Group group = std::make_shared<std::vector<OptionButton*>>();
    OptionButton first{bench.form, "opt(0)", "typ A", group};
    OptionButton second{bench.form, "opt(1)", "typ B", group};
    BenchWindow window;
    QRadioButton& first_radio = window.put(makeOption(bench.kit, first, window));
    QRadioButton& second_radio = window.put(makeOption(bench.kit, second, window));
    int first_clicks = 0;
    int second_clicks = 0;

    void SetUp() override {
        first.clicked = [this] { ++first_clicks; };
        second.clicked = [this] { ++second_clicks; };
    }
    static void click(QRadioButton& radio) {
        QTest::mouseClick(&radio, Qt::LeftButton, {}, {8, radio.height() / 2});
    }
};

TEST_F(Options, AClickOnTheSelectedOneRunsItsHandlerAgain) {
    click(first_radio);
    click(first_radio);
    EXPECT_EQ(first_clicks, 2);
    EXPECT_TRUE(first_radio.isChecked());
}

TEST_F(Options, ExcludeEachOther) {
    click(first_radio);
    click(second_radio);
    EXPECT_FALSE(first_radio.isChecked());
    EXPECT_FALSE(first.selected());
    EXPECT_EQ(first_clicks, 1) << "deselecting runs nothing";
    EXPECT_EQ(second_clicks, 1);
}

TEST_F(Options, CodeCanLeaveNoneSelectedAndSelectAgain) {
    click(first_radio);
    first.setSelected(false);
    EXPECT_FALSE(first_radio.isChecked());
    first.setSelected(true);
    EXPECT_TRUE(first_radio.isChecked());
    EXPECT_EQ(first_clicks, 2) << "one by the click, one by the assignment, none by the widget";
}

TEST_F(Options, ShowWhatTheHandlerDecides) {
    second.clicked = [this] { first.setSelected(true); };
    click(second_radio);
    EXPECT_TRUE(first_radio.isChecked());
    EXPECT_FALSE(second_radio.isChecked());
}

TEST(CheckBoxWidget, FollowsBothWaysAndWhatTheHandlerDecides) {
    BenchForm bench;
    platform::CheckBox box(bench.form, "chkSelPretok(3)", "Přetok a škrcený odtok");
    BenchWindow window;
    QCheckBox& check = window.put(makeCheckBox(bench.kit, box, window));
    int clicks = 0;
    box.clicked = [&] { ++clicks; };
    check.click();
    EXPECT_TRUE(box.checked());
    box.setChecked(false);
    EXPECT_FALSE(check.isChecked());
    EXPECT_EQ(clicks, 2);
    box.clicked = [&] { box.setChecked(false); };
    check.click();
    EXPECT_FALSE(check.isChecked());
}

TEST(Link, IsClickedByMouseAndByKeyboard) {
    BenchForm bench;
    platform::Label label(bench.form, "lblOdkaz(0)", "Technické normy");
    BenchWindow window;
    QLabel& link = window.put(makeLink(bench.kit, label, window));
    int clicks = 0;
    label.clicked = [&] { ++clicks; };
    QTest::mouseClick(&link, Qt::LeftButton);
    QTest::mouseClick(&link, Qt::RightButton);
    QTest::keyClick(&link, Qt::Key_Return);
    EXPECT_EQ(clicks, 2);
}

TEST(LabelWidget, ShowsTextsAsTheyStand) {
    BenchForm bench;
    platform::Label label(bench.form, "lblTime", "01:00:00");
    BenchWindow window;
    QLabel& widget = window.put(makeLabel(bench.kit, label, window));
    label.setText("<b>14:05:09</b>");
    EXPECT_EQ(widget.text(), "<b>14:05:09</b>");
    EXPECT_EQ(widget.textFormat(), Qt::PlainText);
}

TEST(UpDownWidget, ArrowsSpin) {
    BenchForm bench;
    platform::UpDown control(bench.form, "updSacht");
    BenchWindow window;
    QWidget& arrows = window.put(makeUpDown(bench.kit, control, "Počet šachet:", window));
    std::string log;
    control.spun = [&](platform::UpDown::Direction direction) {
        log += direction == platform::UpDown::Direction::Up ? '+' : '-';
    };
    QTest::mouseClick(arrows.findChild<QToolButton*>("up"), Qt::LeftButton);
    QTest::mouseClick(arrows.findChild<QToolButton*>("down"), Qt::LeftButton);
    EXPECT_EQ(log, "+-");
}

class List : public testing::Test {
  protected:
    BenchForm bench;
    platform::DropList list{bench.form, "cboSelType"};
    BenchWindow window;
    QComboBox& combo = window.put(makeDropList(bench.kit, list, window));
    int clicks = 0;

    void SetUp() override {
        list.add("první");
        list.add("druhý");
        list.clicked = [this] { ++clicks; };
    }
};

TEST_F(List, ShowsItsEntriesAndSelectionWithoutEcho) {
    EXPECT_EQ(combo.count(), 2);
    EXPECT_EQ(combo.currentIndex(), -1);
    list.select(1);
    EXPECT_EQ(combo.currentText(), "druhý");
    EXPECT_EQ(clicks, 1);
    list.clear();
    list.add("jiný");
    EXPECT_EQ(combo.count(), 1);
    EXPECT_EQ(combo.itemText(0), "jiný");
    EXPECT_EQ(combo.currentIndex(), -1);
    EXPECT_EQ(bench.entered, 0);
}

TEST_F(List, PickingTheSelectedEntryRunsTheHandlerAgain) {
    combo.setFocus();
    list.select(0);
    clicks = 0;
    emit combo.activated(0);
    EXPECT_EQ(clicks, 1);
    QTest::keyClick(&combo, Qt::Key_Down);
    EXPECT_EQ(list.position(), 1);
    EXPECT_EQ(clicks, 2);
}

TEST_F(List, TheWheelDoesNotChooseByAccidentButWhereTheFocusIs) {
    list.select(0);
    const auto turn = [&] {
        QWheelEvent wheel({5, 5}, combo.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&combo, &wheel);
    };
    combo.clearFocus();
    turn();
    EXPECT_EQ(list.position(), 0);
    EXPECT_EQ(combo.focusPolicy(), Qt::StrongFocus) << "turning the wheel brings no focus";
    combo.setFocus();
    turn();
    EXPECT_EQ(list.position(), 1);
}

TEST_F(List, ShowsWhatTheHandlerDecides) {
    list.clicked = [this] {
        if (list.position() == 1) {
            list.select(0);
        }
    };
    combo.setCurrentIndex(1);
    emit combo.activated(1);
    EXPECT_EQ(combo.currentIndex(), 0);
}

}  // namespace
}  // namespace mero::qt
