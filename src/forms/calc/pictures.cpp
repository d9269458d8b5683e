// SPDX-License-Identifier: MIT
/// Values of the pictures.
/// A result field that is empty or shows no number counts as no result.
#include "forms/calc/pictures.h"

#include <optional>

#include "calc/tank.h"
#include "design/balances.h"
#include "picture/balance_chart.h"
#include "picture/facility_sections.h"
#include "platform/numbers/number_text.h"

namespace mero::forms {
namespace {

using data::modPublicVariables;
using platform::TextBox;
using enum FacilityType;

std::optional<float> shownResult(const TextBox& box) {
    if (box.text().empty()) {
        return std::nullopt;
    }
    try {
        return numbers::strictSingle(box.text());
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

/// Pipes are in the trench while their box is ticked.
picture::PipeValues pipes(const frmCalc& form, FacilityType type) {
    if (!form.chkSelPretok[type].checked()) {
        return {};
    }
    const modPublicVariables& values = form.values();
    return {.count = values.txtPocetPotrubi,
            .outer_diameter_mm = values.txtPrumTroubVnej,
            .inner_diameter_mm = values.txtPrumTroubVnit};
}

picture::TrenchValues trench(const frmCalc& form, FacilityType type) {
    const modPublicVariables& values = form.values();
    return {.length_m = shownResult(form.txtDelkaRyhy[type]),
            .width_m = values.txtSirkaRyhy,
            .height_m = values.txtVyskaRyhy,
            .pipes = pipes(form, type),
            .groundwater_depth_m = values.txtHPV};
}

picture::ShaftValues shaft(const frmCalc& form) {
    const modPublicVariables& values = form.values();
    const bool has_sand_layer = !form.optSelTypPudy5[0].selected();
    const bool rectangular = form.ShaftShape == data::ShaftShape::Rectangular;
    return {.count = values.txtSachtyCount,
            .rectangular = rectangular,
            .inner_width_m = rectangular ? values.shaft_side1_m : values.D_i,
            .inner_length_m = values.txtPrumerSachtyVnej,
            .wall_m = values.txtTloustkaSteny,
            .inlet_depth_m = values.txtNezamrzHlPritok,
            .filter_layer_m = values.txtVyskaFiltrVrstvy,
            .sand_layer_m = has_sand_layer ? values.txtVyskaPiskVrstvy : 0.0F,
            .water_level_m = shownResult(form.txtVyskaVzduti[Shaft]),
            .depth_m = shownResult(form.txtHloubkaSachty),
            .required_embedding_m = shownResult(form.txtPotrHloubkaZahl),
            .groundwater_depth_m = values.txtHPV};
}

picture::TankValues tank(const frmCalc& form) {
    const modPublicVariables& values = form.values();
    return {.bottom_length_m = values.txtDelkaDnaNadrz,
            .bottom_width_m = values.txtSirkaDnaNadrz,
            .depth_m = values.txtHloubkaNadrz,
            .slope = values.txtSklonSvahuNadrz,
            .required_storage_m3 = shownResult(form.txtObjAkum[Tank]),
            .volume_m3 = shownResult(form.txtVypObjNadrz),
            .groundwater_depth_m = values.txtHPV};
}

/// The flow that the design assumes; its field shows too few decimals to go on with.
float tankFlow(const modPublicVariables& values) {
    try {
        return calc::tank::infiltrationFlow(values.txtSpecMeroIntenz, values.RedukovanaPlocha);
    } catch (const RuntimeError&) {
        return values.txtVsakTok;
    }
}

}  // namespace

picture::Section facilitySection(const frmCalc& form, FacilityType type) {
    const float groundwater = form.values().txtHPV;
    switch (type) {
        case Surface:
            return picture::surfaceSection(
                {.area_m2 = shownResult(form.txtVsakPlocha[Surface]), .groundwater_depth_m = groundwater});
        case Swale:
            return picture::swaleSection({.area_m2 = shownResult(form.txtVsakPlocha[Swale]),
                                          .ponding_m = shownResult(form.txtVyskaVzduti[Swale]),
                                          .groundwater_depth_m = groundwater});
        case SwaleTrench:
            return picture::swaleTrenchSection(
                {.trench = trench(form, SwaleTrench),
                 .swale_depth_m = shownResult(form.txtHloubkaPrulehu[SwaleTrench])});
        case Trench:
            return picture::trenchSection(trench(form, Trench));
        case Shaft:
            return picture::shaftSection(shaft(form));
        case Tank:
            return picture::tankSection(tank(form));
        case None:
            break;
    }
    return {};
}

picture::Chart balanceChart(const frmCalc& form, FacilityType type) {
    const modPublicVariables& values = form.values();
    const auto rains = form.intDialog.rains();
    switch (type) {
        case Surface:
            return picture::surfaceChart({.reduced_area_m2 = values.RedukovanaPlocha,
                                          .filtration_m_s = values.txtSoucFiltrace,
                                          .picked_rain = form.intDialog.pickedRain()},
                                         rains, form.txtVsakPlocha[Surface].text());
        case Swale:
            return picture::swaleChart(design::swaleBalance(values, values.txtSoucFiltrace), rains,
                                       form.txtObjAkum[Swale].text());
        case SwaleTrench:
            return picture::swaleTrenchChart(
                {.swale = design::swaleBalance(values, values.txtSoucFiltrPruleh),
                 .trench = design::swaleTrenchBalance(values)},
                rains, form.txtObjAkum[SwaleTrench].text(), form.txtDelkaRyhy[SwaleTrench].text());
        case Trench:
            return picture::trenchChart(design::trenchBalance(values), rains,
                                        form.txtDelkaRyhy[Trench].text());
        case Shaft:
            return picture::shaftChart(design::shaftBalance(values), rains,
                                       form.txtVyskaVzduti[Shaft].text());
        case Tank:
            return picture::tankChart(design::tankBalance(values, tankFlow(values)), rains,
                                      form.txtObjAkum[Tank].text());
        case None:
            break;
    }
    return {};
}

}  // namespace mero::forms
