// SPDX-License-Identifier: MIT
// Surface infiltration, computed live, and what happens while no type is chosen.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/test_program.h"

namespace mero::forms {
namespace {

using test::TestProgram;
using testing::ElementsAre;
using testing::IsEmpty;

struct SurfaceTypeTest : testing::Test {
    TestProgram p;
    frmCalc& w = p.window();
    const data::modPublicVariables& v = p.values();
};

TEST_F(SurfaceTypeTest, TheAreaIsShownWithOneDecimalAndStoredAsShown) {
    p.giveSite();
    p.chooseType(FacilityType::Surface);
    // 1000 / (1e-4 * 1e7 / 300 - 1) = 1000 * 3 / 7
    EXPECT_EQ(w.txtVsakPlocha[1].text(), "428.6");
    EXPECT_EQ(v.txtVsakPlocha, 428.6F);
    EXPECT_THAT(p.desk.messages, IsEmpty()) << "surface infiltration has no verdict";
}

TEST_F(SurfaceTypeTest, ANegativeAreaIsShownAsItStands) {
    p.giveRain("100");
    p.giveArea("1000");
    p.paste(w.txtSoucFiltrace, "1e-5");
    p.chooseType(FacilityType::Surface);
    EXPECT_EQ(w.txtVsakPlocha[1].text(), "-2 000.0");
    EXPECT_EQ(v.txtVsakPlocha, -2000.0F) << "read back through its own field";
}

TEST_F(SurfaceTypeTest, WithoutAFiltrationTheFormulaIsAppliedAllTheSame) {
    p.giveRain("100");
    p.giveArea("1000");
    p.chooseType(FacilityType::Surface);
    EXPECT_EQ(w.txtVsakPlocha[1].text(), "-1 000.0");
}

TEST_F(SurfaceTypeTest, WithoutAnAreaItIsZero) {
    p.giveRain("100");
    p.paste(w.txtSoucFiltrace, "1e-4");
    p.chooseType(FacilityType::Surface);
    EXPECT_EQ(w.txtVsakPlocha[1].text(), "0.0");
}

TEST_F(SurfaceTypeTest, WithoutARainTheTypeIsTakenBack) {
    p.giveArea("1000");
    p.paste(w.txtSoucFiltrace, "1e-4");
    p.desk.take();
    p.chooseType(FacilityType::Surface);
    EXPECT_THAT(p.desk.take(), ElementsAre("exclamation [Chyba]: Intenzita návrhového deště není zadána"));
    EXPECT_EQ(w.SelectedType, FacilityType::None);
    EXPECT_EQ(w.cboSelType.position(), 0);
    EXPECT_TRUE(w.optSelType[0].selected());
    EXPECT_EQ(v.txtVsakPlocha, 0.0F);
    EXPECT_EQ(w.txtVsakPlocha[1].text(), "0.0");
    w.picResults.forEach([](int type, platform::Panel& panel) { EXPECT_FALSE(panel.visible()) << type; });
}

TEST_F(SurfaceTypeTest, AZeroDenominatorIsReportedAndTheProgramGoesOn) {
    // kf = 2^-13 m/s and i = kf * 1e7 / 2 are exact in single precision, so the quotient is exactly 1.
    p.giveRain("610.3515625");
    p.giveArea("1000");
    p.paste(w.txtSoucFiltrace, "0.0001220703125");
    p.desk.take();
    p.chooseType(FacilityType::Surface);
    EXPECT_THAT(p.desk.take(), ElementsAre("error 11"));
    EXPECT_FALSE(p.program.ended());
    EXPECT_EQ(w.txtVsakPlocha[1].text(), "0") << "what was written before the error stays";
    p.paste(w.txtSoucFiltrace, "1e-3");
    p.chooseType(FacilityType::Surface);
    // 1000 / (1e4 / 1220.703125 - 1) = 139.04...
    EXPECT_EQ(w.txtVsakPlocha[1].text(), "139.0");
}

TEST_F(SurfaceTypeTest, ChoosingNoTypeStoresNoArea) {
    p.giveSite();
    p.chooseType(FacilityType::Surface);
    EXPECT_EQ(v.txtVsakPlocha, 428.6F);
    p.click(w.optSelType[0]);
    EXPECT_EQ(v.txtVsakPlocha, 0.0F);
    EXPECT_EQ(w.txtVsakPlocha[1].text(), "428.6") << "the hidden field is not touched";
}

}  // namespace
}  // namespace mero::forms
