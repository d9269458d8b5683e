// SPDX-License-Identifier: MIT
/// What a project file says and what it may not say.
/// Every mistake is told with the file, the path, and what was expected.
#include "project/read_project.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "project/samples.h"
#include "project/write_project.h"

namespace mero::project {
namespace {

using test::document;
using test::errorOf;
using test::kAreas;
using test::kFacility;
using test::kRain;
using test::kSubsoil;
using test::withFacility;
using ::testing::HasSubstr;
using ::testing::StartsWith;

TEST(ReadProject, ValuesTextsAndDefaults) {
    const Project project = readProject(document(), "p.json");
    EXPECT_EQ(project.inputs.rain.station, 4);  // fourth of the list
    EXPECT_EQ(project.inputs.rain.periodicity, 4);
    EXPECT_EQ(project.inputs.rain.design_duration_min, 15.0F);
    ASSERT_EQ(project.inputs.areas.size(), 1U);
    EXPECT_EQ(project.inputs.areas[0].area_m2, 800.0F);
    EXPECT_EQ(project.inputs.filtration_m_s, 1e-4F);
    EXPECT_EQ(project.inputs.facility.type, design::FacilityType::Trench);
    EXPECT_EQ(project.inputs.facility.txtPorVyplne, 0.35F);
    EXPECT_EQ(project.inputs.facility.txtSoucBezp, 1.2F);
    EXPECT_FALSE(project.inputs.facility.drain.given);
}

TEST(ReadProject, AStationIsKnownByNameAndByNumber) {
    const std::string by_number = R"("rain": {"station": 84, "periodicity": 0.2})";
    const Project project = readProject(document(by_number), "p.json");
    EXPECT_EQ(project.inputs.rain.station, 4);  // Brno
    EXPECT_FALSE(project.inputs.rain.picks_row);
    EXPECT_THAT(errorOf(document(R"("rain": {"station": "Brnoo", "periodicity": 0.2})")),
                AllOf(StartsWith("p.json: rain.station: expected the name or number"),
                      HasSubstr("did you mean \"Brno\"?")));
    EXPECT_THAT(errorOf(document(R"("rain": {"station": 93, "periodicity": 0.2})")),
                StartsWith("p.json: rain.station: "));
}

TEST(ReadProject, OwnRainTakesNineNumbers) {
    const Project project = readProject(
        document(R"("rain": {"intensities_l_s_ha": [9,8,7,6,5,4,3,2,1], "periodicity": 1})"), "p.json");
    EXPECT_EQ(project.inputs.rain.station, 0);
    EXPECT_EQ(project.inputs.rain.intensities_l_s_ha[8], 1.0F);
    EXPECT_EQ(project.inputs.rain.durations_min[8], 120.0F);
    EXPECT_EQ(errorOf(document(R"("rain": {"intensities_l_s_ha": [1,2], "periodicity": 1})")),
              "p.json: rain.intensities_l_s_ha: expected a list of nine numbers, not one of 2");
    EXPECT_EQ(errorOf(document(R"("rain": {"intensities_l_s_ha": [1,2,3,4,5,6,7,8,"9"], "periodicity": 1})")),
              "p.json: rain.intensities_l_s_ha[8]: expected a number, not \"9\"");
}

TEST(ReadProject, RainIsEitherAStationOrOwnValues) {
    EXPECT_THAT(errorOf(document(R"("rain": {"periodicity": 1})")), StartsWith("p.json: rain: expected"));
    EXPECT_THAT(
        errorOf(document(
            R"("rain": {"station": 1, "intensities_l_s_ha": [1,2,3,4,5,6,7,8,9], "periodicity": 1})")),
        HasSubstr("not both"));
    EXPECT_THAT(errorOf(document(
                    R"("rain": {"station": 1, "durations_min": [1,2,3,4,5,6,7,8,9], "periodicity": 1})")),
                StartsWith("p.json: rain.durations_min: "));
    EXPECT_THAT(errorOf(document(R"("rain": {"station": 1})")),
                StartsWith("p.json: rain.periodicity: is missing: expected one of: 5, 2, 1"));
    EXPECT_EQ(errorOf(document(R"("rain": {"station": 1, "periodicity": 1, "design_duration_min": 7})")),
              "p.json: rain.design_duration_min: expected one of the nine durations");
}

TEST(ReadProject, UnknownNamesSuggestTheNearest) {
    EXPECT_EQ(errorOf(withFacility(R"("type": "trench", "trench_widht_m": 1)")),
              "p.json: facility.trench_widht_m: is not a known name; did you mean \"trench_width_m\"?");
    EXPECT_EQ(errorOf(document(kRain, R"("areas": [{"area": 1, "runoff_coefficient": 1}])")),
              "p.json: areas[0].area: is not a known name; did you mean \"area_m2\"?");
    EXPECT_EQ(errorOf("{\"xyzzyxyzzy\": 1}"), "p.json: xyzzyxyzzy: is not a known name");
}

TEST(ReadProject, WrongTypesAreToldWithWhatWasExpected) {
    EXPECT_EQ(errorOf(withFacility(R"("type": "trench", "trench_width_m": "1.2")")),
              "p.json: facility.trench_width_m: expected a number [m], not \"1.2\"");
    EXPECT_EQ(
        errorOf(withFacility(R"("type": 4)")),
        "p.json: facility.type: expected one of: surface, swale, swale_trench, trench, shaft, tank, not 4");
    EXPECT_EQ(errorOf(withFacility(R"("type": "tank", "upstream_settling": 1)")),
              "p.json: facility.upstream_settling: expected true or false, not 1");
    EXPECT_EQ(errorOf(withFacility(R"("type": "shaft", "shaft_count": 1.5)")),
              "p.json: facility.shaft_count: expected a whole number from -32768 to 32767, not \"1.5\"");
    EXPECT_EQ(errorOf(withFacility(R"("type": "trench", "drain": true)")),
              "p.json: facility.drain: expected an object, not true");
    EXPECT_EQ(errorOf("[]"), "p.json: the document: expected an object, not a list");
    EXPECT_EQ(errorOf(document(kRain, R"("areas": {})")), "p.json: areas: expected a list, not an object");
    EXPECT_EQ(errorOf(document(kRain, R"("areas": [3])")), "p.json: areas[0]: expected an object, not 3");
}

TEST(ReadProject, MissingValuesOfTheChosenTypeAreTold) {
    EXPECT_EQ(errorOf(withFacility(R"("type": "trench", "trench_width_m": 1)")),
              "p.json: facility.trench_height_m: is missing: expected a number [m]");
    EXPECT_EQ(
        errorOf(withFacility(R"("safety_factor": 1)")),
        "p.json: facility.type: is missing: expected one of: surface, swale, swale_trench, trench, shaft, "
        "tank");
    EXPECT_EQ(errorOf(document(kRain, R"("areas": [{"area_m2": 5}])")),
              "p.json: areas[0].runoff_coefficient: is missing: expected a number");
    EXPECT_EQ(errorOf("{" + kRain + "," + kAreas + "," + kFacility + "}"),
              "p.json: subsoil: is missing: expected an object");
    const std::string shaft = R"("type": "shaft", "inlet_frost_depth_m": 1, "filter_layer_m": 0.5)";
    EXPECT_THAT(errorOf(withFacility(shaft)), StartsWith("p.json: facility.shape: is missing"));
    EXPECT_THAT(
        errorOf(withFacility(shaft + R"(, "variant": "type_b", "catalogue_shaft": "RSB - Q 160/200")")),
        StartsWith("p.json: facility.sand_layer_m: is missing"));
    EXPECT_EQ(errorOf(withFacility(shaft + R"(, "catalogue_shaft": "RSB - Q 160/200")")), "");
}

TEST(ReadProject, ARingHasItsOwnDimensions) {
    EXPECT_EQ(errorOf(withFacility(
                  R"("type": "shaft", "catalogue_shaft": "RSB - Q 160/200", "inlet_frost_depth_m": 1,
                                      "filter_layer_m": 1, "wall_thickness_m": 1)")),
              "p.json: facility.wall_thickness_m: does not go with \"catalogue_shaft\", which has its own "
              "dimensions");
}

TEST(ReadProject, SyntaxErrorsTellLineAndColumn) {
    EXPECT_THAT(errorOf("{\n  \"rain\": {,}\n}"), StartsWith("p.json:2:12: no valid JSON"));
    EXPECT_THAT(errorOf(""), StartsWith("p.json:1:1: no valid JSON"));
    EXPECT_THAT(errorOf("{\"project\": {\"name\": \"\xFF\"}}"), StartsWith("p.json:1:"));
    EXPECT_EQ(errorOf("{\n\"x\": 1e999}"), "p.json:2:6: expected a number from -1e12 to 1e12");
}

TEST(ReadProject, ANameMayStandOnceInAnObject) {
    EXPECT_EQ(errorOf(withFacility(R"("type": "trench", "type": "swale")")),
              "p.json: facility.type: stands twice; expected each name once");
    EXPECT_EQ(
        errorOf(withFacility(R"("type": "trench", "drain": {"pipe_count": 1, "pipe_count": 2}, "type": 1)")),
        "p.json: facility.drain.pipe_count: stands twice; expected each name once");
    EXPECT_EQ(errorOf(document(kRain, R"("areas": [{"area_m2": 1, "runoff_coefficient": 1},
                                                   {"area_m2": 2, "runoff_coefficient": 1}])")),
              "");
}

TEST(ReadProject, NumbersHaveLimits) {
    EXPECT_EQ(errorOf(document(kRain, kAreas, R"("subsoil": {"filtration_coefficient_m_s": 2e12})")),
              "p.json: subsoil.filtration_coefficient_m_s: expected a number from -1e12 to 1e12");
    EXPECT_EQ(errorOf(document(kRain, R"("areas": [{"area_m2": 2e12, "runoff_coefficient": 1}])")),
              "p.json: areas[0].area_m2: expected a number from -1e12 to 1e12");
    EXPECT_EQ(
        errorOf(document(R"("rain": {"intensities_l_s_ha": [1,2,3,4,5,6,7,8,-2e12], "periodicity": 1})")),
        "p.json: rain.intensities_l_s_ha[8]: expected a number from -1e12 to 1e12");
    EXPECT_EQ(errorOf(document(kRain, R"("areas": [{"area_m2": 0, "runoff_coefficient": 1}])")),
              "p.json: areas[0].area_m2: expected a number [m²] other than 0");
    // Smaller than any Single, so 0 for the window.
    EXPECT_THAT(errorOf(document(kRain, R"("areas": [{"area_m2": 1e-60, "runoff_coefficient": 1}])")),
                HasSubstr("other than 0"));
}

TEST(ReadProject, NumbersAreRoundedOnceToSingle) {
    const Project project =
        readProject(document(kRain, kAreas,
                             R"("subsoil": {"filtration_coefficient_m_s": 0.1, "groundwater_depth_m": -0})"),
                    "p.json");
    EXPECT_EQ(project.inputs.filtration_m_s, 0.1F);
    EXPECT_FALSE(std::signbit(project.inputs.groundwater_depth_m));
}

TEST(ReadProject, TextsAreTakenAsTheBoxesTakeThem) {
    const Project project = readProject(
        "{\"project\": {\"name\": \"Dvůr <A>\", \"description\": \"a\\nb\\r\\nc\"}," + document().substr(1),
        "p.json");
    EXPECT_EQ(project.texts.txtProjName, "Dvůr <A>");
    EXPECT_EQ(project.texts.txtDetails, "a\r\nb\r\nc");
    EXPECT_EQ(errorOf("{\"project\": {\"name\": \"a\\nb\"}," + document().substr(1)),
              "p.json: project.name: expected a text on one line");
}

TEST(ReadProject, TextsMustBeTextsThatABoxCanHold) {
    const auto withProject = [](const std::string& members) {
        return errorOf("{\"project\": {" + members + "}," + document().substr(1));
    };
    EXPECT_EQ(withProject(R"("name": 5)"), "p.json: project.name: expected a text, not 5");
    EXPECT_EQ(withProject(R"("description": ["a"])"),
              "p.json: project.description: expected a text, not a list");
    EXPECT_EQ(withProject(R"("description": "a\u0007")"),
              "p.json: project.description: expected a text without control characters");
    EXPECT_EQ(withProject(R"("description": "a\tb")"), "");
    EXPECT_EQ(withProject(R"("name": "a\tb")"), "p.json: project.name: expected a text on one line");
    EXPECT_EQ(errorOf("{\"$schema\": 1," + document().substr(1)), "p.json: $schema: expected a text, not 1");
}

TEST(ReadProject, EveryKindOfLineEndIsALineEnd) {
    const auto description = [](const std::string& text) {
        return readProject("{\"project\": {\"description\": \"" + text + "\"}," + document().substr(1),
                           "p.json")
            .texts.txtDetails;
    };
    EXPECT_EQ(description("a\\rb\\n\\nc"), "a\r\nb\r\n\r\nc");
    EXPECT_EQ(description("a\\r"), "a\r\n");
    EXPECT_EQ(description("a\\r\\r\\n"), "a\r\n\r\n");
}

TEST(ReadProject, AnAreaMayNameItsSurface) {
    const Project project =
        readProject(document(kRain, R"("areas": [{"area_m2": 1, "runoff_coefficient": 1, "surface": "asfalt"},
                                                 {"area_m2": 2, "runoff_coefficient": 1}])"),
                    "p.json");
    EXPECT_EQ(project.texts.surfaces, (std::vector<std::string>{"asfalt", ""}));
    EXPECT_EQ(errorOf(document(kRain, R"("areas": [{"area_m2": 1, "runoff_coefficient": 1, "surface": 5}])")),
              "p.json: areas[0].surface: expected a text, not 5");
}

TEST(ReadProject, LongAndNestedValuesAreNotRepeatedInTheMessage) {
    const std::string longest(38, 'x');
    EXPECT_THAT(errorOf(withFacility("\"type\": \"trench\", \"trench_width_m\": \"" + longest + "\"")),
                HasSubstr("not \"" + longest + "\""));
    EXPECT_EQ(errorOf(withFacility("\"type\": \"trench\", \"trench_width_m\": \"" + longest + "x\"")),
              "p.json: facility.trench_width_m: expected a number [m], not a longer text");
    EXPECT_EQ(errorOf(document(R"("rain": {"intensities_l_s_ha": {}, "periodicity": 1})")),
              "p.json: rain.intensities_l_s_ha: expected a list of nine numbers, not an object");
    EXPECT_EQ(errorOf(document(R"("rain": {"intensities_l_s_ha": 3, "periodicity": 1})")),
              "p.json: rain.intensities_l_s_ha: expected a list of nine numbers, not 3");
}

TEST(ReadProject, AWholeSectionThatIsMissingIsTold) {
    EXPECT_EQ(errorOf("{}"), "p.json: rain: is missing: expected an object");
    EXPECT_EQ(errorOf("{" + kRain + "}"), "p.json: areas: is missing: expected a list");
    EXPECT_EQ(errorOf("{" + kRain + "," + kAreas + "," + kSubsoil + "}"),
              "p.json: facility: is missing: expected an object");
}

TEST(ReadProject, AByteOrderMarkIsSkipped) {
    EXPECT_EQ(errorOf("\xEF\xBB\xBF" + document()), "");
}

TEST(ReadProject, AFileThatIsNotThereIsTold) {
    EXPECT_THROW(static_cast<void>(readProjectFile("/nowhere/p.json")), ProjectError);
    EXPECT_THROW(static_cast<void>(readProjectFile("/")), ProjectError);
}

TEST(ReadProject, TheSubPanelsOfPipesAreThereWhenTheirObjectIs) {
    const Project project = readProject(
        withFacility(
            R"("type": "trench", "trench_width_m": 1, "trench_height_m": 1, "drain": {"pipe_count": 2})"),
        "p.json");
    EXPECT_TRUE(project.inputs.facility.drain.given);
    EXPECT_EQ(project.inputs.facility.drain.txtPocetPotrubi, 2.0F);
    EXPECT_EQ(project.inputs.facility.drain.txtPrumTroubVnit, 0.0F);
}

TEST(ReadProject, TheWindowsPartIsNoInput) {
    const std::string with_window =
        R"({"version": 2, "window": {"type": 7, "x": []}, )" + document().substr(1);
    EXPECT_EQ(readProject(with_window, "p.json").inputs.facility.txtSirkaRyhy, 1.2F);
    EXPECT_EQ(errorOf(R"({"window": 3, )" + document().substr(1)),
              "p.json: window: expected an object, not 3");
}

TEST(ReadProject, AVersionIsAWholeNumber) {
    EXPECT_EQ(errorOf(R"({"version": "new", )" + document().substr(1)),
              "p.json: version: expected a whole number from 1, not \"new\"");
    EXPECT_EQ(errorOf(R"({"version": 0, )" + document().substr(1)),
              "p.json: version: expected a whole number from 1, not 0");
}

TEST(ReadProject, UnknownNamesOfANewerVersionArePassedOver) {
    const std::string rest = R"("snow": {}, )" + document().substr(1);
    EXPECT_EQ(errorOf(R"({"version": 3, )" + rest), "");
    EXPECT_EQ(errorOf(R"({"version": 2, )" + rest), "p.json: snow: is not a known name");
}

TEST(ReadProject, NestingTooDeepIsTold) {
    EXPECT_EQ(errorOf("{\"rain\": " + std::string(1000, '[')),
              "p.json:1:1: lists and objects are nested too deep");
}

TEST(ReadLeniently, TakesTheRestAndRemembersWhatItDidNotTake) {
    std::vector<Remark> remarks;
    const Project project = readLeniently(
        parseDocument(R"({"rain": {"periodicity": 0.3}, "subsoil": {"groundwater_depth_m": 4}, "colour": 1})",
                      "p.json"),
        remarks);
    EXPECT_EQ(project.inputs.groundwater_depth_m, 4.0F);
    ASSERT_EQ(remarks.size(), 2U);
    EXPECT_EQ(remarks[0].path, "colour");
    EXPECT_EQ(remarks[0].fault, Fault::UnknownName);
    EXPECT_EQ(remarks[1].path, "rain.periodicity");
    EXPECT_EQ(remarks[1].fault, Fault::WrongValue);
}

TEST(WriteProject, IsReadBackUnchanged) {
    const Project project = readProject(document(), "p.json");
    const Project again = readProject(inputsDocument(project).dump(), "p.json");
    EXPECT_EQ(again.inputs.rain.station, project.inputs.rain.station);
    EXPECT_EQ(again.inputs.rain.design_duration_min, 15.0F);
    EXPECT_EQ(again.inputs.areas[0].area_m2, 800.0F);
    EXPECT_EQ(again.inputs.filtration_m_s, 1e-4F);
    EXPECT_EQ(again.inputs.facility.txtSirkaRyhy, 1.2F);
}

}  // namespace
}  // namespace mero::project
