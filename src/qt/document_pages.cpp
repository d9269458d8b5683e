// SPDX-License-Identifier: MIT
/// Lays out and paints pages.
/// Lengths on a page are in pixels of 1/96 inch and are scaled to the device.
#include "qt/document_pages.h"

#include <QAbstractTextDocumentLayout>
#include <QPageRanges>
#include <QPainter>
#include <QTextBlock>
#include <QTextTable>
#include <algorithm>
#include <vector>

#include "qt/page_breaks.h"

namespace mero::qt {
namespace {

constexpr qreal kMarginMm = 15;
constexpr qreal kPixelsPerInch = 96;
/// A report is 650 px wide.
constexpr qreal kLeastWidthPx = 660;
constexpr qreal kFootHeightPx = 30;
constexpr qreal kFootPoints = 8;
/// A document that is a little too long for one page is reduced to it, down to this factor.
constexpr qreal kLeastReduction = 0.85;

/// The area of a page for the document, in device pixels, and the factor by which the document is reduced.
struct PageRoom {
    QSizeF paper;
    qreal foot_height = 0;
    qreal scale = 1;

    [[nodiscard]] QSizeF forDocument() const {
        return QSizeF(paper.width(), paper.height() - foot_height) / scale;
    }
};

PageRoom roomOn(const QPagedPaintDevice& device) {
    const qreal pixel = device.logicalDpiX() / kPixelsPerInch;
    const QSizeF paper = device.pageLayout().paintRectPixels(device.logicalDpiX()).size();
    return {paper, kFootHeightPx * pixel, std::min(1.0, paper.width() / (kLeastWidthPx * pixel))};
}

/// Paints the part of the document between two heights.
void paintContent(QPainter& painter, const LocalDocument& document, const PageRoom& room, qreal top,
                  qreal bottom) {
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, Qt::black);
    context.clip = QRectF(0, top, room.forDocument().width(), bottom - top);
    painter.save();
    painter.scale(room.scale, room.scale);
    painter.translate(0, -top);
    painter.setClipRect(context.clip);
    document.documentLayout()->draw(&painter, context);
    painter.restore();
}

/// What the document is about: the value beside the label in its first row, for a report the project's name.
QString subjectOf(const LocalDocument& document) {
    for (QTextFrame* frame : document.rootFrame()->childFrames()) {
        if (const auto* table = dynamic_cast<const QTextTable*>(frame)) {
            return table->columns() < 2 ? QString()
                                        : table->cellAt(0, 1).firstCursorPosition().block().text();
        }
    }
    return {};
}

/// Reduces the document to one page if that takes no more than kLeastReduction, and finds its pages.
std::vector<qreal> layOut(LocalDocument& document, PageRoom& room) {
    const auto breaksAt = [&](qreal scale) {
        room.scale = scale;
        document.setTextWidth(room.forDocument().width());
        return pageBreaks(document, room.forDocument().height());
    };
    const qreal whole = room.scale;
    std::vector<qreal> breaks = breaksAt(whole);
    const qreal needed = room.forDocument().height() / breaks.back();
    if (breaks.size() > 2 && needed >= kLeastReduction) {
        breaks = breaksAt(whole * needed);
        if (breaks.size() > 2) {
            breaks = breaksAt(whole);
        }
    }
    return breaks;
}

/// The number of the page on the right; on the left what the document is about.
void paintFoot(QPainter& painter, const LocalDocument& document, const PageRoom& room, const QString& number,
               const QString& subject) {
    QFont font = document.defaultFont();
    font.setPointSizeF(kFootPoints);
    painter.setFont(QFont(font, painter.device()));
    painter.setPen(Qt::black);
    const QRectF foot(0, room.paper.height() - room.foot_height, room.paper.width(), room.foot_height);
    const QRectF numbered =
        painter.boundingRect(foot, static_cast<int>(Qt::AlignRight | Qt::AlignBottom), number);
    painter.drawText(foot, Qt::AlignRight | Qt::AlignBottom, number);
    const QRectF left = foot.adjusted(0, 0, -numbered.width() * 2, 0);
    painter.drawText(
        left, Qt::AlignLeft | Qt::AlignBottom,
        painter.fontMetrics().elidedText(subject, Qt::ElideRight, static_cast<int>(left.width())));
}

/// The note stands in a line of its own, above the page number's.
void paintNote(QPainter& painter, const LocalDocument& document, const PageRoom& room, const QString& note) {
    QFont font = document.defaultFont();
    font.setPointSizeF(kFootPoints);
    painter.setFont(QFont(font, painter.device()));
    painter.setPen(Qt::black);
    const QFontMetrics metrics = painter.fontMetrics();
    const QRectF line(0, room.paper.height() - 2 * metrics.height(), room.paper.width(), metrics.height());
    painter.drawText(line, Qt::AlignLeft | Qt::AlignBottom,
                     metrics.elidedText(note, Qt::ElideRight, static_cast<int>(line.width())));
}

}  // namespace

QPageLayout paperLayout() {
    return {QPageSize(QPageSize::A4), QPageLayout::Portrait,
            QMarginsF(kMarginMm, kMarginMm, kMarginMm, kMarginMm), QPageLayout::Millimeter};
}

int paintPages(LocalDocument& document, QPagedPaintDevice& device, const QString& note) {
    PageRoom room = roomOn(device);
    document.documentLayout()->setPaintDevice(&device);
    document.setDocumentMargin(0);
    const std::vector<qreal> breaks = layOut(document, room);
    const int pages = static_cast<int>(breaks.size()) - 1;
    QPainter painter;
    if (!painter.begin(&device)) {
        return pages;
    }
    const QPageRanges wanted = device.pageRanges();
    bool first = true;
    for (int page = 1; page <= pages; ++page) {
        if (!wanted.isEmpty() && !wanted.contains(page)) {
            continue;
        }
        if (!first) {
            device.newPage();
        }
        first = false;
        const auto at = static_cast<std::size_t>(page);
        paintContent(painter, document, room, breaks[at - 1], breaks[at]);
        paintNote(painter, document, room, note);
        // The first page begins with it.
        paintFoot(painter, document, room, QStringLiteral("%1 / %2").arg(page).arg(pages),
                  page == 1 ? QString() : subjectOf(document));
    }
    return pages;
}

}  // namespace mero::qt
