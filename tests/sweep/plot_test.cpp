// SPDX-License-Identifier: MIT
/// The chart of a sweep, its scales, and its drawing.
#include "sweep/plot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sweep/samples.h"
#include "sweep/scale.h"

namespace mero::sweep {
namespace {

using test::variants;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::SizeIs;
using ::testing::ThrowsMessage;

PlotWish over(const std::string& path) {
    return {"", path, ""};
}

Chart chartOf(const std::vector<std::string>& texts, const PlotWish& wish = {}) {
    const project::RainStore rain;
    return plotOf(variants(texts), rain, wish);
}

TEST(Plot, TheFirstNumberIsTheAxisAndTheNextValueTheLines) {
    const Chart chart = chartOf({"rain.periodicity=0.5,0.2", "facility.trench_width_m=1,2,3"},
                                over("facility.trench_width_m"));
    EXPECT_EQ(chart.title, "Délka rýhy");
    EXPECT_EQ(chart.x.label, "Šířka rýhy (střední) [m]");
    EXPECT_EQ(chart.y.label, "Délka rýhy [m]");
    EXPECT_THAT(chart.x_values, ElementsAre(1.0, 2.0, 3.0));
    ASSERT_THAT(chart.series, SizeIs(2));
    EXPECT_EQ(chart.series[1].name, "0.2");
    EXPECT_THAT(chartOf({"facility.type=all", "facility.safety_factor=1,2"}).x_values, ElementsAre(1.0, 2.0));
}

TEST(Plot, FurtherValuesStayAtTheirFirstAndAreNamed) {
    const Chart chart = chartOf(
        {"facility.trench_width_m=1,2", "facility.trench_height_m=1,2", "facility.fill_porosity=0.3,0.4"});
    EXPECT_EQ(chart.subtitle, "Pórovitost výplně rýhy = 0.3");
}

TEST(Plot, AResultThatIsMissingInterruptsItsLine) {
    const Chart chart = chartOf({"facility.trench_width_m=0,1,2"});
    EXPECT_FALSE(chart.series[0].values[0].has_value());
    EXPECT_TRUE(chart.series[0].values[1].has_value());
    EXPECT_TRUE(chart.legend.empty());
}

TEST(Plot, ATypeWithoutTheResultHasNoLine) {
    const Chart chart = chartOf({"facility.type=surface,trench", "facility.safety_factor=1,2"});
    ASSERT_THAT(chart.series, SizeIs(1));
    EXPECT_EQ(chart.series[0].name, "trench");
}

TEST(Plot, ALogarithmicRangeGetsALogarithmicAxis) {
    EXPECT_TRUE(chartOf({"subsoil.filtration_coefficient_m_s=log:1e-6:1e-3:5"}).x.logarithmic);
    EXPECT_FALSE(chartOf({"facility.safety_factor=1:2:0.1"}).x.logarithmic);
}

TEST(Plot, WishesThatDoNotFitAreTold) {
    const auto check = [](const std::vector<std::string>& texts, const PlotWish& wish) {
        return [=] { checkPlot(variants(texts), wish); };
    };
    EXPECT_THAT(check({"facility.soil=all"}, {}), ThrowsMessage<VariationError>(HasSubstr("vary a number")));
    EXPECT_THAT(check({"facility.safety_factor=1,2"}, PlotWish{"storage_volume", "", ""}),
                ThrowsMessage<VariationError>(HasSubstr("did you mean \"storage_volume_m3\"?")));
    EXPECT_THAT(check({"facility.safety_factor=1,2"}, over("facility.soil")),
                ThrowsMessage<VariationError>(HasSubstr("is not varied")));
    EXPECT_THAT(check({"facility.soil=all", "facility.safety_factor=1,2"}, over("facility.soil")),
                ThrowsMessage<VariationError>(HasSubstr("is no number")));
    EXPECT_THAT(check({"facility.safety_factor=1:30:1", "facility.fill_porosity=1:30:1"}, {}),
                ThrowsMessage<VariationError>(HasSubstr("24 lines")));
}

TEST(Scale, LinearScalesAreRound) {
    EXPECT_THAT(Scale({0.6, 2.0}, false, false).ticks(), SizeIs(::testing::Ge(4U)));
    EXPECT_THAT(Scale({0.0, 100.0}, false, true).ticks(), ElementsAre(0.0, 20.0, 40.0, 60.0, 80.0, 100.0));
    EXPECT_EQ(Scale({3.0, 3.0}, false, true).share(0.0), 0.0);
    EXPECT_EQ(Scale({}, false, true).share(1.0), 1.0);
    EXPECT_LT(*Scale({-5.0, -5.0}, false, false).share(-5.0), 1.0);
}

TEST(Scale, LogarithmicScalesAreWholeDecades) {
    const Scale scale({static_cast<double>(1e-6F), static_cast<double>(1e-3F)}, true, false);
    EXPECT_THAT(scale.ticks(), SizeIs(4));
    EXPECT_NEAR(*scale.share(1e-5), 1.0 / 3.0, 1e-9);
    EXPECT_FALSE(scale.share(0.0).has_value());
    EXPECT_EQ(tickText(1e-6, true), "1E-06");
    EXPECT_EQ(tickText(0.1, true), "0.1");
    EXPECT_EQ(tickText(0.0005, false), "0.0005");
}

TEST(Svg, HoldsLinesTextsAndEscapedNames) {
    Chart chart;
    chart.title = "A < B & \"C\"";
    chart.x = {"x", false};
    chart.y = {"y", false};
    chart.x_values = {1.0, 2.0, 3.0, 4.0};
    chart.legend = "legend";
    chart.series.push_back({"one", {1.0, 2.0, std::nullopt, 3.0}});
    const std::string document = svg(chart);
    EXPECT_THAT(document, HasSubstr("A &lt; B &amp; &quot;C&quot;"));
    EXPECT_THAT(document, HasSubstr(">one</text>"));
    EXPECT_THAT(document, Not(HasSubstr("nan")));
    // The gap makes two lines of one.
    std::size_t lines = 0;
    for (std::size_t at = document.find("<polyline"); at != std::string::npos;
         at = document.find("<polyline", at + 1)) {
        ++lines;
    }
    EXPECT_EQ(lines, 2U);
}

}  // namespace
}  // namespace mero::sweep
