// SPDX-License-Identifier: MIT
/// The members of the control arrays, and the state in which the controls open.
/// Initial texts do not run change handlers: the stored defaults match them from the start.
#include "forms/calc/frm_calc_controls.h"

#include <initializer_list>
#include <stdexcept>

#include "design/input.h"
#include "design/quantity.h"

namespace mero::forms {
namespace {

using enum FacilityType;
using platform::ControlArray;
using platform::Panel;

/// Adds the options of a choice, which exclude each other.
void addOptions(ControlArray<platform::OptionButton>& array, platform::Control& container,
                std::initializer_list<const char*> captions) {
    auto group = std::make_shared<std::vector<platform::OptionButton*>>();
    int index = 0;
    for (const char* caption : captions) {
        array.add(index++, container, caption, group);
    }
}

void addOptions(ControlArray<platform::OptionButton>& array, platform::Control& container,
                design::Input input) {
    const auto choices = info(input).choices;
    addOptions(array, container, {choices[0].caption, choices[1].caption});
}

/// The panels are members of an array, but the fields of the last two are plain members of the form: the
/// array is filled before them.
Panel& panelOf(ControlArray<Panel>& panels, platform::Control& page, FacilityType type) {
    if (type == Shaft) {
        for (const FacilityType each : data::kFacilityTypes) {
            panels.add(static_cast<int>(each), page);
        }
    }
    return panels[type];
}

}  // namespace

frmCalcControls::frmCalcControls()
    : Form("frmCalc", "MERO - Výpočet vsakovacích zařízení"),
      picShaft(panelOf(picResults, SSTab1.page(kTabDesign), Shaft)),
      picTank(panelOf(picResults, SSTab1.page(kTabDesign), Tank)),
      chkPredUsaz(picTank, "chkPredUsaz", info(design::Input::UpstreamSettling).caption) {
    addMembers();
    addFields();
    setInitialState();
}

platform::TextBox& frmCalcControls::textBox(const std::string& name) const {
    auto* box = dynamic_cast<TextBox*>(find(name));
    if (box == nullptr) {
        throw std::logic_error("no text box is called " + name);
    }
    return *box;
}

void frmCalcControls::addMembers() {
    for (const int dialog : {0, 1, 2}) {
        cmdEdit.add(dialog, fraVstup, "Zadat");
    }
    lblOdkaz.add(0, SSTab1.page(kTabInputs), "Český hydrometeorologický ústav");
    lblOdkaz.add(1, SSTab1.page(kTabInputs), "Portál o vodě (voda.gov.cz)");
    addOptions(optSelType, fraVyber, {"Decenralizované", "Centralizované"});
    addOptions(optSelTypPudy2, picResults[Swale], design::Input::Soil);
    addOptions(optSelTypPudy3, picResults[SwaleTrench], design::Input::Soil);
    addOptions(optSelTypPudy5, picShaft, design::Input::Variant);
    addOptions(optSelTypSachty, picShaft, design::Input::Shape);
    for (const FacilityType type : data::kFacilityTypes) {
        cmdCalcul.add(static_cast<int>(type), picResults[type], "Výpočti");
    }
    for (const FacilityType type : {SwaleTrench, Trench}) {
        const int index = static_cast<int>(type);
        chkSelPretok.add(index, picResults[type],
                         type == Trench ? design::kDrainCaption : design::kOverflowCaption);
        cmdEdit.add(index, picResults[type], "Editovat");
        Panel& panel = picPretokSkrOdtok.add(index, picResults[type]);
        cmdOK.add(index, panel, "OK");
    }
}

void frmCalcControls::addFields() {
    for (const FacilityType type : data::kFacilityTypes) {
        for (const design::PanelInput& row : design::panelInputs(type)) {
            Panel& panel = design::isOfSubPanel(row.input) ? picPretokSkrOdtok[type] : picResults[type];
            addField(info(row.input).box, type, panel, design::openingText(row));
        }
        for (const design::ResultBox& row : design::resultBoxes(type)) {
            addField(row.box, type, picResults[type], "");
        }
    }
}

void frmCalcControls::addField(std::string_view name, FacilityType type, platform::Control& container,
                               const std::string& text) {
    const std::string control = design::controlName(name, type);
    if (control.empty()) {
        return;
    }
    if (platform::Control* found = find(control)) {
        if (auto* box = dynamic_cast<TextBox*>(found); box != nullptr && !text.empty()) {
            box->showText(text);
        }
        return;
    }
    for (ControlArray<TextBox>* array :
         {&txtSoucBezp, &txtVsakPlocha, &txtObjAkum, &txtVyskaVzduti, &txtDobaPrazdneni, &txtSoucFiltrPruleh,
          &txtPorVyplne, &txtSirkaRyhy, &txtVyskaRyhy, &txtDelkaRyhy, &txtHloubkaPrulehu, &txtSirkaPrulehu,
          &txtPocetPotrubi, &txtPrumTroubVnej, &txtPrumTroubVnit, &txtSpecDrenOdtok, &txtVystupPlocha,
          &txtVystupRychlost, &txtSoucAkum}) {
        if (name == array->name() + "(#)") {
            array->add(static_cast<int>(type), container, text);
            return;
        }
    }
    other_boxes_.push_back(std::make_unique<TextBox>(container, control, text));
}

void frmCalcControls::setInitialState() {
    txtDetails.setMultiLine(true);
    cboSelType.setEnabled(false);
    picResults.forEach([](int, Panel& panel) { panel.hide(); });
    picPretokSkrOdtok.forEach([](int, Panel& panel) { panel.hide(); });
    cmdEdit[SwaleTrench].setEnabled(false);
    cmdEdit[Trench].setEnabled(false);
    for (const FacilityType type : data::kFacilityTypes) {
        cmdCalcul[type].setVisible(!design::isLive(type));
    }
    txtPrumerSachtyVnej.setEnabled(false);
    txtPrumerSachtyVnej.setGreyed(true);
    txtVyskaPiskVrstvy.setEnabled(false);
    txtVyskaPiskVrstvy.setGreyed(true);
    wbShowPopisTech.hide();
    wbShowResults.hide();
    cmdSaveResults.hide();
    cmdPrint.hide();
}

}  // namespace mero::forms
