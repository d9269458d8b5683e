// SPDX-License-Identifier: MIT
/// The shaft's catalogue, shape and dimension boxes.
#include "design/shaft_inputs.h"

#include "forms/calc/field_rules.h"
#include "forms/calc/frm_calc.h"
#include "platform/numbers/number_text.h"

namespace mero::forms {

void frmCalc::optSelTypSachty_Click() {
    txtPrumerSachtyVnej.setText("");
    txtPrumerSachtyVnit.setText("");
    txtTloustkaSteny.setText("");
    ShaftShape = optSelTypSachty[data::ShaftShape::Rectangular].selected() ? data::ShaftShape::Rectangular
                                                                           : data::ShaftShape::Round;
    fillShaftList();
    const bool round = ShaftShape == data::ShaftShape::Round;
    if (round) {
        // The equivalent diameter of a rectangular shaft that was chosen before does not outlive it.
        design::shaft::recomputeRoundOuterDiameter(*values_);
    }
    // A round shaft's outer diameter follows from its ring: nothing to type there.
    txtPrumerSachtyVnej.setEnabled(!round);
    txtPrumerSachtyVnej.setGreyed(round);
}

void frmCalc::fillShaftList() {
    cboTypSachty.clear();
    for (const design::CatalogueShaft& shaft : design::shaftCatalogue(ShaftShape)) {
        cboTypSachty.add(shaft.designation);
    }
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

void frmCalc::txtPrumerSachtyVnit_Change() {
    const bool emptied = storeDimension(txtPrumerSachtyVnit, values_->txtPrumerSachtyVnit);
    design::shaft::innerSideStored(*values_, ShaftShape, emptied);
}

void frmCalc::txtPrumerSachtyVnej_Change() {
    const bool emptied = storeDimension(txtPrumerSachtyVnej, values_->txtPrumerSachtyVnej);
    design::shaft::secondSideStored(*values_, emptied);
}

void frmCalc::txtTloustkaSteny_Change() {
    const bool emptied = storeDimension(txtTloustkaSteny, values_->txtTloustkaSteny);
    design::shaft::wallStored(*values_, ShaftShape, emptied);
}

}  // namespace mero::forms
