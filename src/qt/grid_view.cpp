// SPDX-License-Identifier: MIT
/// The grid's table widget.
/// Handlers fill a grid cell by cell; the view is updated once, after the event or on request.
#include "qt/grid_view.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>
#include <numeric>
#include <utility>

#include "qt/focus_ring.h"
#include "qt/grid_clipboard.h"
#include "qt/grid_delegate.h"
#include "qt/look.h"
#include "qt/texts.h"

namespace mero::qt {
namespace {

/// At fractional scales a dialog may get a pixel or two less than it asks for; no scroll bar should come of
/// it.
constexpr int kLostByRounding = 2;

using platform::Aspect;
using platform::GridCell;

}  // namespace

GridView::GridView(WidgetKit& kit, platform::Grid& grid, int choice_column, GridRoom room, QWidget& parent)
    : QTableView(&parent), kit_(&kit), grid_(&grid), model_(grid, choice_column, nullptr), room_(room) {
    setModel(&model_);
    setItemDelegate(new GridDelegate(model_, this));
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setTabKeyNavigation(false);
    setFocusPolicy(Qt::StrongFocus);
    showsFocusItself(*this);
    setMouseTracking(true);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setMinimumSectionSize(1);
    bindCommon(kit, grid, *this);
    follow(grid, *this, [this](Aspect aspect) {
        if (aspect == Aspect::Cells || aspect == Aspect::CurrentCell) {
            refreshLater();
        }
    });
}

void GridView::refreshLater() {
    if (!std::exchange(stale_, true)) {
        later(*this, [this] { refresh(); });
    }
}

void GridView::refresh() {
    if (!std::exchange(stale_, false)) {
        return;
    }
    model_.refresh();
    layOut();
    const GridCell current = grid_->current();
    if (grid_->hasDataCell(current)) {
        setCurrentIndex(model_.index(current.row - 1, current.column));
    }
}

void GridView::layOut() {
    if (std::exchange(laying_out_, true)) {
        return;
    }
    // Where all rows fit into the whole width, there is no scroll bar that would make them higher.
    const int whole = width() - 2 * frameWidth();
    const int room = height() - 2 * frameWidth() - horizontalHeader()->height();
    const bool fits = rowsHeight(whole, model_.rowCount()) <= room;
    const std::vector<int> widths = columnWidths(fits ? whole : viewport()->width());
    for (int column = 0; column < model_.columnCount(); ++column) {
        setColumnWidth(column, widths[static_cast<std::size_t>(column)]);
    }
    const std::vector<int> heights = rowHeights(widths);
    for (int row = 0; row < model_.rowCount(); ++row) {
        setRowHeight(row, heights[static_cast<std::size_t>(row)]);
    }
    clearSpans();
    for (int column = 0; column < model_.columnCount(); ++column) {
        for (int first = 0, end = 0; merges(column) && first < model_.rowCount(); first = end) {
            end = endOfMerged(first, column);
            if (end - first > 1) {
                setSpan(first, column, end - first, 1);
            }
        }
    }
    laying_out_ = false;
    if (isVisible()) {
        // The rows' height depends on the width that the view was given.
        updateGeometry();
    }
    if (cells_moved) {
        cells_moved();
    }
}

int GridView::headingWidth(int column) const {
    const QString heading = model_.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    return horizontalHeader()->fontMetrics().horizontalAdvance(heading) + 2 * gap(*this);
}

bool GridView::merges(int column) const {
    return grid_->columns()[static_cast<std::size_t>(column)].merges_equal_neighbours;
}

int GridView::endOfMerged(int first, int column) const {
    const auto text = [&](int row) { return model_.index(row, column).data(Qt::DisplayRole); };
    int end = first + 1;
    while (end < model_.rowCount() && text(end) == text(first)) {
        ++end;
    }
    return end;
}

std::vector<int> GridView::columnWidths(int available) const {
    const int columns = model_.columnCount();
    std::vector<int> widths;
    int excess = -available;
    for (int column = 0; column < columns; ++column) {
        const double fraction = grid_->columns()[static_cast<std::size_t>(column)].width_fraction;
        widths.push_back(qMax(qRound(fraction * available), headingWidth(column)));
        excess += widths.back();
    }
    // Headings are never cut: the width that a narrow column lacks is taken from the widest one.
    for (; excess > 0 && columns > 0; --excess) {
        auto widest = std::max_element(widths.begin(), widths.end());
        if (*widest <= headingWidth(static_cast<int>(widest - widths.begin()))) {
            break;
        }
        --*widest;
    }
    if (excess < 0 && columns > 0) {
        widths.back() -= excess;
    }
    return widths;
}

std::vector<int> GridView::rowHeights(const std::vector<int>& widths) const {
    const int rows = model_.rowCount();
    const int columns = model_.columnCount();
    const auto text_height = [&](int row, int column) {
        const QString text = model_.index(row, column).data(Qt::DisplayRole).toString();
        return GridDelegate::textHeight(text, widths[static_cast<std::size_t>(column)], font());
    };
    std::vector<int> heights(static_cast<std::size_t>(rows), 0);
    for (int row = 0; row < rows; ++row) {
        int& height = heights[static_cast<std::size_t>(row)];
        for (int column = 0; column < columns; ++column) {
            height = merges(column) ? height : qMax(height, text_height(row, column));
        }
    }
    for (int column = 0; column < columns; ++column) {
        for (int first = 0, end = 0; merges(column) && first < rows; first = end) {
            end = endOfMerged(first, column);
            const int height = std::accumulate(heights.begin() + first, heights.begin() + end, 0);
            heights[static_cast<std::size_t>(end - 1)] += qMax(0, text_height(first, column) - height);
        }
    }
    return heights;
}

QRect GridView::cellRect(GridCell cell) const {
    const int row = cell.row - 1;
    return {columnViewportPosition(cell.column), rowViewportPosition(row), columnWidth(cell.column),
            rowHeight(row)};
}

QString GridView::spokenPlace(GridCell cell) const {
    return model_.index(cell.row - 1, cell.column).data(Qt::AccessibleDescriptionRole).toString();
}

void GridView::reveal(GridCell cell) {
    refresh();
    scrollTo(model_.index(cell.row - 1, cell.column));
    // A merged cell counts as visible when any part of it is, but this row must be visible.
    const QRect rect = cellRect(cell);
    if (rect.top() < 0) {
        verticalScrollBar()->setValue(verticalScrollBar()->value() + rect.top());
    } else if (rect.bottom() > viewport()->height()) {
        verticalScrollBar()->setValue(verticalScrollBar()->value() + rect.bottom() - viewport()->height());
    }
}

int GridView::rowsHeight(int available, int rows) const {
    const std::vector<int> heights = rowHeights(columnWidths(available));
    return std::accumulate(heights.begin(), heights.begin() + qMin(rows, model_.rowCount()), 0);
}

QSize GridView::sizeHint() const {
    const int wanted = textWidth(*this, room_.characters);
    const int given = isVisible() ? width() : wanted;
    return {wanted, horizontalHeader()->sizeHint().height() + 2 * frameWidth() + kLostByRounding +
                        rowsHeight(given - 2 * frameWidth(), room_.rows)};
}

std::optional<GridCell> GridView::cellAt(QPoint position) const {
    const int row = rowAt(position.y());
    const int column = columnAt(position.x());
    if (row < 0 || column < 0) {
        return std::nullopt;
    }
    return GridCell{row + 1, column};
}

void GridView::click(GridCell cell) {
    if (grid_->hasDataCell(cell)) {
        kit_->enter([this, cell] { grid_->userClick(cell); });
    }
}

void GridView::mousePressEvent(QMouseEvent* event) {
    refresh();
    pressed_ = event->button() == Qt::LeftButton ? cellAt(event->position().toPoint()) : std::nullopt;
    QTableView::mousePressEvent(event);
}

void GridView::mouseMoveEvent(QMouseEvent* event) {
    const auto cell = cellAt(event->position().toPoint());
    const bool picks = cell && cell->column == model_.choiceColumn();
    viewport()->setCursor(picks ? Qt::PointingHandCursor : Qt::ArrowCursor);
    QTableView::mouseMoveEvent(event);
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
    QTableView::mouseReleaseEvent(event);
    const auto pressed = std::exchange(pressed_, std::nullopt);
    if (pressed && pressed == cellAt(event->position().toPoint())) {
        click(*pressed);
    }
}

void GridView::keyPressEvent(QKeyEvent* event) {
    refresh();
    const int key = event->key();
    if (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_F2) {
        if (currentIndex().isValid()) {
            click(GridModel::cellOf(currentIndex()));
        }
        return;
    }
    if (event->matches(QKeySequence::Copy)) {
        copyTable(*this);
    } else if (event->matches(QKeySequence::Paste)) {
        pasteAtFocus(*this);
    } else if (!typeIntoCell(*event)) {
        QTableView::keyPressEvent(event);
    }
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
    refresh();
    showClipboardMenu(*this, event->globalPos(), !editor_.isNull());
}

void GridView::setEditor(NumberLine& editor, std::vector<CellEntry> entries) {
    editor_ = &editor;
    entries_ = std::move(entries);
}

CellEntry GridView::entry(int column) const {
    const bool any_text = static_cast<std::size_t>(column) >= entries_.size();
    CellEntry entry = any_text ? CellEntry() : entries_[static_cast<std::size_t>(column)];
    entry.editable = entry.editable && !editor_.isNull() && column != model_.choiceColumn();
    return entry;
}

std::optional<GridCell> GridView::focusedCell() const {
    return currentIndex().isValid() ? std::optional(GridModel::cellOf(currentIndex())) : std::nullopt;
}

bool GridView::enterCell(GridCell cell, const QString& text) {
    click(cell);
    if (editor_.isNull() || !editor_->isVisible() || grid_->current() != cell) {
        return false;
    }
    editor_->selectAll();
    if (editor_->text() == text) {
        // The cell may hold more digits than it shows: the text counts only when it changes.
        editor_->insert(text.left(1));
        editor_->selectAll();
    }
    editor_->insert(text);
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(editor_, &enter);
    return true;
}

bool GridView::typeIntoCell(QKeyEvent& event) {
    const bool types = !event.text().isEmpty() && event.text().front().isPrint() &&
                       (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0;
    const CellEntry column = entry(currentIndex().column());
    if (!types || !currentIndex().isValid() || !column.editable) {
        return false;
    }
    if (column.number && !numbers::beginsNumber(stored(event.text()))) {
        return true;
    }
    click(GridModel::cellOf(currentIndex()));
    // The editor opens with its whole text selected, so the first key replaces it.
    if (!editor_.isNull() && editor_->isVisible()) {
        QApplication::sendEvent(editor_, &event);
    }
    return true;
}

void GridView::focusInEvent(QFocusEvent* event) {
    refresh();
    if (!currentIndex().isValid() && model_.rowCount() > 0) {
        setCurrentIndex(model_.index(0, 0));
    }
    QTableView::focusInEvent(event);
}

void GridView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    layOut();
}

void GridView::showEvent(QShowEvent* event) {
    refresh();
    layOut();
    QTableView::showEvent(event);
}

void GridView::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        layOut();
    }
}

void GridView::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    // The text of a merged cell moves within it, so that it stays visible.
    viewport()->update();
    if (cells_moved) {
        cells_moved();
    }
}

GridView& makeGrid(WidgetKit& kit, platform::Grid& grid, int choice_column, GridRoom room, QWidget& parent) {
    return *new GridView(kit, grid, choice_column, room, parent);
}

}  // namespace mero::qt
