// SPDX-License-Identifier: MIT
/// The drained-area dialog: opening, choosing a surface, entering a partial area, closing.
/// The table of entries and its editing stand in a file of their own.
#include "forms/dialogs/frm_dialog.h"

#include "design/messages.h"
#include "platform/numbers/checked.h"
#include "platform/numbers/number_text.h"

namespace mero::forms {
namespace {

constexpr int kCoefficientColumn = 2;
constexpr int kChoiceColumn = 3;

}  // namespace

frmDialog::frmDialog(platform::Form& main, platform::Desk& desk, data::modPublicVariables& values,
                     Target target)
    : Dialog("frmDialog", "Střední odtokový součinitel", main, desk), values_(&values), target_(target) {
    fgSoucPovrchOdtok.cell_changed = [this](platform::GridCell left) {
        if (left.column == kChoiceColumn && fgSoucPovrchOdtok.hasDataCell(left)) {
            fgSoucPovrchOdtok.setMark(left, false);
        }
        coefficient_ = 0;
    };
    fgSoucPovrchOdtok.clicked = [this] { fgSoucPovrchOdtok_Click(); };
    fgZapisTab.cell_changed = [this](platform::GridCell) { editor_.close(); };
    fgZapisTab.clicked = [this] { fgZapisTab_Click(); };
    txtSoucinitel.changed = [this] { txtSoucinitel_Change(); };
    txtPlocha.key_pressed = [this](platform::Key key) { txtPlocha_KeyPress(key); };
    txtSChange.changed = [this] { txtSChange_Change(); };
    cmdZapsat.clicked = [this] { cmdZapsat_Click(); };
    cmdDelete.clicked = [this] { cmdDelete_Click(); };
    cmdDeleteAll.clicked = [this] { cmdDeleteAll_Click(); };
    OKButton.clicked = [this] { OKButton_Click(); };
    CancelButton.clicked = [this] { CancelButton_Click(); };
    fgZapisTab.hide();
}

void frmDialog::Form_Load() {
    main().setEnabled(false);
    editor_.close();
    coefficient_ = 0;
    description_.clear();
    row_to_delete_ = 0;
    txtSoucinitel.showText("");
    txtPlocha.showText("");
    cmdDelete.setEnabled(false);
    fgZapisTab.hide();
    buildSurfaceTable();
    RefreshEntryTable();
}

void frmDialog::buildSurfaceTable() {
    fgSoucPovrchOdtok.build("Typ plochy|<Způsob zpevnění povrchu|<Součinitel|<Výběr", {0.3, 0.5, 0.1, 0.1});
    fgSoucPovrchOdtok.mergeColumn(0);
    for (std::size_t i = 0; i < values_->SoucOdtoku.size(); ++i) {
        fgSoucPovrchOdtok.addRow(
            {values_->PovrchSkupina[i], values_->PovrchPopis[i], numbers::fixed(values_->SoucOdtoku[i], 2)});
    }
    fgSoucPovrchOdtok.alignColumn(kCoefficientColumn, platform::Alignment::Centre);
    fgSoucPovrchOdtok.alignColumn(kChoiceColumn, platform::Alignment::Centre);
}

void frmDialog::fgSoucPovrchOdtok_Click() {
    const platform::GridCell mouse = fgSoucPovrchOdtok.mouse();
    if (mouse.column != kChoiceColumn) {
        return;
    }
    fgSoucPovrchOdtok.setMark(mouse, true);
    const auto surface = static_cast<std::size_t>(mouse.row) - 1;
    coefficient_ = values_->SoucOdtoku[surface];
    description_ = values_->PovrchPopis[surface];
    txtSoucinitel.setText(numbers::fixed(coefficient_, 2));
    txtPlocha.setText("");
    txtPlocha.setFocus();
}

void frmDialog::txtSoucinitel_Change() {
    coefficient_ = numbers::toSingle(numbers::leadingNumber(txtSoucinitel.text()));
}

void frmDialog::txtPlocha_KeyPress(platform::Key key) {
    if (key == platform::Key::Enter) {
        cmdZapsat_Click();
    }
}

void frmDialog::cmdZapsat_Click() {
    const float coefficient = coefficient_;
    // Read as a Single before anything is stored, so that the three lists never differ in length.
    const float area = numbers::toSingle(numbers::leadingNumber(txtPlocha.text()));
    const int spare = values_->OdtokovySoucinitel.length();
    if (area != 0 && coefficient != 0) {
        values_->OdtokovySoucinitel(spare) = coefficient;
        values_->OdtokovySoucinitel.resize(spare + 1);
        values_->TypPovrchu(spare) = description_;
        values_->TypPovrchu.resize(spare + 1);
    } else if (coefficient == 0) {
        desk().showMessage(design::box(design::VerdictId::RunoffCoefficientMissing));
        return;
    }
    if (area == 0) {
        desk().showMessage(design::box(design::VerdictId::PartialAreaMissing));
        return;
    }
    values_->DilciPlocha(spare) = area;
    values_->DilciPlocha.resize(spare + 1);
    RefreshEntryTable();
}

void frmDialog::OKButton_Click() {
    if (values_->RedukovanaPlocha != 0) {
        target_.txtOdvodNepPlocha.setText(numbers::general(values_->RedukovanaPlocha));
    } else {
        target_.txtOdvodNepPlocha.setText("");
        target_.txtOdtokDoVsak.setText("");
    }
    Unload();
}

void frmDialog::CancelButton_Click() {
    Unload();
}

}  // namespace mero::forms
