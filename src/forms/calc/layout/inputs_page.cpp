// SPDX-License-Identifier: MIT
/// Lays out the inputs tab: the form on the left, the guide on the right.
#include "forms/calc/layout/inputs_page.h"

#include <QGroupBox>
#include <QVBoxLayout>

#include "design/input.h"
#include "design/quantity.h"
#include "design/text_input.h"
#include "forms/calc/layout/field_remarks.h"
#include "forms/calc/layout/field_tips.h"
#include "forms/calc/layout/guided_choice.h"
#include "forms/calc/layout/selection_guide.h"
#include "qt/buttons.h"
#include "qt/field_grid.h"
#include "qt/look.h"
#include "qt/page_layout.h"
#include "qt/panels.h"

namespace mero::forms {
namespace {

using design::Input;
using design::Quantity;
using design::TextInput;

void addButton(qt::WidgetKit& kit, qt::FieldGrid& fields, platform::Button& button, const QString& of) {
    QPushButton& push = qt::makeButton(kit, button, fields.parent());
    push.setAccessibleName(push.text() + QLatin1String(": ") + of);
    fields.beside(push);
}

void addText(qt::FieldGrid& fields, const frmCalcControls& form, TextInput text) {
    fields.text(form.textBox(info(text).box), QString::fromUtf8(info(text).caption));
}

void addNumber(qt::FieldGrid& fields, const frmCalcControls& form, Input input) {
    fields.input(form.textBox(info(input).box), QString::fromUtf8(info(input).caption),
                 QString::fromUtf8(info(input).unit), design::fieldOf(input));
}

QWidget& buildFields(qt::WidgetKit& kit, frmCalcControls& form, QWidget& parent) {
    QGroupBox& frame = qt::makeFrame(kit, form.fraVstup, parent);
    qt::FieldGrid fields(kit, frame);
    // In the order of the work.
    fields.section(QStringLiteral("Projekt"));
    for (const TextInput text :
         {TextInput::ProjectName, TextInput::Designer, TextInput::Place, TextInput::Investor}) {
        addText(fields, form, text);
    }
    fields.area(form.txtDetails, QString::fromUtf8(info(TextInput::Description).caption));

    fields.section(QStringLiteral("Odvodňované plochy"));
    const QString area = QString::fromUtf8(info(Quantity::ReducedArea).caption);
    fields.result(form.txtOdvodNepPlocha, area, QString::fromUtf8(info(Quantity::ReducedArea).unit));
    addButton(kit, fields, form.cmdEdit[1], area);

    fields.section(QStringLiteral("Návrhový déšť"));
    const QString rain = QStringLiteral("Intenzita trvání deště");
    fields.result(form.txtSelIntDeste, rain, QString::fromUtf8(info(Quantity::CriticalIntensity).unit));
    addButton(kit, fields, form.cmdEdit[0], rain);
    fields.result(form.txtSelDTrvDeste, QString::fromUtf8(info(Input::DesignDuration).caption),
                  QString::fromUtf8(info(Input::DesignDuration).unit));
    fields.result(form.txtOdtokDoVsak, QString::fromUtf8(info(Quantity::Inflow).caption),
                  QString::fromUtf8(info(Quantity::Inflow).unit));

    fields.section(QStringLiteral("Podloží"));
    addNumber(fields, form, Input::Filtration);
    addButton(kit, fields, form.cmdEdit[2], QString::fromUtf8(info(Input::Filtration).caption));
    addText(fields, form, TextInput::Subsoil);
    addNumber(fields, form, Input::Groundwater);
    fields.end();
    return frame;
}

QWidget& buildGuide(const qt::WidgetKit& kit, frmCalc& form, QWidget& parent) {
    auto& frame = *new QGroupBox(QStringLiteral("Vodítko k výběru systému vsakování"), &parent);
    auto* column = new QVBoxLayout(&frame);
    auto* guide = new SelectionGuide(frame);
    guide->chosen = [&kit, &form](FacilityType type) { chooseByGuide(kit, form, type); };
    column->addWidget(guide);
    return frame;
}

}  // namespace

void buildInputsPage(qt::WidgetKit& kit, frmCalc& form, QWidget& page) {
    QWidget& content = qt::makeScrollPage(page);
    auto* column = new QVBoxLayout(&content);
    auto* columns = new qt::FlowPair(content);
    columns->add(buildFields(kit, form, *columns), 1);
    columns->add(buildGuide(kit, form, *columns), 1);
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
    showSiteRemarks(kit, form, content);
    giveSiteTips(kit, form);
}

}  // namespace mero::forms
