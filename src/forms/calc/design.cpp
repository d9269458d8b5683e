// SPDX-License-Identifier: MIT
/// CalcDesign: sizes the facility of the current type against the design rain table, writes the result
/// fields and tells the verdicts. A verdict never blocks the results.
#include "calc/drain.h"
#include "calc/inflow.h"
#include "calc/swale.h"
#include "calc/swale_trench.h"
#include "calc/trench.h"
#include "forms/calc/balances.h"
#include "forms/calc/frm_calc.h"
#include "forms/calc/rain_table.h"
#include "platform/numbers/checked.h"
#include "platform/numbers/number_text.h"

namespace mero::forms {
namespace {

using platform::MessageIcon;

}  // namespace

void frmCalc::CalcDesign() {
    switch (SelectedType) {
        case kSwale:
            designSwale();
            break;
        case kSwaleTrench:
            designSwaleTrench();
            break;
        case kTrench:
            designTrench();
            break;
        case kShaft:
            designShaft();
            break;
        case kTank:
            designTank();
            break;
        default:
            break;
    }
}

void frmCalc::designSwale() {
    const auto rains = rainTable(*values_);
    const calc::CriticalRain volume =
        calc::swale::storageVolume(swaleBalance(*values_, values_->txtSoucFiltrace), rains);
    pick(*values_, volume);
    values_->txtObjAkum = numbers::toSingle(volume.maximum);
    txtObjAkum[kSwale].setText(numbers::fixed(values_->txtObjAkum, 1));

    values_->txtVyskaVzduti = calc::swale::pondingDepth(values_->txtObjAkum, values_->txtVsakPlocha);
    txtVyskaVzduti[kSwale].setText(numbers::fixed(values_->txtVyskaVzduti, 2));

    if (values_->txtSoucFiltrace > 0) {
        values_->txtDobaPrazdneni =
            calc::swale::emptyingTimeHours(values_->txtVyskaVzduti, values_->txtSoucFiltrace);
        txtDobaPrazdneni[kSwale].setText(numbers::fixed(values_->txtDobaPrazdneni, 1));
    }
    calculated_ = true;
}

void frmCalc::designSwaleTrench() {
    const auto rains = rainTable(*values_);
    if (!chkSelPretok[kSwaleTrench].checked()) {
        values_->Q_dr = 0;
        values_->s_RR = values_->txtPorVyplne;
    }
    const calc::CriticalRain volume =
        calc::swale::storageVolume(swaleBalance(*values_, values_->txtSoucFiltrPruleh), rains);
    pick(*values_, volume);
    values_->txtObjAkum = numbers::toSingle(volume.maximum);
    txtObjAkum[kSwaleTrench].setText(numbers::fixed(values_->txtObjAkum, 1));

    if (values_->txtVsakPlocha <= 0) {
        desk_->showMessage({"Není zadána odvodňovaná plocha.", MessageIcon::Critical, "Chyba"});
    } else {
        values_->txtVyskaVzduti = calc::swale::pondingDepth(values_->txtObjAkum, values_->txtVsakPlocha);
    }

    const calc::CriticalRain length = calc::swale_trench::trenchLength(swaleTrenchBalance(*values_), rains);
    pick(*values_, length);
    values_->txtDelkaRyhy = numbers::toSingle(length.maximum);
    txtDelkaRyhy[kSwaleTrench].setText(numbers::fixed(values_->txtDelkaRyhy, 1));

    values_->txtSirkaPrulehu = values_->txtSirkaRyhy;
    if (values_->txtDelkaRyhy > 0) {
        values_->txtHloubkaPrulehu = calc::swale_trench::swaleDepth(
            values_->txtObjAkum, values_->txtDelkaRyhy, values_->txtSirkaPrulehu);
        txtHloubkaPrulehu[kSwaleTrench].setText(numbers::fixed(values_->txtHloubkaPrulehu, 2));
        txtSirkaPrulehu[kSwaleTrench].setText(numbers::fixed(values_->txtSirkaPrulehu, 2));
        judgeSwaleTrenchArea();
    }
    values_->txtDobaPrazdneni =
        calc::swale::emptyingTimeHours(values_->txtHloubkaPrulehu, values_->txtSoucFiltrPruleh);
    txtDobaPrazdneni[kSwaleTrench].setText(numbers::fixed(values_->txtDobaPrazdneni, 1));
    calculated_ = true;
}

void frmCalc::judgeSwaleTrenchArea() {
    const double designed = calc::swale_trench::designedArea(values_->txtDelkaRyhy, values_->txtSirkaPrulehu);
    const std::string designed_text = numbers::fixed(designed, 2);
    const std::string available_text = numbers::fixed(values_->txtVsakPlocha, 2);
    switch (calc::swale_trench::judgeArea(designed, values_->txtVsakPlocha)) {
        case calc::swale_trench::AreaVerdict::Sufficient:
            message(
                "Navržená vsakovací plocha je dostatečná ( " + designed_text + " < " + available_text + " ).",
                MessageIcon::Information);
            break;
        case calc::swale_trench::AreaVerdict::Insufficient:
            message("Navržená vsakovací plocha je nedostatečná ( " + designed_text + " > " + available_text +
                        " ).",
                    MessageIcon::Exclamation);
            break;
    }
}

void frmCalc::designTrench() {
    const auto rains = rainTable(*values_);
    if (!chkSelPretok[kTrench].checked()) {
        values_->s_RR = values_->txtPorVyplne;
    }
    showStorageCoefficient();
    const calc::trench::Balance balance = trenchBalance(*values_);
    const calc::CriticalRain length = calc::trench::requiredLength(balance, rains);
    pick(*values_, length);
    values_->txtDelkaRyhy = numbers::toSingle(length.maximum);
    txtDelkaRyhy[kTrench].setText(numbers::fixed(values_->txtDelkaRyhy, 1));

    values_->txtObjAkum = calc::trench::storageVolume(balance, values_->txtDelkaRyhy, pickedRain(*values_));
    txtObjAkum[kTrench].setText(numbers::fixed(values_->txtObjAkum, 1));

    values_->drain_inflow_l_s = calc::inflow(values_->RedukovanaPlocha, values_->VybranaIntenzita);
    values_->drain_outflow_l_s = calc::trench::drainOutflow({.openings_cm2_m = values_->txtVystupPlocha,
                                                             .pipe_count = values_->txtPocetPotrubi,
                                                             .velocity_m_s = values_->txtVystupRychlost},
                                                            values_->txtDelkaRyhy);
    CalcInfiltArea();
    if (chkSelPretok[kTrench].checked()) {
        judgeDrainOutflow();
    }
    calculated_ = true;
}

void frmCalc::judgeDrainOutflow() {
    const std::string outflow = numbers::fixed(values_->drain_outflow_l_s, 2);
    const std::string inflow = numbers::fixed(values_->drain_inflow_l_s, 2);
    switch (calc::trench::judgeOutflow(values_->drain_outflow_l_s, values_->drain_inflow_l_s)) {
        case calc::trench::OutflowVerdict::NotMet:
            message("Není splněna podmínka výstupního odtoku. ( " + outflow + " < " + inflow + " )",
                    MessageIcon::Exclamation);
            break;
        case calc::trench::OutflowVerdict::Met:
            message("Podmínka výstupního odtoku je splněna. ( " + outflow + " > " + inflow + " )",
                    MessageIcon::Information);
            break;
    }
}

void frmCalc::cmdOK_Click(int Index) {
    if (Index != kSwaleTrench && Index != kTrench) {
        return;
    }
    if (Index == kSwaleTrench) {
        ClearTypeResults();
        values_->Q_dr = calc::drain::throttledOutflow(values_->RedukovanaPlocha, values_->txtSpecDrenOdtok);
        if (values_->Q_dr == 0) {
            chkSelPretok[kSwaleTrench].setChecked(false);
            return;
        }
    }
    values_->s_RR =
        calc::drain::storageCoefficient({.inner_diameter_mm = values_->txtPrumTroubVnit,
                                         .outer_diameter_mm = values_->txtPrumTroubVnej,
                                         .count = values_->txtPocetPotrubi},
                                        values_->txtPorVyplne, values_->txtSirkaRyhy, values_->txtVyskaRyhy);
    if (Index == kTrench) {
        showStorageCoefficient();
    }
    // The two pages decide by different tests.
    const bool accepted = Index == kSwaleTrench
                              ? values_->s_RR != 0
                              : values_->txtPrumTroubVnej != 0 && values_->txtPrumTroubVnit != 0;
    if (accepted) {
        picPretokSkrOdtok[Index].hide();
    } else {
        chkSelPretok[Index].setChecked(false);
    }
}

void frmCalc::showStorageCoefficient() {
    txtSoucAkum[kTrench].setText(numbers::fixed(values_->s_RR, 2));
}

}  // namespace mero::forms
