// SPDX-License-Identifier: MIT
/// The list of judgements: verdicts with the numbers compared, checks that passed silently, and what nobody
/// judged.
#include "forms/calc/judgements.h"

#include "forms/design/design_fixture.h"

namespace mero::forms::test {
namespace {

using enum FacilityType;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class Judgements : public DesignTest {
  protected:
    std::vector<std::string> lines(FacilityType type) {
        std::vector<std::string> texts;
        for (const Judgement& judgement : judgements(window, type)) {
            texts.push_back(line(judgement));
        }
        return texts;
    }
    void groundwater(const std::string& depth_m) {
        project.tab(kTabInputs);
        project.set(window.txtHPV, depth_m);
    }
    void shaft(const std::string& filter_m) {
        project.choose(Shaft);
        project.click(window.optSelTypSachty[0]);
        project.set(window.txtPrumerSachtyVnit, "1");
        project.set(window.txtTloustkaSteny, "0.1");
        project.set(window.txtNezamrzHlPritok, "1");
        project.set(window.txtVyskaFiltrVrstvy, filter_m);
        project.set(window.txtMinPrusakDraha, "2");
        project.calculate();
    }
    void tank(const std::string& length_m) {
        project.chooseTank();
        project.set(window.txtSpecMeroIntenz, "10");
        project.set(window.txtDelkaDnaNadrz, length_m);
        project.set(window.txtSirkaDnaNadrz, "10");
        project.set(window.txtHloubkaNadrz, "1");
        project.set(window.txtSklonSvahuNadrz, "0");
        project.calculate();
    }
};

TEST_F(Judgements, ThereAreNoneBeforeTheCalculation) {
    project.site("70", "1e-4");
    project.choose(Trench);
    EXPECT_THAT(lines(Trench), IsEmpty());
    EXPECT_EQ(countedRain(window, Trench), "");
}

// While a verdict's box is open, the result boxes show the new numbers, and the state is still the former
// one.
TEST_F(Judgements, AVerdictWhoseBoxIsStillOpenHasNoNumbersOfTheCalculationBefore) {
    project.site("70", "1e-4");
    tank("20");
    ASSERT_THAT(lines(Tank), Contains(HasSubstr("Objem nádrže je dostačující. ( 200.00")));
    window.record().begin(Tank);
    window.record().tell(Tank, {design::VerdictId::TankVolumeSufficient, {}});
    EXPECT_THAT(lines(Tank), ElementsAre("✓ Objem nádrže je dostačující."));
}

// Level 1.41 m (30 min, 100 l/(s.ha)); needed depth 1 + 1.41 + 2 = 4.41 m, bottom 1 + 1.41 + 0.5 = 2.91 m,
// filter (1.2^2 + 2 * 1.41 * 1.2) / 1^2 * 1e-4 = 4.8e-4 m/s.
TEST_F(Judgements, AShaftSaysWhatHoldsAndThatTheGroundwaterIsMissing) {
    project.site("70", "1e-4");
    shaft("0.5");
    EXPECT_THAT(lines(Shaft),
                ElementsAre("✓ Potřebná propustnost filtru je dostačující. ( 4.8E-04 ≤ 1.0E-03 m/s )",
                            "✓ Dno šachty je dost vysoko. ( 2.91 + 0.5 ≤ 4.41 m )",
                            "– Neposouzeno. Hladina podzemní vody: není zadána."));
    EXPECT_EQ(judgements(window, Shaft).back().field, &window.txtHPV);
}

TEST_F(Judgements, AShaftNamesTheGroundwaterThatIsDeepEnough) {
    project.site("70", "1e-4");
    groundwater("5");
    shaft("0.5");
    EXPECT_THAT(lines(Shaft), Contains("✓ Hladina podzemní vody leží dost hluboko. ( 5.00 m ≥ 4.41 m )"));
}

TEST_F(Judgements, TheSignOfTheGroundwaterDoesNotCountAndIsNotShown) {
    project.site("70", "1e-4");
    groundwater("-5");
    shaft("0.5");
    EXPECT_THAT(lines(Shaft), Contains("✓ Hladina podzemní vody leží dost hluboko. ( 5.00 m ≥ 4.41 m )"));
}

TEST_F(Judgements, AShaftThatStopsSaysWhatItDidNotReach) {
    project.site("70", "1e-4");
    groundwater("3");
    shaft("0.5");
    const auto found = lines(Shaft);
    EXPECT_THAT(found[0], HasSubstr("✗ Min. hloubka maximální hladiny podzemní vody je překročena."));
    EXPECT_THAT(found[0], HasSubstr("( 3.00 m < 4.41 m )"));
    EXPECT_THAT(found, Contains(HasSubstr("Neposouzeno. Dno šachty")));
    EXPECT_THAT(found, Contains(HasSubstr("Neposouzeno. Propustnost filtru")));
}

TEST_F(Judgements, AShaftWithAHighFilterFailsByItsBottom) {
    project.site("70", "1e-4");
    shaft("1.6");
    EXPECT_THAT(lines(Shaft)[0], HasSubstr("( 4.01 + 0.5 > 4.41 m )"));
}

// 10000 m2, 10 l/(s.ha): flow 10 l/s; the 90 min rain brings 45 l/s, so (45 - 10) * 0.001 * 5400 s * 1.2 is
// 226.80 m3, more than the 224.64 m3 of the longest rain. A tank of 30 x 10 x 1 m holds 300 m3 and soaks 300
// * 1e-4 / 5 / 2 * 1000 = 3 l/s.
TEST_F(Judgements, ATankComparesVolumesAndFlows) {
    project.site("10000", "1e-4");
    tank("30");
    EXPECT_THAT(lines(Tank),
                ElementsAre("✓ Objem nádrže je dostačující. ( 300.00 ≥ 226.80 m³ )",
                            "✗ Vsakovací tok přesahuje průměrný vsakovací tok. ( 3.00 < 10.00 l/s )",
                            "– Neposouzeno. Opakované plnění: nádrž je nutno ověřit dlouhodobou simulací.",
                            "– Neposouzeno. Hladina podzemní vody: není zadána."));
}

TEST_F(Judgements, ATankThatIsTooSmallHasNoProofOfItsFlow) {
    project.site("10000", "1e-4");
    tank("20");
    EXPECT_THAT(lines(Tank)[0], HasSubstr("( 200.00 < 226.80 m³ )"));
    EXPECT_THAT(lines(Tank),
                Contains("– Neposouzeno. Vsakovací tok: výpočet skončil předchozím posouzením."));
}

TEST_F(Judgements, ATrenchWithoutADrainStillSaysWhatWasNotJudged) {
    project.site("500", "1e-5");
    groundwater("4");
    project.choose(Trench);
    project.set(window.txtSirkaRyhy[Trench], "1");
    project.set(window.txtVyskaRyhy[Trench], "1.5");
    project.calculate();
    EXPECT_THAT(
        lines(Trench),
        ElementsAre("– Neposouzeno. Výstupní odtok: rýha je bez drenáže.",
                    "– Neposouzeno. Delší deště: rozhoduje nejdelší déšť tabulky (120 min), delší může "
                    "být horší.",
                    "– Neposouzeno. Hladina podzemní vody: program ji posuzuje jen u šachty."));
}

TEST_F(Judgements, RefusedInputsAreListed) {
    project.site("500", "1e-5");
    project.choose(Trench);
    project.calculate();
    EXPECT_THAT(lines(Trench), ElementsAre("✗ Výška rýhy je menší nebo rovna nule.",
                                           "✗ Šířka rýhy je menší nebo rovna nule.",
                                           "– Neposouzeno. Výpočet neproběhl celý, návrh není posouzen."));
}

TEST_F(Judgements, NegativeSurfaceAreasFail) {
    // 1e-5 m/s takes 1e-5 * 1e7 / 2 = 50 l/(s.ha); 160 l/(s.ha) falls.
    project.site("500", "1e-5", kStorm, 3);
    project.choose(Surface);
    EXPECT_THAT(lines(Surface)[0], HasSubstr("✗ Vsakovací plocha vyšla záporná"));
}

TEST_F(Judgements, TheRainThatCountedIsNamedBesideTheOneThatWasPicked) {
    project.site("70", "1e-4", kStorm, 3);
    shaft("0.5");
    EXPECT_EQ(countedRain(window, Shaft), "Počítáno s deštěm 30 min, 100 l/(s.ha), vybrán byl 15 min.");
    project.choose(Surface);
    EXPECT_EQ(countedRain(window, Surface), "Počítáno s deštěm 30 min, 100 l/(s.ha), vybrán byl 15 min.")
        << "the shaft's rain replaced the picked one";
}

TEST_F(Judgements, TheRainThatCountedStandsAloneWhenItIsThePickedOne) {
    project.site("500", "1e-4", kStorm, 3);
    project.choose(Surface);
    EXPECT_EQ(countedRain(window, Surface), "Počítáno s deštěm 15 min, 160 l/(s.ha).");
}

TEST_F(Judgements, WithoutAPickedRainItSaysSo) {
    project.site("70", "1e-4");
    shaft("0.5");
    EXPECT_EQ(countedRain(window, Shaft), "Počítáno s deštěm 30 min, 100 l/(s.ha), žádný nebyl vybrán.");
}

TEST_F(Judgements, ASoilThatTakesEveryRainNeedsNoStorage) {
    project.site("500", "1");
    project.choose(Swale);
    project.click(window.optSelTypPudy2[0]);
    EXPECT_EQ(countedRain(window, Swale), "Žádný déšť tabulky nevyžaduje akumulaci.");
    EXPECT_THAT(lines(Swale), Not(Contains(HasSubstr("Delší deště"))));
}

}  // namespace
}  // namespace mero::forms::test
