// SPDX-License-Identifier: MIT
/// Setting out of the design tab.
/// All panels share one place; the form shows one of them at a time.
#include "forms/calc/layout/design_page.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "forms/calc/layout/result_panels.h"
#include "platform/qt/buttons.h"
#include "platform/qt/drop_list_box.h"
#include "platform/qt/look.h"
#include "platform/qt/page_layout.h"
#include "platform/qt/panels.h"

namespace mero::forms {
namespace {

QWidget& buildChoice(qt::WidgetKit& kit, frmCalcControls& form, QWidget& parent) {
    QGroupBox& frame = qt::makeFrame(kit, form.fraVyber, parent);
    auto* row = new QHBoxLayout(&frame);
    row->setSpacing(2 * qt::gap(frame));
    QWidget& options = buildOptions(kit, form.optSelType, frame);
    qt::describe(options, frame.title());
    row->addWidget(&options);
    QComboBox& types = qt::makeDropList(kit, form.cboSelType, frame);
    types.setMinimumContentsLength(32);
    qt::describe(types, QStringLiteral("Typ vsakování"));
    row->addWidget(&types);
    row->addStretch(1);
    return frame;
}

}  // namespace

void buildDesignPage(qt::WidgetKit& kit, frmCalc& form, QWidget& page) {
    QWidget& content = qt::makeScrollPage(page);
    auto* column = new QVBoxLayout(&content);
    column->addWidget(&buildChoice(kit, form, content));
    form.picResults.forEach([&](int type, platform::Panel& panel) {
        QWidget& widget = qt::makePanel(kit, panel, content);
        buildResultPanel(kit, form, type, widget);
        column->addWidget(&widget, 1);
    });
    column->addStretch(0);
}

}  // namespace mero::forms
