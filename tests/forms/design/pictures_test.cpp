// SPDX-License-Identifier: MIT
/// The pictures beside the results: the marked rain is the one that the calculation picked, the section has
/// the dimensions of the fields, and looking at them changes nothing.
#include "forms/calc/pictures.h"

#include "forms/design/design_fixture.h"
#include "platform/numbers/number_text.h"

namespace mero::forms::test {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;

class Pictures : public DesignTest {
  protected:
    /// "30 min" of the marked rain; its position must be that of the picked rain, too.
    std::string markedRain(FacilityType type) {
        const picture::Chart chart = balanceChart(window, type);
        if (!chart.marked) {
            return "none: " + chart.hint;
        }
        EXPECT_EQ(chart.note, "") << "the bar is as high as the field says";
        EXPECT_EQ(values.DobaTrvani[*chart.marked], values.VybranaDoba);
        EXPECT_EQ(values.IntenzitaDeste[*chart.marked], values.VybranaIntenzita);
        return chart.points[*chart.marked].label + " min";
    }
    /// The dimensions of the section: "name value".
    std::vector<std::string> dimensions(FacilityType type) {
        std::vector<std::string> texts;
        for (const picture::Dimension& dimension : facilitySection(window, type).dimensions) {
            texts.push_back(dimension.name + " " + dimension.value);
        }
        return texts;
    }
    void shaft() {
        project.choose(FacilityType::Shaft);
        project.click(window.optSelTypSachty[0]);
        project.set(window.txtPrumerSachtyVnit, "1");
        project.set(window.txtTloustkaSteny, "0.1");
        project.set(window.txtNezamrzHlPritok, "1");
        project.set(window.txtVyskaFiltrVrstvy, "0.5");
        project.set(window.txtMinPrusakDraha, "2");
    }
    void tank() {
        project.chooseTank();
        project.set(window.txtSpecMeroIntenz, "10");
        project.set(window.txtDelkaDnaNadrz, "20");
        project.set(window.txtSirkaDnaNadrz, "10");
        project.set(window.txtHloubkaNadrz, "1");
        project.set(window.txtSklonSvahuNadrz, "2");
    }
    void combined() {
        project.choose(FacilityType::SwaleTrench);
        project.set(window.txtSoucFiltrPruleh[FacilityType::SwaleTrench], "1e-4");
        project.set(window.txtSirkaRyhy[FacilityType::SwaleTrench], "0.5");
        project.set(window.txtVyskaRyhy[FacilityType::SwaleTrench], "0.5");
    }
    void trench() {
        project.choose(FacilityType::Trench);
        project.set(window.txtSirkaRyhy[FacilityType::Trench], "1");
        project.set(window.txtVyskaRyhy[FacilityType::Trench], "1.5");
    }
};

TEST_F(Pictures, SurfaceMarksTheRainThatTheUserPicked) {
    project.site("1000", "1e-4", kStorm, 3);
    project.choose(FacilityType::Surface);
    EXPECT_EQ(markedRain(FacilityType::Surface), "15 min");
    EXPECT_EQ(balanceChart(window, FacilityType::Surface).marked_text,
              window.txtVsakPlocha[FacilityType::Surface].text() + " m²");
}

TEST_F(Pictures, SwaleMarksItsCriticalRain) {
    project.site("500", "1e-5");
    project.choose(FacilityType::Swale);
    project.click(window.optSelTypPudy2[0]);
    EXPECT_EQ(markedRain(FacilityType::Swale), numbers::general(values.VybranaDoba) + " min");
    EXPECT_EQ(balanceChart(window, FacilityType::Swale).marked_text,
              window.txtObjAkum[FacilityType::Swale].text() + " m³");
    EXPECT_THAT(dimensions(FacilityType::Swale),
                Contains("vzdutí " + window.txtVyskaVzduti[FacilityType::Swale].text() + " m"));
}

TEST_F(Pictures, CombinedObjectMarksTheRainOfItsTrench) {
    project.site("500", "1e-5");
    combined();
    EXPECT_EQ(facilitySection(window, FacilityType::SwaleTrench).hint, "Řez se nakreslí po výpočtu.");
    EXPECT_EQ(balanceChart(window, FacilityType::SwaleTrench).hint, "Bilance dešťů se nakreslí po výpočtu.");
    project.calculate();
    EXPECT_EQ(markedRain(FacilityType::SwaleTrench), "120 min");
    EXPECT_EQ(balanceChart(window, FacilityType::SwaleTrench).marked_text, "85.9 m");
    EXPECT_THAT(dimensions(FacilityType::SwaleTrench),
                ::testing::ElementsAre("průleh 0.16 m", "výška rýhy 0.5 m", "šířka 0.5 m"));
}

TEST_F(Pictures, CombinedObjectMarksTheRainOfItsSwaleWhenTheOutflowTakesTheRest) {
    project.site("500", "1e-5");
    combined();
    project.click(window.chkSelPretok[FacilityType::SwaleTrench]);
    project.set(window.txtPrumTroubVnej[FacilityType::SwaleTrench], "100");
    project.set(window.txtPrumTroubVnit[FacilityType::SwaleTrench], "80");
    project.set(window.txtSpecDrenOdtok[FacilityType::SwaleTrench], "1000");
    project.click(window.cmdOK[FacilityType::SwaleTrench]);
    project.calculate();
    ASSERT_EQ(window.txtDelkaRyhy[FacilityType::SwaleTrench].text(), "0.0");
    EXPECT_EQ(markedRain(FacilityType::SwaleTrench), numbers::general(values.VybranaDoba) + " min");
    EXPECT_EQ(balanceChart(window, FacilityType::SwaleTrench).marked_text,
              window.txtObjAkum[FacilityType::SwaleTrench].text() + " m³");
    EXPECT_FALSE(facilitySection(window, FacilityType::SwaleTrench).drawable())
        << "there is no trench to draw";
}

TEST_F(Pictures, TrenchMarksItsCriticalRainWithAndWithoutADrain) {
    project.site("500", "1e-5");
    trench();
    project.calculate();
    EXPECT_EQ(markedRain(FacilityType::Trench), "120 min");
    EXPECT_EQ(balanceChart(window, FacilityType::Trench).marked_text, "25.9 m");
    EXPECT_TRUE(facilitySection(window, FacilityType::Trench).pipes.empty());

    project.click(window.chkSelPretok[FacilityType::Trench]);
    project.set(window.txtPrumTroubVnit[FacilityType::Trench], "180");
    project.set(window.txtPrumTroubVnej[FacilityType::Trench], "200");
    project.set(window.txtPocetPotrubi[FacilityType::Trench], "2");
    project.click(window.cmdOK[FacilityType::Trench]);
    project.calculate();
    EXPECT_EQ(markedRain(FacilityType::Trench), numbers::general(values.VybranaDoba) + " min");
    EXPECT_EQ(facilitySection(window, FacilityType::Trench).pipes.size(), 2U);
}

TEST_F(Pictures, ShaftMarksItsCriticalRain) {
    project.site("70", "1e-4");
    shaft();
    project.calculate();
    EXPECT_EQ(markedRain(FacilityType::Shaft), "30 min");
    EXPECT_EQ(balanceChart(window, FacilityType::Shaft).marked_text, "1.41 m");
    EXPECT_THAT(
        dimensions(FacilityType::Shaft),
        ::testing::ElementsAre("přítok 1 m", "vzdutí 1.41 m", "filtr 0.5 m", "hloubka 2.91 m", "⌀ 1 m"));
    EXPECT_EQ(facilitySection(window, FacilityType::Shaft).levels.at(0).text, "HPV ≥ 4.41 m");
}

TEST_F(Pictures, ShaftOfTypeBHasItsSand) {
    project.site("70", "1e-4");
    shaft();
    project.click(window.optSelTypPudy5[1]);
    project.set(window.txtVyskaPiskVrstvy, "0.3");
    project.calculate();
    EXPECT_THAT(dimensions(FacilityType::Shaft), Contains("písek 0.3 m"));
}

TEST_F(Pictures, ARectangularShaftHasItsOwnSides) {
    project.site("70", "1e-4");
    shaft();
    project.click(window.optSelTypSachty[1]);
    project.set(window.txtPrumerSachtyVnit, "1");
    project.set(window.txtPrumerSachtyVnej, "1.5");
    project.set(window.txtTloustkaSteny, "0.1");
    project.calculate();
    EXPECT_THAT(facilitySection(window, FacilityType::Shaft).notes,
                Contains("šachta 1 × 1.5 m, stěna 0.1 m"));
    EXPECT_EQ(markedRain(FacilityType::Shaft), numbers::general(values.VybranaDoba) + " min");
}

TEST_F(Pictures, TankMarksItsCriticalRainThoughItsFlowShowsTwoDecimals) {
    project.site("5000", "1e-4");
    tank();
    project.calculate();
    EXPECT_EQ(window.txtVsakTok.text(), "0.01") << "0.005 m3/s";
    EXPECT_EQ(markedRain(FacilityType::Tank), "90 min");
    EXPECT_EQ(balanceChart(window, FacilityType::Tank).marked_text, "113.40 m³");
    EXPECT_THAT(dimensions(FacilityType::Tank), Contains("nahoře 14.00 m"));
}

TEST_F(Pictures, ChangedInputsAreToldUntilTheNextCalculation) {
    project.site("500", "1e-5");
    trench();
    project.calculate();
    project.set(window.txtSirkaRyhy[FacilityType::Trench], "2");
    EXPECT_EQ(balanceChart(window, FacilityType::Trench).note, "vstupy se od výpočtu změnily");
    EXPECT_THAT(dimensions(FacilityType::Trench), Contains("šířka 2 m"));
    project.calculate();
    EXPECT_EQ(balanceChart(window, FacilityType::Trench).note, "");
}

TEST_F(Pictures, AResultThatIsNoNumberIsNone) {
    project.site("500", "1e-5");
    trench();
    project.calculate();
    project.set(window.txtDelkaRyhy[FacilityType::Trench], "abc");
    EXPECT_EQ(facilitySection(window, FacilityType::Trench).hint, "Řez se nakreslí po výpočtu.");
}

TEST_F(Pictures, TellTheGroundwaterOfTheSite) {
    project.set(window.txtHPV, "2.5");
    project.site("500", "1e-5");
    trench();
    project.calculate();
    EXPECT_THAT(facilitySection(window, FacilityType::Trench).summary,
                HasSubstr("hladina podzemní vody 2.5 m"));
}

TEST_F(Pictures, TheRainDialogTellsItsTableWhileItIsEdited) {
    project.rains(kStorm, 4);
    project.click(window.cmdEdit[0]);
    EXPECT_EQ(window.intDialog.rains()[3], (calc::Rain{20, 130}));
    EXPECT_EQ(window.intDialog.pickedRain(), (calc::Rain{20, 130}));
    project.cell(window.intDialog.fgIntDeste, 4, 1);
    project.set(window.intDialog.txtSChange, "99");
    EXPECT_EQ(window.intDialog.rains()[3], (calc::Rain{20, 99}));
    EXPECT_EQ(window.intDialog.pickedRain(), (calc::Rain{20, 130})) << "picked before the edit";
}

}  // namespace
}  // namespace mero::forms::test
