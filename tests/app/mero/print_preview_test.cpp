// SPDX-License-Identifier: MIT
/// The print preview opens without a printer and shows the report's pages.
#include <gtest/gtest.h>

#include <QApplication>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QTimer>

#include "app/mero/qt_desk.h"
#include "report/html_report.h"
#include "report/report_file.h"
#include "report/sample_project.h"
#include "report/view_html.h"
#include "support/temporary_folder.h"

namespace mero::app {
namespace {

TEST(PrintPreview, ShowsTheReportsPagesOnA4) {
    const test::TemporaryFolder folder;
    ASSERT_EQ(
        report::writeReport(folder.file("Mero_Test"), report::htmlReport(report::test::sampleProject(3))),
        report::WriteResult::Written);
    QtDesk desk(Sitter::Person, report::viewHtml);
    int pages = 0;
    QString title;
    QTimer closing;
    closing.setInterval(50);
    QObject::connect(&closing, &QTimer::timeout, &closing, [&] {
        auto* dialog = dynamic_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) {
            return;
        }
        const auto* preview = dialog->findChild<QPrintPreviewWidget*>();
        if (preview != nullptr && preview->pageCount() > 0) {
            pages = preview->pageCount();
            title = dialog->windowTitle();
            EXPECT_EQ(dialog->printer()->pageLayout().pageSize().id(), QPageSize::A4);
            dialog->reject();
        }
    });
    closing.start();
    desk.openPrintPreview(folder.file("Mero_Test"));
    EXPECT_EQ(pages, 2);
    EXPECT_EQ(title, "Náhled před tiskem");
}

}  // namespace
}  // namespace mero::app
