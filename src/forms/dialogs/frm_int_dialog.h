// SPDX-License-Identifier: MIT
/// frmIntDialog, the design rain: nine intensities from the rain database or typed, one row picked.
/// Everything the user does is stored at once; only OK carries the picked rain to the main window.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include "calc/rain.h"
#include "data/mod_public_variables.h"
#include "data/rain_database.h"
#include "forms/dialogs/cell_editor.h"
#include "forms/dialogs/demonstration_use.h"
#include "forms/dialogs/dialog.h"
#include "platform/controls/buttons.h"
#include "platform/controls/drop_list.h"
#include "platform/controls/grid.h"
#include "platform/controls/text_box.h"

namespace mero::forms {

class frmIntDialog : public Dialog {
  public:
    /// What the confirmation writes in the main window.
    struct Target {
        platform::TextBox& txtSelIntDeste;
        platform::TextBox& txtSelDTrvDeste;
        std::function<void()> RebuildCalc;
    };

    frmIntDialog(platform::Form& main, platform::Desk& desk, data::modPublicVariables& values,
                 data::RainDatabase& database, Target target);

    platform::DropList cboSelStanice{*this, "cboSelStanice"};
    platform::DropList cboSelPeriod{*this, "cboSelPeriod"};
    platform::Grid fgIntDeste{*this, "fgIntDeste"};
    platform::TextBox txtSChange{*this, "txtSChange"};
    platform::Button cmdOK{*this, "cmdOK", "OK"};
    platform::Button cmdEdit{*this, "cmdEdit", "?"};
    platform::TextBox txtHelp;
    platform::Button cmdCloseHelp{*this, "cmdCloseHelp", "Zavřít"};
    /// Shown while the station's values, or any rain in use, come from a database that is marked as a
    /// demonstration.
    platform::Label lblDemo;

    void cboSelStanice_Click();
    void cboSelPeriod_Click();
    void fgIntDeste_Click();
    void txtSChange_Change();
    void cmdOK_Click();
    void cmdEdit_Click();
    void cmdCloseHelp_Click();

    /// The nine rows of the table and the picked row, for a picture of them.
    [[nodiscard]] std::array<calc::Rain, calc::kRainRows> rains() const;
    [[nodiscard]] calc::Rain pickedRain() const;
    /// The note of the demonstration database while any rain in use comes from one, else "".
    [[nodiscard]] std::string demonstrationNote() const;

    [[nodiscard]] const DemonstrationUse& demonstration() const { return demonstration_; }
    [[nodiscard]] DemonstrationUse& demonstration() { return demonstration_; }

  protected:
    void Form_Load() override;

  private:
    /// Reads one station's table into IntenzitaStanice and DobaStanice.
    /// @throws RuntimeError that ends the program when file or table cannot be read
    void ReadStationTable(std::int16_t station_number, const std::string& database_path);
    /// Clears the grid and fills it from DobaTrvani and IntenzitaDeste.
    void buildGrid();

    data::modPublicVariables* values_;
    data::RainDatabase* database_;
    Target target_;
    DemonstrationUse demonstration_;
    CellEditor editor_{fgIntDeste, txtSChange};
};

}  // namespace mero::forms
