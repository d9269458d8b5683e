// SPDX-License-Identifier: MIT
/// What the window saves it opens again to the last digit; what others wrote it takes as far as it can.
#include "forms/keeping/project_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>

#include "project/read_project.h"
#include "support/temporary_folder.h"
#include "support/test_program.h"

namespace mero::forms {
namespace {

using test::TestProgram;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr auto kTrench = FacilityType::Trench;

std::string replaced(std::string text, const std::string& from, const std::string& to) {
    const std::size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return text.replace(at, from.size(), to);
}

class ProjectFile : public ::testing::Test {
  protected:
    [[nodiscard]] Opened read(const std::string& text) {
        return readProjectText(text, "p.json", {one.rain, one.folder.path()});
    }
    [[nodiscard]] std::string saved() { return projectText(stateOf(one.program), ""); }
    /// The window that opens what was saved.
    void expectKept() {
        const Opened opened = read(saved());
        EXPECT_THAT(opened.remarks, IsEmpty());
        EXPECT_EQ(opened.state, stateOf(one.program));
    }
    /// The window into which a text of the command line was entered.
    void enter(const std::string& text) {
        const Opened opened = read(text);
        remarks = opened.remarks;
        one.program.enter([&] { restore(one.program, opened.state); });
    }

    TestProgram one;
    std::vector<std::string> remarks;
};

std::string trenchFile(const std::string& more = "") {
    return R"({"rain": {"intensities_l_s_ha": [300, 200, 150, 120, 90, 70, 55, 40, 30], "periodicity": 0.2},
        "areas": [{"area_m2": 800, "runoff_coefficient": 0.9, "surface": "asfalt"}],
        "subsoil": {"filtration_coefficient_m_s": 1e-4},
        "facility": {"type": "trench", "trench_width_m": 1.2, "trench_height_m": 1.5)" +
           more + "}}";
}

TEST_F(ProjectFile, OfAFreshWindowOpensAFreshWindow) {
    expectKept();
    EXPECT_EQ(read(saved()).state, openingState());
}

TEST_F(ProjectFile, KeepsResultsThatAreStoredAsTheyAreShown) {
    // 800 m2 . 0.9 on sand: the areas are shown, and stored, with one decimal.
    one.giveSite();
    one.chooseType(kTrench);
    one.paste(one.window().txtSirkaRyhy[kTrench], "0.7");
    one.paste(one.window().txtVyskaRyhy[kTrench], "1.5");
    one.click(one.window().cmdCalcul[kTrench]);
    ASSERT_NE(one.values().txtDelkaRyhy, 0.0F);
    expectKept();
}

TEST_F(ProjectFile, KeepsFieldsThatWereEmptiedOrRefused) {
    one.paste(one.window().txtHPV, "4.5");
    one.paste(one.window().txtHPV, "abc");
    ASSERT_EQ(one.window().txtHPV.text(), "");
    one.chooseType(kTrench);
    one.paste(one.window().txtPorVyplne[kTrench], "");
    // Too large for a Single: the text stays, and so does the number stored before.
    one.paste(one.window().txtSirkaRyhy[kTrench], "2");
    one.paste(one.window().txtSirkaRyhy[kTrench], "1e99");
    ASSERT_EQ(one.values().txtSirkaRyhy, 2.0F);
    expectKept();
}

TEST_F(ProjectFile, KeepsHalfAnExponent) {
    one.type(one.window().txtSoucFiltrace, "2e-");
    ASSERT_EQ(one.values().txtSoucFiltrace, 2.0F);
    expectKept();
    EXPECT_EQ(read(saved()).state.numbers.txtSoucFiltrace, 2.0F);
}

TEST_F(ProjectFile, KeepsACoefficientThatWasClickedButNotConfirmed) {
    one.paste(one.window().txtSoucFiltrace, "1e-4");
    one.click(one.window().cmdEdit[2]);
    one.cell(one.soilDialog().fgCoefProp, 1, 2);
    one.close(one.soilDialog());
    expectKept();
}

TEST_F(ProjectFile, KeepsTheAreasWithTheSpareSlotAndTheirOrder) {
    one.click(one.window().cmdEdit[1]);
    for (const char* area : {"300", "100", "200"}) {
        one.paste(one.areaDialog().txtSoucinitel, "0.5");
        one.paste(one.areaDialog().txtPlocha, area);
        one.click(one.areaDialog().cmdZapsat);
    }
    one.close(one.areaDialog());
    const Opened opened = read(saved());
    EXPECT_THAT(opened.state.areas.DilciPlocha.items(), ElementsAre(300.0F, 100.0F, 200.0F, 0.0F));
    EXPECT_EQ(opened.state.numbers.RedukovanaPlocha, 300.0F);
    expectKept();
}

TEST_F(ProjectFile, KeepsADrainThatIsTickedButNotConfirmed) {
    one.giveSite();
    one.chooseType(kTrench);
    one.click(one.window().chkSelPretok[kTrench]);
    one.paste(one.window().txtPrumTroubVnej[kTrench], "300");
    ASSERT_EQ(one.values().s_RR, 0.0F);
    expectKept();
}

TEST_F(ProjectFile, KeepsARainThatWasPickedBeforeTheTableChanged) {
    one.giveRain("150");
    one.click(one.window().cmdEdit[0]);
    one.cell(one.rainDialog().fgIntDeste, 3, 1);
    one.paste(one.rainDialog().txtSChange, "99");
    one.close(one.rainDialog());
    ASSERT_EQ(one.values().VybranaIntenzita, 150.0F);
    expectKept();
}

TEST_F(ProjectFile, HoldsWhatADesignWithoutTheWindowReads) {
    one.giveSite();
    one.chooseType(kTrench);
    one.paste(one.window().txtSirkaRyhy[kTrench], "1.2");
    one.paste(one.window().txtVyskaRyhy[kTrench], "1.5");
    one.window().txtProjName.userEdit("Dvůr");
    const project::Project project = project::readProject(saved(), "p.json");
    EXPECT_EQ(project.texts.txtProjName, "Dvůr");
    EXPECT_EQ(project.inputs.rain.intensities_l_s_ha[2], 150.0F);
    ASSERT_THAT(project.inputs.areas, SizeIs(1));
    EXPECT_EQ(project.inputs.areas[0].area_m2, 1000.0F);
    EXPECT_EQ(project.inputs.filtration_m_s, 1e-4F);
    EXPECT_EQ(project.inputs.facility.type, kTrench);
    EXPECT_EQ(project.inputs.facility.txtSirkaRyhy, 1.2F);
}

TEST_F(ProjectFile, OfAHalfFilledWindowSaysToADesignWhatIsMissing) {
    one.paste(one.window().txtHPV, "3");
    expectKept();
    EXPECT_THROW(static_cast<void>(project::readProject(saved(), "p.json")), project::ProjectError);
}

TEST_F(ProjectFile, OfAStationNamesItAndItsPeriodicity) {
    one.click(one.window().cmdEdit[0]);
    one.close(one.rainDialog());
    one.click(one.window().cmdEdit[0]);
    one.select(one.rainDialog().cboSelStanice, test::kBrno);
    one.select(one.rainDialog().cboSelPeriod, 4);
    one.click(one.rainDialog().cmdOK);
    EXPECT_THAT(saved(), HasSubstr(R"("station": "Brno",)"));
    expectKept();
}

TEST_F(ProjectFile, OfTheCommandLineIsEntered) {
    enter(trenchFile());
    EXPECT_THAT(remarks, IsEmpty());
    EXPECT_EQ(one.window().SelectedType, kTrench);
    EXPECT_EQ(one.window().txtSirkaRyhy[kTrench].text(), "1.2");
    EXPECT_EQ(one.window().txtOdvodNepPlocha.text(), "720");
    EXPECT_EQ(one.values().TypPovrchu(1), "asfalt");
    // Not given: the field stays as the window opens with it.
    EXPECT_EQ(one.window().txtHPV.text(), "");
    EXPECT_FALSE(one.window().chkSelPretok[kTrench].checked());
}

TEST_F(ProjectFile, OfTheCommandLineFillsInTheOtherTypesToo) {
    enter(trenchFile(R"(, "bottom_length_m": 12, "soil": "silt_and_sand")"));
    EXPECT_THAT(remarks, IsEmpty());
    EXPECT_EQ(one.window().SelectedType, kTrench);
    EXPECT_EQ(one.window().txtDelkaDnaNadrz.text(), "12");
    EXPECT_TRUE(one.window().picResults[kTrench].visible());
}

TEST_F(ProjectFile, ThatWasEditedByHandIsEntered) {
    enter(trenchFile());
    const std::string edited = replaced(saved(), "\"trench_width_m\": 1.2", "\"trench_width_m\": 2.5");
    enter(edited);
    EXPECT_THAT(remarks, ElementsAre(HasSubstr("změněny mimo okno")));
    EXPECT_EQ(one.values().txtSirkaRyhy, 2.5F);
    EXPECT_EQ(one.window().txtSirkaRyhy[kTrench].text(), "2.5");
}

TEST_F(ProjectFile, ThatWasOnlyWrittenOtherwiseIsNotEdited) {
    enter(trenchFile());
    const WindowState state = stateOf(one.program);
    const std::string other =
        nlohmann::json::parse(replaced(saved(), "\"area_m2\": 800", "\"area_m2\": 8e2")).dump();
    const Opened opened = read(other);
    EXPECT_THAT(opened.remarks, IsEmpty());
    EXPECT_EQ(opened.state, state);
}

TEST_F(ProjectFile, TellsWhatItCouldNotTake) {
    enter(
        R"({"rain": {"station": "Nikde", "periodicity": 0.2}, "areas": [{"area_m2": 0, "runoff_coefficient": 1},
        {"area_m2": 10, "runoff_coefficient": 1}], "subsoil": {"filtration_coefficient_m_s": "hodně"},
        "facility": {"type": "trench", "widht": 1, "trench_width_m": 1.5}, "colour": "red"})");
    EXPECT_THAT(remarks,
                ::testing::UnorderedElementsAre("rain.station: hodnotu nelze převzít.",
                                                "areas[0].area_m2: hodnotu nelze převzít.",
                                                "subsoil.filtration_coefficient_m_s: hodnotu nelze převzít.",
                                                "facility.widht: neznámé jméno, hodnota nebyla převzata.",
                                                "colour: neznámé jméno, hodnota nebyla převzata."));
    EXPECT_EQ(one.values().txtSirkaRyhy, 1.5F);
    EXPECT_EQ(one.values().RedukovanaPlocha, 10.0F);
}

TEST_F(ProjectFile, TellsOfAStationWhoseRainCannotBeRead) {
    // The database of this test has the table of Brno only.
    enter(R"({"rain": {"station": 1, "periodicity": 0.2}, "areas": [], "subsoil": {}, "facility": {}})");
    EXPECT_THAT(remarks, SizeIs(1));
    EXPECT_FALSE(one.program.ended());
}

TEST_F(ProjectFile, TellsOfATypeThatCannotBeChosen) {
    enter(R"({"rain": {}, "areas": [], "subsoil": {}, "facility": {"type": "tank", "bottom_length_m": 3}})");
    EXPECT_THAT(remarks, ElementsAre(HasSubstr("facility.type")));
}

TEST_F(ProjectFile, KeepsWhatANewerProgramWrote) {
    enter(trenchFile());
    std::string newer = replaced(saved(), "\"version\": 2", "\"version\": 3, \"snow\": {\"depth_m\": 0.4}");
    newer = replaced(newer, "\"inputs_checksum\"", "\"colour\": \"blue\", \"inputs_checksum\"");
    const Opened opened = read(newer);
    EXPECT_THAT(opened.remarks, ::testing::Contains(HasSubstr("novější verze")));
    const auto again = nlohmann::json::parse(projectText(opened.state, opened.kept));
    EXPECT_EQ(again["version"], 3);
    EXPECT_EQ(again["snow"]["depth_m"], 0.4);
    EXPECT_EQ(again["window"]["colour"], "blue");
    // A design without the window reads past it.
    EXPECT_EQ(project::readProject(again.dump(), "p.json").inputs.facility.type, kTrench);
    // What was changed meanwhile counts, and the file is whole again.
    EXPECT_EQ(read(again.dump()).state, opened.state);
}

TEST_F(ProjectFile, WithABrokenWindowIsEntered) {
    enter(trenchFile());
    const std::string good = saved();
    for (const char* broken : {R"("type_group": 7)", R"("type_group": 1)", R"("soil_variant": 1e300)",
                               R"("soil_variant": "x")", R"("areas": {"area_m2": []})", R"("type": "lake")",
                               R"("controls": {"cboTypSachty": {"position": 3}})",
                               R"("controls": {"txtHPV": {"text": "\n"}})", R"("numbers": {"txtHPV": 1e300})",
                               R"("demonstration": {"rows": [true]})", R"("calculations": 3)"}) {
        auto document = nlohmann::json::parse(good);
        document["window"].merge_patch(nlohmann::json::parse(std::string("{") + broken + "}"));
        enter(document.dump());
        EXPECT_EQ(one.window().SelectedType, kTrench) << broken;
        EXPECT_FALSE(remarks.empty()) << broken;
    }
}

TEST_F(ProjectFile, IsRefusedWhenItIsNone) {
    for (const char* text :
         {"", "[]", "{}", "{\"a\": 1}", "{\"rain\": ", "\x01\x02", "{\"rain\": {}, \"rain\": {}}"}) {
        EXPECT_THROW(static_cast<void>(read(text)), project::ProjectError) << text;
    }
    EXPECT_THROW(static_cast<void>(read(std::string(100000, '['))), project::ProjectError);
}

TEST_F(ProjectFile, IsSavedWholeWithItsRightsAndLinks) {
    const std::string path = one.folder.path() + "/p.json";
    const std::string link = one.folder.path() + "/odkaz.json";
    saveProject(path, openingState(), "");
    ASSERT_EQ(chmod(path.c_str(), 0640), 0);
    std::filesystem::create_symlink(path, link);
    saveProject(link, stateOf(one.program), "");
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(static_cast<unsigned>(std::filesystem::status(path).permissions()), 0640U);
}

TEST_F(ProjectFile, SaysWhyItCannotBeOpenedOrSaved) {
    const auto why = [](auto action) -> std::string {
        try {
            action();
        } catch (const project::ProjectError& error) {
            return error.what();
        }
        return "";
    };
    const std::string folder = one.folder.path();
    const ProjectSource source{one.rain, folder};
    const auto opening = [&](const std::string& path) {
        return why([&] { static_cast<void>(openProject(path, source)); });
    };
    const auto saving = [&](const std::string& path) {
        return why([&] { saveProject(path, openingState(), ""); });
    };
    EXPECT_EQ(opening(folder + "/x"), "Soubor " + folder + "/x neexistuje.");
    EXPECT_THAT(opening(folder), HasSubstr("není to soubor"));
    EXPECT_THAT(opening("/dev/zero"), HasSubstr("není to soubor"));
    EXPECT_THAT(saving(folder), HasSubstr("je to složka"));
    EXPECT_THAT(saving(folder + "/x/y.json"), HasSubstr("složka neexistuje"));
    EXPECT_THAT(saving("/dev/null"), HasSubstr("není to soubor"));
}

TEST_F(ProjectFile, IsOpenedWithAStampThatTellsOfChanges) {
    const std::string path = one.folder.path() + "/p.json";
    const platform::FileStamp written = saveProject(path, openingState(), "");
    EXPECT_FALSE(platform::changedSince(path, written));
    const Opened opened = openProject(path, {one.rain, one.folder.path()});
    EXPECT_FALSE(platform::changedSince(path, opened.stamp));
    one.paste(one.window().txtHPV, "3");
    saveProject(path, stateOf(one.program), "");
    EXPECT_TRUE(platform::changedSince(path, opened.stamp));
    EXPECT_TRUE(platform::changedSince(path, written));
}

}  // namespace
}  // namespace mero::forms
