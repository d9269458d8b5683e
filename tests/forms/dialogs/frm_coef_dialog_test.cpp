// SPDX-License-Identifier: MIT
// The soil dialog: picking a row, the coefficient that counts from the click on, the two fields at OK.
#include "forms/dialogs/frm_coef_dialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/test_program.h"

namespace mero::forms {
namespace {

using test::TestProgram;
using testing::ElementsAre;

struct CoefDialogTest : testing::Test {
    CoefDialogTest() { p.click(p.window().cmdEdit[2]); }
    TestProgram p;
    frmCoefDialog& d = p.soilDialog();
    platform::Grid& grid = d.fgCoefProp;
    frmCalc& w = p.window();
};

TEST_F(CoefDialogTest, ShowsEightSoilsWithTheirCoefficients) {
    EXPECT_THAT(
        grid.rows(),
        ElementsAre(ElementsAre("typ půdy", "souč. filtrace [m/s]", "Výběr"),
                    ElementsAre("Jemný a střední štěrk", "7.0E-04", ""),
                    ElementsAre("Písčitý štěrk", "4.0E-04", ""), ElementsAre("Hrubý písek", "1.0E-04", ""),
                    ElementsAre("Střední písek", "2.0E-05", ""), ElementsAre("Jemný písek", "5.0E-05", ""),
                    ElementsAre("Zasiltovaný písek", "1.0E-06", ""), ElementsAre("Silt", "5.0E-06", ""),
                    ElementsAre("Zajílovaný silt", "1.0E-07", "")));
    EXPECT_DOUBLE_EQ(grid.columns()[0].width_fraction, 0.4);
    EXPECT_DOUBLE_EQ(grid.columns()[2].width_fraction, 0.2);
    EXPECT_EQ(grid.columns()[1].cells, platform::Alignment::Centre);
    EXPECT_EQ(grid.columns()[0].cells, platform::Alignment::Left);
}

TEST_F(CoefDialogTest, OkIsDisabledUntilARowIsTicked) {
    EXPECT_FALSE(d.cmdOK.enabled());
    p.cell(grid, 4, 0);
    EXPECT_FALSE(d.cmdOK.enabled());
    p.cell(grid, 4, 2);
    EXPECT_TRUE(d.cmdOK.enabled());
}

TEST_F(CoefDialogTest, MediumSandConfirmed) {
    p.cell(grid, 4, 2);
    p.click(d.cmdOK);
    EXPECT_EQ(w.txtSoucFiltrace.text(), "2.0E-05");
    EXPECT_EQ(w.txtTypPudyPodlozi.text(), "Střední písek");
    EXPECT_EQ(p.values().txtSoucFiltrace, 2e-5F);
    EXPECT_EQ(p.values().txtTypPudyPodlozi, "Střední písek");
    EXPECT_FALSE(d.visible());
    EXPECT_TRUE(w.enabled());
}

TEST_F(CoefDialogTest, EverySoilReachesTheMainWindow) {
    for (int row = 1; row <= 8; ++row) {
        p.click(w.cmdEdit[2]);
        p.cell(grid, row, 2);
        const auto cells = grid.rows()[static_cast<std::size_t>(row)];
        p.click(d.cmdOK);
        EXPECT_EQ(w.txtSoucFiltrace.text(), cells[1]);
        EXPECT_EQ(w.txtTypPudyPodlozi.text(), cells[0]);
    }
}

TEST_F(CoefDialogTest, TheLaterOfTwoTicksCountsAndStays) {
    p.cell(grid, 1, 2);
    p.cell(grid, 7, 2);
    EXPECT_EQ(grid.mark({1, 2}), std::optional(false)) << "it reads as a single choice";
    EXPECT_EQ(grid.mark({7, 2}), std::optional(true));
    p.click(d.cmdOK);
    EXPECT_EQ(w.txtTypPudyPodlozi.text(), "Silt");
    EXPECT_EQ(w.txtSoucFiltrace.text(), "5.0E-06");
}

TEST_F(CoefDialogTest, ClickingASoilsNameInAnotherRowDisablesOk) {
    p.cell(grid, 4, 2);
    p.cell(grid, 5, 0);
    EXPECT_FALSE(d.cmdOK.enabled());
    p.cell(grid, 5, 1);
    EXPECT_FALSE(d.cmdOK.enabled());
}

TEST_F(CoefDialogTest, ClosingWithoutOkKeepsTheClickedCoefficientBehindTheOldText) {
    p.close(d);
    p.paste(w.txtSoucFiltrace, "1e-3");
    p.click(w.cmdEdit[2]);
    p.cell(grid, 8, 2);
    EXPECT_EQ(p.values().txtSoucFiltrace, 1e-7F) << "from the click on";
    p.close(d);
    EXPECT_EQ(p.values().txtSoucFiltrace, 1e-7F);
    EXPECT_EQ(w.txtSoucFiltrace.text(), "1e-3");
    EXPECT_EQ(w.txtTypPudyPodlozi.text(), "");
    EXPECT_TRUE(w.enabled());
}

TEST_F(CoefDialogTest, OpeningAndClosingChangesNothing) {
    p.close(d);
    EXPECT_EQ(w.txtSoucFiltrace.text(), "");
    EXPECT_EQ(w.txtTypPudyPodlozi.text(), "");
    EXPECT_EQ(p.values().txtSoucFiltrace, 0.0F);
}

TEST_F(CoefDialogTest, ANewOpeningForgetsTheTicks) {
    p.cell(grid, 4, 2);
    p.close(d);
    p.click(w.cmdEdit[2]);
    EXPECT_EQ(grid.mark({4, 2}), std::nullopt);
    EXPECT_FALSE(d.cmdOK.enabled());
}

}  // namespace
}  // namespace mero::forms
