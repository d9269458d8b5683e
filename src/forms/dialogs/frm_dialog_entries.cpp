// SPDX-License-Identifier: MIT
/// The drained-area dialog's table of entries: showing, summing, editing and deleting them.
/// The lists keep one spare slot at their end, which the next entry fills.
#include <string>

#include "calc/drained_area.h"
#include "forms/dialogs/frm_dialog.h"
#include "platform/numbers/checked.h"
#include "platform/numbers/number_text.h"

namespace mero::forms {
namespace {

constexpr int kIdColumn = 0;
constexpr int kAreaColumn = 1;
constexpr int kCoefficientColumn = 2;
constexpr int kSurfaceColumn = 3;
constexpr int kChoiceColumn = 4;

/// A text that cannot be converted in the area column ends the program; see the coefficient column, which
/// ignores it.
float areaOf(const std::string& text) {
    try {
        return numbers::strictSingle(text);
    } catch (const RuntimeError& error) {
        throw RuntimeError(error.number(), error.description(), RuntimeError::Effect::EndsProgram);
    }
}

}  // namespace

void frmDialog::RefreshEntryTable() {
    editor_.close();
    fgZapisTab.build("ID|<Dílčí plocha|<Odtokový součinitel|<Typ povrchu|<Výběr", {0.1, 0.2, 0.2, 0.4, 0.1});
    if (!hasEntries()) {
        values_->RedukovanaPlocha = 0;
        txtOdvodNepPlocha.setText("");
        fgZapisTab.hide();
        return;
    }
    for (int i = 1; i <= entryCount(); ++i) {
        fgZapisTab.addRow({numbers::general(i), numbers::fixed(values_->DilciPlocha(i), 0),
                           numbers::fixed(values_->OdtokovySoucinitel(i), 2), values_->TypPovrchu(i)});
    }
    fgZapisTab.show();
    SumReducedArea();
}

void frmDialog::SumReducedArea() {
    values_->RedukovanaPlocha = 0;
    for (int i = 1; i <= entryCount(); ++i) {
        values_->RedukovanaPlocha = calc::addPartialArea(
            values_->RedukovanaPlocha, values_->OdtokovySoucinitel(i), values_->DilciPlocha(i));
    }
    txtOdvodNepPlocha.setText(numbers::general(values_->RedukovanaPlocha));
}

void frmDialog::fgZapisTab_Click() {
    editor_.close();
    if (!hasEntries()) {
        return;
    }
    const platform::GridCell mouse = fgZapisTab.mouse();
    const int row = fgZapisTab.current().row;
    switch (mouse.column) {
        case kChoiceColumn:
            fgZapisTab.setMark(mouse, true);
            row_to_delete_ = mouse.row;
            cmdDelete.setEnabled(true);
            break;
        case kAreaColumn:
            editor_.open(numbers::general(values_->DilciPlocha(row)));
            break;
        case kCoefficientColumn:
            editor_.open(numbers::general(values_->OdtokovySoucinitel(row)));
            break;
        case kSurfaceColumn:
            editor_.open(values_->TypPovrchu(row));
            break;
        case kIdColumn:
        default:
            break;
    }
}

void frmDialog::txtSChange_Change() {
    const std::string text = txtSChange.text();
    if (text.empty()) {
        return;
    }
    const platform::GridCell cell = editor_.cell();
    switch (cell.column) {
        case kAreaColumn:
            editArea(cell, text);
            break;
        case kCoefficientColumn:
            editCoefficient(cell, text);
            break;
        case kSurfaceColumn:
            values_->TypPovrchu(cell.row) = text;
            fgZapisTab.setText(cell, text);
            break;
        default:
            break;
    }
    SumReducedArea();
}

void frmDialog::editArea(platform::GridCell cell, const std::string& text) {
    values_->DilciPlocha(cell.row) = areaOf(text);
    fgZapisTab.setText(cell, numbers::fixed(numbers::leadingNumber(text), 0));
}

void frmDialog::editCoefficient(platform::GridCell cell, const std::string& text) {
    try {
        values_->OdtokovySoucinitel(cell.row) = numbers::strictSingle(text);
    } catch (const RuntimeError&) {
        // The coefficient keeps its value; the cell still shows what can be read from the text.
    }
    fgZapisTab.setText(cell, numbers::fixed(numbers::leadingNumber(text), 2));
}

void frmDialog::resizeLists(int length) {
    values_->DilciPlocha.resize(length);
    values_->OdtokovySoucinitel.resize(length);
    values_->TypPovrchu.resize(length);
}

void frmDialog::cmdDelete_Click() {
    const int count = entryCount();
    if (count == 0) {
        return;
    }
    if (row_to_delete_ >= count) {
        resizeLists(count);
        if (count == 1) {
            values_->DilciPlocha(1) = 0;
            values_->OdtokovySoucinitel(1) = 0;
            values_->TypPovrchu(1) = "";
            txtOdvodNepPlocha.setText("");
        }
    } else {
        for (int i = row_to_delete_; i <= count; ++i) {
            values_->DilciPlocha(i) = values_->DilciPlocha(i + 1);
            values_->OdtokovySoucinitel(i) = values_->OdtokovySoucinitel(i + 1);
            values_->TypPovrchu(i) = values_->TypPovrchu(i + 1);
        }
        resizeLists(count);
    }
    RefreshEntryTable();
}

void frmDialog::cmdDeleteAll_Click() {
    values_->DilciPlocha = data::OneBasedList<float>(1);
    values_->OdtokovySoucinitel = data::OneBasedList<float>(1);
    values_->TypPovrchu = data::OneBasedList<std::string>(1);
    RefreshEntryTable();
}

}  // namespace mero::forms
