// SPDX-License-Identifier: MIT
/// frmCalc, the main window: inputs and their field rules, the choice of the type, calculation, report.
/// Handlers run at once and nest; the results come out right only in this order.
#pragma once

#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <type_traits>

#include "data/mod_public_variables.h"
#include "data/rain_database.h"
#include "forms/calc/calculation_record.h"
#include "forms/calc/frm_calc_controls.h"
#include "forms/calc/window_sink.h"
#include "forms/dialogs/frm_coef_dialog.h"
#include "forms/dialogs/frm_dialog.h"
#include "forms/dialogs/frm_int_dialog.h"
#include "platform/clock.h"
#include "platform/desk.h"
#include "platform/mod_reg_settings.h"
#include "report/report_file.h"

namespace mero::forms {

/// What the program stands in: all of it is injected.
struct Surroundings {
    platform::Desk& desk;
    platform::Clock& clock;
    platform::LocaleSettings& locale;
    data::RainDatabase& rain_database;
    std::string folder;  ///< the program's folder: rain database, description pages, report file
};

class frmCalc : public frmCalcControls {
  public:
    frmCalc(data::modPublicVariables& values, const Surroundings& surroundings);

    frmIntDialog intDialog;
    frmDialog areaDialog;
    frmCoefDialog coefDialog;

    /// Form-level state that the calculation reads.
    int TypeGroup = 0;  ///< 0 decentralised, 1 centralised
    FacilityType SelectedType = FacilityType::None;
    int SoilVariant = 0;  ///< member chosen last in the soil or shaft variant options
    data::ShaftShape ShaftShape = data::ShaftShape::Round;

    // Start and end.
    void Form_Load();
    void Form_QueryUnload();
    void Timer1_Timer();

    // Field rules.
    void txtOdvodNepPlocha_Change();
    void txtSelIntDeste_Change();
    void txtSelDTrvDeste_Change() { RebuildCalc(); }
    void txtSoucFiltrace_Change();
    void txtSoucFiltrace_LostFocus();
    void txtSoucFiltrPruleh_LostFocus(int Index);
    void updSacht_Change(platform::UpDown::Direction direction);
    void cmdEdit_Click(int Index);
    void lblOdkaz_Click(int Index);

    // Choice of the type.
    void optSelType_Click(int Index);
    void cboSelType_Click();
    void cboSelType_GotFocus() { refusesMissingInputs(); }
    void optSelTypPudy2_Click(int Index);
    void optSelTypPudy3_Click(int Index) { optSelTypPudy2_Click(Index); }
    void optSelTypPudy5_Click(int Index);
    void optSelTypSachty_Click(int Index);
    void chkSelPretok_Click(int Index);

    // Shaft geometry.
    void cboTypSachty_Click();
    void txtPrumerSachtyVnit_Change();
    void txtPrumerSachtyVnej_Change();
    void txtTloustkaSteny_Change();

    // Calculation.
    void RebuildCalc();
    void ClearTypeResults();
    void CalcInfiltArea();
    void CalcDesign();
    void cmdCalcul_Click(int Index);
    void cmdOK_Click(int Index);

    // Tabs and report.
    void SSTab1_Click(int PreviousTab);
    void BuildResultsHtml();
    void cmdSaveResults_Click();
    void cmdPrint_Click();

    [[nodiscard]] const data::modPublicVariables& values() const { return *values_; }
    /// Full path of the rain database, whether any dialog was opened or not.
    [[nodiscard]] std::string databasePath() const;
    [[nodiscard]] platform::modRegSettings& regSettings() { return reg_settings_; }
    [[nodiscard]] const CalculationRecord& record() const { return record_; }
    [[nodiscard]] CalculationRecord& record() { return record_; }
    [[nodiscard]] const ResultBoxes& resultBoxes() const { return result_boxes_; }

  private:
    /// The design procedures write the window through it.
    friend class WindowSink;

    /// Fields that only store a text or a number, by the tables; the controls with a handler of their own.
    void bindTables();
    void bindHandlers();
    void bindArrays();
    /// Binds the event of each member of an array to the handler that takes its index.
    template <typename T>
    void bindEach(const ControlArray<T>& array, std::type_identity_t<std::function<void()> T::*> event,
                  void (frmCalc::*handler)(int));

    /// Checks and calculates. @return false when the checks refuse the inputs
    bool calculate(FacilityType type);
    void showInflow();
    void error(const std::string& text);
    void hideResultPanels();
    /// Tells the user of a missing drained area or filtration coefficient; true when one is missing.
    bool refusesMissingInputs();

    void enterTechnologyTab(int previous_tab);
    void enterResultsTab(int previous_tab);
    void refuseTab(int previous_tab);
    /// Saves the report as HTML or PDF, as the path's suffix says, and reports a failure.
    void saveResults(const std::string& path);

    /// Writes a report to the current path and remembers the file.
    report::WriteResult writeReport(const std::string& html);
    void removeReport(const std::string& path);

    /// Writes the shown report again when its file is gone or is another program's by now. False when it
    /// cannot.
    [[nodiscard]] bool keepReport();

    ResultBoxes result_boxes_;
    CalculationRecord record_;
    data::modPublicVariables* values_;
    platform::Desk* desk_;
    platform::Clock* clock_;
    std::string folder_;
    platform::modRegSettings reg_settings_;
    /// The report that this program wrote and shows, in UTF-8; empty when none could be written. A second
    /// program in this folder writes its report of the same project over ours, or removes it at its end.
    std::string shown_report_;
    /// Files of reports that this program wrote and has not removed: also those of former project names.
    std::set<std::string> written_reports_;
    bool calculated_ = false;  ///< set when a design was completed
};

}  // namespace mero::forms
