// SPDX-License-Identifier: MIT
/// The PDF file of a report: read with another program, and written under faults.
#include "app/mero/pdf_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QProcess>
#include <filesystem>

#include "report/html_report.h"
#include "report/report_file.h"
#include "report/sample_project.h"
#include "report/view_html.h"
#include "support/temporary_folder.h"

namespace mero::app {
namespace {

using platform::PdfResult;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;

class PdfFile : public testing::Test {
  protected:
    PdfResult make(int type, const std::string& target) const {
        return make(report::test::sampleProject(type), target);
    }
    PdfResult make(report::ReportData project, const std::string& target) const {
        EXPECT_EQ(report::writeReport(folder.file("Mero_Test"), report::htmlReport(project)),
                  report::WriteResult::Written);
        return makePdfFile(folder.file("Mero_Test"), target, report::viewHtml);
    }
    /// Output of a PDF tool for the file.
    [[nodiscard]] std::string told(const QString& tool, const QStringList& arguments) const {
        QProcess process;
        process.start(tool, arguments);
        EXPECT_TRUE(process.waitForFinished()) << "poppler-utils has the tools for PDF files";
        return process.readAllStandardOutput().toStdString();
    }

    [[nodiscard]] std::string pageText(const char* page) const {
        return told("pdftotext", {"-layout", "-f", page, "-l", page, pdf_path, "-"});
    }

    test::TemporaryFolder folder{" pdf ěš"};
    std::string pdf = folder.file("zpráva.pdf");
    QString pdf_path = QString::fromStdString(pdf);
};

TEST_F(PdfFile, HasTheTextOfEveryTypeWithItsDiacritics) {
    const std::vector<std::string> names = {"Plošné vsakování",   "Vsakování v průlezích",
                                            "Hloubka průlehu",    "Délka vsakovací rýhy",
                                            "Šachtové vsakování", "Vsakovací nádrže"};
    for (int type = 1; type <= 6; ++type) {
        ASSERT_EQ(make(type, pdf), PdfResult::Made);
        const std::string text = told("pdftotext", {"-layout", pdf_path, "-"});
        EXPECT_THAT(text, HasSubstr("Nákupní centrum Žďár")) << type;
        EXPECT_THAT(text, HasSubstr("Ing. Jiří Šťastný")) << type;
        EXPECT_THAT(text, HasSubstr("Součinitel filtrace")) << "no ligatures";
        EXPECT_THAT(text, HasSubstr("Datum a čas výpočtu:")) << type;
        EXPECT_THAT(text, HasSubstr(names[static_cast<std::size_t>(type - 1)]));
        EXPECT_THAT(text, Not(HasSubstr("Stránku nelze zobrazit")));
    }
}

TEST_F(PdfFile, AUsualProjectTakesOnePage) {
    for (int type = 1; type <= 6; ++type) {
        ASSERT_EQ(make(type, pdf), PdfResult::Made);
        EXPECT_THAT(told("pdfinfo", {pdf_path}), ContainsRegex("Pages: +1\n")) << type;
    }
}

TEST_F(PdfFile, LabelsThatABrowserLeavesInOneLineAreNotBroken) {
    ASSERT_EQ(make(3, pdf), PdfResult::Made);
    EXPECT_THAT(pageText("1"), HasSubstr("Vsakování v kombinovaném objektu"));
    EXPECT_THAT(pageText("1"), HasSubstr("Celková odvodňovaná plocha"));
    EXPECT_THAT(pageText("1"), HasSubstr("Hloubka průlehu (výška vzdutí)"));
    EXPECT_THAT(pageText("1"), HasSubstr("(l/s.ha)")) << "nor is a unit";
    ASSERT_EQ(make(5, pdf), PdfResult::Made);
    EXPECT_THAT(pageText("1"), HasSubstr("Potřebný součinitel filtrace filtru"));
}

TEST_F(PdfFile, TheSecondPageCarriesTheProjectsNameAndAllResults) {
    report::ReportData project = report::test::sampleProject(5);
    for (int line = 0; line < 25; ++line) {
        project.texts.txtDetails += "<br>řádek popisu";
    }
    ASSERT_EQ(make(project, pdf), PdfResult::Made);
    EXPECT_THAT(told("pdfinfo", {pdf_path}), ContainsRegex("Pages: +2\n"));
    EXPECT_THAT(pageText("1"), Not(HasSubstr("Výsledky")));
    for (const char* shown : {"Nákupní centrum Žďár", "Výsledky", "Součinitel bezpečnosti", "Tloušťka stěny",
                              "Potřebná hloubka šachty", "Vsakovací plocha", "2/2"}) {
        EXPECT_THAT(pageText("2"), HasSubstr(shown));
    }
}

TEST_F(PdfFile, HasTheNoteAtTheFootOfItsPagesOnlyWhenThereIsOne) {
    ASSERT_EQ(make(1, pdf), PdfResult::Made);
    EXPECT_THAT(told("pdftotext", {"-layout", pdf_path, "-"}), Not(HasSubstr("jsou ukázkové")));
    ASSERT_EQ(
        makePdfFile(folder.file("Mero_Test"), pdf, report::viewHtml, "Hodnoty databáze dešťů jsou ukázkové."),
        PdfResult::Made);
    EXPECT_THAT(told("pdftotext", {"-layout", pdf_path, "-"}),
                HasSubstr("Hodnoty databáze dešťů jsou ukázkové."));
}

TEST_F(PdfFile, IsA4WithItsFontsInside) {
    ASSERT_EQ(make(2, pdf), PdfResult::Made);
    EXPECT_THAT(told("pdfinfo", {pdf_path}), HasSubstr("(A4)"));
    const QStringList fonts =
        QString::fromStdString(told("pdffonts", {pdf_path})).split('\n', Qt::SkipEmptyParts);
    ASSERT_GT(fonts.size(), 2);
    for (const QString& font : fonts.mid(2)) {
        // Columns from the right: object number and generation, unicode, subset, embedded.
        const QStringList columns = font.split(' ', Qt::SkipEmptyParts);
        EXPECT_EQ(columns.at(columns.size() - 5), "yes") << font.toStdString();
        EXPECT_EQ(columns.at(columns.size() - 3), "yes") << font.toStdString();
    }
}

TEST_F(PdfFile, IsNotMadeOfAMissingDocument) {
    EXPECT_EQ(makePdfFile(folder.file("Mero_"), pdf, report::viewHtml), PdfResult::Failed);
    EXPECT_FALSE(folder.has("zpráva.pdf"));
}

TEST_F(PdfFile, TellsOfAFullDiskAFolderAndAMissingFolder) {
    EXPECT_EQ(make(2, "/dev/full"), PdfResult::Failed);
    EXPECT_EQ(make(2, folder.path()), PdfResult::Failed);
    EXPECT_EQ(make(2, folder.file("není/a.pdf")), PdfResult::Failed);
}

}  // namespace
}  // namespace mero::app
