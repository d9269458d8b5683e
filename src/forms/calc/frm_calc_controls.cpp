// SPDX-License-Identifier: MIT
/// The members of the control arrays, and the state in which the controls open.
/// Initial texts do not run change handlers: the stored defaults match them from the start.
#include "forms/calc/frm_calc_controls.h"

#include <initializer_list>

namespace mero::forms {
namespace {

using platform::ControlArray;
using platform::Panel;

/// Adds one member per type number, each on the panel of that type.
template <typename T, typename... Arguments>
void addOnPanels(ControlArray<T>& array, const ControlArray<Panel>& panels, std::initializer_list<int> types,
                 Arguments... arguments) {
    for (const int type : types) {
        array.add(type, panels[type], arguments...);
    }
}

/// Adds a group of two option buttons that exclude each other.
void addPair(ControlArray<platform::OptionButton>& array, platform::Control& container, const char* first,
             const char* second) {
    auto group = std::make_shared<std::vector<platform::OptionButton*>>();
    array.add(0, container, first, group);
    array.add(1, container, second, group);
}

/// The panels are members of an array, but the fields of the last two are plain members of the form: the
/// array is filled before them.
Panel& panelOf(ControlArray<Panel>& panels, platform::Control& page, int type) {
    if (type == kShaft) {
        for (int each = kSurface; each <= kTank; ++each) {
            panels.add(each, page);
        }
    }
    return panels[type];
}

}  // namespace

frmCalcControls::frmCalcControls()
    : Form("frmCalc", "MERO - Výpočet vsakovacích zařízení"),
      picShaft(panelOf(picResults, SSTab1.page(kTabDesign), kShaft)),
      picTank(panelOf(picResults, SSTab1.page(kTabDesign), kTank)) {
    addMembers();
    addPanelFields();
    addSubPanels();
    setInitialState();
}

void frmCalcControls::addMembers() {
    for (const int dialog : {0, 1, 2}) {
        cmdEdit.add(dialog, fraVstup, "Zadat");
    }
    lblOdkaz.add(0, SSTab1.page(kTabInputs), "Český hydrometeorologický ústav");
    lblOdkaz.add(1, SSTab1.page(kTabInputs), "Portál o vodě (voda.gov.cz)");
    addPair(optSelType, fraVyber, "Decenralizované", "Centralizované");
    addPair(optSelTypPudy2, picResults[kSwale], "Písek střední až jemný", "Slit a písek, slit");
    addPair(optSelTypPudy3, picResults[kSwaleTrench], "Písek střední až jemný", "Slit a písek, slit");
    addPair(optSelTypPudy5, picShaft, "typ A", "typ B");
    addPair(optSelTypSachty, picShaft, "kruhový", "pravoúhlý");
}

void frmCalcControls::addPanelFields() {
    const auto& panels = picResults;
    addOnPanels(txtSoucBezp, panels, {kSurface, kSwale, kSwaleTrench, kTrench, kShaft, kTank}, "1.2");
    addOnPanels(txtVsakPlocha, panels, {kSurface, kSwale, kSwaleTrench, kTrench, kShaft});
    addOnPanels(txtObjAkum, panels, {kSwale, kSwaleTrench, kTrench, kShaft, kTank});
    addOnPanels(txtVyskaVzduti, panels, {kSwale, kShaft});
    addOnPanels(txtDobaPrazdneni, panels, {kSwale, kSwaleTrench});
    addOnPanels(txtSoucFiltrPruleh, panels, {kSwaleTrench, kShaft});
    txtPorVyplne.add(kSwaleTrench, panels[kSwaleTrench], "0.35");
    txtPorVyplne.add(kTrench, panels[kTrench]);
    addOnPanels(txtSirkaRyhy, panels, {kSwaleTrench, kTrench});
    addOnPanels(txtVyskaRyhy, panels, {kSwaleTrench, kTrench});
    addOnPanels(txtDelkaRyhy, panels, {kSwaleTrench, kTrench});
    addOnPanels(txtHloubkaPrulehu, panels, {kSwaleTrench});
    addOnPanels(txtSirkaPrulehu, panels, {kSwaleTrench});
    addOnPanels(txtSoucAkum, panels, {kTrench});
    addOnPanels(cmdCalcul, panels, {kSurface, kSwale, kSwaleTrench, kTrench, kShaft, kTank}, "Výpočti");
}

void frmCalcControls::addSubPanels() {
    chkSelPretok.add(kSwaleTrench, picResults[kSwaleTrench], "Přetok a škrcený odtok");
    chkSelPretok.add(kTrench, picResults[kTrench], "Drenáž");
    for (const int type : {kSwaleTrench, kTrench}) {
        cmdEdit.add(type, picResults[type], "Editovat");
        Panel& panel = picPretokSkrOdtok.add(type, picResults[type]);
        txtPocetPotrubi.add(type, panel, "1");
        txtPrumTroubVnej.add(type, panel);
        txtPrumTroubVnit.add(type, panel);
        cmdOK.add(type, panel, "OK");
    }
    txtSpecDrenOdtok.add(kSwaleTrench, picPretokSkrOdtok[kSwaleTrench]);
    txtVystupPlocha.add(kTrench, picPretokSkrOdtok[kTrench]);
    txtVystupRychlost.add(kTrench, picPretokSkrOdtok[kTrench]);
}

void frmCalcControls::setInitialState() {
    txtDetails.setMultiLine(true);
    cboSelType.setEnabled(false);
    picResults.forEach([](int, Panel& panel) { panel.hide(); });
    picPretokSkrOdtok.forEach([](int, Panel& panel) { panel.hide(); });
    cmdEdit[kSwaleTrench].setEnabled(false);
    cmdEdit[kTrench].setEnabled(false);
    // The first two types are computed while the inputs change: there is nothing to press.
    cmdCalcul[kSurface].hide();
    cmdCalcul[kSwale].hide();
    txtVyskaPiskVrstvy.setEnabled(false);
    txtVyskaPiskVrstvy.setGreyed(true);
    wbShowPopisTech.hide();
    wbShowResults.hide();
    cmdSaveResults.hide();
    cmdPrint.hide();
}

}  // namespace mero::forms
