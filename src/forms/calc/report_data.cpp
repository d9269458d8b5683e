// SPDX-License-Identifier: MIT
/// From the main window's shared values to the report's plain values.
/// One function per group, so that each box is found beside its neighbours.
#include "forms/calc/report_data.h"

#include "forms/calc/frm_calc.h"

namespace mero::forms {
namespace {

using Values = data::modPublicVariables;

report::RainValues rainOf(const Values& values) {
    return {.station = values.VybranaStanice,
            .periodicity = values.VybranaPeriodicita,
            .durations_min = values.DobaTrvani,
            .intensities_lsha = values.IntenzitaDeste,
            .chosen_duration_min = values.VybranaDoba};
}

std::vector<report::PartialArea> partialAreasOf(const Values& values) {
    std::vector<report::PartialArea> areas;
    const int spare = values.DilciPlocha.length();
    for (int i = 1; i < spare; ++i) {
        areas.push_back({values.DilciPlocha(i), values.OdtokovySoucinitel(i), values.TypPovrchu(i)});
    }
    return areas;
}

std::string soilCaption(const frmCalc& window) {
    const auto& options = window.SelectedType == kSwaleTrench ? window.optSelTypPudy3 : window.optSelTypPudy2;
    return options[window.SoilVariant].text();
}

report::PipeValues pipesOf(const frmCalc& window) {
    const Values& values = window.values();
    return {.throttled_overflow = window.chkSelPretok[kSwaleTrench].checked(),
            .drain = window.chkSelPretok[kTrench].checked(),
            .inner_diameter_mm = values.txtPrumTroubVnit,
            .outer_diameter_mm = values.txtPrumTroubVnej,
            .count = values.txtPocetPotrubi,
            .throttled_outflow_lsha = values.txtSpecDrenOdtok,
            .outlet_area_cm2_per_m = values.txtVystupPlocha,
            .outlet_velocity_m_s = values.txtVystupRychlost};
}

report::ShaftValues shaftOf(const frmCalc& window) {
    const Values& values = window.values();
    return {.shape = window.ShaftShape,
            .sand_layer = window.SoilVariant == 1,
            .count = values.txtSachtyCount,
            .ring = window.cboTypSachty.text(),
            .inflow_depth_m = values.txtNezamrzHlPritok,
            .inner_diameter_m = values.D_i,
            .side1_m = values.shaft_side1_m,
            .side2_m = values.txtPrumerSachtyVnej,
            .wall_thickness_m = values.txtTloustkaSteny,
            .filter_layer_m = values.txtVyskaFiltrVrstvy,
            .sand_layer_m = values.txtVyskaPiskVrstvy,
            .required_depth_m = values.txtHloubkaSachty,
            .min_groundwater_depth_m = values.txtPotrHloubkaZahl,
            .required_filtration_m_s = values.txtSoucFiltrPruleh};
}

report::TankValues tankOf(const frmCalc& window) {
    const Values& values = window.values();
    return {.upstream_settling = window.chkPredUsaz.checked(),
            .specific_infiltration_lsha = values.txtSpecMeroIntenz,
            .bottom_length_m = values.txtDelkaDnaNadrz,
            .bottom_width_m = values.txtSirkaDnaNadrz,
            .depth_m = values.txtHloubkaNadrz,
            .side_slope = values.txtSklonSvahuNadrz,
            .infiltration_flow_m3_s = values.txtVsakTok,
            .volume_by_dimensions_m3 = values.txtVypObjNadrz};
}

}  // namespace

report::ReportData reportData(const frmCalc& window, const platform::DateTime& now) {
    const Values& values = window.values();
    return {.project_name = values.txtProjName,
            .designer = values.txtProjektant,
            .investor = values.txtInvestor,
            .site = values.txtMistoAkce,
            .description = values.txtDetails,
            .infiltration_type = window.SelectedType,
            .infiltration_type_name = values.TypyZasakovani[static_cast<std::size_t>(window.SelectedType)],
            .rain = rainOf(values),
            .partial_areas = partialAreasOf(values),
            .drained_area_m2 = values.RedukovanaPlocha,
            .subsoil_filtration_m_s = values.txtSoucFiltrace,
            .subsoil = values.txtTypPudyPodlozi,
            .groundwater_depth_m = values.txtHPV,
            .safety_factor = values.txtSoucBezp,
            .infiltration_area_m2 = values.txtVsakPlocha,
            .storage_volume_m3 = values.txtObjAkum,
            .water_depth_m = values.txtVyskaVzduti,
            .swale = {.soil_caption = soilCaption(window),
                      .filtration_m_s = values.txtSoucFiltrPruleh,
                      .emptying_time_h = values.txtDobaPrazdneni,
                      .width_m = values.txtSirkaPrulehu,
                      .depth_m = values.txtHloubkaPrulehu},
            .trench = {.fill_porosity = values.txtPorVyplne,
                       .width_m = values.txtSirkaRyhy,
                       .height_m = values.txtVyskaRyhy,
                       .length_m = values.txtDelkaRyhy},
            .pipes = pipesOf(window),
            .shaft = shaftOf(window),
            .tank = tankOf(window),
            .date = platform::dateText(now),
            .time = platform::timeText(now)};
}

}  // namespace mero::forms
