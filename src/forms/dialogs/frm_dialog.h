// SPDX-License-Identifier: MIT
/// frmDialog, the drained area: partial areas with their runoff coefficients, summed to the reduced area.
/// The list of entries is shared data; Cancel does not undo what was entered.
#pragma once

#include <string>

#include "data/mod_public_variables.h"
#include "forms/dialogs/cell_editor.h"
#include "forms/dialogs/dialog.h"
#include "platform/controls/buttons.h"
#include "platform/controls/grid.h"
#include "platform/controls/text_box.h"

namespace mero::forms {

class frmDialog : public Dialog {
  public:
    /// What the confirmation writes in the main window.
    struct Target {
        platform::TextBox& txtOdvodNepPlocha;
        platform::TextBox& txtOdtokDoVsak;
    };

    frmDialog(platform::Form& main, platform::Desk& desk, data::modPublicVariables& values, Target target);

    platform::Grid fgSoucPovrchOdtok{*this, "fgSoucPovrchOdtok"};
    platform::TextBox txtSoucinitel{*this, "txtSoucinitel"};
    platform::TextBox txtPlocha{*this, "txtPlocha"};
    platform::Button cmdZapsat{*this, "cmdZapsat", "Zapsat do tabulky"};
    platform::Grid fgZapisTab{*this, "fgZapisTab"};
    platform::TextBox txtSChange{*this, "txtSChange"};
    platform::Button cmdDelete{*this, "cmdDelete", "Smazat"};
    platform::Button cmdDeleteAll{*this, "cmdDeleteAll", "Smazat vše"};
    platform::TextBox txtOdvodNepPlocha{*this, "txtOdvodNepPlocha"};
    platform::Button OKButton{*this, "OKButton", "OK"};
    platform::Button CancelButton{*this, "CancelButton", "Cancel"};

    void fgSoucPovrchOdtok_Click();
    void fgZapisTab_Click();
    void txtSoucinitel_Change();
    void txtPlocha_KeyPress(platform::Key key);
    void txtSChange_Change();
    void cmdZapsat_Click();
    void cmdDelete_Click();
    void cmdDeleteAll_Click();
    void OKButton_Click();
    void CancelButton_Click();

    /// Rebuilds the table of entries from the lists and recomputes the reduced area.
    void RefreshEntryTable();
    /// Recomputes `RedukovanaPlocha` and shows it.
    void SumReducedArea();

  protected:
    void Form_Load() override;

  private:
    void buildSurfaceTable();
    [[nodiscard]] int entryCount() const { return values_->OdtokovySoucinitel.length() - 1; }
    [[nodiscard]] bool hasEntries() const { return values_->DilciPlocha(1) != 0; }
    void editArea(platform::GridCell cell, const std::string& text);
    void editCoefficient(platform::GridCell cell, const std::string& text);
    /// Makes all three lists `length` long.
    void resizeLists(int length);

    data::modPublicVariables* values_;
    Target target_;
    CellEditor editor_{fgZapisTab, txtSChange};

    float coefficient_ = 0;    ///< current coefficient, 0: none chosen
    std::string description_;  ///< description of the surface picked last
    int row_to_delete_ = 0;
};

}  // namespace mero::forms
