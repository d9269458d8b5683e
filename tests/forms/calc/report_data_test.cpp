// SPDX-License-Identifier: MIT
// Which value of the program stands where in the report: every value is another one, none is swapped.
#include "forms/calc/report_data.h"

#include <gtest/gtest.h>

#include "forms/calc/frm_calc.h"
#include "support/fake_locale.h"
#include "support/fake_rain_database.h"
#include "support/recording_desk.h"

namespace mero::forms {
namespace {

struct ReportDataTest : testing::Test {
    ReportDataTest() {
        window.Form_Load();
        float next = 1;
        for (float* value : {&v.txtHPV,
                             &v.txtSoucFiltrace,
                             &v.txtSoucBezp,
                             &v.txtSoucFiltrPruleh,
                             &v.txtPorVyplne,
                             &v.txtSirkaRyhy,
                             &v.txtVyskaRyhy,
                             &v.txtPrumTroubVnej,
                             &v.txtPrumTroubVnit,
                             &v.txtPocetPotrubi,
                             &v.txtSpecDrenOdtok,
                             &v.txtVystupPlocha,
                             &v.txtVystupRychlost,
                             &v.txtNezamrzHlPritok,
                             &v.txtVyskaPiskVrstvy,
                             &v.txtVyskaFiltrVrstvy,
                             &v.txtPotrHloubkaZahl,
                             &v.txtSpecMeroIntenz,
                             &v.txtDelkaDnaNadrz,
                             &v.txtSirkaDnaNadrz,
                             &v.txtHloubkaNadrz,
                             &v.txtSklonSvahuNadrz,
                             &v.txtVsakPlocha,
                             &v.shaft_side1_m,
                             &v.txtPrumerSachtyVnej,
                             &v.txtTloustkaSteny,
                             &v.D_i,
                             &v.txtObjAkum,
                             &v.txtVyskaVzduti,
                             &v.txtDobaPrazdneni,
                             &v.txtDelkaRyhy,
                             &v.txtHloubkaPrulehu,
                             &v.txtSirkaPrulehu,
                             &v.txtHloubkaSachty,
                             &v.txtVsakTok,
                             &v.txtVypObjNadrz,
                             &v.RedukovanaPlocha,
                             &v.VybranaDoba}) {
            *value = next++;
        }
    }
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
    v.txtProjektant = "řešitel";
    v.txtInvestor = "investor";
    v.txtMistoAkce = "místo";
    v.txtDetails = "popis";
    v.txtTypPudyPodlozi = "hornina";
    window.SelectedType = kTrench;
    const auto d = data();
    EXPECT_EQ(d.project_name, "název");
    EXPECT_EQ(d.designer, "řešitel");
    EXPECT_EQ(d.investor, "investor");
    EXPECT_EQ(d.site, "místo");
    EXPECT_EQ(d.description, "popis");
    EXPECT_EQ(d.subsoil, "hornina");
    EXPECT_EQ(d.infiltration_type, 4);
    EXPECT_EQ(d.infiltration_type_name, "Vsakování rýhové a kombinace rýhy a drénu");
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
    EXPECT_EQ(d.rain.durations_min[2], 15.5F);
    EXPECT_EQ(d.rain.intensities_lsha[2], 142.0F);
    EXPECT_EQ(d.rain.chosen_duration_min, v.VybranaDoba);
    ASSERT_EQ(d.partial_areas.size(), 2U) << "the spare slot is left out";
    EXPECT_EQ(d.partial_areas[1].area_m2, 70.0F);
    EXPECT_EQ(d.partial_areas[1].runoff_coefficient, 0.5F);
    EXPECT_EQ(d.partial_areas[1].surface, "štěrk");
    EXPECT_EQ(d.drained_area_m2, v.RedukovanaPlocha);
}

TEST_F(ReportDataTest, NoEntriesNoAreas) {
    EXPECT_TRUE(data().partial_areas.empty());
}

TEST_F(ReportDataTest, CommonValuesAndResults) {
    const auto d = data();
    EXPECT_EQ(d.subsoil_filtration_m_s, v.txtSoucFiltrace);
    EXPECT_EQ(d.groundwater_depth_m, v.txtHPV);
    EXPECT_EQ(d.safety_factor, v.txtSoucBezp);
    EXPECT_EQ(d.infiltration_area_m2, v.txtVsakPlocha);
    EXPECT_EQ(d.storage_volume_m3, v.txtObjAkum);
    EXPECT_EQ(d.water_depth_m, v.txtVyskaVzduti);
}

TEST_F(ReportDataTest, SwaleTrenchAndPipes) {
    const auto d = data();
    EXPECT_EQ(d.swale.filtration_m_s, v.txtSoucFiltrPruleh);
    EXPECT_EQ(d.swale.emptying_time_h, v.txtDobaPrazdneni);
    EXPECT_EQ(d.swale.width_m, v.txtSirkaPrulehu);
    EXPECT_EQ(d.swale.depth_m, v.txtHloubkaPrulehu);
    EXPECT_EQ(d.trench.fill_porosity, v.txtPorVyplne);
    EXPECT_EQ(d.trench.width_m, v.txtSirkaRyhy);
    EXPECT_EQ(d.trench.height_m, v.txtVyskaRyhy);
    EXPECT_EQ(d.trench.length_m, v.txtDelkaRyhy);
    EXPECT_EQ(d.pipes.inner_diameter_mm, v.txtPrumTroubVnit);
    EXPECT_EQ(d.pipes.outer_diameter_mm, v.txtPrumTroubVnej);
    EXPECT_EQ(d.pipes.count, v.txtPocetPotrubi);
    EXPECT_EQ(d.pipes.throttled_outflow_lsha, v.txtSpecDrenOdtok);
    EXPECT_EQ(d.pipes.outlet_area_cm2_per_m, v.txtVystupPlocha);
    EXPECT_EQ(d.pipes.outlet_velocity_m_s, v.txtVystupRychlost);
}

TEST_F(ReportDataTest, TheSoilsCaptionIsThatOfTheVariant) {
    for (const int type : {kSwale, kSwaleTrench}) {
        window.SelectedType = type;
        window.SoilVariant = 0;
        EXPECT_EQ(data().swale.soil_caption, "Písek střední až jemný");
        window.SoilVariant = 1;
        EXPECT_EQ(data().swale.soil_caption, "Slit a písek, slit");
    }
}

TEST_F(ReportDataTest, TicksAndVariants) {
    auto d = data();
    EXPECT_FALSE(d.pipes.throttled_overflow);
    EXPECT_FALSE(d.pipes.drain);
    EXPECT_FALSE(d.tank.upstream_settling);
    EXPECT_FALSE(d.shaft.sand_layer);
    EXPECT_EQ(d.shaft.shape, 0);
    window.chkSelPretok[3].setChecked(true);
    EXPECT_TRUE(data().pipes.throttled_overflow);
    EXPECT_FALSE(data().pipes.drain);
    window.chkSelPretok[4].setChecked(true);
    window.chkPredUsaz.setChecked(true);
    window.SoilVariant = 1;
    window.ShaftShape = 1;
    d = data();
    EXPECT_TRUE(d.pipes.drain);
    EXPECT_TRUE(d.tank.upstream_settling);
    EXPECT_TRUE(d.shaft.sand_layer);
    EXPECT_EQ(d.shaft.shape, 1);
}

TEST_F(ReportDataTest, Shaft) {
    v.txtSachtyCount = 3;
    window.cboTypSachty.add("RSA");
    EXPECT_EQ(data().shaft.ring, "") << "nothing is selected";
    window.cboTypSachty.add("RSB");
    window.cboTypSachty.clicked = nullptr;
    window.cboTypSachty.select(1);
    const auto d = data();
    EXPECT_EQ(d.shaft.ring, "RSB");
    EXPECT_EQ(d.shaft.count, 3);
    EXPECT_EQ(d.shaft.inflow_depth_m, v.txtNezamrzHlPritok);
    EXPECT_EQ(d.shaft.inner_diameter_m, v.D_i);
    EXPECT_EQ(d.shaft.side1_m, v.shaft_side1_m);
    EXPECT_EQ(d.shaft.side2_m, v.txtPrumerSachtyVnej);
    EXPECT_EQ(d.shaft.wall_thickness_m, v.txtTloustkaSteny);
    EXPECT_EQ(d.shaft.filter_layer_m, v.txtVyskaFiltrVrstvy);
    EXPECT_EQ(d.shaft.sand_layer_m, v.txtVyskaPiskVrstvy);
    EXPECT_EQ(d.shaft.required_depth_m, v.txtHloubkaSachty);
    EXPECT_EQ(d.shaft.min_groundwater_depth_m, v.txtPotrHloubkaZahl);
    EXPECT_EQ(d.shaft.required_filtration_m_s, v.txtSoucFiltrPruleh);
}

TEST_F(ReportDataTest, Tank) {
    const auto d = data();
    EXPECT_EQ(d.tank.specific_infiltration_lsha, v.txtSpecMeroIntenz);
    EXPECT_EQ(d.tank.bottom_length_m, v.txtDelkaDnaNadrz);
    EXPECT_EQ(d.tank.bottom_width_m, v.txtSirkaDnaNadrz);
    EXPECT_EQ(d.tank.depth_m, v.txtHloubkaNadrz);
    EXPECT_EQ(d.tank.side_slope, v.txtSklonSvahuNadrz);
    EXPECT_EQ(d.tank.infiltration_flow_m3_s, v.txtVsakTok);
    EXPECT_EQ(d.tank.volume_by_dimensions_m3, v.txtVypObjNadrz);
}

}  // namespace
}  // namespace mero::forms
