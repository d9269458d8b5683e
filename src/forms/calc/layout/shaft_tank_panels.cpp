// SPDX-License-Identifier: MIT
/// The panels of shaft infiltration and of infiltration tanks.
#include <QHBoxLayout>

#include "forms/calc/layout/result_panels.h"
#include "qt/buttons.h"
#include "qt/drop_list_box.h"
#include "qt/field_keys.h"
#include "qt/look.h"
#include "qt/page_layout.h"

namespace mero::forms {
namespace {

using qt::FieldGrid;

const QString kMetres = QStringLiteral("m");

/// The number of shafts with its two arrows.
void addCount(qt::WidgetKit& kit, frmCalcControls& form, FieldGrid& inputs) {
    const QString caption = QStringLiteral("Počet šachet:");
    QLineEdit& count = inputs.input(form.txtSachtyCount, caption);
    inputs.besideField(qt::makeUpDown(kit, form.updSacht, caption, inputs.parent()));
    qt::spinByKeys(kit, form.updSacht, count);
}

}  // namespace

void fillShaftPanel(qt::WidgetKit& kit, frmCalcControls& form, const PanelGrids& grids) {
    FieldGrid& inputs = grids.inputs;
    QWidget& box = inputs.parent();
    inputs.widget(QStringLiteral("Tvar šachty:"), buildOptions(kit, form.optSelTypSachty, box));
    inputs.widget(QStringLiteral("Typ šachty:"), buildOptions(kit, form.optSelTypPudy5, box));
    QComboBox& rings = qt::makeDropList(kit, form.cboTypSachty, box);
    rings.setMinimumContentsLength(20);
    inputs.widget(QStringLiteral("Šachta z katalogu:"), rings);
    addCount(kit, form, inputs);
    inputs.input(form.txtPrumerSachtyVnit, QStringLiteral("DN / Šířka"), kMetres);
    inputs.input(form.txtPrumerSachtyVnej, QStringLiteral("Délka"), kMetres);
    inputs.input(form.txtTloustkaSteny, QStringLiteral("Tloušťka"), kMetres);
    inputs.input(form.txtNezamrzHlPritok, QStringLiteral("Nezámrzná hloubka přitoku"), kMetres);
    inputs.input(form.txtMinPrusakDraha, QStringLiteral("Minimální průsaková dráha"), kMetres);
    inputs.input(form.txtVyskaFiltrVrstvy, QStringLiteral("Výška filtrační vrstvy"), kMetres);
    inputs.input(form.txtVyskaPiskVrstvy, QStringLiteral("Vrstva písku/jemného štěrku"), kMetres);
    addSafetyFactor(form, kShaft, inputs);

    FieldGrid& results = grids.results;
    results.result(form.txtVyskaVzduti[kShaft], QStringLiteral("Výška vzdutí"), kMetres);
    results.result(form.txtVsakPlocha[kShaft], QStringLiteral("Vsakovací plocha šachty"),
                   QStringLiteral("m²"));
    results.result(form.txtObjAkum[kShaft], QStringLiteral("Objem akumulace"), QStringLiteral("m³"));
    results.result(form.txtHloubkaSachty, QStringLiteral("Potřebná hloubka šachty"), kMetres);
    results.result(form.txtPotrHloubkaZahl, QStringLiteral("Min. hloubka hladiny podzemní vody"), kMetres);
    results.result(form.txtSoucFiltrPruleh[kShaft], QStringLiteral("Součinitel filtrace náplně filtru"),
                   QStringLiteral("m/s"));
}

void fillTankPanel(qt::WidgetKit& kit, frmCalcControls& form, const PanelGrids& grids) {
    FieldGrid& inputs = grids.inputs;
    inputs.input(form.txtDelkaDnaNadrz, QStringLiteral("Délka dna nádrže"), kMetres);
    inputs.input(form.txtSirkaDnaNadrz, QStringLiteral("Šířka dna nádrže"), kMetres);
    inputs.input(form.txtHloubkaNadrz, QStringLiteral("Hloubka nádrže"), kMetres);
    inputs.input(form.txtSklonSvahuNadrz, QStringLiteral("Sklon svahů nádrže"), QStringLiteral("1 : n"));
    inputs.input(form.txtSpecMeroIntenz, QStringLiteral("Specifická vsakovací intenzita"),
                 QStringLiteral("l/s.ha"));
    addSafetyFactor(form, kTank, inputs);
    inputs.line(qt::makeCheckBox(kit, form.chkPredUsaz, inputs.parent()));

    FieldGrid& results = grids.results;
    results.result(form.txtVsakTok, QStringLiteral("Vsakovací tok"), QStringLiteral("m³/s"));
    results.result(form.txtVypObjNadrz, QStringLiteral("Objem dle rozměrů nádrže"), QStringLiteral("m³"));
    results.result(form.txtObjAkum[kTank], QStringLiteral("Potřebný objem akumulace"), QStringLiteral("m³"));
    results.space();
    auto& warning = *new QLabel(QStringLiteral("Nutno ověřit dlouhodobou simulací!"), &results.parent());
    qt::showAsWarning(warning);
    results.line(warning);
}

}  // namespace mero::forms
