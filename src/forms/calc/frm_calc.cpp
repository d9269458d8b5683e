// SPDX-License-Identifier: MIT
/// The main window's construction: which handler serves which control.
/// Fields that only store a text or a number are bound by the tables; all others have a handler of their own.
#include "forms/calc/frm_calc.h"

#include "design/input.h"
#include "design/text_input.h"
#include "forms/calc/field_rules.h"
#include "platform/numbers/number_text.h"

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
    bindTables();
    bindHandlers();
    bindArrays();
}

void frmCalc::bindTables() {
    for (const design::TextInputInfo& row : design::textInputs()) {
        TextBox& box = textBox(row.box);
        box.changed = [&box, &stored = values_->*row.stored] { stored = box.text(); };
    }
    const auto bind = [this](const std::string& name, float data::DesignNumbers::*stored, bool live = false) {
        TextBox& box = textBox(name);
        box.changed = [this, &box, stored, live] {
            const bool empty = box.text().empty();
            storeNumber(box, values_->*stored);
            if (live && !empty) {
                CalcInfiltArea();
            }
        };
    };
    bind(info(design::Input::Groundwater).box, info(design::Input::Groundwater).stored);
    for (const FacilityType type : data::kFacilityTypes) {
        for (const design::PanelInput& row : design::panelInputs(type)) {
            if (const auto stored = info(row.input).stored) {
                bind(design::controlName(info(row.input).box, type), stored,
                     design::isLive(type) || row.input == design::Input::SafetyFactor);
            }
        }
        for (const design::ResultBox& row : design::resultBoxes(type)) {
            if (info(row.quantity).stores_back) {
                bind(design::controlName(row.box, type), info(row.quantity).stored);
            }
        }
    }
}

void frmCalc::bindHandlers() {
    txtOdvodNepPlocha.changed = [this] { txtOdvodNepPlocha_Change(); };
    txtSelIntDeste.changed = [this] { txtSelIntDeste_Change(); };
    txtSelDTrvDeste.changed = [this] { txtSelDTrvDeste_Change(); };
    txtSoucFiltrace.changed = [this] { txtSoucFiltrace_Change(); };
    txtSoucFiltrace.lost_focus = [this] { txtSoucFiltrace_LostFocus(); };
    cboSelType.clicked = [this] { cboSelType_Click(); };
    cboSelType.got_focus = [this] { cboSelType_GotFocus(); };
    cboTypSachty.clicked = [this] { cboTypSachty_Click(); };
    txtSachtyCount.changed = [this] { storeNumber(txtSachtyCount, values_->txtSachtyCount); };
    updSacht.spun = [this](UpDown::Direction direction) { updSacht_Change(direction); };
    txtPrumerSachtyVnit.changed = [this] { txtPrumerSachtyVnit_Change(); };
    txtPrumerSachtyVnej.changed = [this] { txtPrumerSachtyVnej_Change(); };
    txtTloustkaSteny.changed = [this] { txtTloustkaSteny_Change(); };
    // These two trap no error: a text that is no number is reported.
    txtPotrHloubkaZahl.changed = [this] {
        values_->txtPotrHloubkaZahl = numbers::strictSingle(txtPotrHloubkaZahl.text());
    };
    txtPocetPotrubi.forEach([this](int, TextBox& box) {
        box.changed = [this, &box] { values_->txtPocetPotrubi = numbers::strictSingle(box.text()); };
    });
    txtSoucFiltrPruleh.forEach([this](int, TextBox& box) {
        box.changed = [this, &box] { storeFiltration(box, values_->txtSoucFiltrPruleh); };
    });
    SSTab1.changed = [this](int PreviousTab) { SSTab1_Click(PreviousTab); };
    cmdSaveResults.clicked = [this] { cmdSaveResults_Click(); };
    cmdPrint.clicked = [this] { cmdPrint_Click(); };
}

template <typename T>
void frmCalc::bindEach(const ControlArray<T>& array, std::type_identity_t<std::function<void()> T::*> event,
                       void (frmCalc::*handler)(int)) {
    array.forEach(
        [=, this](int Index, T& member) { member.*event = [=, this] { (this->*handler)(Index); }; });
}

void frmCalc::bindArrays() {
    bindEach(txtSoucFiltrPruleh, &TextBox::lost_focus, &frmCalc::txtSoucFiltrPruleh_LostFocus);
    bindEach(cmdEdit, &Button::clicked, &frmCalc::cmdEdit_Click);
    bindEach(lblOdkaz, &Label::clicked, &frmCalc::lblOdkaz_Click);
    bindEach(optSelType, &OptionButton::clicked, &frmCalc::optSelType_Click);
    bindEach(optSelTypPudy2, &OptionButton::clicked, &frmCalc::optSelTypPudy2_Click);
    bindEach(optSelTypPudy3, &OptionButton::clicked, &frmCalc::optSelTypPudy3_Click);
    bindEach(optSelTypPudy5, &OptionButton::clicked, &frmCalc::optSelTypPudy5_Click);
    bindEach(optSelTypSachty, &OptionButton::clicked, &frmCalc::optSelTypSachty_Click);
    bindEach(chkSelPretok, &CheckBox::clicked, &frmCalc::chkSelPretok_Click);
    bindEach(cmdOK, &Button::clicked, &frmCalc::cmdOK_Click);
    bindEach(cmdCalcul, &Button::clicked, &frmCalc::cmdCalcul_Click);
}

void frmCalc::error(const std::string& text) {
    desk_->showMessage({text, platform::MessageIcon::Critical});
}

}  // namespace mero::forms
