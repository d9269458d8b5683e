// SPDX-License-Identifier: MIT
/// Compares the whole report of each type and option with files written from the format's rules.
#include "report/html_report.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "report/code_page.h"
#include "report/sample_project.h"

namespace mero::report {
namespace {

using test::sampleProject;

std::string contentOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// Compares the bytes of the file. If they differ, the report is written beside the golden as NAME.html.out.
void expectGolden(const std::string& name, const ReportData& data) {
    const std::filesystem::path golden = std::filesystem::path(MERO_GOLDEN_FOLDER) / (name + ".html");
    const std::filesystem::path out = golden.string() + ".out";
    ASSERT_TRUE(std::filesystem::exists(golden)) << golden;
    const std::string bytes = toWindows1250(htmlReport(data));
    if (bytes == contentOf(golden)) {
        std::filesystem::remove(out);
        return;
    }
    std::ofstream(out, std::ios::binary) << bytes;
    FAIL() << "differs from " << golden << "; see " << out;
}

std::size_t count(const std::string& text, const std::string& part) {
    std::size_t found = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size())) {
        ++found;
    }
    return found;
}

TEST(HtmlReport, WithoutATypeHasNoTypeSection) {
    expectGolden("no_type", sampleProject(0));
}

TEST(HtmlReport, OutsideTheTypesHasNoTypeSectionEither) {
    ReportData data = sampleProject(6);
    for (const int type : {7, 100, 255}) {
        data.type = static_cast<data::FacilityType>(type);
        EXPECT_EQ(count(htmlReport(data), "Celková odvodňovaná plocha"), 0U) << type;
    }
}

TEST(HtmlReport, Surface) {
    expectGolden("surface", sampleProject(1));
}

TEST(HtmlReport, WithoutAreasHasAnEmptyTable) {
    ReportData data = sampleProject(1);
    data.partial_areas.clear();
    data.texts.txtTypPudyPodlozi.clear();
    data.numbers.txtSoucFiltrace = 0.00005F;
    data.numbers.VybranaDoba = 0;
    expectGolden("surface_without_areas", data);
    EXPECT_NE(htmlReport(data).find("Dílčí typ povrchu</th></tr>\r\n</table><br>\r\n"), std::string::npos);
}

TEST(HtmlReport, Swale) {
    expectGolden("swale", sampleProject(2));
}

TEST(HtmlReport, TypedTextsGoInAsTheyAre) {
    ReportData data = sampleProject(2);
    data.texts.txtProjName = "A<B>\"C\" \xF0\x9F\x92\xA7 \xFF";  // a drop and a stray byte: "?" each
    data.texts.txtDetails = "První řádek<br>druhý & \"třetí\" <i>řádek</i>";
    expectGolden("swale_described", data);
}

TEST(HtmlReport, Combined) {
    ReportData data = sampleProject(3);
    data.numbers.VybranaDoba = 5;
    data.options.drain = true;  // an option of the trench, not of this type
    expectGolden("combined", data);
}

TEST(HtmlReport, CombinedWithThrottledOverflow) {
    ReportData data = sampleProject(3);
    data.numbers.VybranaDoba = 120;
    data.options.overflow = true;
    expectGolden("combined_overflow", data);
}

TEST(HtmlReport, Trench) {
    ReportData data = sampleProject(4);
    data.options.overflow = true;  // an option of the combined object, not of this type
    expectGolden("trench", data);
}

TEST(HtmlReport, TrenchWithDrain) {
    ReportData data = sampleProject(4);
    data.options.drain = true;
    expectGolden("trench_drain", data);
}

TEST(HtmlReport, RoundShaft) {
    expectGolden("shaft_round", sampleProject(5));
}

TEST(HtmlReport, RectangularShaftWithSandLayer) {
    ReportData data = sampleProject(5);
    data.options.shape = data::ShaftShape::Rectangular;
    data.options.ring = "RSD 240/190/..";
    data.numbers.txtTloustkaSteny = 0.1F;
    data.options.sand_layer = true;
    expectGolden("shaft_rectangular_sand", data);
}

TEST(HtmlReport, ShaftOfNoKnownShapeHasNoCrossSection) {
    ReportData data = sampleProject(5);
    data.options.shape = static_cast<data::ShaftShape>(7);
    data.options.ring.clear();
    data.numbers.txtTloustkaSteny = 0.1F;
    expectGolden("shaft_without_shape", data);
}

TEST(HtmlReport, Tank) {
    expectGolden("tank", sampleProject(6));
}

TEST(HtmlReport, TankWithUpstreamSettling) {
    ReportData data = sampleProject(6);
    data.options.upstream_settling = true;
    expectGolden("tank_settling", data);
}

TEST(HtmlReport, MarksExactlyTheRowOfTheChosenDuration) {
    ReportData data = sampleProject(1);
    const std::string third =
        "<tr><th width=150 align=center>15</th><th width=150 align=center>161.5</th></tr>";
    EXPECT_EQ(count(htmlReport(data), third), 1U);
    EXPECT_EQ(count(htmlReport(data), "<tr><th width=150 align=center>"), 3U);  // and two headers
    for (const float none : {0.0F, 15.5F, -15.0F}) {
        data.numbers.VybranaDoba = none;
        EXPECT_EQ(count(htmlReport(data), "<tr><th width=150 align=center>"), 2U) << none;
    }
}

TEST(HtmlReport, MarksEveryRowThatHasTheChosenDuration) {
    ReportData data = sampleProject(1);
    data.rain.rows[3].duration_min = 15;
    EXPECT_EQ(count(htmlReport(data), "<tr><th width=150 align=center>15</th>"), 2U);
}

TEST(HtmlReport, EndsEveryLineWithCarriageReturnAndLineFeed) {
    for (int type = 0; type <= 6; ++type) {
        ReportData data = sampleProject(type);
        data.texts.txtDetails = "popis";
        const std::string html = htmlReport(data);
        EXPECT_EQ(count(html, "\r\n"), count(html, "\n"));
        EXPECT_TRUE(html.ends_with("</div></body><html>\r\n"));
    }
}

TEST(HtmlReport, OfAnEmptyProjectIsComplete) {
    const std::string html = htmlReport(ReportData{});
    EXPECT_NE(html.find("<TH align=left width=450></TH><TD rowspan=4"), std::string::npos);
    EXPECT_EQ(count(html, "Detailní popis"), 0U);
    // Nine durations of 0 all equal the chosen duration of 0.
    EXPECT_EQ(count(html, "<tr><th width=150 align=center>0</th><th width=150 align=center>0</th></tr>\r\n"),
              9U);
}

TEST(HtmlReport, WritesNegativeAndLargeResultsInFull) {
    ReportData data = sampleProject(1);
    data.numbers.txtVsakPlocha = -2000;
    EXPECT_NE(htmlReport(data).find(">-2 000.00</TH>"), std::string::npos);
    data.numbers.txtVsakPlocha = 1e10F;
    EXPECT_NE(htmlReport(data).find(">10 000 000 000.00</TH>"), std::string::npos);
}

}  // namespace
}  // namespace mero::report
