// SPDX-License-Identifier: MIT
/// Reads the boxes, so that what is copied is what is seen.
#include "forms/calc/layout/result_rows.h"

#include "design/quantity.h"
#include "qt/texts.h"

namespace mero::forms {

qt::CopiedRows resultRows(const frmCalc& form, FacilityType type) {
    qt::CopiedRows rows{{qt::shown(form.values().TypyZasakovani[data::index(type)])}};
    for (const design::ResultBox& row : design::resultBoxes(type)) {
        rows.push_back({QString::fromUtf8(design::captionOf(row.quantity, type)),
                        qt::shown(form.textBox(design::controlName(row.box, type)).text()),
                        QString::fromUtf8(info(row.quantity).unit)});
    }
    return rows;
}

}  // namespace mero::forms
