// SPDX-License-Identifier: MIT
/// The chart of a sweep: what is drawn over what, and which wishes cannot be met.
#include "sweep/plot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sweep/samples.h"

namespace mero::sweep {
namespace {

using test::variants;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
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
    EXPECT_EQ(chart.title, "Délka vsakovací rýhy");
    EXPECT_EQ(chart.x.label, "Šířka rýhy (střední) [m]");
    EXPECT_EQ(chart.y.label, "Délka vsakovací rýhy [m]");
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

TEST(Plot, EachTypeShowsItsMainResult) {
    const auto title = [](const std::string& type) {
        return chartOf({"facility.type=" + type, "facility.safety_factor=1,2"},
                       over("facility.safety_factor"))
            .title;
    };
    EXPECT_EQ(title("swale,trench"), "Objem akumulace");  // types side by side
    const auto titleOfOne = [](const std::string& type) {
        return chartOf({"facility.safety_factor=1,2", "facility.type=" + type, "facility.soil=all"},
                       {"", "", "facility.soil"})
            .title;
    };
    EXPECT_EQ(titleOfOne("surface"), "Plocha potřebná pro vsakování");
    EXPECT_EQ(titleOfOne("swale"), "Objem akumulace průlehu");
    EXPECT_EQ(titleOfOne("swale_trench"), "Délka vsakovací rýhy");
    EXPECT_EQ(titleOfOne("trench"), "Délka vsakovací rýhy");
    EXPECT_EQ(titleOfOne("shaft"), "Výška vzdutí");
    EXPECT_EQ(titleOfOne("tank"), "Potřebný objem akumulace");
}

TEST(Plot, AWishedResultTakesThePlaceOfTheMainOne) {
    const Chart chart = chartOf({"facility.trench_width_m=1,2"}, {"infiltration_area_m2", "", ""});
    EXPECT_EQ(chart.y.label, "Plocha potřebná pro vsakování [m²]");
}

TEST(Plot, TheWishedLinesLeaveTheOtherNumberForTheAxis) {
    const Chart chart = chartOf({"facility.trench_width_m=1,2,3", "facility.trench_height_m=1,2"},
                                {"", "", "facility.trench_width_m"});
    EXPECT_EQ(chart.x.label, "Výška rýhy [m]");
    EXPECT_EQ(chart.legend, "Šířka rýhy (střední) [m]");
    ASSERT_THAT(chart.series, SizeIs(3));
    EXPECT_EQ(chart.series[2].name, "3");
}

TEST(Plot, HeldValuesCarryTheirUnitAndAreJoined) {
    EXPECT_EQ(chartOf({"facility.fill_porosity=0.3,0.4", "facility.soil=all", "facility.trench_height_m=1,2",
                       "facility.trench_width_m=0.5,1"},
                      {"", "facility.fill_porosity", "facility.soil"})
                  .subtitle,
              "Výška rýhy = 1 m, Šířka rýhy (střední) = 0.5 m");
}

TEST(Plot, PeriodicitiesAreDrawnAtTheirValues) {
    EXPECT_THAT(chartOf({"rain.periodicity=0.5,0.2,0.05"}, over("rain.periodicity")).x_values,
                ElementsAre(0.5, static_cast<double>(0.2F), static_cast<double>(0.05F)));
}

TEST(Plot, ResultsOverSeveralDecadesGetALogarithmicAxisToo) {
    const auto surfaceOver = [](const std::string& filtration) {
        return chartOf({"subsoil.filtration_coefficient_m_s=log:" + filtration, "facility.type=surface"},
                       {"infiltration_area_m2", "", ""});
    };
    // 870 / (kf 1e7 / 356 - 1): from 480.9 m2 at 1e-4 to 3.1 m2 at 1e-2.
    EXPECT_TRUE(surfaceOver("1e-4:1e-2:3").y.logarithmic);
    // To 188.4 m2 at 2e-4.
    EXPECT_FALSE(surfaceOver("1e-4:2e-4:3").y.logarithmic);
    // Below 3.56e-5 the soil cannot take the rain: the formula gives negative areas.
    EXPECT_FALSE(surfaceOver("1e-5:1e-2:4").y.logarithmic);
}

TEST(Plot, ALinearRangeKeepsBothAxesLinearWhateverTheResults) {
    // The same results as above, 480.9 m2 and 3.1 m2, from a list and from a range.
    for (const char* filtration : {"1e-4,1e-2", "1e-4:1e-2:9.9e-3"}) {
        const Chart chart = chartOf(
            {std::string("subsoil.filtration_coefficient_m_s=") + filtration, "facility.type=surface"},
            {"infiltration_area_m2", "", ""});
        ASSERT_THAT(chart.series, SizeIs(1));
        EXPECT_GT(*chart.series[0].values.front() / *chart.series[0].values.back(), 100.0);
        EXPECT_FALSE(chart.x.logarithmic) << filtration;
        EXPECT_FALSE(chart.y.logarithmic) << filtration;
    }
}

TEST(Plot, AxisAndLinesDifferAndHaveTheirLimits) {
    const auto check = [](const std::vector<std::string>& texts, const PlotWish& wish) {
        return [=] { checkPlot(variants(texts), wish); };
    };
    EXPECT_THAT(
        check({"facility.safety_factor=1,2"}, {"", "facility.safety_factor", "facility.safety_factor"}),
        ThrowsMessage<VariationError>("facility.safety_factor: cannot be the axis and the lines at once"));
    EXPECT_THAT(check({"facility.safety_factor=1:2001:1"}, {}),
                ThrowsMessage<VariationError>(HasSubstr("2000 points")));
    EXPECT_NO_THROW(check({"facility.safety_factor=1:2000:1"}, {})());
    EXPECT_NO_THROW(check({"facility.safety_factor=1:30:1", "facility.fill_porosity=1:24:1"}, {})());
    EXPECT_THAT(check({"facility.safety_factor=1,2"}, PlotWish{"xyz", "", ""}),
                ThrowsMessage<VariationError>("xyz: is no result"));
}

}  // namespace
}  // namespace mero::sweep
