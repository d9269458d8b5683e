// SPDX-License-Identifier: MIT
/// Pages: A4 with margins, rows that are not split, page ranges, narrow paper.
#include "qt/document_pages.h"

#include <gtest/gtest.h>

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QFile>
#include <QPageRanges>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextTable>

#include "qt/page_breaks.h"

namespace mero::qt {
namespace {

std::string plain(std::string_view bytes) {
    return std::string(bytes);
}

class Pages : public testing::Test {
  protected:
    void load(const QByteArray& html) {
        QFile file(folder.filePath("page"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(html);
        file.close();
        ASSERT_TRUE(document.load(file.fileName()));
    }
    QTemporaryDir folder;
    LocalDocument document{plain};
    QBuffer pdf;
};

TEST_F(Pages, AreA4WithMargins) {
    const QPageLayout layout = paperLayout();
    EXPECT_EQ(layout.pageSize().id(), QPageSize::A4);
    EXPECT_EQ(layout.orientation(), QPageLayout::Portrait);
    EXPECT_EQ(layout.margins(QPageLayout::Millimeter), QMarginsF(15, 15, 15, 15));
}

TEST_F(Pages, EveryRowOfATableStandsOnOnePage) {
    QByteArray rows;
    for (int i = 0; i < 200; ++i) {
        rows += "<tr><td>a<br>b<br>c</td><td>d<br>e</td></tr>";
    }
    load("<html><body><p>nadpis</p><table border=1>" + rows + "</table></body></html>");
    pdf.open(QIODevice::WriteOnly);
    QPdfWriter writer(&pdf);
    writer.setPageLayout(paperLayout());
    EXPECT_GT(paintPages(document, writer), 5);
    const auto* table = dynamic_cast<QTextTable*>(document.rootFrame()->childFrames().constFirst());
    ASSERT_NE(table, nullptr);
    constexpr qreal kPageHeight = 5000;
    const std::vector<qreal> breaks = pageBreaks(document, kPageHeight);
    const auto* layout = document.documentLayout();
    for (int row = 0; row < table->rows(); ++row) {
        const QRectF cell = layout->blockBoundingRect(table->cellAt(row, 0).firstCursorPosition().block());
        for (const qreal cut : breaks) {
            EXPECT_FALSE(cell.top() < cut && cut < cell.bottom()) << row << " is cut at " << cut;
        }
    }
    for (std::size_t i = 1; i < breaks.size(); ++i) {
        EXPECT_LE(breaks[i] - breaks[i - 1], kPageHeight);
        EXPECT_GT(breaks[i], breaks[i - 1]);
    }
}

TEST_F(Pages, ATextStaysWithTheTableThatItIsAbout) {
    load("<html><body>" + QByteArray("<p style='margin:0'>x</p>").repeated(30) +
         "<p style='margin:0'>nadpis</p><table><tr><td>a</td></tr><tr><td>b</td></tr></table></body></html>");
    document.setTextWidth(600);
    const auto* layout = document.documentLayout();
    const QRectF heading = layout->blockBoundingRect(document.findBlockByNumber(30));
    ASSERT_EQ(document.findBlockByNumber(30).text(), "nadpis");
    const std::vector<qreal> breaks = pageBreaks(document, heading.bottom() + 3);
    ASSERT_EQ(breaks.size(), 3U);
    EXPECT_LE(breaks[1], heading.top());
}

TEST_F(Pages, ATableOfValuesIsNotDivided) {
    load("<html><body>" + QByteArray("<p style='margin:0'>x</p>").repeated(20) +
         "<p style='margin:0'>Výsledky</p><table border=0>" + QByteArray("<tr><td>a</td></tr>").repeated(10) +
         "</table></body></html>");
    document.setTextWidth(600);
    const auto* layout = document.documentLayout();
    const qreal heading = layout->blockBoundingRect(document.findBlockByNumber(20)).top();
    const qreal end = layout->documentSize().height();
    const std::vector<qreal> breaks = pageBreaks(document, (heading + end) / 2);
    ASSERT_EQ(breaks.size(), 3U);
    EXPECT_LE(breaks[1], heading) << "with its heading it begins the next page";
}

TEST_F(Pages, ATableOfValuesHigherThanAPageIsDividedBetweenRows) {
    load("<html><body><table border=0>" + QByteArray("<tr><td>a</td></tr>").repeated(60) +
         "</table></body></html>");
    document.setTextWidth(600);
    const std::vector<qreal> breaks = pageBreaks(document, 400);
    EXPECT_GT(breaks.size(), 3U);
    EXPECT_GT(breaks[1], 350) << "the page is used";
}

class PageFit : public testing::Test {
  protected:
    /// Pages of a document with that many lines.
    static int pagesOf(int lines) {
        LocalDocument document{plain};
        fill(document, lines);
        QBuffer pdf;
        pdf.open(QIODevice::WriteOnly);
        QPdfWriter writer(&pdf);
        writer.setPageLayout(paperLayout());
        return paintPages(document, writer);
    }
    /// The lines that fit a page without a reduction: A4 less the margins and the foot of 30 px.
    static int linesOfAPage() {
        LocalDocument document{plain};
        fill(document, 1);
        constexpr qreal kRoomPx = (297 - 2 * 15) / 25.4 * 96 - 30;
        const qreal line_px = document.documentLayout()->blockBoundingRect(document.begin()).height();
        return static_cast<int>(kRoomPx / line_px);
    }

  private:
    static void fill(LocalDocument& document, int lines) {
        document.setHtml(QStringLiteral("<p style='margin:0'>x</p>").repeated(lines));
    }
};

TEST_F(PageFit, WhatIsALittleLongerThanAPageIsReducedToOne) {
    const int lines = linesOfAPage();
    EXPECT_EQ(pagesOf(lines), 1);
    EXPECT_EQ(pagesOf(lines * 110 / 100), 1);
    EXPECT_EQ(pagesOf(lines * 130 / 100), 2) << "texts stay large enough to be read";
}

TEST_F(Pages, ARowHigherThanAPageIsCut) {
    load("<html><body><table><tr><td>" + QByteArray("x<br>").repeated(300) +
         "</td></tr></table></body></html>");
    document.setTextWidth(600);
    const std::vector<qreal> breaks = pageBreaks(document, 800);
    EXPECT_GT(breaks.size(), 5U);
    EXPECT_GE(breaks.back(), document.documentLayout()->documentSize().height());
}

TEST_F(Pages, AnEmptyDocumentHasOne) {
    load("");
    EXPECT_EQ(pageBreaks(document, 800).size(), 2U);
}

TEST_F(Pages, OnlyTheWantedOnesArePainted) {
    load("<html><body>" + QByteArray("<p>x</p>").repeated(200) + "</body></html>");
    pdf.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&pdf);
        writer.setPageLayout(paperLayout());
        QPageRanges ranges;
        ranges.addRange(2, 3);
        writer.setPageRanges(ranges);
        EXPECT_GT(paintPages(document, writer), 3);
    }
    EXPECT_TRUE(pdf.data().contains("/Count 2"));
}

TEST_F(Pages, OnNarrowPaperTheReportFitsInWidth) {
    load("<html><body><table width=650><tr><td>x</td></tr></table></body></html>");
    pdf.open(QIODevice::WriteOnly);
    QPdfWriter writer(&pdf);
    writer.setPageSize(QPageSize(QPageSize::A6));
    paintPages(document, writer);
    const qreal widest = document.documentLayout()
                             ->frameBoundingRect(document.rootFrame()->childFrames().constFirst())
                             .right();
    EXPECT_LE(widest, document.textWidth());
}

}  // namespace
}  // namespace mero::qt
