// SPDX-License-Identifier: MIT
/// The main window's construction: which handler serves which control.
/// Fields that only store a text or a number are bound by the tables; all others have a handler of their own.
#include "forms/calc/frm_calc.h"

#include "design/input.h"
#include "design/text_input.h"
#include "forms/calc/field_rules.h"

namespace mero::forms {

frmCalc::frmCalc(data::modPublicVariables& values, const Surroundings& surroundings)
    : intDialog(*this, surroundings.desk, values, surroundings.rain_database,
                {txtSelIntDeste, txtSelDTrvDeste, [this] { RebuildCalc(); }}),
      areaDialog(*this, surroundings.desk, values, {txtOdvodNepPlocha, txtOdtokDoVsak}),
      coefDialog(*this, surroundings.desk, values,
                 {txtSoucFiltrace, txtTypPudyPodlozi, [this] { RebuildCalc(); }}),
      result_boxes_(*this),
      values_(&values),
      desk_(&surroundings.desk),
      clock_(&surroundings.clock),
      folder_(surroundings.folder),
      reg_settings_(surroundings.locale, surroundings.desk) {
    bindInputs();
    bindFacilityInputs();
    bindTypeChoice();
    bindShaft();
    bindResults();
}

void frmCalc::bindInputs() {
    for (const design::TextInputInfo& row : design::textInputs()) {
        TextBox& box = textBox(row.box);
        box.changed = [&box, &stored = values_->*row.stored] { stored = box.text(); };
    }
    bindNumber(txtHPV, &data::DesignNumbers::txtHPV);
    txtOdvodNepPlocha.changed = [this] { txtOdvodNepPlocha_Change(); };
    txtSelIntDeste.changed = [this] { txtSelIntDeste_Change(); };
    txtSelDTrvDeste.changed = [this] { txtSelDTrvDeste_Change(); };
    txtSoucFiltrace.changed = [this] { txtSoucFiltrace_Change(); };
    txtSoucFiltrace.lost_focus = [this] { txtSoucFiltrace_LostFocus(); };
    cmdEdit.forEach(
        [this](int Index, Button& button) { button.clicked = [this, Index] { cmdEdit_Click(Index); }; });
    lblOdkaz.forEach(
        [this](int Index, Label& label) { label.clicked = [this, Index] { lblOdkaz_Click(Index); }; });
}

void frmCalc::bindNumber(TextBox& box, float data::DesignNumbers::*stored) {
    box.changed = [&box, &value = values_->*stored] { storeNumber(box, value); };
}

void frmCalc::bindFacilityInputs() {
    for (const FacilityType type : data::kFacilityTypes) {
        for (const design::PanelInput& row : design::panelInputs(type)) {
            const design::InputInfo& input = info(row.input);
            if (input.stored != nullptr) {
                bindNumber(textBox(design::controlName(input.box, type)), input.stored);
            }
        }
        for (const design::ResultBox& row : design::resultBoxes(type)) {
            if (info(row.quantity).stores_back) {
                bindNumber(textBox(design::controlName(row.box, type)), info(row.quantity).stored);
            }
        }
    }

    // Those with a handler of their own.
    txtSoucFiltrPruleh.forEach([this](int Index, TextBox& box) {
        box.changed = [this, Index] { txtSoucFiltrPruleh_Change(Index); };
        box.lost_focus = [this, Index] { txtSoucFiltrPruleh_LostFocus(Index); };
    });
    txtSoucBezp.forEach(
        [this](int Index, TextBox& box) { box.changed = [this, Index] { txtSoucBezp_Change(Index); }; });
    txtPocetPotrubi.forEach(
        [this](int Index, TextBox& box) { box.changed = [this, Index] { txtPocetPotrubi_Change(Index); }; });
    txtPotrHloubkaZahl.changed = [this] { txtPotrHloubkaZahl_Change(); };
    txtSachtyCount.changed = [this] { txtSachtyCount_Change(); };
    updSacht.spun = [this](UpDown::Direction direction) { updSacht_Change(direction); };
}

void frmCalc::bindTypeChoice() {
    optSelType.forEach([this](int Index, OptionButton& option) {
        option.clicked = [this, Index] { optSelType_Click(Index); };
    });
    cboSelType.clicked = [this] { cboSelType_Click(); };
    cboSelType.got_focus = [this] { cboSelType_GotFocus(); };
    optSelTypPudy2.forEach([this](int Index, OptionButton& option) {
        option.clicked = [this, Index] { optSelTypPudy2_Click(Index); };
    });
    optSelTypPudy3.forEach([this](int Index, OptionButton& option) {
        option.clicked = [this, Index] { optSelTypPudy3_Click(Index); };
    });
    chkSelPretok.forEach(
        [this](int Index, CheckBox& box) { box.clicked = [this, Index] { chkSelPretok_Click(Index); }; });
    cmdOK.forEach(
        [this](int Index, Button& button) { button.clicked = [this, Index] { cmdOK_Click(Index); }; });
    cmdCalcul.forEach(
        [this](int Index, Button& button) { button.clicked = [this, Index] { cmdCalcul_Click(Index); }; });
}

void frmCalc::bindShaft() {
    optSelTypPudy5.forEach([this](int Index, OptionButton& option) {
        option.clicked = [this, Index] { optSelTypPudy5_Click(Index); };
    });
    optSelTypSachty.forEach(
        [this](int, OptionButton& option) { option.clicked = [this] { optSelTypSachty_Click(); }; });
    cboTypSachty.clicked = [this] { cboTypSachty_Click(); };
    txtPrumerSachtyVnit.changed = [this] { txtPrumerSachtyVnit_Change(); };
    txtPrumerSachtyVnej.changed = [this] { txtPrumerSachtyVnej_Change(); };
    txtTloustkaSteny.changed = [this] { txtTloustkaSteny_Change(); };
}

void frmCalc::bindResults() {
    SSTab1.changed = [this](int PreviousTab) { SSTab1_Click(PreviousTab); };
    cmdSaveResults.clicked = [this] { cmdSaveResults_Click(); };
    cmdPrint.clicked = [this] { cmdPrint_Click(); };
}

void frmCalc::error(const std::string& text) {
    desk_->showMessage({text, platform::MessageIcon::Critical});
}

}  // namespace mero::forms
