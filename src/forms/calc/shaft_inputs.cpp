// SPDX-License-Identifier: MIT
/// The shaft's catalogue, shape and dimension boxes.
#include "design/shaft_inputs.h"

#include "forms/calc/field_rules.h"
#include "forms/calc/frm_calc.h"
#include "platform/numbers/number_text.h"

namespace mero::forms {

void frmCalc::optSelTypSachty_Click(int Index) {
    txtPrumerSachtyVnej.setText("");
    txtPrumerSachtyVnit.setText("");
    txtTloustkaSteny.setText("");
    ShaftShape = static_cast<data::ShaftShape>(Index);
    cboTypSachty.clear();
    for (const design::CatalogueShaft& shaft : design::shaftCatalogue(ShaftShape)) {
        cboTypSachty.add(shaft.designation);
    }
    const bool round = ShaftShape == data::ShaftShape::Round;
    if (round) {
        // The equivalent diameter of a rectangular shaft that was chosen before does not outlive it.
        design::shaft::recomputeRoundOuterDiameter(*values_);
    }
    // A round shaft's outer diameter follows from its ring: nothing to type there.
    txtPrumerSachtyVnej.setEnabled(!round);
    txtPrumerSachtyVnej.setGreyed(round);
}

void frmCalc::cboTypSachty_Click() {
    const auto catalogue = design::shaftCatalogue(ShaftShape);
    const auto position = static_cast<std::size_t>(cboTypSachty.position());
    if (position >= catalogue.size()) {
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    }
    const design::CatalogueShaft& row = catalogue[position];
    const bool rectangular = ShaftShape == data::ShaftShape::Rectangular;
    design::shaft::takeRow(*values_, row);
    txtPrumerSachtyVnit.setText(numbers::fixed(row.side1_m, 2));
    txtPrumerSachtyVnej.setEnabled(rectangular);
    if (rectangular) {
        txtPrumerSachtyVnej.setText(numbers::fixed(row.side2_m, 2));
    }
    txtTloustkaSteny.setText(numbers::fixed(row.wall_m, 2));
}

// A text that is refused empties its box, which counts as emptied.

void frmCalc::txtPrumerSachtyVnit_Change() {
    storeNumber(txtPrumerSachtyVnit, values_->txtPrumerSachtyVnit);
    design::shaft::innerSideStored(*values_, ShaftShape, txtPrumerSachtyVnit.text().empty());
}

void frmCalc::txtPrumerSachtyVnej_Change() {
    storeNumber(txtPrumerSachtyVnej, values_->txtPrumerSachtyVnej);
    design::shaft::secondSideStored(*values_, txtPrumerSachtyVnej.text().empty());
}

void frmCalc::txtTloustkaSteny_Change() {
    storeNumber(txtTloustkaSteny, values_->txtTloustkaSteny);
    design::shaft::wallStored(*values_, ShaftShape, txtTloustkaSteny.text().empty());
}

}  // namespace mero::forms
