// SPDX-License-Identifier: MIT
/// Keys and the wheel cause the same events as clicks; the focus is visible.
#include "qt/field_keys.h"

#include <gmock/gmock.h>

#include <QComboBox>
#include <QPlainTextEdit>
#include <QTest>

#include "qt/bench_form.h"
#include "qt/buttons.h"
#include "qt/cell_editor_box.h"
#include "qt/focus_ring.h"
#include "qt/look.h"
#include "qt/palettes.h"

namespace mero::qt {
namespace {

using testing::ElementsAre;

class OptionKeys : public testing::Test {
  protected:
    BenchForm bench;
    platform::OptionButton::Group group = std::make_shared<std::vector<platform::OptionButton*>>();
    platform::OptionButton round{bench.form, "optSelTypSachty(0)", "kruhový", group};
    platform::OptionButton square{bench.form, "optSelTypSachty(1)", "pravoúhlý", group};
    platform::OptionButton oval{bench.form, "optSelTypSachty(2)", "oválný", group};
    BenchWindow window;
    std::vector<std::string> clicks;

    void SetUp() override {
        for (auto* option : {&round, &square, &oval}) {
            option->clicked = [this, option] { clicks.push_back(option->text()); };
            window.put(makeOption(bench.kit, *option, window));
        }
    }
    QRadioButton& radio(const platform::OptionButton& option) const {
        return dynamic_cast<QRadioButton&>(*bench.kit.find(option));
    }
};

TEST_F(OptionKeys, AnArrowClicksTheNextOptionAlsoWhereNoneWasSelected) {
    radio(round).setFocus();
    QTest::keyClick(&radio(round), Qt::Key_Right);
    EXPECT_TRUE(square.selected());
    EXPECT_EQ(QApplication::focusWidget(), &radio(square));
    QTest::keyClick(&radio(square), Qt::Key_Up);
    QTest::keyClick(&radio(round), Qt::Key_Left);
    EXPECT_TRUE(oval.selected()) << "from the first to the last";
    EXPECT_THAT(clicks, ElementsAre("pravoúhlý", "kruhový", "oválný"));
}

TEST_F(OptionKeys, AnArrowPassesByWhatIsDisabled) {
    square.setEnabled(false);
    radio(round).setFocus();
    QTest::keyClick(&radio(round), Qt::Key_Down);
    EXPECT_THAT(clicks, ElementsAre("oválný"));
}

class CountKeys : public testing::Test {
  protected:
    BenchForm bench;
    platform::UpDown control{bench.form, "updSacht"};
    BenchWindow window;
    QLineEdit& field = window.put(*new QLineEdit("1"));
    std::string log;

    void SetUp() override {
        control.spun = [this](platform::UpDown::Direction direction) {
            log += direction == platform::UpDown::Direction::Up ? '+' : '-';
        };
        spinByKeys(bench.kit, control, field);
        field.setFocus();
    }
    void turn(int delta) const {
        QWheelEvent wheel({5, 5}, field.mapToGlobal(QPointF(5, 5)), {}, {0, delta}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&field, &wheel);
    }
};

TEST_F(CountKeys, ArrowsAndTheWheelSpin) {
    QTest::keyClick(&field, Qt::Key_Up);
    QTest::keyClick(&field, Qt::Key_Down);
    turn(120);
    turn(-240);
    EXPECT_EQ(log, "+-+--");
}

TEST_F(CountKeys, AFineWheelAddsUpToSteps) {
    turn(60);
    EXPECT_EQ(log, "");
    turn(60);
    EXPECT_EQ(log, "+");
}

TEST_F(CountKeys, NothingSpinsWithoutTheFocusOrWhereDisabled) {
    field.clearFocus();
    turn(120);
    field.setFocus();
    control.setEnabled(false);
    QTest::keyClick(&field, Qt::Key_Up);
    turn(120);
    EXPECT_EQ(log, "");
}

class CellKeys : public testing::Test {
  protected:
    BenchForm bench;
    platform::Grid grid{bench.form, "fgIntDeste"};
    platform::TextBox box{bench.form, "txtSChange"};
    BenchWindow window;
    GridView* view = nullptr;
    QLineEdit* editor = nullptr;
    std::vector<std::string> changes;
    std::vector<int> columns;

    void SetUp() override {
        box.hide();
        grid.build("td|i|Výběr", {0.35, 0.35, 0.3});
        grid.addRow({"5", "131.2", ""});
        grid.addRow({"10", "90.0", ""});
        grid.clicked = [this] {
            columns.push_back(grid.mouse().column);
            if (grid.mouse().column < 2) {
                const auto& row = grid.rows()[static_cast<std::size_t>(grid.mouse().row)];
                box.showText(row[static_cast<std::size_t>(grid.mouse().column)]);
                box.show();
                box.setFocus();
            }
        };
        box.changed = [this] { changes.push_back(box.text()); };
        box.key_pressed = [this](platform::Key) { box.hide(); };
        view = &window.put(makeGrid(bench.kit, grid, 2, {.characters = 58, .rows = 2}, window));
        editor = &makeCellEditor(bench.kit, box, *view, grid);
        window.resize(400, 200);
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        view->setFocus();
    }
};

TEST_F(CellKeys, EnteringTheGridPutsTheFocusIntoACell) {
    EXPECT_TRUE(view->currentIndex().isValid());
}

TEST_F(CellKeys, TypingOpensTheEditorAndReplacesItsText) {
    QTest::keyClick(view, Qt::Key_Right);
    QTest::keyClick(view, '4');
    ASSERT_TRUE(editor->isVisible());
    QTest::keyClick(editor, '2');
    EXPECT_EQ(editor->text(), "42");
    EXPECT_THAT(changes, ElementsAre("4", "42")) << "the opening text is shown, not typed";
    EXPECT_EQ(editor->accessibleName(), "i, 5");
}

TEST_F(CellKeys, F2OnlyOpensTheEditor) {
    QTest::keyClick(view, Qt::Key_F2);
    EXPECT_TRUE(editor->isVisible());
    EXPECT_EQ(editor->selectedText(), "5");
    EXPECT_TRUE(changes.empty());
}

TEST_F(CellKeys, TypingOverTheChoiceAndMovingDoNothing) {
    for (const auto key : {Qt::Key_Right, Qt::Key_Right}) {
        QTest::keyClick(view, key);
    }
    QTest::keyClick(view, 'x');
    QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(columns.empty());
    QTest::keyClick(view, Qt::Key_Space);
    EXPECT_THAT(columns, ElementsAre(2));
    EXPECT_FALSE(editor->isVisible());
}

TEST_F(CellKeys, EscapeEndsTheEditorAndGoesNoFurther) {
    QTest::keyClick(view, Qt::Key_F2);
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(editor, &escape);
    EXPECT_FALSE(editor->isVisible());
    EXPECT_TRUE(escape.isAccepted()) << "it does not close the dialog as well";
}

/// Pixels of the ring's colour.
int ringPixels(QWidget& window) {
    const QImage image = window.grab().toImage();
    const QColor ring = ringColour(window.palette());
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixelColor(x, y) == ring ? 1 : 0;
        }
    }
    return count;
}

TEST(Focus, IsSeenOnEveryKindOfWidgetInBothPalettes) {
    const QPalette before = QApplication::palette();
    for (const QPalette& palette : {lightPalette(), darkPalette()}) {
        QApplication::setPalette(palette);
        BenchWindow window;
        addFocusRing(window);
        auto& rest = window.put(*new QLineEdit);
        std::vector<QWidget*> widgets;
        for (QWidget* widget : std::initializer_list<QWidget*>{
                 new QLineEdit, new QPlainTextEdit, new QPushButton("Zadat"), new QRadioButton("typ A"),
                 new QCheckBox("Drenáž"), new QComboBox}) {
            widgets.push_back(&window.put(*widget));
        }
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        for (QWidget* widget : widgets) {
            rest.setFocus();
            widget->setFocus();
            QApplication::processEvents();
            EXPECT_GT(ringPixels(window), 60) << widget->metaObject()->className();
        }
        widgets.back()->clearFocus();
        QApplication::processEvents();
        EXPECT_EQ(ringPixels(window), 0);
    }
    QApplication::setPalette(before);
}

}  // namespace
}  // namespace mero::qt
