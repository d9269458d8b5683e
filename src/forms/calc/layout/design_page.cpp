// SPDX-License-Identifier: MIT
/// Lays out the design tab.
/// All panels share one place; the form shows one of them at a time.
#include "forms/calc/layout/design_page.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QScreen>
#include <QVBoxLayout>

#include "design/input.h"
#include "forms/calc/layout/first_steps.h"
#include "forms/calc/layout/result_panels.h"
#include "qt/buttons.h"
#include "qt/drop_list_box.h"
#include "qt/look.h"
#include "qt/page_layout.h"
#include "qt/panels.h"

namespace mero::forms {
namespace {

/// On a narrower screen the list stands below the options, so that one need not scroll sideways [characters].
constexpr int kRoomForOneRow = 90;

QWidget& buildChoice(qt::WidgetKit& kit, frmCalcControls& form, QWidget& parent) {
    QGroupBox& frame = qt::makeFrame(kit, form.fraVyber, parent);
    const bool narrow = frame.screen()->availableGeometry().width() < qt::textWidth(frame, kRoomForOneRow);
    auto* row = new QBoxLayout(narrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight, &frame);
    row->setSpacing(narrow ? qt::gap(frame) : 2 * qt::gap(frame));
    QWidget& options = buildOptions(kit, form.optSelType, frame);
    qt::describe(options, frame.title());
    const Qt::Alignment side = narrow ? Qt::AlignLeft : Qt::Alignment();
    row->addWidget(&options, 0, side);
    QComboBox& types = qt::makeMovingList(kit, form.cboSelType, frame);
    types.setMinimumContentsLength(32);
    qt::describe(types, QString::fromUtf8(info(design::Input::Type).caption));
    row->addWidget(&types, 0, side);
    if (!narrow) {
        row->addStretch(1);
    }
    return frame;
}

}  // namespace

void buildDesignPage(qt::WidgetKit& kit, frmCalc& form, QWidget& page) {
    QWidget& content = qt::makeScrollPage(page);
    auto* column = new QVBoxLayout(&content);
    column->addWidget(&buildChoice(kit, form, content));
    column->addWidget(&makeFirstSteps(form, content));
    form.picResults.forEach([&](int type, platform::Panel& panel) {
        QWidget& widget = qt::makePanel(kit, panel, content);
        buildResultPanel(kit, form, static_cast<FacilityType>(type), widget);
        column->addWidget(&widget, 1);
    });
    column->addStretch(0);
}

}  // namespace mero::forms
