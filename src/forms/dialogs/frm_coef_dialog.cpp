// SPDX-License-Identifier: MIT
/// The soil dialog's handlers.
/// Closing without OK leaves the clicked coefficient in use while the field still shows the old text.
#include "forms/dialogs/frm_coef_dialog.h"

#include <utility>

#include "platform/numbers/checked.h"
#include "platform/numbers/number_text.h"

namespace mero::forms {
namespace {

constexpr int kCoefficientColumn = 1;
constexpr int kChoiceColumn = 2;

}  // namespace

frmCoefDialog::frmCoefDialog(platform::Form& main, platform::Desk& desk, data::modPublicVariables& values,
                             Target target)
    : Dialog("frmCoefDialog", "Součinitel filtrace", main, desk),
      values_(&values),
      target_(std::move(target)) {
    fgCoefProp.cell_changed = [this](platform::GridCell left) {
        if (left.column == kChoiceColumn && fgCoefProp.hasDataCell(left)) {
            fgCoefProp.setMark(left, false);
        }
    };
    fgCoefProp.clicked = [this] { fgCoefProp_Click(); };
    cmdOK.clicked = [this] { cmdOK_Click(); };
}

void frmCoefDialog::Form_Load() {
    main().setEnabled(false);
    cmdOK.setEnabled(false);
    fgCoefProp.build("typ půdy|<souč. filtrace [m/s]|<Výběr", {0.4, 0.4, 0.2});
    for (std::size_t soil = 0; soil < values_->TypPudy.size(); ++soil) {
        fgCoefProp.addRow({values_->TypPudy[soil], numbers::scientific(values_->SoucFiltracePudy[soil], 1)});
    }
    fgCoefProp.alignColumn(kCoefficientColumn, platform::Alignment::Centre);
}

void frmCoefDialog::fgCoefProp_Click() {
    if (fgCoefProp.mouse().column != kChoiceColumn) {
        cmdOK.setEnabled(false);
        return;
    }
    const platform::GridCell cell = fgCoefProp.current();
    fgCoefProp.setMark(cell, true);
    values_->txtSoucFiltrace =
        numbers::toSingle(values_->SoucFiltracePudy.at(static_cast<std::size_t>(cell.row) - 1));
    cmdOK.setEnabled(true);
}

void frmCoefDialog::cmdOK_Click() {
    const auto soil = static_cast<std::size_t>(fgCoefProp.current().row) - 1;
    target_.txtSoucFiltrace.setText(numbers::scientific(values_->txtSoucFiltrace, 1));
    target_.txtTypPudyPodlozi.setText(values_->TypPudy.at(soil));
    target_.RebuildCalc();
    Unload();
}

}  // namespace mero::forms
