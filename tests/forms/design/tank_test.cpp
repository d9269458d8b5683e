// SPDX-License-Identifier: MIT
/// Infiltration tanks: required storage against the volume of the shape, then the proof of the flow.
/// Numbers: see expected.py.
#include "forms/calc/tank_flow.h"
#include "forms/design/design_fixture.h"

namespace mero::forms::test {
namespace {

using ::testing::ElementsAre;

const MessageBox kTooSmall =
    exclamation("Vypočítaný objem nádrže je menší než nutná akumulace. Zvětšete rozměry nádrže.");
const MessageBox kVolume = information("Objem nádrže je dostačující.");
const MessageBox kProven = information("Průkaz předpokladu vsakovacího toku je v pořádku.");
const MessageBox kExceeded = exclamation("Vsakovací tok přesahuje průměrný vsakovací tok.");

class Tank : public DesignTest {
  protected:
    void tank(const std::string& intensity, const std::string& length, const std::string& width,
              const std::string& depth, const std::string& slope) {
        project.chooseTank();
        project.set(window.txtSpecMeroIntenz, intensity);
        project.set(window.txtDelkaDnaNadrz, length);
        project.set(window.txtSirkaDnaNadrz, width);
        project.set(window.txtHloubkaNadrz, depth);
        project.set(window.txtSklonSvahuNadrz, slope);
    }
    /// Infiltration flow, required storage, volume as shown.
    std::vector<std::string> shown() {
        return {window.txtVsakTok.text(), window.txtObjAkum[FacilityType::Tank].text(),
                window.txtVypObjNadrz.text()};
    }
};

TEST_F(Tank, CloggedBottomTakesAFifth) {
    project.site("5000", "1e-4");
    tank("10", "20", "10", "1", "2");
    project.calculate();
    EXPECT_THAT(shown(), ElementsAre("0.01", "113.40", "265.08"));
    // Mean of bottom 20 x 10 and top 24 x 14 at half of 2e-5: 0.0027 m3/s for an assumed 0.005.
    EXPECT_THAT(project.messages(), ElementsAre(kVolume, kExceeded));
    EXPECT_EQ(project.pickedRain(), "90 min, 45 l/s.ha");
}

TEST_F(Tank, ItsFlowIsToldInLitresToo) {
    // 10 l/(s.ha) x 10 152 m2 = 10.152 l/s, which its box rounds to 0.01 m3/s.
    project.site("10152", "1e-4");
    tank("10", "20", "10", "1", "2");
    EXPECT_EQ(tankFlowInLitres(window), "");
    project.calculate();
    EXPECT_EQ(window.txtVsakTok.text(), "0.01");
    EXPECT_EQ(tankFlowInLitres(window), "= 10.15 l/s");
}

TEST_F(Tank, SettlingBeforeItCountsInFull) {
    project.site("5000", "1e-4");
    tank("10", "20", "10", "1", "2");
    project.click(window.chkPredUsaz);
    project.calculate();
    EXPECT_THAT(project.messages(), ElementsAre(kVolume, kProven));
    EXPECT_THAT(shown(), ElementsAre("0.01", "113.40", "265.08"));
}

TEST_F(Tank, TooSmallStopsBeforeTheProof) {
    project.site("5000", "1e-4");
    tank("10", "10", "5", "1", "0");
    project.calculate();
    EXPECT_THAT(shown(), ElementsAre("0.01", "113.40", "50.00"));
    EXPECT_THAT(project.messages(), ElementsAre(kTooSmall));
}

TEST_F(Tank, VerticalSidesMakeAPrism) {
    // 1 x 20 x 10
    project.site("5000", "1e-4");
    tank("1", "20", "10", "1", "0");
    project.calculate();
    EXPECT_THAT(shown(), ElementsAre("0.00", "151.20", "200.00"));
    EXPECT_THAT(project.messages(), ElementsAre(kVolume, kProven));
}

TEST_F(Tank, EqualVolumeIsEnough) {
    // (1000 x 201e-7 - 0.0001) m3/s for 600 s are 12 m3, as are 4 x 3 x 1.
    project.site("1000", "1e-4", {{"10", "201"}});
    tank("1", "4", "3", "1", "0");
    project.set(window.txtSoucBezp[FacilityType::Tank], "1");
    project.calculate();
    EXPECT_EQ(values.txtObjAkum, values.txtVypObjNadrz);
    EXPECT_THAT(project.messages(), ElementsAre(kVolume, kProven));
}

TEST_F(Tank, FlowThatKeepsUpNeedsNoStorage) {
    project.site("5000", "1e-4", kStorm, 3);
    tank("1000", "20", "10", "1", "0");
    project.calculate();
    EXPECT_THAT(shown(), ElementsAre("0.50", "0.00", "200.00"));
    EXPECT_THAT(project.messages(), ElementsAre(kVolume, kExceeded));
    EXPECT_EQ(project.pickedRain(), "15 min, 160 l/s.ha");
}

TEST_F(Tank, NothingIsComputedWhileTyping) {
    project.site("5000", "1e-4");
    tank("10", "20", "10", "1", "2");
    project.set(window.txtSoucBezp[FacilityType::Tank], "1.5");
    EXPECT_THAT(shown(), ElementsAre("", "", ""));
    project.calculate();
    project.set(window.txtDelkaDnaNadrz, "50");
    project.click(window.chkPredUsaz);
    EXPECT_EQ(window.txtVypObjNadrz.text(), "265.08");
}

}  // namespace
}  // namespace mero::forms::test
