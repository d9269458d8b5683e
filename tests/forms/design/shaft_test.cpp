// SPDX-License-Identifier: MIT
/// Shafts: water level, area, depths, then volume, filter and the checks that stop.
/// Numbers: see expected.py.
#include "forms/design/design_fixture.h"

namespace mero::forms::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const MessageBox kGroundwater = exclamation(
    "Min. hloubka maximální hladiny podzemní vody je překročena.  Zvolte větší průměr šachty či jejich počet "
    "a opakujte výpočet.");
const MessageBox kBottom =
    exclamation("Dno šachty je vzdáleno méně než 0.5 m od hladiny podzemní vody. Zvolte menší výšku filtru.");
const MessageBox kSufficient = information("Potřebná propustnost filtru je dostačující.");
const MessageBox kTooPermeable = exclamation(
    "Potřebná propustnost filtru je příliš vysoká. Zvolte větší průměr šachty či jejich počet a opakujte "
    "výpočet.");

class Shaft : public DesignTest {
  protected:
    /// A round shaft of type A, inlet at 1 m.
    void shaft(const std::string& inner, const std::string& wall, const std::string& filter = "0.5",
               const std::string& seepage_path = "2") {
        project.choose(FacilityType::Shaft);
        project.click(window.optSelTypSachty[0]);
        project.set(window.txtPrumerSachtyVnit, inner);
        project.set(window.txtTloustkaSteny, wall);
        project.set(window.txtNezamrzHlPritok, "1");
        project.set(window.txtVyskaFiltrVrstvy, filter);
        project.set(window.txtMinPrusakDraha, seepage_path);
    }
    /// Level, area, depth, required depth, volume, permeability of the filter as shown.
    std::vector<std::string> shown() {
        return {window.txtVyskaVzduti[FacilityType::Shaft].text(),
                window.txtVsakPlocha[FacilityType::Shaft].text(),
                window.txtHloubkaSachty.text(),
                window.txtPotrHloubkaZahl.text(),
                window.txtObjAkum[FacilityType::Shaft].text(),
                window.txtSoucFiltrPruleh[FacilityType::Shaft].text()};
    }
};

TEST_F(Shaft, SufficientFilter) {
    project.site("70", "1e-4");
    shaft("1", "0.1");
    EXPECT_THAT(shown(), ElementsAre("", "", "", "", "", ""));
    project.calculate();
    EXPECT_THAT(shown(), ElementsAre("1.41", "3.34", "2.91", "4.41", "0.02", "4.8E-04"));
    EXPECT_THAT(project.messages(), ElementsAre(kSufficient));
    EXPECT_EQ(project.pickedRain(), "30 min, 100 l/s.ha");
    // What has a change rule is stored as it is shown, what has none as it was computed.
    EXPECT_EQ(values.txtVsakPlocha, 3.34F);
    EXPECT_EQ(values.txtPotrHloubkaZahl, 4.41F);
    EXPECT_EQ(values.txtSoucFiltrPruleh, 4.8e-4F);
    EXPECT_EQ(values.txtVyskaVzduti, 1.405351161956787F);
    EXPECT_EQ(values.txtHloubkaSachty, 2.905351161956787F);
}

TEST_F(Shaft, SandLayerMakesTheShaftDeeper) {
    project.site("70", "1e-4");
    shaft("1", "0.1");
    project.click(window.optSelTypPudy5[1]);
    project.set(window.txtVyskaPiskVrstvy, "0.4");
    project.calculate();
    EXPECT_THAT(shown(), ElementsAre("1.41", "3.34", "3.31", "4.41", "0.02", "4.8E-04"));
    EXPECT_THAT(project.messages(), ElementsAre(kSufficient));
    // Back to type A: the layer keeps its value but does not count.
    project.click(window.optSelTypPudy5[0]);
    EXPECT_EQ(window.txtVyskaPiskVrstvy.text(), "0.4");
    EXPECT_EQ(values.txtVyskaPiskVrstvy, 0.4F);
    EXPECT_FALSE(window.txtVyskaPiskVrstvy.enabled());
    EXPECT_TRUE(window.txtVyskaPiskVrstvy.greyed());
    project.calculate();
    EXPECT_EQ(window.txtHloubkaSachty.text(), "2.91");
}

TEST_F(Shaft, SeveralShaftsActAsOneOfTheirJoinedDiameter) {
    project.site("300", "1e-4");
    shaft("1", "0.1");
    project.set(window.txtSachtyCount, "2");
    project.calculate();
    EXPECT_THAT(shown(), ElementsAre("1.75", "7.27", "3.25", "4.75", "0.10", "5.6E-04"));
    EXPECT_EQ(project.pickedRain(), "45 min, 75 l/s.ha");
}

TEST_F(Shaft, PermeabilityIsJudgedAsItIsShown) {
    // 0.00104 shows as 1.0E-03 and is stored so: exactly the limit, which is sufficient.
    project.site("170", "1e-4");
    shaft("1", "0.12");
    project.calculate();
    EXPECT_THAT(shown(), ElementsAre("3.57", "6.82", "5.07", "6.57", "0.05", "1.0E-03"));
    EXPECT_EQ(values.txtSoucFiltrPruleh, 0.001F);
    EXPECT_THAT(project.messages(), ElementsAre(kSufficient));
}

TEST_F(Shaft, FilterTooPermeable) {
    project.site("200", "1e-4");
    shaft("1", "0.1");
    project.calculate();
    EXPECT_THAT(shown(), ElementsAre("4.29", "7.87", "5.79", "7.29", "0.06", "1.2E-03"));
    EXPECT_THAT(project.messages(), ElementsAre(kTooPermeable));
}

TEST_F(Shaft, GroundwaterIsComparedWithTheDepthAsItIsShown) {
    project.site("70", "1e-4");
    // 4.408 m lies under the required 4.4054 m, but above the 4.41 m that are shown.
    project.set(window.txtHPV, "4.408");
    shaft("1", "0.1");
    project.calculate();
    EXPECT_THAT(project.messages(), ElementsAre(kGroundwater));
    EXPECT_THAT(shown(), ElementsAre("1.41", "3.34", "2.91", "4.41", "0.02", "4.8E-04"));

    project.tab(kTabInputs);
    project.set(window.txtHPV, "4.41");
    project.choose(FacilityType::Shaft);
    project.calculate();
    EXPECT_THAT(project.messages(), ElementsAre(kSufficient));
}

TEST_F(Shaft, SignOfTheGroundwaterDoesNotMatter) {
    project.site("70", "1e-4");
    project.set(window.txtHPV, "-3");
    shaft("1", "0.1");
    project.calculate();
    EXPECT_THAT(project.messages(), ElementsAre(kGroundwater));

    project.tab(kTabInputs);
    project.set(window.txtHPV, "-5");
    project.choose(FacilityType::Shaft);
    project.calculate();
    EXPECT_THAT(project.messages(), ElementsAre(kSufficient));
}

TEST_F(Shaft, BottomIsTooCloseAlsoWithoutGroundwater) {
    // A filter of 2 m and 0.5 m of clearance are more than a seepage path of 2 m.
    project.site("70", "1e-4");
    shaft("1", "0.1", "2");
    project.calculate();
    EXPECT_EQ(values.txtHPV, 0.0F);
    EXPECT_THAT(project.messages(), ElementsAre(kBottom));
    EXPECT_EQ(window.txtSoucFiltrPruleh[FacilityType::Shaft].text(), "4.8E-04");
}

TEST_F(Shaft, GroundwaterStopsBeforeTheBottomIsLookedAt) {
    project.site("70", "1e-4");
    project.set(window.txtHPV, "1");
    shaft("1", "0.1", "2");
    project.calculate();
    EXPECT_THAT(project.messages(), ElementsAre(kGroundwater));
}

TEST_F(Shaft, RoundedRequiredDepthDecidesAtTheLimit) {
    // Filter 1 m plus 0.5 m is just the path of 1.5 m. Level 2.0606: 4.5606 m against the 4.56 m shown.
    project.site("100", "1e-4");
    shaft("1", "0.1", "1", "1.5");
    project.calculate();
    EXPECT_THAT(shown(), ElementsAre("2.06", "4.37", "4.06", "4.56", "0.03", "6.4E-04"));
    EXPECT_THAT(project.messages(), ElementsAre(kBottom));
    // Level 2.7282: 5.2282 m against 5.23 m.
    project.area("130");
    project.choose(FacilityType::Shaft);
    project.calculate();
    EXPECT_THAT(shown(), ElementsAre("2.73", "5.42", "4.73", "5.23", "0.04", "8.0E-04"));
    EXPECT_THAT(project.messages(), ElementsAre(kSufficient));
}

TEST_F(Shaft, WithoutAPositiveLevelTheAreaIsThatOfTheBottom) {
    // pi x 1.2^2 / 4 = 1.13
    project.site("70", "1", kStorm, 3);
    shaft("1", "0.1");
    project.calculate();
    EXPECT_EQ(shown()[0], "0.00");
    EXPECT_EQ(shown()[1], "1.13");
    EXPECT_EQ(project.pickedRain(), "15 min, 160 l/s.ha");
    EXPECT_THAT(project.messages(), ElementsAre(kTooPermeable));
}

TEST_F(Shaft, WithoutDurationsTheAreaIsThatOfTheBottom) {
    const std::vector<TypedRain> no_durations(9, TypedRain{"0", "100"});
    project.site("70", "1e-4", no_durations);
    shaft("1", "0.1");
    project.calculate();
    EXPECT_THAT(shown(), ElementsAre("0.00", "1.13", "1.50", "3.00", "0.00", "1.4E-04"));
    EXPECT_EQ(project.pickedRain(), "0 min, 0 l/s.ha");
}

TEST_F(Shaft, FilterCoefficientIsOverwrittenForTheCombinedObjectToo) {
    project.site("70", "1e-4");
    project.choose(FacilityType::SwaleTrench);
    project.set(window.txtSoucFiltrPruleh[FacilityType::SwaleTrench], "2e-5");
    shaft("1", "0.1");
    project.calculate();
    EXPECT_EQ(window.txtSoucFiltrPruleh[FacilityType::SwaleTrench].text(), "2e-5");
    EXPECT_EQ(values.txtSoucFiltrPruleh, 4.8e-4F);
}

TEST_F(Shaft, SafetyFactorRunsTheBalanceButNotTheDesign) {
    project.site("70", "1e-4");
    shaft("1", "0.1");
    project.set(window.txtSoucBezp[FacilityType::Shaft], "1");
    project.set(window.txtSoucBezp[FacilityType::Shaft], "1.2");
    EXPECT_THAT(shown(), ElementsAre("1.41", "3.34", "2.91", "4.41", "", ""));
    EXPECT_THAT(project.messages(), IsEmpty());
}

}  // namespace
}  // namespace mero::forms::test
