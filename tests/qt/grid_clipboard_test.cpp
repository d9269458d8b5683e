// SPDX-License-Identifier: MIT
/// Blocks of cells between a grid and a spreadsheet.
#include "qt/grid_clipboard.h"

#include <gmock/gmock.h>

#include <QClipboard>
#include <QMimeData>
#include <QTest>
#include <vector>

#include "qt/balloon.h"
#include "qt/bench_form.h"
#include "qt/cell_editor_box.h"

namespace mero::qt {
namespace {

using platform::Grid;
using platform::GridCell;
using platform::TextBox;
using testing::ElementsAre;

constexpr int kArea = 1;
constexpr int kName = 2;
constexpr int kChoice = 3;

/// A counter, an area, a name and a column of pictures, three rows. Each change of the editor goes to the
/// cell.
class GridClipboard : public testing::Test {
  protected:
    BenchForm bench;
    Grid grid{bench.form, "fgZapisTab"};
    TextBox box{bench.form, "txtSChange"};
    std::vector<std::string> changes;
    BenchWindow window;
    GridView* view = nullptr;
    NumberLine* editor = nullptr;

    void SetUp() override {
        grid.build("ID|<Dílčí plocha|<Typ|<Výběr", {0.2, 0.3, 0.3, 0.2});
        grid.addRow({"1", "1 200", "Střecha"});
        grid.addRow({"2", "300", "Trávník"});
        grid.addRow({"3", "20.5", "Cesta"});
        box.hide();
        grid.cell_changed = [this](GridCell) { box.hide(); };
        grid.clicked = [this] {
            box.hide();
            if (grid.mouse().column == kArea || grid.mouse().column == kName) {
                box.showText(grid.rows()[static_cast<std::size_t>(grid.current().row)]
                                        [static_cast<std::size_t>(grid.current().column)]);
                box.show();
                box.setFocus();
            }
        };
        box.key_pressed = [this](platform::Key) {
            box.hide();
            grid.setFocus();
        };
        box.changed = [this] {
            changes.push_back(box.text());
            grid.setText(grid.current(), box.text());
        };
        view = &window.put(makeGrid(bench.kit, grid, kChoice, {.characters = 58, .rows = 3}, window));
        editor = &makeCellEditor(bench.kit, box, *view, grid,
                                 {{.editable = false},
                                  {.number = NumberEntry{numbers::NumberField::Plain, QStringLiteral("m²")}},
                                  {}});
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        view->setFocus();
        hideBalloon();
    }
    void paste(QWidget& at, const QString& text) {
        QApplication::clipboard()->setText(text);
        QTest::keySequence(&at, QKeySequence::Paste);
    }
    void focusCell(GridCell cell) { view->setCurrentIndex(view->model()->index(cell.row - 1, cell.column)); }
    [[nodiscard]] std::vector<std::string> column(int of) const {
        std::vector<std::string> texts;
        for (int row = 1; row <= grid.dataRows(); ++row) {
            texts.push_back(grid.rows()[static_cast<std::size_t>(row)][static_cast<std::size_t>(of)]);
        }
        return texts;
    }
};

TEST_F(GridClipboard, ABlockFillsCellsToTheRightAndBelow) {
    focusCell({2, kArea});
    paste(*view, "1 500,5\tDvůr\r\n40 m²\tSchody\r\n");
    EXPECT_THAT(column(kArea), ElementsAre("1 200", "1500.5", "40"));
    EXPECT_THAT(column(kName), ElementsAre("Střecha", "Dvůr", "Schody"));
    EXPECT_THAT(changes, ElementsAre("1500.5", "Dvůr", "40", "Schody")) << "one after the other";
    EXPECT_EQ(balloonText(), "") << "asks and tells nothing when it fits";
    EXPECT_FALSE(box.visible());
}

TEST_F(GridClipboard, ABlockGoesIntoTheCellBeingEdited) {
    focusCell({1, kArea});
    QTest::keyClick(view, Qt::Key_Return);
    ASSERT_TRUE(box.visible());
    paste(*editor, "1\n2\n3\n");
    EXPECT_THAT(column(kArea), ElementsAre("1", "2", "3"));
}

TEST_F(GridClipboard, ABlockGoesIntoATextBeingEditedToo) {
    focusCell({1, kName});
    QTest::keyClick(view, Qt::Key_Return);
    paste(*editor, "a\nb");
    EXPECT_THAT(column(kName), ElementsAre("a", "b", "Cesta"));
}

TEST_F(GridClipboard, FromTheFirstColumnItFillsTheEditableOnes) {
    focusCell({1, 0});
    paste(*view, "7\tPark");
    EXPECT_THAT(column(0), ElementsAre("1", "2", "3"));
    EXPECT_THAT(column(kArea), ElementsAre("7", "300", "20.5"));
    EXPECT_THAT(column(kName), ElementsAre("Park", "Trávník", "Cesta"));
}

TEST_F(GridClipboard, ACellThatHoldsNoNumberIsLeftOutAndTold) {
    focusCell({1, kArea});
    paste(*view, "1,5\nasi 3\n1.200,5");
    EXPECT_THAT(column(kArea), ElementsAre("1.5", "300", "20.5"));
    EXPECT_EQ(balloonText(),
              "Vynecháno: řádek 2, Dílčí plocha: „asi 3“ není číslo; "
              "řádek 3, Dílčí plocha: „1.200,5“ má víc desetinných oddělovačů, lze je číst různě.");
}

TEST_F(GridClipboard, WhatDoesNotFitIsTold) {
    focusCell({3, kName});
    paste(*view, "a\tb\nc\td");
    EXPECT_THAT(column(kName), ElementsAre("Střecha", "Trávník", "a"));
    EXPECT_EQ(balloonText(), "Do tabulky se nevešlo řádků: 1, sloupců: 1.");
}

TEST_F(GridClipboard, RowsAreAddedWhereTheGridCanBeAddedTo) {
    std::vector<std::vector<QString>> added;
    view->add_row = [&added](const std::vector<QString>& texts) {
        added.push_back(texts);
        return true;
    };
    focusCell({3, kArea});
    paste(*view, "1,5\ta\n2,5\tb\nx\tc\n3,5\n");
    EXPECT_THAT(column(kArea), ElementsAre("1 200", "300", "1.5"));
    EXPECT_THAT(added, ElementsAre(ElementsAre("", "2.5", "b", ""), ElementsAre("", "3.5", "", "")));
    EXPECT_EQ(balloonText(), "Vynecháno: řádek 5, Dílčí plocha: „x“ není číslo.");
}

TEST_F(GridClipboard, EmptyCellsBesideABlockAreNotTold) {
    focusCell({1, kArea});
    paste(*view, "5\t\t\t\n6\t\t\t\n");
    EXPECT_THAT(column(kArea), ElementsAre("5", "6", "20.5"));
    EXPECT_THAT(column(kName), ElementsAre("Střecha", "Trávník", "Cesta"));
    EXPECT_EQ(balloonText(), "");
}

TEST_F(GridClipboard, TheHeadingsOfAColumnAreNoRow) {
    focusCell({1, kArea});
    paste(*view, "Plocha\tPovrch\n11\tA\n12\tB\n13\tC\n");
    EXPECT_THAT(column(kArea), ElementsAre("11", "12", "13"));
    EXPECT_EQ(balloonText(), "Řádek s nadpisy byl vynechán.");
}

TEST_F(GridClipboard, TheColumnOfPicturesTakesNothing) {
    focusCell({1, kChoice});
    paste(*view, "5");
    EXPECT_TRUE(changes.empty());
    EXPECT_EQ(balloonText(), "Do tohoto sloupce se nevkládá.");
}

TEST_F(GridClipboard, AnHtmlTableIsABlock) {
    auto* html = new QMimeData;
    html->setHtml(
        "<table><tr><td>1&nbsp;500,5</td><td>Dvůr</td></tr><tr><td>40</td><td>Schody</td></tr></table>");
    QApplication::clipboard()->setMimeData(html);
    focusCell({1, kArea});
    QTest::keySequence(view, QKeySequence::Paste);
    EXPECT_THAT(column(kArea), ElementsAre("1500.5", "40", "20.5"));
    EXPECT_THAT(column(kName), ElementsAre("Dvůr", "Schody", "Cesta"));
}

TEST_F(GridClipboard, AShownTextThatIsPastedCounts) {
    focusCell({3, kArea});
    paste(*view, "20,5");
    ASSERT_FALSE(changes.empty()) << "the cell may hold more digits than it shows";
    EXPECT_EQ(changes.back(), "20.5");
}

TEST_F(GridClipboard, TheTableIsCopiedForASpreadsheet) {
    EXPECT_EQ(tableText(*view, ","), "1200\tStřecha\n300\tTrávník\n20,5\tCesta\n");
    EXPECT_EQ(tableText(*view, "."), "1200\tStřecha\n300\tTrávník\n20.5\tCesta\n");
}

TEST_F(GridClipboard, ACopyPastesBackAsItWas) {
    QTest::keySequence(view, QKeySequence::Copy);
    EXPECT_EQ(balloonText(), "Tabulka je ve schránce, řádků: 3.");
    focusCell({1, 0});
    hideBalloon();
    QTest::keySequence(view, QKeySequence::Paste);
    EXPECT_THAT(column(kArea), ElementsAre("1200", "300", "20.5"));
    EXPECT_EQ(balloonText(), "");
}

TEST_F(GridClipboard, OnlyANumberOpensTheEditorOfANumber) {
    focusCell({2, kArea});
    for (const auto key : {Qt::Key_A, Qt::Key_Minus, Qt::Key_E}) {
        QTest::keyClick(view, key);
        EXPECT_FALSE(box.visible()) << key;
    }
    EXPECT_TRUE(changes.empty());
    QTest::keyClicks(view, ",");
    EXPECT_TRUE(box.visible());
    EXPECT_EQ(box.text(), "0.");
}

TEST_F(GridClipboard, AnyCharacterOpensTheEditorOfAText) {
    focusCell({2, kName});
    QTest::keyClicks(view, "P");
    EXPECT_TRUE(box.visible());
    EXPECT_THAT(column(kName), ElementsAre("Střecha", "P", "Cesta"));
}

TEST_F(GridClipboard, AGroupedNumberIsEditedWithoutItsGroups) {
    focusCell({1, kArea});
    QTest::keyClick(view, Qt::Key_Return);
    EXPECT_EQ(editor->text(), "1200");
    QTest::keyClick(editor, Qt::Key_End);
    QTest::keyClicks(editor, ",5");
    EXPECT_THAT(changes, ElementsAre("1200.", "1200.5"));
}

}  // namespace
}  // namespace mero::qt
