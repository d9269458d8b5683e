// SPDX-License-Identifier: MIT
// Saving the report: HTML or PDF by the path's suffix, failures, and what the report shows when nothing was
// calculated.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "report/code_page.h"
#include "support/test_program.h"

namespace mero::forms {
namespace {

using platform::PdfResult;
using test::TestProgram;
using testing::HasSubstr;
using testing::Not;

/// A desk that makes PDF files as it is told.
class PdfDesk : public test::RecordingDesk {
  public:
    PdfResult makePdf(const std::string& document_path, const std::string& target_path) override {
        lines.push_back("pdf of " + document_path);
        std::ofstream(target_path) << (result == PdfResult::Made ? "%PDF" : "%P");
        return result;
    }
    PdfResult result = PdfResult::Made;
};

struct SavingTest : testing::Test {
    SavingTest() { program.start(); }

    /// Rain, area and soil given, the type chosen, the calculate button never pressed; the results are shown.
    void showResults(FacilityType type) {
        user.chooseTab(w.SSTab1, kTabInputs);
        user.click(w.cmdEdit[0]);
        user.select(w.intDialog.cboSelPeriod, 4);
        user.clickCell(w.intDialog.fgIntDeste, {3, 1});
        user.paste(w.intDialog.txtSChange, "150");
        user.press(w.intDialog.txtSChange, platform::Key::Enter);
        user.clickCell(w.intDialog.fgIntDeste, {3, 2});
        user.click(w.intDialog.cmdOK);
        user.click(w.cmdEdit[1]);
        user.paste(w.areaDialog.txtSoucinitel, "1");
        user.paste(w.areaDialog.txtPlocha, "1000");
        user.click(w.areaDialog.cmdZapsat);
        user.click(w.areaDialog.OKButton);
        user.paste(w.txtSoucFiltrace, "1e-4");
        user.paste(w.txtProjName, "Test");
        user.chooseTab(w.SSTab1, kTabDesign);
        user.click(w.optSelType[type == FacilityType::Tank ? 1 : 0]);
        if (type != FacilityType::Tank) {
            user.select(w.cboSelType, static_cast<int>(type));
        }
        user.chooseTab(w.SSTab1, kTabResults);
        desk.take();
        desk.messages.clear();
    }
    void save(const std::string& path) {
        desk.save_answer = path;
        user.click(w.cmdSaveResults);
    }

    test::TemporaryFolder folder;
    PdfDesk desk;
    platform::FrozenClock clock{{2026, 11, 20, 14, 5, 9}};
    test::FakeLocale locale;
    test::FakeRainDatabase rain;
    forms::Program program{forms::Surroundings{desk, clock, locale, rain, folder.path()}};
    automation::HeadlessUser user{program};
    frmCalc& w = program.window();
};

TEST_F(SavingTest, TheSuffixChoosesPdfInSmallAndLargeLetters) {
    showResults(FacilityType::Swale);
    for (const char* name : {"zpráva.pdf", "zpráva.PDF"}) {
        save(folder.file(name));
        EXPECT_EQ(folder.read(name), "%PDF");
        EXPECT_EQ(desk.take(), (std::vector<std::string>{"ask " + folder.file("Mero_Test.html"),
                                                         "pdf of " + folder.file("Mero_Test"),
                                                         "saved " + folder.file(name)}));
    }
    save(folder.file("zpráva"));
    EXPECT_THAT(folder.read("zpráva"), HasSubstr("<html>"));
    EXPECT_EQ(desk.take().size(), 2U);
}

TEST_F(SavingTest, AFailedPdfLeavesTheOldFileAndIsTold) {
    showResults(FacilityType::Swale);
    folder.write("a.pdf", "starý");
    desk.result = PdfResult::Failed;
    save(folder.file("a.pdf"));
    EXPECT_EQ(folder.read("a.pdf"), "starý");
    ASSERT_EQ(desk.messages.size(), 1U);
    EXPECT_EQ(desk.messages[0].icon, platform::MessageIcon::Critical);
    EXPECT_EQ(desk.messages[0].text, "Zprávu se nepodařilo uložit do souboru " + folder.file("a.pdf") + ".");
    EXPECT_TRUE(w.cmdSaveResults.enabled());
    EXPECT_EQ(desk.count("saved " + folder.file("a.pdf")), 0);
}

TEST_F(SavingTest, WithoutMeansForPdfTheReasonIsTold) {
    showResults(FacilityType::Swale);
    desk.result = PdfResult::NoMeans;
    save(folder.file("a.pdf"));
    EXPECT_FALSE(folder.has("a.pdf"));
    ASSERT_EQ(desk.messages.size(), 1U);
    EXPECT_THAT(desk.messages[0].text, HasSubstr("Soubor PDF vytváří okenní program mero, který zde není."));
}

TEST_F(SavingTest, WhatIsShownIsSavedAndPrintedWhateverBecameOfTheReportsFile) {
    showResults(FacilityType::Swale);
    save(folder.file("první.html"));
    const std::string expected = folder.read("první.html");
    const std::string report = folder.read("Mero_Test");
    for (const bool is_gone : {true, false}) {
        for (const char* name : {"druhá.html", "druhá.pdf", ""}) {
            std::filesystem::remove(folder.file("Mero_Test"));
            if (!is_gone) {
                folder.write("Mero_Test", "<html>another program's</html>");
            }
            if (*name == '\0') {
                user.click(w.cmdPrint);
            } else {
                save(folder.file(name));
            }
            if (name == std::string("druhá.html")) {
                EXPECT_EQ(folder.read(name), expected);
            } else {
                EXPECT_EQ(folder.read("Mero_Test"), report) << name;
            }
        }
    }
    EXPECT_TRUE(desk.messages.empty());
}

TEST_F(SavingTest, APdfIsNotMadeOfAnotherProgramsReport) {
    showResults(FacilityType::Swale);
    std::filesystem::remove(folder.file("Mero_Test"));
    std::filesystem::create_directory(folder.file("Mero_Test"));
    desk.take();
    save(folder.file("a.pdf"));
    EXPECT_FALSE(folder.has("a.pdf"));
    EXPECT_EQ(desk.count("pdf of " + folder.file("Mero_Test")), 0);
    ASSERT_EQ(desk.messages.size(), 1U);
    save(folder.file("a.html"));
    EXPECT_THAT(folder.read("a.html"), HasSubstr("<html>"));
}

TEST_F(SavingTest, AFolderInTheCopysPlaceStays) {
    showResults(FacilityType::Swale);
    for (const char* name : {"a.pdf", "a.html"}) {
        std::filesystem::create_directory(folder.file(name));
        save(folder.file(name));
        EXPECT_TRUE(std::filesystem::is_directory(folder.file(name)));
    }
    EXPECT_EQ(desk.messages.size(), 2U);
}

TEST_F(SavingTest, EveryTypesReportIsThereBeforeAnythingWasCalculated) {
    const std::vector<std::string> verdict_rows = {"Vsakovací plocha",        "Objem akumulace průlehu",
                                                   "Délka vsakovací rýhy",    "Délka vsakovací rýhy",
                                                   "Potřebná hloubka šachty", "Potřebný objem akumulace"};
    for (const FacilityType type : data::kFacilityTypes) {
        showResults(type);
        const std::string report = report::fromWindows1250(folder.read("Mero_Test"));
        EXPECT_THAT(report, HasSubstr("<u>Výsledky</u>")) << data::index(type);
        EXPECT_THAT(report, HasSubstr(verdict_rows[data::index(type) - 1])) << data::index(type);
    }
}

TEST_F(SavingTest, TheReportFollowsTheStateOfTheMomentTheTabIsEntered) {
    showResults(FacilityType::Tank);
    EXPECT_THAT(report::fromWindows1250(folder.read("Mero_Test")), HasSubstr("Vsakovací nádrže"));
    EXPECT_THAT(folder.read("Mero_Test"), Not(HasSubstr("17.50")));
    user.chooseTab(w.SSTab1, kTabDesign);
    user.paste(w.txtDelkaDnaNadrz, "17.5");
    user.chooseTab(w.SSTab1, kTabResults);
    EXPECT_THAT(folder.read("Mero_Test"), HasSubstr(">17.50<"));
    user.chooseTab(w.SSTab1, kTabInputs);
    user.paste(w.txtInvestor, "Město Brno");
    EXPECT_THAT(report::fromWindows1250(folder.read("Mero_Test")), Not(HasSubstr("Město Brno")))
        << "only entering the tab writes";
    user.chooseTab(w.SSTab1, kTabResults);
    EXPECT_THAT(report::fromWindows1250(folder.read("Mero_Test")), HasSubstr("Město Brno"));
}

}  // namespace
}  // namespace mero::forms
