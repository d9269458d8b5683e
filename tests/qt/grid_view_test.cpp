// SPDX-License-Identifier: MIT
/// Grids: their content, clicks, the editor over a cell.
#include "qt/grid_view.h"

#include <gmock/gmock.h>

#include <QHeaderView>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include "qt/bench_form.h"
#include "qt/cell_editor_box.h"
#include "qt/grid_delegate.h"

namespace mero::qt {
namespace {

using platform::Grid;
using platform::GridCell;

constexpr int kChoice = 2;

class GridWidget : public testing::Test {
  protected:
    BenchForm bench;
    Grid grid{bench.form, "fgIntDeste"};
    platform::TextBox box{bench.form, "txtSChange"};
    BenchWindow window;
    GridView* view = nullptr;
    int clicks = 0;

    void SetUp() override {
        fill(9);
        grid.clicked = [this] { ++clicks; };
        view = &window.put(makeGrid(bench.kit, grid, kChoice, {.characters = 58, .rows = 9}, window));
        window.resize(400, 300);
        QApplication::processEvents();
    }
    void fill(int rows) {
        grid.build("typ|<i (t,p) [l/s.ha]|<Výběr", {0.35, 0.35, 0.3});
        for (int row = 1; row <= rows; ++row) {
            grid.addRow({row <= 2 ? "střechy" : "cesty", std::string(1, static_cast<char>('0' + row % 10))});
        }
        grid.alignColumn(1, platform::Alignment::Centre);
    }
    void click(GridCell cell) const {
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->cellRect(cell).center());
    }
    QString cellText(int row, int column) const {
        return view->model()->index(row - 1, column).data().toString();
    }
};

TEST_F(GridWidget, ShowsHeaderAndRows) {
    EXPECT_EQ(view->model()->rowCount(), 9);
    EXPECT_EQ(view->model()->headerData(1, Qt::Horizontal).toString(), "i (t,p) [l/s.ha]");
    EXPECT_EQ(cellText(3, 1), "3");
    grid.setText({3, 1}, "131.2");
    EXPECT_EQ(cellText(3, 1), "131.2");
    EXPECT_TRUE(view->model()->index(0, 1).data(Qt::TextAlignmentRole).toInt() & Qt::AlignHCenter);
}

TEST_F(GridWidget, AClickMakesTheCellCurrentAndRunsTheHandler) {
    click({4, 1});
    EXPECT_EQ(grid.current(), (GridCell{4, 1}));
    EXPECT_EQ(grid.mouse(), (GridCell{4, 1}));
    EXPECT_EQ(clicks, 1);
    click({4, 1});
    EXPECT_EQ(clicks, 2);
}

TEST_F(GridWidget, PressingHereAndReleasingThereIsNoClick) {
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, view->cellRect({4, 1}).center());
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, view->cellRect({6, 1}).center());
    EXPECT_EQ(clicks, 0);
}

TEST_F(GridWidget, TheSpaceBarPicksTheCellThatTheArrowKeysReached) {
    click({2, 1});
    QTest::keyClick(view, Qt::Key_Right);
    QTest::keyClick(view, Qt::Key_Down);
    EXPECT_EQ(grid.current(), (GridCell{2, 1})) << "moving alone picks nothing";
    QTest::keyClick(view, Qt::Key_Space);
    EXPECT_EQ(grid.mouse(), (GridCell{3, 2}));
}

TEST_F(GridWidget, EqualNeighboursAreMergedAndEachRowIsStillReached) {
    grid.mergeColumn(0);
    view->refresh();
    EXPECT_EQ(view->rowSpan(0, 0), 2);
    EXPECT_EQ(view->rowSpan(2, 0), 7);
    click({6, 0});
    EXPECT_EQ(grid.mouse(), (GridCell{6, 0}));
}

TEST_F(GridWidget, TellsMarkedFromUnmarked) {
    const QImage none = view->grab().toImage();
    grid.setMark({2, kChoice}, true);
    view->refresh();
    const QImage marked = view->grab().toImage();
    grid.setMark({2, kChoice}, false);
    view->refresh();
    const QImage unmarked = view->grab().toImage();
    EXPECT_NE(marked, unmarked);
    EXPECT_EQ(none, unmarked) << "never marked and not marked any more look alike";
}

TEST_F(GridWidget, AsksForTheHeightThatItsRowsTake) {
    grid.setText({3, 1}, "a text that needs several lines in a column of this width, for it is long");
    view->refresh();
    window.resize(view->sizeHint().width() + 40, 2000);
    view->setFixedHeight(view->sizeHint().height());
    QApplication::processEvents();
    EXPECT_EQ(view->verticalScrollBar()->maximum(), 0) << "no scroll bar where all rows fit";
    EXPECT_GT(view->rowHeight(2), view->rowHeight(1));
}

TEST_F(GridWidget, TheTextOfAMergedCellStaysInItsVisiblePart) {
    grid.mergeColumn(0);
    view->refresh();
    window.resize(400, 160);
    QApplication::processEvents();
    const int line = view->rowHeight(1);
    view->verticalScrollBar()->setValue(4 * line);
    // Rows 3 to 9 are merged; two of them are scrolled away.
    QStyleOptionViewItem option;
    option.widget = view;
    option.font = view->font();
    option.rect = view->visualRect(view->model()->index(2, 0));
    ASSERT_LT(option.rect.top(), 0);
    EXPECT_TRUE(view->viewport()->rect().contains(GridDelegate::textPlace(option, "cesty")));
    option.rect.moveBottom(line / 2);
    EXPECT_EQ(GridDelegate::textPlace(option, "cesty").bottom(), option.rect.bottom())
        << "not beyond its own cell";
}

TEST_F(GridWidget, TheMarkIsReadOut) {
    grid.setMark({2, kChoice}, true);
    EXPECT_EQ(view->model()->index(1, kChoice).data(Qt::AccessibleTextRole).toString(), "vybráno");
    EXPECT_EQ(view->model()->index(2, kChoice).data(Qt::AccessibleTextRole).toString(), "nevybráno");
}

TEST_F(GridWidget, ColumnsFillTheWidthAndNoHeadingIsCut) {
    for (const int width : {180, 400, 1600}) {
        window.resize(width, 300);
        QApplication::processEvents();
        for (int column = 0; column < 3; ++column) {
            const QString heading = view->model()->headerData(column, Qt::Horizontal).toString();
            EXPECT_GE(view->columnWidth(column),
                      view->horizontalHeader()->fontMetrics().horizontalAdvance(heading));
        }
        if (width >= 400) {
            EXPECT_EQ(view->columnWidth(0) + view->columnWidth(1) + view->columnWidth(2),
                      view->viewport()->width());
        }
    }
}

TEST_F(GridWidget, FollowsRowsThatComeAndGo) {
    fill(200);
    QApplication::processEvents();
    EXPECT_EQ(view->model()->rowCount(), 200);
    view->reveal({150, 1});
    click({150, 1});
    EXPECT_EQ(grid.mouse(), (GridCell{150, 1}));
    fill(1);
    EXPECT_EQ(cellText(150, 1), "") << "asked before the view has followed";
    QApplication::processEvents();
    EXPECT_EQ(view->model()->rowCount(), 1);
}

TEST_F(GridWidget, AClickBeyondTheRowsIsNone) {
    fill(1);
    QApplication::processEvents();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, {10, view->viewport()->height() - 5});
    EXPECT_EQ(clicks, 0);
}

class Editor : public GridWidget {
  protected:
    QLineEdit* line = nullptr;

    void SetUp() override {
        GridWidget::SetUp();
        box.hide();
        line = &makeCellEditor(bench.kit, box, *view, grid);
    }
    void open(GridCell cell, const std::string& text) {
        grid.userClick(cell);
        box.showText(text);
        box.show();
        box.setFocus();
    }
};

TEST_F(Editor, LiesInsideTheCurrentCellWithAllSelected) {
    open({3, 1}, "131.2");
    ASSERT_TRUE(line->isVisible());
    EXPECT_TRUE(view->cellRect({3, 1}).contains(line->geometry()));
    EXPECT_GT(line->width(), view->columnWidth(1) / 2);
    EXPECT_EQ(line->selectedText(), "131.2");
}

TEST_F(Editor, TheFirstKeyReplacesTheText) {
    open({3, 1}, "131.2");
    QTest::keyClicks(line, "7");
    EXPECT_EQ(box.text(), "7");
}

TEST_F(Editor, IsScrolledToWhereTheDialogIsLargerThanTheScreen) {
    QScrollArea area;
    view->resize(900, 600);
    area.setWidget(view);
    area.resize(200, 200);
    area.show();
    area.ensureVisible(900, 600);
    open({1, 1}, "131.2");
    const QRect shown(line->mapTo(area.viewport(), QPoint(0, 0)), line->size());
    EXPECT_TRUE(area.viewport()->rect().contains(shown.topLeft()));
}

TEST_F(Editor, MovesWithItsCell) {
    fill(100);
    open({60, 1}, "5");
    EXPECT_TRUE(view->viewport()->rect().contains(line->geometry())) << "a cell out of sight is scrolled to";
    view->verticalScrollBar()->setValue(view->verticalScrollBar()->value() - 7);
    EXPECT_TRUE(view->cellRect({60, 1}).contains(line->geometry()));
}

}  // namespace
}  // namespace mero::qt
