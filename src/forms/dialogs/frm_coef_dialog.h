// SPDX-License-Identifier: MIT
/// frmCoefDialog, the soil: its filtration coefficient picked from the soil table instead of being typed.
/// The coefficient in use changes at the click, the main window's field only at the confirmation.
#pragma once

#include <functional>

#include "data/mod_public_variables.h"
#include "forms/dialogs/dialog.h"
#include "platform/controls/buttons.h"
#include "platform/controls/grid.h"
#include "platform/controls/text_box.h"

namespace mero::forms {

class frmCoefDialog : public Dialog {
  public:
    /// What the confirmation writes in the main window.
    struct Target {
        platform::TextBox& txtSoucFiltrace;
        platform::TextBox& txtTypPudyPodlozi;
        std::function<void()> RebuildCalc;
    };

    frmCoefDialog(platform::Form& main, platform::Desk& desk, data::modPublicVariables& values,
                  Target target);

    platform::Grid fgCoefProp{*this, "fgCoefProp"};
    platform::Button cmdOK{*this, "cmdOK", "OK"};

    void fgCoefProp_Click();
    void cmdOK_Click();

  protected:
    void Form_Load() override;

  private:
    data::modPublicVariables* values_;
    Target target_;
};

}  // namespace mero::forms
