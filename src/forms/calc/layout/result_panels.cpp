// SPDX-License-Identifier: MIT
/// Lays out the panels. Numbers are fields in the order of the tables; choices, the count with its arrows and
/// the pipes' sub-panel have widgets of their own.
#include "forms/calc/layout/result_panels.h"

#include <QGroupBox>
#include <QVBoxLayout>
#include <set>

#include "design/input.h"
#include "design/quantity.h"
#include "forms/calc/layout/field_remarks.h"
#include "forms/calc/layout/field_tips.h"
#include "forms/calc/layout/judgement_pane.h"
#include "forms/calc/layout/panel_columns.h"
#include "forms/calc/layout/picture_pane.h"
#include "forms/calc/layout/result_rows.h"
#include "forms/calc/tank_flow.h"
#include "qt/buttons.h"
#include "qt/drop_list_box.h"
#include "qt/field_grid.h"
#include "qt/field_keys.h"
#include "qt/look.h"
#include "qt/page_layout.h"
#include "qt/panels.h"

namespace mero::forms {
namespace {

using design::Input;
using qt::FieldGrid;

/// Fills the box of inputs of one panel.
class InputRows {
  public:
    InputRows(qt::WidgetKit& kit, frmCalcControls& form, FacilityType type, FieldGrid& fields)
        : kit_(&kit), form_(&form), type_(type), fields_(&fields), columns_(inputColumns(fields.parent())) {}

    void build() {
        fields_->align(columns_);
        for (const design::PanelInput& row : design::panelInputs(type_)) {
            if (!design::isOfSubPanel(row.input)) {
                addInput(row);
            }
        }
        if (type_ == FacilityType::SwaleTrench || type_ == FacilityType::Trench) {
            addPipes();
        }
    }

  private:
    void addInput(const design::PanelInput& row) {
        const QString caption =
            QString::fromUtf8(row.caption == nullptr ? info(row.input).caption : row.caption);
        switch (row.input) {
            case Input::Soil:
                addOptions(caption,
                           type_ == FacilityType::Swale ? form_->optSelTypPudy2 : form_->optSelTypPudy3);
                break;
            case Input::Shape:
                addOptions(caption, form_->optSelTypSachty);
                break;
            case Input::Variant:
                addOptions(caption, form_->optSelTypPudy5);
                break;
            case Input::CatalogueShaft: {
                constexpr int kWidestDesignation = 20;
                QComboBox& rings = qt::makeDropList(*kit_, form_->cboTypSachty, fields_->parent());
                rings.setMinimumContentsLength(kWidestDesignation);
                fields_->widget(caption, rings);
                break;
            }
            case Input::ShaftCount: {
                QLineEdit& count =
                    fields_->input(form_->txtSachtyCount, caption, {}, design::fieldOf(row.input));
                fields_->besideField(qt::makeUpDown(*kit_, form_->updSacht, caption, fields_->parent()));
                qt::spinByKeys(*kit_, form_->updSacht, count);
                break;
            }
            case Input::UpstreamSettling:
                fields_->line(qt::makeCheckBox(*kit_, form_->chkPredUsaz, fields_->parent()));
                break;
            default:
                addNumber(*fields_, row.input, caption);
        }
    }

    void addOptions(const QString& caption, const platform::ControlArray<platform::OptionButton>& options) {
        QWidget& choice = buildOptions(*kit_, options, fields_->parent());
        // Long options stand below each other, so that the column is as wide as those of the other types.
        if (choice.sizeHint().width() > valueWidth(choice)) {
            auto& layout = dynamic_cast<QBoxLayout&>(*choice.layout());
            layout.setDirection(QBoxLayout::TopToBottom);
            layout.setSpacing(qt::gap(choice) / 2);
        }
        fields_->widget(caption, choice);
    }

    /// Two inputs of one box make one field.
    void addNumber(FieldGrid& fields, Input input, const QString& caption) {
        const std::string name = design::controlName(info(input).box, type_);
        if (added_.insert(name).second) {
            fields.input(form_->textBox(name), caption, QString::fromUtf8(info(input).unit),
                         design::fieldOf(input));
        }
    }

    /// The pipes of the overflow or the drain, shown while their box is ticked and not yet confirmed.
    void addPipes() {
        QWidget& row = qt::makeRow(fields_->parent());
        row.layout()->addWidget(&qt::makeCheckBox(*kit_, form_->chkSelPretok[type_], row));
        QPushButton& edit = qt::makeButton(*kit_, form_->cmdEdit[type_], row);
        row.layout()->addWidget(&edit);
        fields_->line(row);
        fields_->note(form_->chkSelPretok[type_]);
        const QString heading = QString::fromStdString(form_->chkSelPretok[type_].text());
        edit.setAccessibleName(edit.text() + QLatin1String(": ") + heading);

        QGroupBox& box =
            qt::makeFramedPanel(*kit_, form_->picPretokSkrOdtok[type_], heading, fields_->parent());
        FieldGrid pipes(*kit_, box);
        // In line with the fields around the box.
        pipes.align({.caption = columns_.caption - innerInset(box)});
        for (const design::PanelInput& input : design::panelInputs(type_)) {
            if (design::isOfSubPanel(input.input)) {
                addNumber(pipes, input.input, QString::fromUtf8(info(input.input).caption));
            }
        }
        pipes.line(qt::makeButton(*kit_, form_->cmdOK[type_], box));
        fields_->wide(box);
    }

    qt::WidgetKit* kit_;
    frmCalcControls* form_;
    FacilityType type_;
    FieldGrid* fields_;
    qt::FieldColumns columns_;
    std::set<std::string> added_;
};

/// The flow in the unit in which one thinks of it, beside its box.
void addLitres(frmCalc& form, FieldGrid& fields) {
    auto& label = *new QLabel(&fields.parent());
    label.setObjectName(QStringLiteral("tankFlowInLitres"));
    label.setTextFormat(Qt::PlainText);
    fields.beside(label);
    const auto refresh = [&form, &label] { label.setText(QString::fromStdString(tankFlowInLitres(form))); };
    // A result is stored before its box is written.
    qt::follow(form.txtVsakTok, label, [refresh](platform::Aspect) { refresh(); });
    refresh();
}

void buildResults(frmCalc& form, FacilityType type, FieldGrid& fields) {
    fields.align(resultColumns(fields.parent()));
    for (const design::ResultBox& row : design::resultBoxes(type)) {
        fields.result(form.textBox(design::controlName(row.box, type)),
                      QString::fromUtf8(design::captionOf(row.quantity, type)),
                      QString::fromUtf8(info(row.quantity).unit));
        if (row.quantity == design::Quantity::InfiltrationFlow) {
            addLitres(form, fields);
        }
    }
    if (type == FacilityType::Tank) {
        fields.space();
        auto& warning = *new QLabel(QStringLiteral("Nutno ověřit dlouhodobou simulací!"), &fields.parent());
        qt::showAsWarning(warning);
        fields.line(warning);
    }
}

}  // namespace

QWidget& buildOptions(qt::WidgetKit& kit, const platform::ControlArray<platform::OptionButton>& options,
                      QWidget& parent) {
    QWidget& row = qt::makeRow(parent);
    qt::speakAs(row, QAccessible::Grouping);
    options.forEach([&](int, platform::OptionButton& option) {
        row.layout()->addWidget(&qt::makeOption(kit, option, row));
    });
    return row;
}

void buildResultPanel(qt::WidgetKit& kit, frmCalc& form, FacilityType type, QWidget& panel) {
    auto* whole = new QVBoxLayout(&panel);
    whole->setContentsMargins(0, 0, 0, 0);
    auto* columns = new qt::FlowPair(panel);
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
    InputRows(kit, form, type, inputs).build();
    const qt::FieldColumns room = inputColumns(inputs_box);
    const int margins = 4 * inputs_box.layout()->contentsMargins().left();
    inputs_box.setMinimumWidth(room.caption + valueWidth(inputs_box) + margins);
    buildResults(form, type, results);
    qt::addCopyMenu(results_box, QStringLiteral("Kopírovat výsledky"),
                    [&form, type] { return resultRows(form, type); });

    QPushButton& calculate = qt::makeButton(kit, form.cmdCalcul[type], inputs_box);
    qt::showAsPrimary(calculate);
    calculate.setMinimumWidth(qt::textWidth(calculate, 18));
    inputs.space();
    inputs.line(calculate);
    inputs.end();
    results.end();
    // The Tab key comes to them after inputs and results, which are built before.
    addResultState(kit, form, type, results_side, *results_column, results_box);
    showPanelRemarks(kit, form, type, inputs_box);
    givePanelTips(kit, form, type);
}

}  // namespace mero::forms
