// SPDX-License-Identifier: MIT
/// Places the cell editor.
/// The control decides when it is shown; the view gives the cell's position.
#include "qt/cell_editor_box.h"

#include <utility>

#include "qt/grid_clipboard.h"
#include "qt/text_fields.h"

namespace mero::qt {
namespace {

using platform::Aspect;

/// The editor's edges lie this far inside the cell [twips, 1/1440 inch].
constexpr int kInsetTwips = 50;
constexpr int kTwipsPerInch = 1440;
/// The grid draws its lines on a cell's right and lower edge.
constexpr int kLine = 1;

/// Handlers read an edited number up to its first blank, so it is edited without the blanks that group it.
void prepare(NumberLine& line, const CellEntry& entry) {
    line.setEntry(entry.number);
    if (entry.number) {
        line.setText(line.text().remove(QLatin1Char(' ')));
    }
}

}  // namespace

NumberLine& makeCellEditor(WidgetKit& kit, platform::TextBox& box, GridView& view, const platform::Grid& grid,
                           std::vector<CellEntry> entries) {
    NumberLine& line = makeNumberLine(kit, box, *view.viewport(), std::nullopt);
    // The cell is low: with a frame and wide margins the text would not fit.
    line.setFrame(false);
    view.setEditor(line, std::move(entries));
    if (kit.servesPerson()) {
        line.paste_cells = [&view](const QString& text) { return pasteInEditor(view, text); };
    }
    line.setAutoFillBackground(true);
    const auto place = [&line, &view, &grid] {
        const QRect cell = view.cellRect(grid.current());
        const int inset = qMax(1, kInsetTwips * view.logicalDpiX() / kTwipsPerInch);
        line.setGeometry(cell.left() + inset, cell.top() + inset, qMax(1, cell.width() - inset - kLine),
                         qMax(1, cell.height() - inset - kLine));
    };
    view.cells_moved = [&line, place] {
        if (line.isVisible()) {
            place();
        }
    };
    follow(box, line, [&kit, &box, &line, &view, &grid, place](Aspect aspect) {
        if (aspect == Aspect::Visible && box.visible()) {
            view.reveal(grid.current());
            if (kit.servesPerson()) {
                prepare(line, view.entry(grid.current().column));
            }
            line.setAccessibleName(view.spokenPlace(grid.current()));
            place();
            showInScrollAreas(line);
            line.selectAll();
            line.raise();
        }
    });
    return line;
}

}  // namespace mero::qt
