// SPDX-License-Identifier: MIT
/// Mnemonic letters: unique, unaccented, only for controls that can be operated; a field's lost-focus handler
/// runs before the button's.
#include "qt/mnemonics.h"

#include <gmock/gmock.h>

#include <QTest>

#include "qt/bench_form.h"
#include "qt/buttons.h"
#include "qt/field_grid.h"
#include "qt/panels.h"

namespace mero::qt {
namespace {

class Mnemonics : public testing::Test {
  protected:
    BenchForm bench;
    BenchWindow window;
    QWidget& place = window.put(*new QWidget);
    FieldGrid grid{bench.kit, place};

    /// The letter after the mark of a caption, in lower case; none without a mark.
    static QChar letter(const QString& caption) {
        const auto mark = caption.indexOf('&');
        return mark < 0 ? QChar() : caption[mark + 1].toLower();
    }
    [[nodiscard]] QString caption(const QWidget& field) const {
        for (const auto* label : place.findChildren<QLabel*>()) {
            if (label->buddy() == &field) {
                return label->text();
            }
        }
        return {};
    }
};

TEST_F(Mnemonics, AreTakenOnceAndPlain) {
    platform::TextBox width(bench.form, "a");
    platform::TextBox height(bench.form, "b");
    platform::TextBox short_word(bench.form, "c");
    const QLineEdit& first = grid.input(width, "Šířka rýhy");
    const QLineEdit& second = grid.input(height, "Výška rýhy");
    const QLineEdit& third = grid.input(short_word, "rv");
    addMnemonics(place, {});
    EXPECT_EQ(letter(caption(first)), 'r') << "of the second word: not every keyboard has the first letter";
    EXPECT_EQ(letter(caption(second)), 'v');
    EXPECT_EQ(caption(third), "rv") << "no letter is left";
}

TEST_F(Mnemonics, ResultsLeaveTheLettersToTheInputs) {
    platform::TextBox result(bench.form, "a");
    platform::TextBox input(bench.form, "b");
    const QLineEdit& first = grid.result(result, "Délka");
    const QLineEdit& second = grid.input(input, "Délka dna");
    addMnemonics(place, {});
    EXPECT_EQ(caption(first), "Délka");
    EXPECT_EQ(caption(second), "&Délka dna");
}

TEST_F(Mnemonics, PanelsThatTakeTurnsShareThemButNotWithWhatStaysBeside) {
    platform::Panel first_panel(bench.form, "picResults(1)");
    platform::Panel second_panel(bench.form, "picResults(2)");
    platform::Button calculate(bench.form, "a", "Výpočti");
    platform::Button again(bench.form, "b", "Výpočti");
    platform::Button other(bench.form, "c", "Volba");
    QPushButton& beside = makeButton(bench.kit, other, place);
    QPushButton& one = makeButton(bench.kit, calculate, makePanel(bench.kit, first_panel, place));
    QPushButton& two = makeButton(bench.kit, again, makePanel(bench.kit, second_panel, place));
    addMnemonics(place, {});
    EXPECT_EQ(letter(beside.text()), 'v');
    EXPECT_EQ(letter(one.text()), 'p');
    EXPECT_EQ(one.text(), two.text());
}

TEST_F(Mnemonics, WhatTheTabsHaveIsGone) {
    QTabWidget tabs;
    tabs.addTab(new QWidget, "Výpočet");
    tabs.addTab(new QWidget, "Výsledky");
    const Letters taken = addMnemonics(tabs);
    EXPECT_EQ(tabs.tabText(0), "&Výpočet");
    EXPECT_EQ(letter(tabs.tabText(1)), 's');
    EXPECT_EQ(taken, (Letters{'v', 's'}));
}

TEST_F(Mnemonics, ButtonsChooseFirst) {
    platform::TextBox box(bench.form, "a");
    platform::Button button(bench.form, "b", "OK");
    const QLineEdit& line = grid.input(box, "ok");
    QPushButton& push = makeButton(bench.kit, button, place);
    addMnemonics(place, {});
    EXPECT_EQ(push.text(), "&OK");
    EXPECT_EQ(caption(line), "o&k");
}

TEST_F(Mnemonics, ACaptionWithAnAmpersandKeepsIt) {
    platform::Button button(bench.form, "a", "Tom & Jerry");
    const QPushButton& push = makeButton(bench.kit, button, place);
    addMnemonics(place, {});
    EXPECT_EQ(push.text(), "Tom && Jerry");
    EXPECT_EQ(button.text(), "Tom & Jerry") << "the form's caption has no marks";
}

TEST_F(Mnemonics, TheFieldIsLeftBeforeTheButtonWorks) {
    platform::TextBox box(bench.form, "txtSoucFiltrPruleh(3)");
    platform::Button calculate(bench.form, "cmdCalcul(3)", "Výpočti");
    std::vector<std::string> events;
    box.lost_focus = [&] { events.emplace_back("left"); };
    calculate.clicked = [&] { events.emplace_back("clicked"); };
    QLineEdit& line = grid.input(box, "Součinitel");
    grid.line(makeButton(bench.kit, calculate, place));
    addMnemonics(place, {});
    QApplication::processEvents();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    line.setFocus();
    QTest::keyClick(&line, Qt::Key_V, Qt::AltModifier);
    EXPECT_THAT(events, testing::ElementsAre("left", "clicked")) << "at once, before a box can come between";
    QApplication::processEvents();
    EXPECT_THAT(events, testing::SizeIs(2));
}

}  // namespace
}  // namespace mero::qt
