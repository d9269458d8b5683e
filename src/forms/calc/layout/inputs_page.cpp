// SPDX-License-Identifier: MIT
/// Setting out of the inputs tab: the form on the left, the guide on the right.
/// The captions stand as they have always stood, slips of the pen included.
#include "forms/calc/layout/inputs_page.h"

#include <QGroupBox>
#include <QVBoxLayout>

#include "forms/calc/layout/selection_guide.h"
#include "qt/buttons.h"
#include "qt/field_grid.h"
#include "qt/look.h"
#include "qt/page_layout.h"
#include "qt/panels.h"

namespace mero::forms {
namespace {

void addButton(qt::WidgetKit& kit, qt::FieldGrid& fields, platform::Button& button, const QString& of) {
    QPushButton& push = qt::makeButton(kit, button, fields.parent());
    push.setAccessibleName(push.text() + QLatin1String(": ") + of);
    fields.beside(push);
}

QWidget& buildFields(qt::WidgetKit& kit, frmCalcControls& form, QWidget& parent) {
    QGroupBox& frame = qt::makeFrame(kit, form.fraVstup, parent);
    qt::FieldGrid fields(kit, frame);
    fields.text(form.txtProjName, QStringLiteral("Název projektu:"));
    fields.text(form.txtProjektant, QStringLiteral("Řešitel projektu:"));
    fields.text(form.txtMistoAkce, QStringLiteral("Místo akce:"));
    fields.text(form.txtInvestor, QStringLiteral("Investor:"));
    fields.area(form.txtDetails, QStringLiteral("Detilní popis:"));
    fields.space();

    const QString area = QStringLiteral("Celková odvodňovaná plocha");
    const QString rain = QStringLiteral("Intenzita trvání deště");
    const QString soil = QStringLiteral("Součinitel filtrace (kf) podloží");
    fields.result(form.txtOdvodNepPlocha, area, QStringLiteral("m²"));
    addButton(kit, fields, form.cmdEdit[1], area);
    fields.result(form.txtSelIntDeste, rain, QStringLiteral("l/(s.ha)"));
    addButton(kit, fields, form.cmdEdit[0], rain);
    fields.result(form.txtSelDTrvDeste, QStringLiteral("Doba trvání deště"), QStringLiteral("min"));
    fields.result(form.txtOdtokDoVsak, QStringLiteral("Odtok do vsakovacího zařízení"),
                  QStringLiteral("l/s"));
    fields.space();
    fields.input(form.txtSoucFiltrace, soil, QStringLiteral("m/s"));
    addButton(kit, fields, form.cmdEdit[2], soil);
    fields.text(form.txtTypPudyPodlozi, QStringLiteral("Typ nesoudržné horniny"));
    fields.input(form.txtHPV, QStringLiteral("Hladina podzemní vody (pod povrchem)"), QStringLiteral("m"));
    fields.end();
    return frame;
}

QWidget& buildGuide(QWidget& parent) {
    auto& frame = *new QGroupBox(QStringLiteral("Vodítko k výběru systému vsakování"), &parent);
    auto* column = new QVBoxLayout(&frame);
    column->addWidget(new SelectionGuide(frame));
    return frame;
}

}  // namespace

void buildInputsPage(qt::WidgetKit& kit, frmCalcControls& form, QWidget& page) {
    QWidget& content = qt::makeScrollPage(page);
    auto* column = new QVBoxLayout(&content);
    auto* columns = new qt::FlowPair(content);
    columns->add(buildFields(kit, form, *columns), 1);
    columns->add(buildGuide(*columns), 1);
    column->addWidget(columns, 1);

    auto* foot = new QHBoxLayout;
    foot->setSpacing(3 * qt::gap(content));
    form.lblOdkaz.forEach(
        [&](int, platform::Label& link) { foot->addWidget(&qt::makeLink(kit, link, content)); });
    foot->addStretch(1);
    QLabel& time = qt::makeLabel(kit, form.lblTime, content);
    time.setAccessibleDescription(QStringLiteral("Aktuální čas"));
    foot->addWidget(&time);
    column->addLayout(foot);
}

}  // namespace mero::forms
