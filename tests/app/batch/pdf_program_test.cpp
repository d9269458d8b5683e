// SPDX-License-Identifier: MIT
/// The PDF file when the window program makes it, fails, is broken or is missing.
#include "app/batch/pdf_program.h"

#include <gtest/gtest.h>

#include "support/temporary_folder.h"

namespace mero::app {
namespace {

using platform::PdfResult;

struct PdfProgram : testing::Test {
    PdfResult make(const std::string& document) const {
        return makePdfBy(MERO_PDF_PROGRAM_STUB, document, folder.file("a b.pdf"));
    }
    test::TemporaryFolder folder;
};

TEST_F(PdfProgram, IsGivenDocumentAndTarget) {
    EXPECT_EQ(make("/složka/Mero_dům č. 1"), PdfResult::Made);
    EXPECT_EQ(folder.read("a b.pdf"), "/složka/Mero_dům č. 1");
}

TEST_F(PdfProgram, IsGivenTheNoteOfThePages) {
    EXPECT_EQ(makePdfBy(MERO_PDF_PROGRAM_STUB, "x", folder.file("y"), kPdfTimeLimit, "ukázkové hodnoty"),
              PdfResult::Made);
    EXPECT_EQ(folder.read("y"), "x, ukázkové hodnoty");
}

TEST_F(PdfProgram, ThatFailsOrCrashesMakesNone) {
    EXPECT_EQ(make("unreadable"), PdfResult::Failed);
    EXPECT_EQ(make("crash"), PdfResult::Failed);
}

TEST_F(PdfProgram, ThatIsNotThereOrCannotStartIsNoMeans) {
    EXPECT_EQ(make("without libraries"), PdfResult::NoMeans);
    EXPECT_EQ(makePdfBy(folder.file("mero"), "x", folder.file("y")), PdfResult::NoMeans);
    EXPECT_EQ(makePdfBy(folder.path(), "x", folder.file("y")), PdfResult::NoMeans);
}

TEST_F(PdfProgram, ThatTakesTooLongIsStopped) {
    EXPECT_EQ(makePdfBy(MERO_PDF_PROGRAM_STUB, "slow", folder.file("y"), std::chrono::milliseconds(200)),
              PdfResult::Failed);
}

}  // namespace
}  // namespace mero::app
