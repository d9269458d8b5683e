// SPDX-License-Identifier: MIT
/// The main window's construction: which handler serves which control.
/// Field rules that only store a number are bound here; all others have a handler of their own.
#include "forms/calc/frm_calc.h"

#include "forms/calc/field_rules.h"

namespace mero::forms {

frmCalc::frmCalc(data::modPublicVariables& values, const Surroundings& surroundings)
    : intDialog(*this, surroundings.desk, values, surroundings.rain_database,
                {txtSelIntDeste, txtSelDTrvDeste, [this] { RebuildCalc(); }}),
      areaDialog(*this, surroundings.desk, values, {txtOdvodNepPlocha, txtOdtokDoVsak}),
      coefDialog(*this, surroundings.desk, values,
                 {txtSoucFiltrace, txtTypPudyPodlozi, [this] { RebuildCalc(); }}),
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
    const auto copies = [](TextBox& box, std::string& stored) {
        box.changed = [&box, &stored] { stored = box.text(); };
    };
    copies(txtProjName, values_->txtProjName);
    copies(txtProjektant, values_->txtProjektant);
    copies(txtMistoAkce, values_->txtMistoAkce);
    copies(txtInvestor, values_->txtInvestor);
    copies(txtDetails, values_->txtDetails);
    copies(txtTypPudyPodlozi, values_->txtTypPudyPodlozi);

    txtHPV.changed = [this] { storeNumber(txtHPV, values_->txtHPV); };
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

void frmCalc::bindFacilityInputs() {
    const auto stores = [](TextBox& box, float& stored) {
        box.changed = [&box, &stored] { storeNumber(box, stored); };
    };
    const auto all_store = [stores](ControlArray<TextBox>& boxes, float& stored) {
        boxes.forEach([stores, &stored](int, TextBox& box) { stores(box, stored); });
    };
    all_store(txtPorVyplne, values_->txtPorVyplne);
    all_store(txtSirkaRyhy, values_->txtSirkaRyhy);
    all_store(txtVyskaRyhy, values_->txtVyskaRyhy);
    all_store(txtPrumTroubVnej, values_->txtPrumTroubVnej);
    all_store(txtPrumTroubVnit, values_->txtPrumTroubVnit);
    all_store(txtSpecDrenOdtok, values_->txtSpecDrenOdtok);
    all_store(txtVystupPlocha, values_->txtVystupPlocha);
    all_store(txtVystupRychlost, values_->txtVystupRychlost);
    all_store(txtVsakPlocha, values_->txtVsakPlocha);
    stores(txtMinPrusakDraha, values_->txtMinPrusakDraha);
    stores(txtNezamrzHlPritok, values_->txtNezamrzHlPritok);
    stores(txtVyskaPiskVrstvy, values_->txtVyskaPiskVrstvy);
    stores(txtVyskaFiltrVrstvy, values_->txtVyskaFiltrVrstvy);
    stores(txtSpecMeroIntenz, values_->txtSpecMeroIntenz);
    stores(txtDelkaDnaNadrz, values_->txtDelkaDnaNadrz);
    stores(txtSirkaDnaNadrz, values_->txtSirkaDnaNadrz);
    stores(txtHloubkaNadrz, values_->txtHloubkaNadrz);
    stores(txtSklonSvahuNadrz, values_->txtSklonSvahuNadrz);

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

void frmCalc::message(const std::string& text, platform::MessageIcon icon) {
    desk_->showMessage({text, icon});
}

void frmCalc::error(const std::string& text) {
    message(text, platform::MessageIcon::Critical);
}

}  // namespace mero::forms
