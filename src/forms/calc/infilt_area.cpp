// SPDX-License-Identifier: MIT
/// CalcInfiltArea: from drained area and design rain to the first size of the facility of the current type.
/// A result that is written into a field with a change rule comes back from it as it is shown.
#include "calc/shaft.h"
#include "calc/surface_infiltration.h"
#include "calc/swale.h"
#include "calc/trench.h"
#include "forms/calc/balances.h"
#include "forms/calc/frm_calc.h"
#include "forms/calc/rain_table.h"
#include "platform/numbers/checked.h"
#include "platform/numbers/number_text.h"

namespace mero::forms {

void frmCalc::CalcInfiltArea() {
    switch (SelectedType) {
        case kNoType:
            values_->txtVsakPlocha = 0;
            break;
        case kSurface:
            calcSurface();
            break;
        case kSwale:
            calcSwaleArea();
            break;
        case kSwaleTrench:
            calcSwaleTrenchArea();
            break;
        case kTrench:
            calcTrenchArea();
            break;
        case kShaft:
            calcShaftBalance();
            break;
        default:
            break;
    }
}

void frmCalc::calcSurface() {
    if (values_->VybranaIntenzita <= 0) {
        desk_->showMessage(
            {"Intenzita návrhového deště není zadána", platform::MessageIcon::Exclamation, "Chyba"});
        hideResultPanels();
        values_->txtVsakPlocha = 0;
        optSelType[TypeGroup].setSelected(false);
        optSelType[TypeGroup].setSelected(true);
    } else {
        values_->txtVsakPlocha = calc::surface::infiltrationArea(
            values_->RedukovanaPlocha, values_->txtSoucFiltrace, values_->VybranaIntenzita);
    }
    txtVsakPlocha[kSurface].setText(numbers::fixed(values_->txtVsakPlocha, 1));
    calculated_ = true;
}

void frmCalc::calcSwaleArea() {
    if (values_->RedukovanaPlocha <= 0) {
        return;
    }
    values_->txtVsakPlocha = calc::swale::startingArea(values_->RedukovanaPlocha, soilOption(optSelTypPudy2),
                                                       values_->txtVsakPlocha);
    txtObjAkum[kSwale].setText("");
    txtVsakPlocha[kSwale].setText(numbers::fixed(values_->txtVsakPlocha, 1));
    CalcDesign();
}

void frmCalc::calcSwaleTrenchArea() {
    if (values_->RedukovanaPlocha <= 0) {
        return;
    }
    values_->txtVsakPlocha = calc::swale::startingArea(values_->RedukovanaPlocha, soilOption(optSelTypPudy3),
                                                       values_->txtVsakPlocha);
    txtObjAkum[kSwaleTrench].setText("");
    txtDelkaRyhy[kSwaleTrench].setText("");
    txtSirkaPrulehu[kSwaleTrench].setText("");
    txtHloubkaPrulehu[kSwaleTrench].setText("");
    txtDobaPrazdneni[kSwaleTrench].setText("");
    txtVsakPlocha[kSwaleTrench].setText(numbers::fixed(values_->txtVsakPlocha, 1));
}

void frmCalc::calcTrenchArea() {
    values_->txtVsakPlocha =
        calc::trench::infiltrationArea(values_->txtVyskaRyhy, values_->txtSirkaRyhy, values_->txtDelkaRyhy);
    txtVsakPlocha[kTrench].setText(numbers::fixed(values_->txtVsakPlocha, 1));
}

void frmCalc::calcShaftBalance() {
    const auto rains = rainTable(*values_);
    const calc::CriticalRain level = calc::shaft::waterLevel(shaftBalance(*values_), rains);
    pick(*values_, level);
    values_->txtVyskaVzduti = numbers::toSingle(level.maximum);
    txtVyskaVzduti[kShaft].setText(numbers::fixed(values_->txtVyskaVzduti, 2));

    values_->txtVsakPlocha =
        calc::shaft::infiltrationArea(shaftBalance(*values_).shafts, values_->txtVyskaVzduti);
    txtVsakPlocha[kShaft].setText(numbers::fixed(values_->txtVsakPlocha, 2));

    values_->txtHloubkaSachty =
        calc::shaft::depth(values_->txtVyskaVzduti, {.inlet_depth_m = values_->txtNezamrzHlPritok,
                                                     .filter_layer_m = values_->txtVyskaFiltrVrstvy,
                                                     .sand_layer_m = values_->txtVyskaPiskVrstvy,
                                                     .has_sand_layer = !optSelTypPudy5[0].selected()});
    txtHloubkaSachty.setText(numbers::fixed(values_->txtHloubkaSachty, 2));

    values_->txtPotrHloubkaZahl = calc::shaft::requiredEmbedding(
        values_->txtNezamrzHlPritok, values_->txtVyskaVzduti, values_->txtMinPrusakDraha);
    txtPotrHloubkaZahl.setText(numbers::fixed(values_->txtPotrHloubkaZahl, 2));
}

int frmCalc::soilOption(const ControlArray<OptionButton>& options) {
    constexpr int kNoneSelected = -1;
    if (options[0].selected()) {
        return 0;
    }
    return options[1].selected() ? 1 : kNoneSelected;
}

}  // namespace mero::forms
