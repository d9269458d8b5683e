// SPDX-License-Identifier: MIT
/// A saved copy is self-contained.
#include "report/saved_copy.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "report/html_report.h"
#include "report/report_file.h"
#include "report/sample_project.h"
#include "support/temporary_folder.h"

namespace mero::report {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::Not;

class SavedCopy : public testing::Test {
  protected:
    void SetUp() override {
        fs::create_directories(program.file("Webs/Desc_soubory"));
        program.write("Webs/Desc_soubory/logo.gif", "GIF89a");
        ASSERT_EQ(writeReport(program.file("Mero_Test"), htmlReport(test::sampleProject(2))),
                  WriteResult::Written);
    }
    [[nodiscard]] std::string copy() const {
        EXPECT_TRUE(saveCopy(program.file("Mero_Test"), program.path(), elsewhere.file("kopie.html")));
        return elsewhere.read("kopie.html");
    }

    mero::test::TemporaryFolder program;
    mero::test::TemporaryFolder elsewhere;
};

TEST_F(SavedCopy, DeclaresItsCharacterSetAndIsWrittenInIt) {
    const std::string html = copy();
    EXPECT_TRUE(html.starts_with("<html><head><meta charset=\"utf-8\">"));
    EXPECT_THAT(html, HasSubstr("Návrhový déšť"));
    EXPECT_THAT(html, HasSubstr("Ing. Jiří Šťastný"));
}

TEST_F(SavedCopy, CarriesItsLogo) {
    const std::string html = copy();
    EXPECT_THAT(html, HasSubstr("<img border=0 src=\"data:image/gif;base64,R0lGODlh\">"));
    EXPECT_THAT(html, Not(HasSubstr("logo.gif")));
}

TEST_F(SavedCopy, WithoutALogoRefersToNone) {
    fs::remove(program.file("Webs/Desc_soubory/logo.gif"));
    EXPECT_THAT(copy(), Not(HasSubstr("src=")));
}

TEST_F(SavedCopy, AsksForNothingWhateverTheUserTyped) {
    EXPECT_THAT(copy(), HasSubstr("default-src 'none'; img-src data:"));
}

TEST_F(SavedCopy, HoldsTheLogoWhereItsTagStandsAndNotWhereATextNamesIt) {
    ReportData project = test::sampleProject(2);
    project.texts.txtDetails =
        "src=Webs\\Desc_soubory\\logo.gif <IMG SRC='Webs\\Desc_soubory\\logo.gif'> <img src=Webs/other.gif>";
    ASSERT_TRUE(saveCopyOf(htmlReport(project), program.path(), elsewhere.file("kopie.html")));
    EXPECT_THAT(elsewhere.read("kopie.html"),
                HasSubstr("src=Webs\\Desc_soubory\\logo.gif <img src=\"data:image/gif;base64,R0lGODlh\"> "
                          "&lt;img src=Webs/other.gif></p>"));
}

TEST_F(SavedCopy, IsNotMadeOfAMissingReportOrAFolder) {
    EXPECT_FALSE(saveCopy(program.file("Mero_"), program.path(), elsewhere.file("kopie.html")));
    EXPECT_FALSE(saveCopy(program.path(), program.path(), elsewhere.file("kopie.html")));
    EXPECT_TRUE(fs::is_empty(elsewhere.path()));
}

TEST_F(SavedCopy, DoesNotWaitForAPipeInTheReportsOrTheLogosPlace) {
    ASSERT_EQ(mkfifo(program.file("Mero_").c_str(), 0600), 0);
    EXPECT_FALSE(saveCopy(program.file("Mero_"), program.path(), elsewhere.file("kopie.html")));
    fs::remove(program.file("Webs/Desc_soubory/logo.gif"));
    ASSERT_EQ(mkfifo(program.file("Webs/Desc_soubory/logo.gif").c_str(), 0600), 0);
    EXPECT_THAT(copy(), Not(HasSubstr("src=")));
}

TEST_F(SavedCopy, OfAReportAtHandNeedsNoFile) {
    const std::string expected = copy();
    const std::string html = htmlReport(test::sampleProject(2));
    fs::remove(program.file("Mero_Test"));
    EXPECT_TRUE(saveCopyOf(html, program.path(), elsewhere.file("kopie.html")));
    EXPECT_EQ(elsewhere.read("kopie.html"), expected);
    fs::remove_all(program.path());
    EXPECT_TRUE(saveCopyOf(html, program.path(), elsewhere.file("kopie.html")));
    EXPECT_THAT(elsewhere.read("kopie.html"), HasSubstr("Návrhový déšť"));
}

TEST(PdfPath, IsToldByItsSuffix) {
    for (const char* path : {"a.pdf", "/x/zpráva.PDF", "x.Pdf", "a.html.pdf"}) {
        EXPECT_TRUE(isPdfPath(path)) << path;
    }
    for (const char* path :
         {"", "pdf", ".pdf", "/x/.pdf", "apdf", "a.pdf.html", "a.pdf/b", "a.pd", "a.pdf "}) {
        EXPECT_FALSE(isPdfPath(path)) << path;
    }
}

}  // namespace
}  // namespace mero::report
