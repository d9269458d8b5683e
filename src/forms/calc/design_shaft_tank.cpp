// SPDX-License-Identifier: MIT
/// CalcDesign for the shaft and the tank: required volumes, and the verdicts with the checks that stop.
/// The calculated flag is not set when a groundwater or volume check stops the design.
#include "calc/shaft.h"
#include "calc/tank.h"
#include "forms/calc/balances.h"
#include "forms/calc/frm_calc.h"
#include "forms/calc/rain_table.h"
#include "platform/numbers/checked.h"
#include "platform/numbers/number_text.h"

namespace mero::forms {
namespace {

using platform::MessageIcon;

}  // namespace

void frmCalc::designShaft() {
    values_->txtObjAkum =
        calc::shaft::storageVolume(shaftBalance(*values_), values_->txtVsakPlocha, pickedRain(*values_));
    txtObjAkum[kShaft].setText(numbers::fixed(values_->txtObjAkum, 2));

    values_->txtSoucFiltrPruleh = calc::shaft::requiredFilterPermeability(
        values_->txtVyskaVzduti, shaftBalance(*values_).shafts, values_->txtSoucFiltrace);
    txtSoucFiltrPruleh[kShaft].setText(numbers::scientific(values_->txtSoucFiltrPruleh, 1));

    if (calc::shaft::judgeGroundwater(values_->txtHPV, values_->txtPotrHloubkaZahl) ==
        calc::shaft::GroundwaterVerdict::TooHigh) {
        message(
            "Min. hloubka maximální hladiny podzemní vody je překročena.  Zvolte větší průměr šachty či "
            "jejich počet a opakujte výpočet.",
            MessageIcon::Exclamation);
        return;
    }
    if (calc::shaft::judgeBottom(values_->txtHloubkaSachty, values_->txtPotrHloubkaZahl) ==
        calc::shaft::BottomVerdict::TooClose) {
        message("Dno šachty je vzdáleno méně než 0.5 m od hladiny podzemní vody. Zvolte menší výšku filtru.",
                MessageIcon::Exclamation);
        return;
    }
    switch (calc::shaft::judgeFilter(values_->txtSoucFiltrPruleh)) {
        case calc::shaft::FilterVerdict::Sufficient:
            message("Potřebná propustnost filtru je dostačující.", MessageIcon::Information);
            break;
        case calc::shaft::FilterVerdict::TooPermeable:
            message(
                "Potřebná propustnost filtru je příliš vysoká. Zvolte větší průměr šachty či jejich počet a "
                "opakujte výpočet.",
                MessageIcon::Exclamation);
            break;
    }
    calculated_ = true;
}

void frmCalc::designTank() {
    const auto rains = rainTable(*values_);
    values_->txtVsakTok = calc::tank::infiltrationFlow(values_->txtSpecMeroIntenz, values_->RedukovanaPlocha);
    const calc::CriticalRain storage =
        calc::tank::requiredStorage(tankBalance(*values_, values_->txtVsakTok), rains);
    pick(*values_, storage);
    values_->txtObjAkum = numbers::toSingle(storage.maximum);

    const float depth_m = values_->txtHloubkaNadrz;
    const float slope = values_->txtSklonSvahuNadrz;
    values_->tank_top_length_m = calc::tank::topSide(values_->txtDelkaDnaNadrz, depth_m, slope);
    values_->tank_top_width_m = calc::tank::topSide(values_->txtSirkaDnaNadrz, depth_m, slope);
    const calc::tank::Shape shape{.bottom_length_m = values_->txtDelkaDnaNadrz,
                                  .bottom_width_m = values_->txtSirkaDnaNadrz,
                                  .top_length_m = values_->tank_top_length_m,
                                  .top_width_m = values_->tank_top_width_m,
                                  .depth_m = depth_m};
    values_->txtVypObjNadrz = calc::tank::volume(shape);

    txtVsakTok.setText(numbers::fixed(values_->txtVsakTok, 2));
    txtObjAkum[kTank].setText(numbers::fixed(values_->txtObjAkum, 2));
    txtVypObjNadrz.setText(numbers::fixed(values_->txtVypObjNadrz, 2));

    if (calc::tank::judgeVolume(values_->txtVypObjNadrz, values_->txtObjAkum) ==
        calc::tank::VolumeVerdict::TooSmall) {
        message("Vypočítaný objem nádrže je menší než nutná akumulace. Zvětšete rozměry nádrže.",
                MessageIcon::Exclamation);
        return;
    }
    message("Objem nádrže je dostačující.", MessageIcon::Information);

    const double filtration_m_s =
        calc::tank::effectiveFiltration(values_->txtSoucFiltrace, chkPredUsaz.checked());
    const double mean_flow_m3_s = calc::tank::meanInfiltrationFlow(shape, filtration_m_s);
    switch (calc::tank::judgeInfiltration(mean_flow_m3_s, values_->txtVsakTok)) {
        case calc::tank::InfiltrationVerdict::Proven:
            message("Průkaz předpokladu vsakovacího toku je v pořádku.", MessageIcon::Information);
            break;
        case calc::tank::InfiltrationVerdict::Exceeded:
            message("Vsakovací tok přesahuje průměrný vsakovací tok.", MessageIcon::Exclamation);
            break;
    }
    calculated_ = true;
}

}  // namespace mero::forms
