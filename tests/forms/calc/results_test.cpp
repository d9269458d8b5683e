// SPDX-License-Identifier: MIT
// The tabs, the report file and its two buttons, the description pages.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "support/test_program.h"

namespace mero::forms {
namespace {

using test::TestProgram;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kNotChosen = "exclamation: Není vybrána technologie";

struct ResultsTest : testing::Test {
    /// Surface infiltration of a project of that name; the records start behind it.
    void chooseSurface(const std::string& project = "Test") {
        p.giveSite();
        p.paste(w.txtProjName, project);
        p.chooseType(FacilityType::Surface);
        p.desk.take();
    }
    [[nodiscard]] std::string navigatedTo(const std::string& file) const {
        return "navigated wbShowResults " + p.folder.file(file);
    }

    TestProgram p;
    frmCalc& w = p.window();
    const data::modPublicVariables& v = p.values();
};

TEST_F(ResultsTest, WithoutATypeBothTabsAreTakenBack) {
    for (const int from : {0, 1}) {
        for (const int to : {2, 3}) {
            p.tab(from);
            p.tab(to);
            EXPECT_EQ(w.SSTab1.position(), from) << "to " << to;
            EXPECT_THAT(p.desk.take(), ElementsAre(kNotChosen));
        }
    }
    EXPECT_EQ(p.desk.messages[0].title, std::nullopt);
    EXPECT_FALSE(w.wbShowPopisTech.visible());
    EXPECT_FALSE(w.wbShowResults.visible());
    EXPECT_FALSE(w.cmdSaveResults.visible());
    EXPECT_FALSE(w.cmdPrint.visible());
    EXPECT_EQ(v.ResultsFilePath, "");
}

TEST_F(ResultsTest, TheDescriptionPageOfTheTypeIsShown) {
    chooseSurface();
    for (const FacilityType type : {FacilityType::Surface, FacilityType::Swale, FacilityType::SwaleTrench,
                                    FacilityType::Trench, FacilityType::Shaft}) {
        p.chooseType(type);
        p.desk.take();
        p.tab(kTabTechnology);
        const std::string page =
            p.folder.file("Webs/Desc0" + numbers::general(static_cast<int>(type)) + ".htm");
        EXPECT_THAT(p.desk.take(), ElementsAre("navigated wbShowPopisTech " + page));
        EXPECT_EQ(w.wbShowPopisTech.path(), page);
        EXPECT_TRUE(w.wbShowPopisTech.onScreen());
    }
    p.tab(kTabDesign);
    p.click(w.optSelType[1]);
    p.tab(kTabTechnology);
    EXPECT_EQ(w.wbShowPopisTech.path(), p.folder.file("Webs/Desc06.htm"));
}

TEST_F(ResultsTest, EnteringTheResultsWritesAndShowsTheReport) {
    chooseSurface();
    p.tab(kTabResults);
    EXPECT_EQ(v.ResultsFilePath, p.folder.file("Mero_Test"));
    EXPECT_THAT(p.desk.lines, ElementsAre(navigatedTo("Mero_Test")));
    EXPECT_TRUE(w.wbShowResults.visible());
    EXPECT_TRUE(w.cmdSaveResults.visible());
    EXPECT_TRUE(w.cmdPrint.visible());
    EXPECT_TRUE(w.cmdPrint.enabled());
    const std::string report = p.folder.read("Mero_Test");
    EXPECT_THAT(report, HasSubstr(">Test<"));
    EXPECT_THAT(report, HasSubstr("428.6"));
    EXPECT_THAT(report, HasSubstr("14:05:09"));
    EXPECT_THAT(report, HasSubstr("20.11.2026"));
}

TEST_F(ResultsTest, GoingBackToTheDesignDeletesTheReportAndReturningRebuildsIt) {
    chooseSurface();
    p.tab(kTabResults);
    p.tab(kTabInputs);
    EXPECT_TRUE(p.folder.has("Mero_Test")) << "the first tab keeps it";
    p.tab(kTabTechnology);
    EXPECT_TRUE(p.folder.has("Mero_Test"));
    p.tab(kTabDesign);
    EXPECT_FALSE(p.folder.has("Mero_Test"));
    p.tab(kTabResults);
    EXPECT_TRUE(p.folder.has("Mero_Test"));
}

TEST_F(ResultsTest, ANewNameIsANewFile) {
    chooseSurface("jedna");
    p.tab(kTabResults);
    p.tab(kTabInputs);
    p.paste(w.txtProjName, "dvě");
    p.tab(kTabResults);
    EXPECT_TRUE(p.folder.has("Mero_dvě"));
    EXPECT_TRUE(p.folder.has("Mero_jedna")) << "the tab deletes only the file of the current path";
    p.tab(kTabDesign);
    EXPECT_FALSE(p.folder.has("Mero_dvě"));
}

TEST_F(ResultsTest, TheEndRemovesEveryReportOfThisRunAndNoOther) {
    p.folder.write("Mero_cizí", "another program's");
    chooseSurface("jedna");
    p.tab(kTabResults);
    for (const char* name : {"dvě", "tři"}) {
        p.tab(kTabInputs);
        p.paste(w.txtProjName, name);
        p.tab(kTabResults);
    }
    p.close(w);
    for (const char* name : {"Mero_jedna", "Mero_dvě", "Mero_tři"}) {
        EXPECT_FALSE(p.folder.has(name)) << name;
    }
    EXPECT_TRUE(p.folder.has("Mero_cizí"));
}

TEST_F(ResultsTest, AnEmptyProjectNameGivesTheBareFileName) {
    chooseSurface("");
    p.tab(kTabResults);
    EXPECT_TRUE(p.folder.has("Mero_"));
}

TEST_F(ResultsTest, ARefusedResultsTabFromTheDesignDeletesTheReportOfBefore) {
    chooseSurface();
    p.tab(kTabResults);
    p.tab(kTabInputs);
    p.paste(w.txtSoucFiltrace, "2e-4");  // re-selects: no type is chosen any more
    p.desk.take();
    p.tab(kTabResults);
    EXPECT_THAT(p.desk.take(), ElementsAre(kNotChosen));
    EXPECT_EQ(w.SSTab1.position(), 0);
    EXPECT_FALSE(w.wbShowResults.visible());
    EXPECT_FALSE(w.cmdSaveResults.visible());
    EXPECT_FALSE(w.cmdPrint.visible());
    EXPECT_TRUE(p.folder.has("Mero_Test"));
}

TEST_F(ResultsTest, NamesWithQuotesBlanksAndMarkup) {
    const std::string name = "Dům \"U lípy\" <b>&' 5 %";
    chooseSurface(name);
    p.tab(kTabResults);
    EXPECT_TRUE(p.folder.has("Mero_" + name));
    p.close(w);
    EXPECT_FALSE(p.folder.has("Mero_" + name));
}

TEST_F(ResultsTest, ANameThatIsNoFileNameShowsTheViewWithoutAFile) {
    for (const std::string& name : {std::string("hala/sklad"), std::string(300, 'x'), std::string("../x")}) {
        TestProgram q;
        q.giveSite();
        q.paste(q.window().txtProjName, name);
        q.chooseType(FacilityType::Surface);
        q.desk.take();
        q.tab(kTabResults);
        EXPECT_THAT(q.desk.lines, ElementsAre("navigated wbShowResults " + q.folder.file("Mero_" + name)));
        EXPECT_TRUE(q.window().wbShowResults.visible());
        EXPECT_TRUE(std::filesystem::is_empty(q.folder.path())) << name;
        q.tab(kTabDesign);
        q.close(q.window());
    }
}

// The names lead to files that exist: beside the program's folder, and in a folder below it.
TEST_F(ResultsTest, ANameWithASlashHarmsNoOtherFile) {
    const std::string victim = p.folder.path() + "-victim";
    std::filesystem::create_directory(p.folder.file("Mero_"));
    const std::string beside = std::filesystem::path(victim).filename().string();
    for (const std::string& name : {"/../../" + beside, std::string("/inside"), std::string("/")}) {
        std::ofstream(victim) << "other";
        p.folder.write("Mero_/inside", "other");
        chooseSurface(name);
        p.tab(kTabResults);
        EXPECT_THAT(p.desk.take(), ElementsAre(navigatedTo("Mero_" + name)));
        p.desk.save_answer = p.folder.file("kopie.html");
        p.click(w.cmdSaveResults);
        EXPECT_THAT(p.desk.take(), testing::Contains(HasSubstr("Zprávu se nepodařilo uložit do souboru")));
        EXPECT_FALSE(p.folder.has("kopie.html")) << "a copy of another file";
        p.tab(kTabDesign);
        EXPECT_EQ(p.folder.read("Mero_/inside"), "other") << name;
        EXPECT_EQ(p.folder.read("../" + beside), "other") << name;
    }
    p.close(w);
    EXPECT_EQ(p.folder.read("Mero_/inside"), "other");
    EXPECT_EQ(p.folder.read("../" + beside), "other");
    std::filesystem::remove(victim);
}

TEST_F(ResultsTest, ALinkInTheReportsPlaceIsNotFollowed) {
    const std::string victim = p.folder.path() + "-victim";
    std::ofstream(victim) << "other";
    std::filesystem::create_symlink(victim, p.folder.file("Mero_Test"));
    chooseSurface();
    p.tab(kTabResults);
    p.tab(kTabDesign);
    p.close(w);
    EXPECT_EQ(p.folder.read("../" + std::filesystem::path(victim).filename().string()), "other");
    std::filesystem::remove(victim);
}

TEST_F(ResultsTest, ACopyNeverReplacesAFileThatTheProgramUses) {
    p.folder.write("mero.mdb", "rain");
    std::filesystem::create_directories(p.folder.file("Webs/Desc_soubory"));
    p.folder.write("Webs/Desc01.htm", "page");
    p.folder.write("Webs/Desc_soubory/logo.gif", "logo");
    std::filesystem::create_symlink(p.folder.file("mero.mdb"), p.folder.file("odkaz.html"));
    std::filesystem::create_hard_link(p.folder.file("mero.mdb"), p.folder.file("jméno.pdf"));
    chooseSurface();
    p.tab(kTabResults);
    const std::string report = p.folder.read("Mero_Test");
    for (const char* name :
         {"mero.mdb", "Webs/../mero.mdb", "odkaz.html", "jméno.pdf", "Mero_Test", "./Mero_Test",
          "Webs/Desc01.htm", "Webs/nový.html", "Webs/Desc_soubory/logo.gif"}) {
        p.desk.take();
        p.desk.save_answer = p.folder.file(name);
        p.click(w.cmdSaveResults);
        EXPECT_THAT(p.desk.take(),
                    testing::Contains("critical: Zprávu se nepodařilo uložit do souboru " +
                                      p.folder.file(name) + ". Tento soubor program sám používá."))
            << name;
    }
    EXPECT_EQ(p.folder.read("mero.mdb"), "rain");
    EXPECT_EQ(p.folder.read("Webs/Desc01.htm"), "page");
    EXPECT_EQ(p.folder.read("Webs/Desc_soubory/logo.gif"), "logo");
    EXPECT_EQ(p.folder.read("Mero_Test"), report);
    EXPECT_FALSE(p.folder.has("Webs/nový.html"));
}

TEST_F(ResultsTest, AFolderInTheReportsPlaceStaysUnharmed) {
    std::filesystem::create_directory(p.folder.file("Mero_Test"));
    chooseSurface();
    p.tab(kTabResults);
    EXPECT_THAT(p.desk.take(), ElementsAre(navigatedTo("Mero_Test")));
    p.desk.save_answer = p.folder.file("kopie.html");
    p.click(w.cmdSaveResults);
    EXPECT_EQ(p.desk.messages.size(), 1U) << "there is nothing to save, and it is told";
    p.tab(kTabDesign);
    p.close(w);
    EXPECT_TRUE(std::filesystem::is_directory(p.folder.file("Mero_Test")));
}

TEST_F(ResultsTest, TheDescriptionsLineBreaksBecomeTagsAndStay) {
    p.type(w.txtDetails, "první\ndruhý");
    chooseSurface();
    p.tab(kTabResults);
    EXPECT_THAT(p.folder.read("Mero_Test"), HasSubstr("<br>"));
    EXPECT_EQ(v.txtDetails, "první<br>druhý");
    EXPECT_EQ(w.txtDetails.text(), "první\r\ndruhý") << "the field keeps what was typed";
}

TEST_F(ResultsTest, SavingAsksForAPathAndEnablesItsButtonAgain) {
    chooseSurface();
    p.tab(kTabResults);
    p.desk.take();
    std::vector<bool> enabled;
    w.cmdSaveResults.observe([&](platform::Aspect aspect) {
        if (aspect == platform::Aspect::Enabled) {
            enabled.push_back(w.cmdSaveResults.enabled());
        }
    });
    p.desk.save_answer = p.folder.file("zpráva.html");
    p.click(w.cmdSaveResults);
    ASSERT_EQ(p.desk.lines.size(), 2U);
    EXPECT_EQ(p.desk.lines[1], "saved " + p.folder.file("zpráva.html"));
    EXPECT_THAT(enabled, ElementsAre(false, true));
    EXPECT_EQ(v.ResultsFilePath, p.folder.file("Mero_Test")) << "saving does not change the report's path";
    EXPECT_THAT(p.folder.read("zpráva.html"), HasSubstr("428.6"));
}

TEST_F(ResultsTest, CancelledSavingDoesNothing) {
    chooseSurface();
    p.tab(kTabResults);
    p.desk.take();
    p.click(w.cmdSaveResults);
    EXPECT_EQ(p.desk.lines.size(), 1U) << "only the question";
    EXPECT_TRUE(w.cmdSaveResults.enabled());
}

TEST_F(ResultsTest, FailedSavingIsTold) {
    chooseSurface();
    p.tab(kTabResults);
    p.desk.take();
    const std::string nowhere = p.folder.file("není/zpráva.html");
    p.desk.save_answer = nowhere;
    p.click(w.cmdSaveResults);
    ASSERT_EQ(p.desk.messages.size(), 1U);
    EXPECT_EQ(p.desk.messages[0].icon, platform::MessageIcon::Critical);
    EXPECT_THAT(p.desk.messages[0].text, HasSubstr(nowhere));
    EXPECT_TRUE(w.cmdSaveResults.enabled());
}

TEST_F(ResultsTest, PrintingOpensThePreviewOfTheReport) {
    chooseSurface();
    p.tab(kTabResults);
    p.desk.take();
    p.click(w.cmdPrint);
    EXPECT_THAT(p.desk.lines, ElementsAre("preview " + p.folder.file("Mero_Test")));
}

}  // namespace
}  // namespace mero::forms
