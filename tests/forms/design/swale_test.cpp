// SPDX-License-Identifier: MIT
/// Swales: area from the soil option, storage volume, depth and emptying time, all while the inputs change.
/// Numbers: see expected.py.
#include "forms/design/design_fixture.h"

namespace mero::forms::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Swale : public DesignTest {
  protected:
    /// Area, volume, depth, emptying time as shown.
    std::vector<std::string> shown() {
        return {window.txtVsakPlocha[FacilityType::Swale].text(),
                window.txtObjAkum[FacilityType::Swale].text(),
                window.txtVyskaVzduti[FacilityType::Swale].text(),
                window.txtDobaPrazdneni[FacilityType::Swale].text()};
    }
};

TEST_F(Swale, TenthOfTheAreaOnSand) {
    project.site("500", "1e-5");
    project.choose(FacilityType::Swale);
    EXPECT_TRUE(window.optSelTypPudy2[0].selected());
    EXPECT_THAT(shown(), ElementsAre("50.0", "14.9", "0.30", "16.6"));
    EXPECT_EQ(project.pickedRain(), "120 min, 36 l/s.ha");
    EXPECT_THAT(project.messages(), IsEmpty());
}

TEST_F(Swale, FifthOfTheAreaOnSilt) {
    project.site("500", "1e-5");
    project.choose(FacilityType::Swale);
    project.click(window.optSelTypPudy2[1]);
    EXPECT_THAT(shown(), ElementsAre("100.0", "14.3", "0.14", "8.0"));
    EXPECT_EQ(window.SoilVariant, 1);
    // Chosen once more, the type selects the soil of last time.
    project.choose(FacilityType::Swale);
    EXPECT_TRUE(window.optSelTypPudy2[1].selected());
    EXPECT_FALSE(window.optSelTypPudy2[0].selected());
    EXPECT_THAT(shown(), ElementsAre("100.0", "14.3", "0.14", "8.0"));
}

TEST_F(Swale, DepthFollowsFromTheAreaAsItIsShown) {
    // A tenth of 5.4 m2 is 0.54 m2; over that the water would stand 0.30 m high.
    project.site("5.4", "1e-5");
    project.choose(FacilityType::Swale);
    EXPECT_THAT(shown(), ElementsAre("0.5", "0.2", "0.32", "18.0"));
    EXPECT_EQ(values.txtVsakPlocha, 0.5F);
}

TEST_F(Swale, GroupedAreaComesBackThroughItsField) {
    project.site("12345", "1e-5");
    project.choose(FacilityType::Swale);
    EXPECT_THAT(shown(), ElementsAre("1 234.5", "369.0", "0.30", "16.6"));
    EXPECT_EQ(values.txtVsakPlocha, 1234.5F);
}

TEST_F(Swale, WithoutAreaItStaysEmptyAndSilent) {
    project.filtration("1e-5");
    project.rains(kStorm);
    project.choose(FacilityType::Swale);
    EXPECT_THAT(shown(), ElementsAre("", "", "", ""));
    EXPECT_EQ(values.txtVsakPlocha, 0.0F);
    EXPECT_THAT(project.messages(), IsEmpty());
    EXPECT_EQ(project.shownType(), FacilityType::Swale);
}

TEST_F(Swale, WithoutCoefficientThereIsNoEmptyingTime) {
    project.area("500");
    project.rains(kStorm);
    project.choose(FacilityType::Swale);
    EXPECT_THAT(shown(), ElementsAre("50.0", "17.1", "0.34", ""));
}

TEST_F(Swale, SafetyFactorIsAppliedOnceAndAtOnce) {
    project.site("500", "1e-5");
    project.choose(FacilityType::Swale);
    project.set(window.txtSoucBezp[FacilityType::Swale], "2");
    EXPECT_THAT(shown(), ElementsAre("50.0", "24.9", "0.50", "27.7"));
    project.set(window.txtSoucBezp[FacilityType::Swale], "0");
    EXPECT_THAT(shown(), ElementsAre("50.0", "0.0", "0.00", "0.0"));
    // An empty box stores 0 but computes nothing.
    project.set(window.txtSoucBezp[FacilityType::Swale], "2");
    project.clear(window.txtSoucBezp[FacilityType::Swale]);
    EXPECT_THAT(shown(), ElementsAre("50.0", "24.9", "0.50", "27.7"));
    EXPECT_EQ(values.txtSoucBezp, 0.0F);
}

TEST_F(Swale, SoilThatKeepsUpWithEveryRainNeedsNoVolume) {
    project.site("500", "1e-2", kStorm, 3);
    project.choose(FacilityType::Swale);
    EXPECT_THAT(shown(), ElementsAre("50.0", "0.0", "0.00", "0.0"));
    EXPECT_EQ(project.pickedRain(), "15 min, 160 l/s.ha");
}

TEST_F(Swale, LeavingTheTypeAndComingBackComputesAnew) {
    project.site("500", "1e-5");
    project.choose(FacilityType::Swale);
    project.select(window.cboSelType, 4);
    project.select(window.cboSelType, 2);
    EXPECT_THAT(shown(), ElementsAre("50.0", "14.9", "0.30", "16.6"));
}

}  // namespace
}  // namespace mero::forms::test
