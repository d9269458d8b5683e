// SPDX-License-Identifier: MIT
/// Surface infiltration: computed while the inputs change, nothing to press.
/// Numbers: see expected.py.
#include "forms/design/design_fixture.h"

namespace mero::forms::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Surface : public DesignTest {
  protected:
    /// The rain of 15 min is picked.
    void compute(const std::string& area_m2, const std::string& coefficient, const std::string& intensity) {
        project.site(area_m2, coefficient, {{"15", intensity}}, 1);
        project.choose(FacilityType::Surface);
    }
    [[nodiscard]] const std::string& shown() { return window.txtVsakPlocha[FacilityType::Surface].text(); }
};

TEST_F(Surface, AreaIsStoredAsItIsShown) {
    // 1000 / (1000/300 - 1) = 428.5714
    compute("1000", "1e-4", "150");
    EXPECT_EQ(shown(), "428.6");
    EXPECT_EQ(values.txtVsakPlocha, 428.6F);
    EXPECT_EQ(project.shownType(), FacilityType::Surface);
    EXPECT_THAT(project.messages(), IsEmpty());
}

TEST_F(Surface, AreaIsNegativeWhereTheSoilIsTooSlow) {
    // 1000 / (100/200 - 1) = -2000
    compute("1000", "1e-5", "100");
    EXPECT_EQ(shown(), "-2 000.0");
    EXPECT_EQ(values.txtVsakPlocha, -2000.0F);
}

TEST_F(Surface, GroupedAreaIsReadBack) {
    compute("2881", "1e-4", "150");
    EXPECT_EQ(shown(), "1 234.7");
    EXPECT_EQ(values.txtVsakPlocha, 1234.7F);
}

TEST_F(Surface, SafetyFactorComputesAgainButDoesNotMatter) {
    compute("1000", "1e-4", "150");
    project.set(window.txtVsakPlocha[FacilityType::Surface], "7");
    project.set(window.txtSoucBezp[FacilityType::Surface], "3");
    EXPECT_EQ(shown(), "428.6");
    // Emptied: nothing is computed.
    project.set(window.txtVsakPlocha[FacilityType::Surface], "7");
    project.clear(window.txtSoucBezp[FacilityType::Surface]);
    EXPECT_EQ(shown(), "7");
    // Refused: the field is empty, zero is stored, and it is computed.
    project.type(window.txtSoucBezp[FacilityType::Surface], "x");
    EXPECT_EQ(window.txtSoucBezp[FacilityType::Surface].text(), "");
    EXPECT_EQ(values.txtSoucBezp, 0.0F);
    EXPECT_EQ(shown(), "428.6");
}

TEST_F(Surface, WithoutRainGoesBackToThePrompt) {
    project.area("1000");
    project.filtration("1e-4");
    project.choose(FacilityType::Surface);
    EXPECT_THAT(project.messages(),
                ElementsAre(exclamation("Intenzita návrhového deště není zadána", "Chyba")));
    EXPECT_EQ(project.shownType(), FacilityType::None);
    EXPECT_EQ(window.SelectedType, FacilityType::None);
    EXPECT_EQ(window.cboSelType.text(), "[Vyber typ zasakování]");
    EXPECT_TRUE(window.optSelType[0].selected());
    EXPECT_EQ(shown(), "0.0");
    EXPECT_EQ(values.txtVsakPlocha, 0.0F);
}

TEST_F(Surface, NegativeRainIsNoRain) {
    // It sums up to a table that is not empty, but nothing of it goes to the main window.
    compute("1000", "1e-4", "-150");
    EXPECT_EQ(project.messages().size(), 1U);
    EXPECT_EQ(project.shownType(), FacilityType::None);
}

}  // namespace
}  // namespace mero::forms::test
