// SPDX-License-Identifier: MIT
/// Lays out the rain dialog.
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "design/input.h"
#include "design/input_guide.h"
#include "design/quantity.h"
#include "forms/dialogs/layout/dialog_windows.h"
#include "forms/dialogs/layout/rain_curve_view.h"
#include "qt/buttons.h"
#include "qt/cell_editor_box.h"
#include "qt/drop_list_box.h"
#include "qt/field_grid.h"
#include "qt/look.h"
#include "qt/text_fields.h"
#include "qt/texts.h"

namespace mero::forms {
namespace {

constexpr int kChoiceColumn = 2;
constexpr qt::GridRoom kRoom{.characters = 58, .rows = 9};

qt::CellEntry numberColumn(const char* unit) {
    return {.number = qt::NumberEntry{numbers::NumberField::Plain, QString::fromUtf8(unit)}};
}

}  // namespace

void RainWindow::build(QWidget& content) {
    auto* columns = new QHBoxLayout(&content);
    columns->addWidget(&buildTable(content), 1);
    columns->addWidget(&buildHelp(content));
}

QWidget& RainWindow::buildTable(QWidget& parent) {
    auto& side = *new QWidget(&parent);
    auto* column = new QVBoxLayout(&side);
    column->setContentsMargins(0, 0, 0, 0);
    auto& choice = *new QWidget(&side);
    qt::FieldGrid fields(kit(), choice);
    choice.layout()->setContentsMargins(0, 0, 0, 0);
    QComboBox& station = qt::makeDropList(kit(), form_->cboSelStanice, choice);
    station.setToolTip(qt::shown(design::explanation({design::Input::Station})));
    fields.widget(QStringLiteral("Stanice"), station);
    QComboBox& periodicity = qt::makeDropList(kit(), form_->cboSelPeriod, choice);
    periodicity.setMinimumContentsLength(8);
    periodicity.setToolTip(qt::shown(design::explanation({design::Input::Periodicity})));
    QPushButton& help = qt::makeButton(kit(), form_->cmdEdit, choice);
    help.setAccessibleName(QStringLiteral("Nápověda"));
    help.setFixedWidth(help.sizeHint().height() * 5 / 4);
    fields.pair(QStringLiteral("Periodicita"), periodicity, help);
    column->addWidget(&choice);

    QLabel& note = qt::makeLabel(kit(), form_->lblDemo, side);
    note.setWordWrap(true);
    QFont font = note.font();
    font.setItalic(true);
    note.setFont(font);
    column->addWidget(&note);
    // The note takes its room from the screen, not from the table.
    qt::follow(form_->lblDemo, *this, [this](platform::Aspect aspect) {
        if (aspect == platform::Aspect::Visible) {
            qt::later(*this, [this] {
                // Beyond the screen nobody could reach the button: where it has no room for all, the curve
                // gives way.
                resize(size().expandedTo(sizeHint()).boundedTo(roomOnScreen()));
            });
        }
    });

    qt::GridView& table = qt::makeGrid(kit(), form_->fgIntDeste, kChoiceColumn, kRoom, side);
    qt::describe(table, QString::fromStdString(form_->title()));
    qt::makeCellEditor(kit(), form_->txtSChange, table, form_->fgIntDeste,
                       {numberColumn(info(design::Input::DesignDuration).unit),
                        numberColumn(info(design::Quantity::CriticalIntensity).unit)});
    column->addWidget(&table, 1);
    column->addWidget(&makeRainCurve(*form_, side));

    auto* foot = new QHBoxLayout;
    foot->addStretch(1);
    QPushButton& confirm = qt::makeButton(kit(), form_->cmdOK, side);
    confirmWith(confirm);
    foot->addWidget(&confirm);
    column->addLayout(foot);
    return side;
}

QWidget& RainWindow::buildHelp(QWidget& parent) {
    auto& side = *new QWidget(&parent);
    auto* column = new QVBoxLayout(&side);
    column->setContentsMargins(0, 0, 0, 0);
    QPlainTextEdit& help = qt::makeTextArea(kit(), form_->txtHelp, side);
    help.setReadOnly(true);
    help.setFrameShape(QFrame::StyledPanel);
    help.setBackgroundRole(QPalette::AlternateBase);
    help.setFixedWidth(qt::textWidth(help, 46));
    qt::describe(help, QStringLiteral("Nápověda"));
    column->addWidget(&help, 1);
    column->addWidget(&qt::makeButton(kit(), form_->cmdCloseHelp, side), 0, Qt::AlignRight);
    // The help widens the window; without it the window is as it was.
    qt::follow(form_->txtHelp, *this, [this, &side](platform::Aspect aspect) {
        if (aspect == platform::Aspect::Visible) {
            qt::later(*this, [this, &side] {
                side.layout()->activate();
                fitContent();
            });
        }
    });
    return side;
}

}  // namespace mero::forms
