// SPDX-License-Identifier: MIT
/// Lays out the soil dialog.
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "forms/dialogs/layout/dialog_windows.h"
#include "qt/buttons.h"
#include "qt/grid_view.h"

namespace mero::forms {
namespace {

constexpr int kChoiceColumn = 2;
constexpr qt::GridRoom kRoom{.characters = 76, .rows = 8};

}  // namespace

void SoilWindow::build(QWidget& content) {
    auto* column = new QVBoxLayout(&content);
    qt::GridView& soils = qt::makeGrid(kit(), form_->fgCoefProp, kChoiceColumn, kRoom, content);
    qt::describe(soils, QString::fromStdString(form_->title()));
    column->addWidget(&soils, 1);
    auto* foot = new QHBoxLayout;
    foot->addStretch(1);
    QPushButton& confirm = qt::makeButton(kit(), form_->cmdOK, content);
    confirmWith(confirm);
    foot->addWidget(&confirm);
    column->addLayout(foot);
}

}  // namespace mero::forms
