// SPDX-License-Identifier: MIT
/// The panels of surface infiltration, swales, the combined object and trenches, and what all panels share.
#include "forms/calc/layout/result_panels.h"

#include <QGroupBox>
#include <QVBoxLayout>

#include "forms/calc/layout/picture_pane.h"
#include "qt/buttons.h"
#include "qt/look.h"
#include "qt/page_layout.h"
#include "qt/panels.h"

namespace mero::forms {
namespace {

using qt::FieldGrid;

const QString kMetres = QStringLiteral("m");
const QString kSquareMetres = QStringLiteral("m²");
const QString kCubicMetres = QStringLiteral("m³");
const QString kHours = QStringLiteral("h");
const QString kMetresPerSecond = QStringLiteral("m/s");
const QString kMillimetres = QStringLiteral("mm");

/// In a very wide window the results stay near the inputs [characters].
constexpr int kWidestPanel = 260;

void addArea(frmCalcControls& form, int type, FieldGrid& results) {
    results.result(form.txtVsakPlocha[type], QStringLiteral("Plocha potřebná pro vsakování"), kSquareMetres);
}

void fillSwalePanel(qt::WidgetKit& kit, frmCalcControls& form, const PanelGrids& grids) {
    grids.inputs.widget(QStringLiteral("Typ půdy"),
                        buildOptions(kit, form.optSelTypPudy2, grids.inputs.parent()));
    addSafetyFactor(form, kSwale, grids.inputs);
    addArea(form, kSwale, grids.results);
    grids.results.result(form.txtObjAkum[kSwale], QStringLiteral("Objem akumulace průlehu"), kCubicMetres);
    grids.results.result(form.txtVyskaVzduti[kSwale], QStringLiteral("Výška vzdutí"), kMetres);
    grids.results.result(form.txtDobaPrazdneni[kSwale], QStringLiteral("Doba prázdnění průlehu"), kHours);
}

void addTrenchSection(frmCalcControls& form, int type, FieldGrid& inputs) {
    inputs.input(form.txtPorVyplne[type], QStringLiteral("Pórovitost výplně rýhy"));
    inputs.input(form.txtSirkaRyhy[type], QStringLiteral("Šířka rýhy (střední)"), kMetres);
    inputs.input(form.txtVyskaRyhy[type], QStringLiteral("Výška rýhy"), kMetres);
}

/// The pipes of the overflow or the drain, shown while their box is ticked and not yet confirmed.
void addPipes(qt::WidgetKit& kit, frmCalcControls& form, int type, FieldGrid& inputs) {
    QWidget& row = qt::makeRow(inputs.parent());
    row.layout()->addWidget(&qt::makeCheckBox(kit, form.chkSelPretok[type], row));
    QPushButton& edit = qt::makeButton(kit, form.cmdEdit[type], row);
    row.layout()->addWidget(&edit);
    inputs.line(row);
    const QString heading = QString::fromStdString(form.chkSelPretok[type].text());
    edit.setAccessibleName(edit.text() + QLatin1String(": ") + heading);

    QGroupBox& box = qt::makeFramedPanel(kit, form.picPretokSkrOdtok[type], heading, inputs.parent());
    FieldGrid pipes(kit, box);
    pipes.input(form.txtPocetPotrubi[type], QStringLiteral("Počet potrubí"));
    pipes.input(form.txtPrumTroubVnej[type], QStringLiteral("Vnější průměr vsakovací trouby"), kMillimetres);
    pipes.input(form.txtPrumTroubVnit[type], QStringLiteral("Vnitřní průměr vsakovací trouby"), kMillimetres);
    if (type == kSwaleTrench) {
        pipes.input(form.txtSpecDrenOdtok[type], QStringLiteral("Škrcená odtoková intenzita"),
                    QStringLiteral("l/(s.ha)"));
    } else {
        pipes.input(form.txtVystupPlocha[type], QStringLiteral("Výstupní plocha"), QStringLiteral("cm²/m"));
        pipes.input(form.txtVystupRychlost[type], QStringLiteral("Výstupní rychlost"), kMetresPerSecond);
    }
    pipes.line(qt::makeButton(kit, form.cmdOK[type], box));
    inputs.wide(box);
}

void fillSwaleTrenchPanel(qt::WidgetKit& kit, frmCalcControls& form, const PanelGrids& grids) {
    grids.inputs.widget(QStringLiteral("Typ půdy:"),
                        buildOptions(kit, form.optSelTypPudy3, grids.inputs.parent()));
    grids.inputs.input(form.txtSoucFiltrPruleh[kSwaleTrench],
                       QStringLiteral("Součinitel filtrace (kf) průlehu"), kMetresPerSecond);
    addSafetyFactor(form, kSwaleTrench, grids.inputs);
    addTrenchSection(form, kSwaleTrench, grids.inputs);
    addPipes(kit, form, kSwaleTrench, grids.inputs);

    addArea(form, kSwaleTrench, grids.results);
    FieldGrid& results = grids.results;
    results.result(form.txtObjAkum[kSwaleTrench], QStringLiteral("Objem akumulace průlehu"), kCubicMetres);
    results.result(form.txtDelkaRyhy[kSwaleTrench], QStringLiteral("Délka vsakovací rýhy"), kMetres);
    results.result(form.txtSirkaPrulehu[kSwaleTrench], QStringLiteral("Šířka průlehu"), kMetres);
    results.result(form.txtHloubkaPrulehu[kSwaleTrench], QStringLiteral("Hloubka průlehu (výška vzdutí)"),
                   kMetres);
    results.result(form.txtDobaPrazdneni[kSwaleTrench], QStringLiteral("Doba prázdnění průlehu"), kHours);
}

void fillTrenchPanel(qt::WidgetKit& kit, frmCalcControls& form, const PanelGrids& grids) {
    addSafetyFactor(form, kTrench, grids.inputs);
    addTrenchSection(form, kTrench, grids.inputs);
    addPipes(kit, form, kTrench, grids.inputs);

    FieldGrid& results = grids.results;
    results.result(form.txtSoucAkum[kTrench],
                   QStringLiteral("Celkový součinitel akumulace vsakovací rýhy (vč. příp. trouby)"));
    results.result(form.txtDelkaRyhy[kTrench], QStringLiteral("Délka vsakovací rýhy"), kMetres);
    addArea(form, kTrench, results);
    results.result(form.txtObjAkum[kTrench], QStringLiteral("Objem akumulace"), kCubicMetres);
}

void fill(qt::WidgetKit& kit, frmCalcControls& form, int type, const PanelGrids& grids) {
    switch (type) {
        case kSurface:
            addSafetyFactor(form, kSurface, grids.inputs);
            addArea(form, kSurface, grids.results);
            break;
        case kSwale:
            fillSwalePanel(kit, form, grids);
            break;
        case kSwaleTrench:
            fillSwaleTrenchPanel(kit, form, grids);
            break;
        case kTrench:
            fillTrenchPanel(kit, form, grids);
            break;
        case kShaft:
            fillShaftPanel(kit, form, grids);
            break;
        case kTank:
            fillTankPanel(kit, form, grids);
            break;
        default:
            break;
    }
}

}  // namespace

void addSafetyFactor(frmCalcControls& form, int type, FieldGrid& inputs) {
    inputs.input(form.txtSoucBezp[type], QStringLiteral("Součinitel bezpečnosti"));
}

QWidget& buildOptions(qt::WidgetKit& kit, const platform::ControlArray<platform::OptionButton>& options,
                      QWidget& parent) {
    QWidget& row = qt::makeRow(parent);
    qt::speakAs(row, QAccessible::Grouping);
    options.forEach([&](int, platform::OptionButton& option) {
        row.layout()->addWidget(&qt::makeOption(kit, option, row));
    });
    return row;
}

void buildResultPanel(qt::WidgetKit& kit, frmCalc& form, int type, QWidget& panel) {
    auto* whole = new QVBoxLayout(&panel);
    whole->setContentsMargins(0, 0, 0, 0);
    auto* columns = new qt::FlowPair(panel);
    columns->setMaximumWidth(qt::textWidth(panel, kWidestPanel));
    auto& inputs_box = *new QGroupBox(QStringLiteral("Vstupy"), columns);
    auto& results_side = *new QWidget(columns);
    auto* results_column = new QVBoxLayout(&results_side);
    results_column->setContentsMargins(0, 0, 0, 0);
    auto& results_box = *new QGroupBox(QStringLiteral("Výsledky"), &results_side);
    results_column->addWidget(&results_box);
    results_column->addWidget(&makePicturePane(form, type, results_side), 1);
    columns->add(inputs_box, 0);
    columns->add(results_side, 1);
    whole->addWidget(columns);

    FieldGrid inputs(kit, inputs_box);
    FieldGrid results(kit, results_box);
    fill(kit, form, type, {inputs, results});

    QPushButton& calculate = qt::makeButton(kit, form.cmdCalcul[type], inputs_box);
    QFont font = calculate.font();
    font.setBold(true);
    calculate.setFont(font);
    calculate.setMinimumWidth(qt::textWidth(calculate, 18));
    inputs.space();
    inputs.line(calculate);
    inputs.end();
    results.end();
}

}  // namespace mero::forms
