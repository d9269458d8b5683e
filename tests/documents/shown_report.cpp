// SPDX-License-Identifier: MIT
/// Shows reports by the same documents as the window and the PDF files.
#include "documents/shown_report.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <ctime>

#include "qt/document_pages.h"
#include "qt/local_document.h"
#include "report/html_report.h"
#include "report/report_file.h"
#include "report/sample_project.h"
#include "report/view_html.h"

namespace mero::test {
namespace {

constexpr int kViewWidth = 900;
constexpr int kViewHeight = 700;

/// Seconds of processor time, which other programs do not lengthen.
double now_s() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

void paintBeginning(qt::LocalDocument& document) {
    document.setTextWidth(kViewWidth);
    QImage screen(kViewWidth, kViewHeight, QImage::Format_RGB32);
    QPainter painter(&screen);
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = screen.rect();
    // The whole layout: the scroll bar needs the document's height.
    static_cast<void>(document.documentLayout()->documentSize());
    document.documentLayout()->draw(&painter, context);
}

}  // namespace

Shown ShownReport::show(const report::ReportData& project, Painted painted) const {
    const std::string path = folder_.file("Mero_Test");
    static_cast<void>(report::writeReport(path, report::htmlReport(project)));
    Shown shown;
    const double begin_s = now_s();
    qt::LocalDocument document(report::viewHtml);
    document.load(QString::fromStdString(path));
    paintBeginning(document);
    shown.view_s = now_s() - begin_s;
    shown.text = document.toPlainText();
    if (painted == Painted::View) {
        return shown;
    }
    const double pages_begin_s = now_s();
    QBuffer pdf;
    pdf.open(QIODevice::WriteOnly);
    QPdfWriter writer(&pdf);
    writer.setPageLayout(qt::paperLayout());
    shown.pages = qt::paintPages(document, writer);
    shown.pages_s = now_s() - pages_begin_s;
    return shown;
}

Shown ShownReport::describe(const std::string& description, Painted painted) const {
    constexpr int kTank = 6;
    report::ReportData project = report::test::sampleProject(kTank);
    project.texts.txtDetails = description;
    return show(project, painted);
}

}  // namespace mero::test
