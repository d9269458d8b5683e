// SPDX-License-Identifier: MIT
/// The shaft's catalogue, shape and dimension boxes, which keep the two diameters in use in step.
/// The calculation knows only D_i and D_a; a rectangular shaft counts by its equivalent diameters.
#include "calc/shaft_geometry.h"
#include "forms/calc/field_rules.h"
#include "forms/calc/frm_calc.h"
#include "platform/numbers/number_text.h"

namespace mero::forms {
namespace {

constexpr int kRound = 0;
constexpr int kRectangular = 1;

/// Row of a catalogue by the list position. @throws RuntimeError SubscriptOutOfRange outside the catalogue
template <typename Row>
const Row& catalogueRow(const std::vector<Row>& catalogue, int position) {
    if (position < 0 || position >= static_cast<int>(catalogue.size())) {
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    }
    return catalogue[static_cast<std::size_t>(position)];
}

}  // namespace

void frmCalc::optSelTypSachty_Click() {
    txtPrumerSachtyVnej.setText("");
    txtPrumerSachtyVnit.setText("");
    txtTloustkaSteny.setText("");
    ShaftShape = optSelTypSachty[kRectangular].selected() ? kRectangular : kRound;
    fillShaftList();
    if (ShaftShape == kRound) {
        // The equivalent diameter of a rectangular shaft that was chosen before does not outlive it.
        recomputeRoundOuterDiameter();
    }
    // A round shaft's outer diameter follows from its ring: nothing to type there.
    txtPrumerSachtyVnej.setEnabled(ShaftShape == kRectangular);
    txtPrumerSachtyVnej.setGreyed(ShaftShape == kRound);
}

void frmCalc::fillShaftList() {
    cboTypSachty.clear();
    if (ShaftShape == kRound) {
        for (const data::RoundShaft& shaft : values_->SachtaKruhova) {
            cboTypSachty.add(shaft.designation);
        }
    } else {
        for (const data::RectangularShaft& shaft : values_->SachtaObdelnikova) {
            cboTypSachty.add(shaft.designation);
        }
    }
}

void frmCalc::cboTypSachty_Click() {
    if (ShaftShape == kRound) {
        const data::RoundShaft& row = catalogueRow(values_->SachtaKruhova, cboTypSachty.position());
        values_->txtPrumerSachtyVnit = row.inner_diameter_m;
        values_->txtTloustkaSteny = row.wall_m;
        values_->D_i = row.inner_diameter_m;
        recomputeRoundOuterDiameter();
        txtPrumerSachtyVnit.setText(numbers::fixed(row.inner_diameter_m, 2));
        txtPrumerSachtyVnej.setEnabled(false);
        txtTloustkaSteny.setText(numbers::fixed(row.wall_m, 2));
    } else if (ShaftShape == kRectangular) {
        const data::RectangularShaft& row = catalogueRow(values_->SachtaObdelnikova, cboTypSachty.position());
        values_->txtPrumerSachtyVnit = row.side1_m;
        values_->shaft_side1_m = row.side1_m;
        values_->txtPrumerSachtyVnej = row.side2_m;
        values_->txtTloustkaSteny = row.wall_m;
        recomputeEquivalentDiameters();
        txtPrumerSachtyVnit.setText(numbers::fixed(row.side1_m, 2));
        txtPrumerSachtyVnej.setEnabled(true);
        txtPrumerSachtyVnej.setText(numbers::fixed(row.side2_m, 2));
        txtTloustkaSteny.setText(numbers::fixed(row.wall_m, 2));
    }
}

void frmCalc::recomputeRoundOuterDiameter() {
    values_->D_a = calc::shaft_geometry::roundOuterDiameter(values_->D_i, values_->txtTloustkaSteny);
}

void frmCalc::recomputeEquivalentDiameters() {
    const float side1_m = values_->shaft_side1_m;
    const float side2_m = values_->txtPrumerSachtyVnej;
    values_->D_i = calc::shaft_geometry::equivalentInnerDiameter(side1_m, side2_m);
    values_->D_a = calc::shaft_geometry::equivalentOuterDiameter(side1_m, side2_m, values_->txtTloustkaSteny);
}

void frmCalc::txtPrumerSachtyVnit_Change() {
    const bool emptied = storeDimension(txtPrumerSachtyVnit, values_->txtPrumerSachtyVnit);
    if (ShaftShape == kRound) {
        values_->D_i = values_->txtPrumerSachtyVnit;
        recomputeRoundOuterDiameter();
    } else if (emptied) {
        // Only the inner diameter goes; the next edit of another box uses the side in store.
        values_->D_i = 0;
    } else {
        values_->shaft_side1_m = values_->txtPrumerSachtyVnit;
        recomputeEquivalentDiameters();
    }
}

void frmCalc::txtPrumerSachtyVnej_Change() {
    if (!storeDimension(txtPrumerSachtyVnej, values_->txtPrumerSachtyVnej)) {
        recomputeEquivalentDiameters();
    }
}

void frmCalc::txtTloustkaSteny_Change() {
    const bool emptied = storeDimension(txtTloustkaSteny, values_->txtTloustkaSteny);
    if (ShaftShape == kRound) {
        recomputeRoundOuterDiameter();
    } else if (!emptied) {
        recomputeEquivalentDiameters();
    }
}

}  // namespace mero::forms
