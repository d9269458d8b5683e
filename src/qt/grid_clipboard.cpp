// SPDX-License-Identifier: MIT
/// A block is checked as a whole before its first cell is entered, so what is told does not depend on what
/// the handlers make of the cells.
#include "qt/grid_clipboard.h"

#include <QApplication>
#include <QClipboard>
#include <QLocale>
#include <QMenu>
#include <QStringList>
#include <algorithm>
#include <vector>

#include "platform/cell_block.h"
#include "qt/balloon.h"
#include "qt/clipboard_text.h"
#include "qt/number_messages.h"
#include "qt/texts.h"

namespace mero::qt {
namespace {

using numbers::FieldText;
using numbers::NotTaken;
using platform::CellBlock;
using platform::GridCell;

constexpr qsizetype kMostTold = 3;

struct Entry {
    GridCell cell;
    QString text;
};

/// What a block gives, and what of it is left out.
struct Plan {
    std::vector<Entry> entries;
    std::vector<std::vector<Entry>> added;  ///< new rows
    QStringList left_out;
    int rows_too_many = 0;
    int columns_too_many = 0;
    bool has_heading = false;
};

int columnCount(const GridView& view) {
    return static_cast<int>(view.grid().columns().size());
}

QString cellName(const GridView& view, GridCell cell) {
    const std::string& heading = view.grid().rows().front()[static_cast<std::size_t>(cell.column)];
    return QStringLiteral("řádek %1, %2").arg(cell.row).arg(shown(heading));
}

/// The first row names the columns when none of its number cells holds a number and the next row has one.
bool isHeading(const GridView& view, const std::vector<std::string>& row, int first_column) {
    bool names = false;
    for (std::size_t i = 0; i < row.size(); ++i) {
        const auto number = view.entry(first_column + static_cast<int>(i)).number;
        if (number) {
            const auto pasted = numbers::pasted({}, row[i], number->kind, stored(number->unit));
            const auto* const reason = std::get_if<NotTaken>(&pasted);
            if (reason == nullptr || *reason != NotTaken::NoNumber) {
                return false;
            }
            names = true;
        }
    }
    return names;
}

void planCell(const GridView& view, GridCell cell, const std::string& text, Plan& plan) {
    const auto number = view.entry(cell.column).number;
    if (!number) {
        if (!text.empty()) {
            plan.entries.push_back({cell, shown(text).simplified()});
        }
        return;
    }
    const auto pasted = numbers::pasted({}, text, number->kind, stored(number->unit));
    if (const auto* taken = std::get_if<FieldText>(&pasted)) {
        plan.entries.push_back({cell, shown(taken->whole())});
    } else {
        plan.left_out.append(cellName(view, cell) + QStringLiteral(": ") +
                             cellMessage(std::get<NotTaken>(pasted), shown(text), *number));
    }
}

/// Spreadsheets copy empty cells beside a table too.
void dropEmptyEnd(std::vector<std::string>& cells) {
    while (!cells.empty() && cells.back().empty()) {
        cells.pop_back();
    }
}

void planRow(const GridView& view, GridCell first, const std::vector<std::string>& cells, Plan& plan) {
    for (std::size_t j = 0; j < cells.size(); ++j) {
        const GridCell cell{first.row, first.column + static_cast<int>(j)};
        if (cell.column >= columnCount(view) || !view.entry(cell.column).editable) {
            plan.columns_too_many = std::max(plan.columns_too_many, static_cast<int>(cells.size() - j));
            return;
        }
        planCell(view, cell, cells[j], plan);
    }
}

/// A row that lacks one of its numbers would be another one: it is added whole or not at all.
void planNewRow(const GridView& view, GridCell first, const std::vector<std::string>& cells, Plan& plan) {
    Plan row;
    planRow(view, first, cells, row);
    plan.columns_too_many = std::max(plan.columns_too_many, row.columns_too_many);
    plan.left_out.append(row.left_out);
    if (row.left_out.isEmpty() && !row.entries.empty()) {
        plan.added.push_back(std::move(row.entries));
    }
}

Plan planned(const GridView& view, GridCell first, CellBlock block) {
    Plan plan;
    if (block.size() > 1 && isHeading(view, block.front(), first.column)) {
        plan.has_heading = true;
        block.erase(block.begin());
    }
    for (std::size_t i = 0; i < block.size(); ++i) {
        const GridCell begin{first.row + static_cast<int>(i), first.column};
        dropEmptyEnd(block[i]);
        if (begin.row <= view.grid().dataRows()) {
            planRow(view, begin, block[i], plan);
        } else if (view.add_row) {
            planNewRow(view, begin, block[i], plan);
        } else {
            ++plan.rows_too_many;
        }
    }
    return plan;
}

QString report(const Plan& plan) {
    QStringList parts;
    if (plan.has_heading) {
        parts.append(QStringLiteral("Řádek s nadpisy byl vynechán."));
    }
    if (!plan.left_out.isEmpty()) {
        QString cells = plan.left_out.mid(0, kMostTold).join(QStringLiteral("; "));
        if (plan.left_out.size() > kMostTold) {
            cells += QStringLiteral("; dalších buněk: %1").arg(plan.left_out.size() - kMostTold);
        }
        parts.append(QStringLiteral("Vynecháno: ") + cells + QLatin1Char('.'));
    }
    QStringList outside;
    if (plan.rows_too_many > 0) {
        outside.append(QStringLiteral("řádků: %1").arg(plan.rows_too_many));
    }
    if (plan.columns_too_many > 0) {
        outside.append(QStringLiteral("sloupců: %1").arg(plan.columns_too_many));
    }
    if (!outside.isEmpty()) {
        parts.append(QStringLiteral("Do tabulky se nevešlo ") + outside.join(QStringLiteral(", ")) +
                     QLatin1Char('.'));
    }
    return parts.join(QLatin1Char(' '));
}

bool hasSeveralCells(const QString& text) {
    const CellBlock block = platform::readCellBlock(stored(text));
    return block.size() > 1 || (block.size() == 1 && block.front().size() > 1);
}

/// A column of numbers beside the editable ones only counts the rows.
bool isCopied(const GridView& view, int column) {
    const bool any_editable = [&view] {
        for (int each = 0; each < columnCount(view); ++each) {
            if (view.entry(each).editable) {
                return true;
            }
        }
        return false;
    }();
    return any_editable ? view.entry(column).editable : column != view.choiceColumn();
}

}  // namespace

QString tableText(const GridView& view, const QString& decimal_mark) {
    CellBlock block;
    const auto& rows = view.grid().rows();
    for (std::size_t row = 1; row < rows.size(); ++row) {
        block.emplace_back();
        for (int column = 0; column < columnCount(view); ++column) {
            if (!isCopied(view, column)) {
                continue;
            }
            const std::string& text = rows[row][static_cast<std::size_t>(column)];
            const bool number = !text.empty() && numbers::isFinished(text);
            block.back().push_back(
                number ? stored(shown(numbers::withoutBlanks(text)).replace(QLatin1Char('.'), decimal_mark))
                       : text);
        }
    }
    return shown(platform::writeCellBlock(block));
}

void copyTable(GridView& view) {
    QApplication::clipboard()->setText(tableText(view, QLocale::system().decimalPoint()));
    showBalloon(view, QStringLiteral("Tabulka je ve schránce, řádků: %1.").arg(view.grid().dataRows()));
}

void pasteBlock(GridView& view, GridCell first, const QString& text) {
    while (first.column < columnCount(view) && !view.entry(first.column).editable) {
        ++first.column;
    }
    const CellBlock block = platform::readCellBlock(stored(text));
    if (block.empty() || first.column >= columnCount(view)) {
        showBalloon(view, block.empty() ? QStringLiteral("Ve schránce není text.")
                                        : QStringLiteral("Do tohoto sloupce se nevkládá."));
        return;
    }
    Plan plan = planned(view, first, block);
    for (const Entry& entry : plan.entries) {
        if (!view.enterCell(entry.cell, entry.text)) {
            plan.left_out.append(cellName(view, entry.cell) + QStringLiteral(": buňku nelze upravit"));
        }
    }
    for (const std::vector<Entry>& row : plan.added) {
        std::vector<QString> texts(static_cast<std::size_t>(columnCount(view)));
        for (const Entry& entry : row) {
            texts[static_cast<std::size_t>(entry.cell.column)] = entry.text;
        }
        if (!view.add_row(texts)) {
            plan.left_out.append(QStringLiteral("řádek %1 nelze zapsat").arg(row.front().cell.row));
        }
    }
    const QString told = report(plan);
    if (!told.isEmpty()) {
        showBalloon(view, told);
    }
}

void pasteAtFocus(GridView& view) {
    if (const auto cell = view.focusedCell()) {
        pasteBlock(view, *cell, clipboardText(QClipboard::Clipboard));
    }
}

bool pasteInEditor(GridView& view, const QString& text) {
    const bool several = hasSeveralCells(text);
    if (several) {
        pasteBlock(view, view.grid().current(), text);
    }
    return several;
}

bool pasteBelow(GridView& view, int column, const QString& text) {
    const bool several = hasSeveralCells(text);
    if (several) {
        pasteBlock(view, {view.grid().dataRows() + 1, column}, text);
    }
    return several;
}

void showClipboardMenu(GridView& view, QPoint position, bool can_paste) {
    QMenu menu(&view);
    menu.addAction(QStringLiteral("Kopírovat tabulku"), QKeySequence::Copy, &view,
                   [&view] { copyTable(view); });
    if (can_paste) {
        QAction* paste = menu.addAction(QStringLiteral("Vložit od této buňky"), QKeySequence::Paste, &view,
                                        [&view] { pasteAtFocus(view); });
        paste->setEnabled(view.focusedCell().has_value());
    }
    menu.exec(position);
}

}  // namespace mero::qt
