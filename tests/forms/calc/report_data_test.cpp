// SPDX-License-Identifier: MIT
/// What the window's report shows: its stored texts and numbers, and the options as they are selected.
#include "forms/calc/report_data.h"

#include <gtest/gtest.h>

#include "design/quantity.h"
#include "forms/calc/frm_calc.h"
#include "support/fake_locale.h"
#include "support/fake_rain_database.h"
#include "support/recording_desk.h"

namespace mero::forms {
namespace {

struct ReportDataTest : testing::Test {
    ReportDataTest() { window.Form_Load(); }
    [[nodiscard]] report::ReportData data() const { return reportData(window, clock.now()); }

    test::RecordingDesk desk;
    platform::FrozenClock clock{{2026, 11, 20, 14, 5, 9}};
    test::FakeLocale locale;
    test::FakeRainDatabase rain;
    data::modPublicVariables v;
    frmCalc window{v, {desk, clock, locale, rain, "/f"}};
};

TEST_F(ReportDataTest, Project) {
    v.txtProjName = "název";
    v.txtDetails = "popis";
    v.txtTypPudyPodlozi = "hornina";
    window.SelectedType = FacilityType::Trench;
    const auto d = data();
    EXPECT_EQ(d.texts.txtProjName, "název");
    EXPECT_EQ(d.texts.txtDetails, "popis");
    EXPECT_EQ(d.texts.txtTypPudyPodlozi, "hornina");
    EXPECT_EQ(d.type, FacilityType::Trench);
    EXPECT_EQ(d.type_name, "Vsakování rýhové a kombinace rýhy a drénu");
    EXPECT_EQ(d.date, "20.11.2026");
    EXPECT_EQ(d.time, "14:05:09");
}

TEST_F(ReportDataTest, RainAndAreas) {
    v.VybranaStanice = "Brno";
    v.VybranaPeriodicita = "0.2";
    v.DobaTrvani[2] = 15.5F;
    v.IntenzitaDeste[2] = 142;
    v.DilciPlocha = data::OneBasedList<float>(3);
    v.OdtokovySoucinitel = data::OneBasedList<float>(3);
    v.TypPovrchu = data::OneBasedList<std::string>(3);
    v.DilciPlocha(2) = 70;
    v.OdtokovySoucinitel(2) = 0.5F;
    v.TypPovrchu(2) = "štěrk";
    v.DilciPlocha(3) = 99;
    const auto d = data();
    EXPECT_EQ(d.rain.station, "Brno");
    EXPECT_EQ(d.rain.periodicity, "0.2");
    EXPECT_EQ(d.rain.rows[2], (calc::Rain{15.5F, 142.0F}));
    ASSERT_EQ(d.partial_areas.size(), 2U) << "the spare slot is left out";
    EXPECT_EQ(d.partial_areas[1].area_m2, 70.0F);
    EXPECT_EQ(d.partial_areas[1].runoff_coefficient, 0.5F);
    EXPECT_EQ(d.partial_areas[1].surface, "štěrk");
}

TEST_F(ReportDataTest, NoEntriesNoAreas) {
    EXPECT_TRUE(data().partial_areas.empty());
}

TEST_F(ReportDataTest, EveryNumberIsTheStoredOne) {
    float next = 1;
    for (const design::QuantityInfo& quantity : design::quantities()) {
        v.*quantity.stored = next++;
    }
    for (const design::QuantityInfo& quantity : design::quantities()) {
        EXPECT_EQ(data().numbers.*quantity.stored, v.*quantity.stored) << quantity.name;
    }
}

TEST_F(ReportDataTest, TheSoilsCaptionIsThatOfTheVariant) {
    for (const FacilityType type : {FacilityType::Swale, FacilityType::SwaleTrench}) {
        window.SelectedType = type;
        window.SoilVariant = 0;
        EXPECT_EQ(data().options.soil_caption, "Písek střední až jemný");
        window.SoilVariant = 1;
        EXPECT_EQ(data().options.soil_caption, "Slit a písek, slit");
    }
}

TEST_F(ReportDataTest, TicksAndVariants) {
    const auto opening = data().options;
    EXPECT_FALSE(opening.overflow);
    EXPECT_FALSE(opening.drain);
    EXPECT_FALSE(opening.upstream_settling);
    EXPECT_FALSE(opening.sand_layer);
    EXPECT_EQ(opening.shape, data::ShaftShape::Round);
    window.chkSelPretok[3].setChecked(true);
    EXPECT_TRUE(data().options.overflow);
    EXPECT_FALSE(data().options.drain);
    window.chkSelPretok[4].setChecked(true);
    window.chkPredUsaz.setChecked(true);
    window.SoilVariant = 1;
    window.ShaftShape = data::ShaftShape::Rectangular;
    const auto options = data().options;
    EXPECT_TRUE(options.drain);
    EXPECT_TRUE(options.upstream_settling);
    EXPECT_TRUE(options.sand_layer);
    EXPECT_EQ(options.shape, data::ShaftShape::Rectangular);
}

TEST_F(ReportDataTest, TheRingIsTheSelectedOne) {
    window.cboTypSachty.add("RSA");
    EXPECT_EQ(data().options.ring, "") << "nothing is selected";
    window.cboTypSachty.add("RSB");
    window.cboTypSachty.clicked = nullptr;
    window.cboTypSachty.select(1);
    EXPECT_EQ(data().options.ring, "RSB");
}

}  // namespace
}  // namespace mero::forms
