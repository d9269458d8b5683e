// SPDX-License-Identifier: MIT
/// The main window's start and end, the clock, the buttons that open the dialogs, the links.
/// The order of the steps of Form_Load and Form_QueryUnload is fixed.
#include "data/mod_default_data.h"
#include "forms/calc/frm_calc.h"
#include "report/report_file.h"

namespace mero::forms {
namespace {

constexpr const char* kHydrometeorologyAddress = "https://www.chmi.cz/";
constexpr const char* kWaterPortalAddress = "https://voda.gov.cz/";
constexpr const char* kDatabaseFile = "/mero.mdb";

/// Top of the re-opened sub-panel in twips; see chkSelPretok_Click for the first opening.
constexpr int kReopenedTop = 3000;

}  // namespace

void frmCalc::Form_Load() {
    lblTime.setText(platform::timeText(clock_->now()));
    data::LoadDefaultData(*values_);
    SSTab1.setPosition(kTabInputs);
    reg_settings_.Get_locale();
    reg_settings_.Set_locale();
    values_->DilciPlocha = data::OneBasedList<float>(1);
    values_->OdtokovySoucinitel = data::OneBasedList<float>(1);
    values_->TypPovrchu = data::OneBasedList<std::string>(1);
}

void frmCalc::Form_QueryUnload() {
    reg_settings_.Restore_Locale();
    removeReport(values_->ResultsFilePath);
    for (const std::string& path : written_reports_) {
        report::removeReport(path);
    }
    written_reports_.clear();
}

void frmCalc::Timer1_Timer() {
    lblTime.setText(platform::timeText(clock_->now()));
}

void frmCalc::cmdEdit_Click(int Index) {
    switch (Index) {
        case 0:
            intDialog.Show();
            break;
        case 1:
            areaDialog.Show();
            break;
        case 2:
            coefDialog.Show();
            break;
        default:
            picPretokSkrOdtok[Index].moveTo(0, kReopenedTop);
            picPretokSkrOdtok[Index].show();
            return;
    }
    // Set after the dialog is shown: the rain dialog opens the database only when a station is chosen.
    values_->CestaDatabaze = databasePath();
}

std::string frmCalc::databasePath() const {
    return folder_ + kDatabaseFile;
}

void frmCalc::lblOdkaz_Click(int Index) {
    if (Index == 0) {
        desk_->openAddress(kHydrometeorologyAddress);
    } else if (Index == 1) {
        desk_->openAddress(kWaterPortalAddress);
    }
}

}  // namespace mero::forms
