// SPDX-License-Identifier: MIT
/// What the commands print and write: tables, JSON, rows.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>

#include <stdexcept>
#include <string>
#include "design/verdict.h"

#include "app/batch/design_output.h"
#include "app/batch/output_file.h"
#include "support/temporary_folder.h"

namespace mero::app {
namespace {

using design::Quantity;
using design::Verdict;
using design::VerdictId;
using ::testing::HasSubstr;
using ::testing::Not;

project::Project shaftProject() {
    project::Project project;
    project.texts.txtProjName = "Dvůr \"A\"";
    project.inputs.facility.type = design::FacilityType::Shaft;
    return project;
}

design::DesignResult shaftResult() {
    design::DesignResult result;
    result.numbers.txtVyskaVzduti = 1.525F;
    result.show(Quantity::WaterDepth);
    result.numbers.txtVsakPlocha = 27.03F;
    result.show(Quantity::InfiltrationArea, 27.0349F);
    result.numbers.txtNezamrzHlPritok = -0.5F;
    for (const VerdictId id : {VerdictId::InletDepthNotPositive, VerdictId::FilterLayerNotPositive,
                               VerdictId::ErrorDivisionByZero}) {
        result.verdicts.add(design::verdict(id, result.numbers));
    }
    return result;
}

TEST(ResultTable, ShowsBoxesDashesAndMessagesLineByLine) {
    const std::string table = resultTable(shaftProject(), shaftResult());
    EXPECT_THAT(table, HasSubstr("Dvůr \"A\"\nŠachtové vsakování\n"));
    EXPECT_THAT(table, HasSubstr(" 27.03 m²\n"));
    EXPECT_THAT(table, HasSubstr("1.53 m\n"));
    EXPECT_THAT(table, HasSubstr("- m³\n"));
    EXPECT_THAT(table, HasSubstr("\n  x Nezámrzná hloubka přítoku je menší nebo rovna nule.\n"
                                 "  x Výška filtrační vrstvy je menší nebo rovna nule.\n"));
    EXPECT_THAT(table, HasSubstr(" (11)\n"));
    EXPECT_THAT(table, Not(HasSubstr("\r")));
}

TEST(ResultTable, ColumnsLineUpWhateverTheDiacritics) {
    const std::string table = resultTable(shaftProject(), shaftResult());
    const auto column = [&](const std::string& unit) {
        std::size_t end = table.find(unit);
        std::size_t columns = 0;
        for (; end > 0 && table[end - 1] != '\n'; --end) {
            columns += (static_cast<unsigned char>(table[end - 1]) & 0xC0U) != 0x80U ? 1U : 0U;
        }
        return columns;
    };
    EXPECT_EQ(column(" m²\n"), column(" m³\n"));
}

TEST(ResultJson, IsJsonWithTheStoredNumbers) {
    const nlohmann::json parsed = nlohmann::json::parse(resultJson(shaftProject(), shaftResult()));
    EXPECT_EQ(parsed["project"], "Dvůr \"A\"");
    EXPECT_EQ(parsed["type"], "shaft");
    EXPECT_EQ(parsed["completed"], false);
    EXPECT_EQ(parsed["results"]["infiltration_area_m2"], 27.03);
    EXPECT_TRUE(parsed["results"]["storage_volume_m3"].is_null());
    EXPECT_FALSE(parsed["results"].contains("tank_volume_m3"));
    EXPECT_EQ(parsed["verdicts"][2]["code"], "runtime_error_11");
    EXPECT_EQ(parsed["verdicts"][0]["severity"], "error");
    EXPECT_EQ(parsed["verdicts"][0]["about"], (nlohmann::json{{"facility.inlet_frost_depth_m", -0.5}}));
}

TEST(ResultTable, TheSignTellsHowAMessageIsMeant) {
    design::DesignResult result;
    result.verdicts.add({.id = VerdictId::DesignRainMissing, .values = {}});
    result.verdicts.add({.id = VerdictId::TankVolumeSufficient, .values = {}});
    const std::string table = resultTable(shaftProject(), result);
    EXPECT_THAT(table, HasSubstr("  ! Intenzita návrhového deště není zadána\n"));
    EXPECT_THAT(table,
                HasSubstr(std::string("  + ") + design::info(VerdictId::TankVolumeSufficient).text + "\n"));
    const nlohmann::json parsed = nlohmann::json::parse(resultJson(shaftProject(), result));
    EXPECT_EQ(parsed["verdicts"][0]["severity"], "warning");
    EXPECT_EQ(parsed["verdicts"][1]["severity"], "information");
}

TEST(ResultTable, AProjectWithoutANameBeginsWithItsType) {
    project::Project project = shaftProject();
    project.texts.txtProjName.clear();
    EXPECT_THAT(resultTable(project, design::DesignResult()), ::testing::StartsWith("Šachtové vsakování\n"));
}

TEST(OutputFile, ReplacesAnOldFileOnlyAtItsEnd) {
    const test::TemporaryFolder folder;
    folder.write("rows.csv", "old and longer than what comes");
    OutputFile file(folder.file("rows.csv"));
    EXPECT_TRUE(file.write("a,b\r\n"));
    EXPECT_TRUE(file.write(""));
    EXPECT_TRUE(file.write("1,2\r\n"));
    EXPECT_EQ(folder.read("rows.csv"), "old and longer than what comes");
    EXPECT_TRUE(file.finish());
    EXPECT_EQ(folder.read("rows.csv"), "a,b\r\n1,2\r\n");
    EXPECT_EQ(file.partName(), "");
}

TEST(OutputFile, KeepsAPartBesideTheOldFileAlsoBehindALink) {
    const test::TemporaryFolder folder;
    folder.write("rows.csv", "old");
    std::filesystem::create_symlink(folder.file("rows.csv"), folder.file("link.csv"));
    OutputFile file(folder.file("link.csv"));
    EXPECT_TRUE(file.write("a,b\r\n"));
    EXPECT_TRUE(file.finishPart());
    EXPECT_EQ(file.partName(), std::filesystem::canonical(folder.file("rows.csv")).string() + ".part");
    EXPECT_EQ(OutputFile::partPath(folder.file("link.csv")), file.partName());
    EXPECT_EQ(folder.read("rows.csv"), "old");
    EXPECT_EQ(folder.read("rows.csv.part"), "a,b\r\n");
}

TEST(OutputFile, OfWhichNothingIsFinishedLeavesNothing) {
    const test::TemporaryFolder folder;
    { EXPECT_TRUE(OutputFile(folder.file("rows.csv")).write("a")); }
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST(OutputFile, WritesADeviceAsItIs) {
    OutputFile file("/dev/null");
    EXPECT_TRUE(file.write("1"));
    EXPECT_TRUE(file.finishPart());
    EXPECT_EQ(file.partName(), "");
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
}

TEST(OutputFile, TellsWhyItCannotWrite) {
    EXPECT_THROW(OutputFile("/nowhere/rows.csv"), std::runtime_error);
    OutputFile full("/dev/full");
    EXPECT_FALSE(full.write("1"));
    EXPECT_THAT(full.failure(), HasSubstr("/dev/full cannot be written: "));
}

}  // namespace
}  // namespace mero::app
