// SPDX-License-Identifier: MIT
/// Lays out the two tabs that show documents.
#include "forms/calc/layout/documents_pages.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "forms/calc/layout/judgement_pane.h"
#include "qt/buttons.h"

namespace mero::forms {

void buildTechnologyPage(qt::WidgetKit& kit, frmCalcControls& form, const qt::DocumentServices& services,
                         QWidget& page) {
    auto* column = new QVBoxLayout(&page);
    QTextBrowser& view = qt::makeDocumentView(kit, form.wbShowPopisTech, services, page);
    qt::describe(view, QString::fromStdString(form.SSTab1.captions()[kTabTechnology]));
    column->addWidget(&view);
}

void buildResultsPage(qt::WidgetKit& kit, frmCalc& form, const qt::DocumentServices& services,
                      QWidget& page) {
    auto* column = new QVBoxLayout(&page);
    QTextBrowser& view = qt::makeDocumentView(kit, form.wbShowResults, services, page);
    qt::describe(view, QString::fromStdString(form.SSTab1.captions()[kTabResults]));
    addReportState(kit, form, page, *column, view);
    column->addWidget(&view, 1);
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(&qt::makeButton(kit, form.cmdSaveResults, page));
    row->addWidget(&qt::makeButton(kit, form.cmdPrint, page));
    column->addLayout(row);
}

}  // namespace mero::forms
