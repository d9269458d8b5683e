// SPDX-License-Identifier: MIT
/// The print preview opens without a printer and shows the report's pages.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPrintDialog>
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
    EXPECT_EQ(pages, 1);
    EXPECT_EQ(title, "Náhled před tiskem");
}

TEST(PrintPreview, WithoutAPrinterThePagesArePrintedIntoAFile) {
    const QByteArray server_before = qgetenv("CUPS_SERVER");
    qputenv("CUPS_SERVER", "/nonexistent/printers");
    const test::TemporaryFolder folder;
    ASSERT_EQ(
        report::writeReport(folder.file("Mero_Test"), report::htmlReport(report::test::sampleProject(3))),
        report::WriteResult::Written);
    QtDesk desk(Sitter::Person, report::viewHtml);
    bool asked = false;
    bool chosen = false;
    QTimer person;
    person.setInterval(50);
    QObject::connect(&person, &QTimer::timeout, &person, [&] {
        QWidget* front = QApplication::activeModalWidget();
        if (auto* dialog = dynamic_cast<QPrintDialog*>(front)) {
            EXPECT_EQ(dialog->findChild<QComboBox*>(QStringLiteral("printers"))->currentText(),
                      "Print to File (PDF)");
            dialog->findChild<QLineEdit*>(QStringLiteral("filename"))
                ->setText(QString::fromStdString(folder.file("tisk.pdf")));
            chosen = true;
            dialog->accept();
        } else if (auto* preview = dynamic_cast<QPrintPreviewDialog*>(front); preview != nullptr && !asked) {
            for (QAction* action : preview->findChildren<QAction*>()) {
                if (action->text() == QLatin1String("Print")) {
                    asked = true;
                    // Triggered later, because this timer's slot would block until the dialog's end.
                    QTimer::singleShot(0, action, &QAction::trigger);
                }
            }
        }
    });
    person.start();
    desk.openPrintPreview(folder.file("Mero_Test"));
    server_before.isNull() ? qunsetenv("CUPS_SERVER") : qputenv("CUPS_SERVER", server_before);
    EXPECT_TRUE(chosen);
    EXPECT_TRUE(folder.read("tisk.pdf").starts_with("%PDF"));
}

}  // namespace
}  // namespace mero::app
