// SPDX-License-Identifier: MIT
/// Finds the page breaks.
/// The pages of QTextDocument's layout split table rows of several lines, so they are not used.
#include "qt/page_breaks.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextLayout>
#include <QTextTable>
#include <algorithm>
#include <limits>

namespace mero::qt {
namespace {

/// A vertical span that must not be split.
struct Stretch {
    qreal top;
    qreal bottom;
};

/// Collects these spans from a document, from its beginning to its end.
class Stretches {
  public:
    explicit Stretches(const QTextDocument& document) : layout_(document.documentLayout()) {
        for (auto it = document.rootFrame()->begin(); !it.atEnd(); ++it) {
            if (const auto* table = dynamic_cast<const QTextTable*>(it.currentFrame())) {
                addTable(*table);
            } else if (it.currentBlock().isValid()) {
                addBlock(it.currentBlock());
            }
        }
    }

    [[nodiscard]] const std::vector<Stretch>& all() const { return all_; }

  private:
    enum class Next { MayBeApart, StaysBeside, StaysBesideTable };

    void add(Stretch stretch, bool beside_last) {
        if (beside_last && !all_.empty()) {
            stretch.top = std::min(stretch.top, all_.back().top);
        }
        all_.push_back(stretch);
    }

    void addBlock(const QTextBlock& block) {
        const QRectF whole = layout_->blockBoundingRect(block);
        if (whole.height() <= 0) {
            return;
        }
        bool beside_last = next_ == Next::StaysBeside;
        for (int i = 0; i < block.layout()->lineCount(); ++i) {
            const QTextLine line = block.layout()->lineAt(i);
            const qreal top = whole.top() + line.y();
            add({top, top + line.height()}, beside_last);
            beside_last = false;
        }
        next_ = block.blockFormat().headingLevel() > 0 ? Next::StaysBeside : Next::StaysBesideTable;
    }

    void addTable(const QTextTable& table) {
        const qreal frame = table.format().cellPadding() + table.format().border() + 1;
        Stretch whole{std::numeric_limits<qreal>::max(), 0};
        const bool beside_text = next_ != Next::MayBeApart;
        for (int row = 0; row < table.rows(); ++row) {
            Stretch stretch{std::numeric_limits<qreal>::max(), 0};
            for (int column = 0; column < table.columns(); ++column) {
                const QTextTableCell cell = table.cellAt(row, column);
                if (cell.row() == row && cell.column() == column) {
                    extend(stretch, cell, frame);
                }
            }
            add(stretch, row == 0 && beside_text);
            whole.top = std::min(whole.top, all_.back().top);
            whole.bottom = std::max(whole.bottom, stretch.bottom);
        }
        // Values without rules are read as one; a ruled table may be long.
        if (table.format().border() == 0) {
            add(whole, false);
        }
        next_ = Next::MayBeApart;
    }

    void extend(Stretch& stretch, const QTextTableCell& cell, qreal frame) const {
        const QRectF first = layout_->blockBoundingRect(cell.firstCursorPosition().block());
        const QRectF last = layout_->blockBoundingRect(cell.lastCursorPosition().block());
        stretch.top = std::min(stretch.top, first.top() - frame);
        stretch.bottom = std::max(stretch.bottom, last.bottom() + frame);
    }

    const QAbstractTextDocumentLayout* layout_;
    std::vector<Stretch> all_;
    Next next_ = Next::MayBeApart;
};

/// The last position at or before `limit` outside every span that fits a page; `limit` itself when a span
/// fills the page.
qreal cutBefore(qreal limit, qreal begin, const std::vector<Stretch>& stretches) {
    qreal cut = limit;
    for (auto it = stretches.rbegin(); it != stretches.rend(); ++it) {
        const bool fits = it->bottom - it->top <= limit - begin;
        if (fits && it->top < cut && it->bottom > cut && it->top > begin) {
            cut = it->top;
        }
    }
    return cut;
}

}  // namespace

std::vector<qreal> pageBreaks(const QTextDocument& document, qreal page_height) {
    const std::vector<Stretch> stretches = Stretches(document).all();
    const qreal end = document.documentLayout()->documentSize().height();
    std::vector<qreal> breaks{0};
    while (end - breaks.back() > page_height) {
        breaks.push_back(cutBefore(breaks.back() + page_height, breaks.back(), stretches));
    }
    breaks.push_back(end);
    return breaks;
}

}  // namespace mero::qt
