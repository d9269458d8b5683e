// SPDX-License-Identifier: MIT
/// Whatever a description holds, the report is shown within 2 s, and its results with it.
#include <gmock/gmock.h>

#include <filesystem>

#include "documents/shown_report.h"
#include "report/sample_project.h"

namespace mero::test {
namespace {

/// Of processor time, without optimization; the limit is meant for the slowest machine.
constexpr double kLimit_s = 2;
/// Painting pages takes as long as there are pages.
constexpr double kPagesLimit_s = 10;

std::string repeated(std::string_view text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i) {
        all += text;
    }
    return all;
}

void expectInTime(const Shown& shown, const std::string& what) {
    EXPECT_LT(shown.view_s, kLimit_s) << what;
    EXPECT_LT(shown.pages_s, kPagesLimit_s) << what;
    EXPECT_TRUE(shown.text.contains("Potřebný objem akumulace")) << what;
}

TEST(HostilePages, AreFoundAndPainted) {
    for (const char* text : {"<table><tr><td>a", "<div>a", "<hr>", "slovo", "<h1>a</h1>"}) {
        expectInTime(ShownReport().describe(repeated(text, 60'000), Painted::ViewAndPages), text);
    }
}

class HostileDescription : public testing::TestWithParam<std::pair<const char*, int>> {};

TEST_P(HostileDescription, IsShownWithTheResultsBehindIt) {
    const auto [text, times] = GetParam();
    expectInTime(ShownReport().describe(repeated(text, times), Painted::View), text);
}

INSTANTIATE_TEST_SUITE_P(
    Markup, HostileDescription,
    testing::Values(std::pair{"<table><tr><td>", 5'000}, std::pair{"<table><tr><td>a", 11},
                    std::pair{"<table><tr><td>a</td></tr></table>", 20'000},
                    std::pair{"<table><tr><td colspan=100000000 rowspan=100000000>", 1},
                    std::pair{"<table border=1 width=1000000000><tr><td rowspan=20>a", 5'000},
                    std::pair{"<b>", 100'000}, std::pair{"<div>a", 50'000}, std::pair{"<ul><li>a", 50'000},
                    std::pair{"<font size=7>a", 50'000}, std::pair{"<sub>a<sup>b", 50'000},
                    std::pair{"<hr>", 50'000}, std::pair{"<p>a", 100'000}, std::pair{"<br>", 200'000},
                    std::pair{"<b>a</b><i>b</i>", 100'000}));

INSTANTIATE_TEST_SUITE_P(Text, HostileDescription,
                         testing::Values(std::pair{"slovo", 1'000'000}, std::pair{"slovo ", 1'000'000},
                                         std::pair{"<", 1'000'000}, std::pair{"<a ", 1'000'000},
                                         std::pair{"&#1570;", 500'000}, std::pair{"\n", 1'000'000}));

INSTANTIATE_TEST_SUITE_P(Pictures, HostileDescription,
                         testing::Values(std::pair{"<img src=\"/proc/self/pagemap\">", 1},
                                         std::pair{"<img src=/dev/zero width=1000000000>", 10'000},
                                         std::pair{"<img src=Mero_Test height=1000000000>", 10'000}));

TEST(HostileReport, IsShownWithEveryTextAtItsLongest) {
    constexpr int kTank = 6;
    report::ReportData project = report::test::sampleProject(kTank);
    project.texts.txtDetails = repeated("<b>", 50'000);
    for (std::string* text :
         {&project.texts.txtProjName, &project.texts.txtProjektant, &project.texts.txtInvestor,
          &project.texts.txtMistoAkce, &project.rain.station, &project.rain.periodicity}) {
        *text = repeated("<table><tr><td>a", 5'000);
    }
    project.partial_areas.resize(2'000, {1, 1, repeated("<b>slovo", 500)});
    const Shown shown = ShownReport().show(project, Painted::View);
    EXPECT_LT(shown.view_s, kLimit_s);
    EXPECT_TRUE(shown.text.contains("zkrácený"));
    EXPECT_TRUE(shown.text.contains("Potřebný objem akumulace"));
}

TEST(LongReport, ShowsAThousandAreas) {
    constexpr int kTank = 6;
    report::ReportData project = report::test::sampleProject(kTank);
    project.partial_areas.assign(1'000, {1, 1, "Asfalt, beton, dlažba"});
    const Shown shown = ShownReport().show(project, Painted::ViewAndPages);
    expectInTime(shown, "areas");
    EXPECT_EQ(shown.text.count("Asfalt, beton"), 1'000);
}

}  // namespace
}  // namespace mero::test
