// SPDX-License-Identifier: MIT
/// Lays out the drained-area dialog.
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "design/input_guide.h"
#include "design/quantity.h"
#include "forms/dialogs/layout/dialog_windows.h"
#include "platform/numbers/number_text.h"
#include "qt/buttons.h"
#include "qt/cell_editor_box.h"
#include "qt/field_note.h"
#include "qt/look.h"
#include "qt/text_fields.h"

namespace mero::forms {
namespace {

constexpr int kSurfaceChoiceColumn = 3;
constexpr int kEntryChoiceColumn = 4;
constexpr qt::GridRoom kSurfaceRoom{.characters = 128, .rows = 10};
constexpr qt::GridRoom kEntryRoom{.characters = 128, .rows = 4};
constexpr int kNumberCharacters = 14;

QLabel& caption(const QString& text, QWidget& parent) {
    auto& label = *new QLabel(text, &parent);
    label.setTextFormat(Qt::PlainText);
    return label;
}

/// Caption, field and unit in one row.
QLineEdit& addField(qt::WidgetKit& kit, QHBoxLayout& row, QWidget& parent, platform::TextBox& box,
                    const QString& text, const QString& unit) {
    QLabel& label = caption(text, parent);
    QLineEdit& line = qt::makeLineEdit(kit, box, parent);
    line.setFixedWidth(qt::textWidth(line, kNumberCharacters));
    label.setBuddy(&line);
    qt::describe(line, text, unit);
    row.addWidget(&label);
    row.addWidget(&line);
    if (!unit.isEmpty()) {
        row.addWidget(&caption(unit, parent));
    }
    row.addSpacing(qt::gap(parent));
    return line;
}

/// A number too large for any type is high, too; no error may leave an observer.
bool isHighRunoff(const std::string& text) {
    try {
        return numbers::leadingNumber(text) > design::kMostRunoff;
    } catch (const RuntimeError&) {
        return true;
    }
}

/// Remarks a coefficient that is larger than any surface has.
QLabel& makeRunoffNote(frmDialog& form, QWidget& parent) {
    QLabel& note = qt::makeFieldNote(form.txtSoucinitel, parent);
    const auto tell = [&form, &note] {
        const bool high = isHighRunoff(form.txtSoucinitel.text());
        qt::tellInNote(note, high ? QStringLiteral("Součinitel odtoku je větší než 1.") : QString(), true);
    };
    qt::follow(form.txtSoucinitel, note, [tell](platform::Aspect aspect) {
        if (aspect == platform::Aspect::Text) {
            tell();
        }
    });
    tell();
    return note;
}

}  // namespace

void AreaWindow::build(QWidget& content) {
    auto* column = new QVBoxLayout(&content);
    qt::GridView& surfaces =
        qt::makeGrid(kit(), form_->fgSoucPovrchOdtok, kSurfaceChoiceColumn, kSurfaceRoom, content);
    qt::describe(surfaces, QStringLiteral("Typy ploch"));
    surfaces.setMinimumHeight(fontMetrics().height() * 5);
    column->addWidget(&surfaces, 3);
    column->addWidget(&buildEntry(content));
    column->addWidget(&makeRunoffNote(*form_, content));
    column->addWidget(&buildEntries(content), 2);
    column->addWidget(&buildFoot(content));
}

QWidget& AreaWindow::buildEntry(QWidget& parent) {
    auto& entry = *new QWidget(&parent);
    auto* row = new QHBoxLayout(&entry);
    row->setContentsMargins(0, 0, 0, 0);
    addField(kit(), *row, entry, form_->txtSoucinitel, QStringLiteral("Součinitel odtoku"), {});
    addField(kit(), *row, entry, form_->txtPlocha, QStringLiteral("Dílčí plocha"), QStringLiteral("m²"));
    row->addWidget(&qt::makeButton(kit(), form_->cmdZapsat, entry));
    row->addStretch(1);
    return entry;
}

QWidget& AreaWindow::buildEntries(QWidget& parent) {
    auto& place = *new QWidget(&parent);
    auto* row = new QHBoxLayout(&place);
    row->setContentsMargins(0, 0, 0, 0);
    qt::GridView& entries = qt::makeGrid(kit(), form_->fgZapisTab, kEntryChoiceColumn, kEntryRoom, place);
    qt::describe(entries, QStringLiteral("Zapsané dílčí plochy"));
    qt::makeCellEditor(kit(), form_->txtSChange, entries, form_->fgZapisTab);
    row->addWidget(&entries, 1);
    // The grid is hidden while there are no entries; its place stays, so that nothing jumps.
    place.setMinimumHeight(fontMetrics().height() * 6);
    return place;
}

QWidget& AreaWindow::buildFoot(QWidget& parent) {
    auto& foot = *new QWidget(&parent);
    auto* row = new QHBoxLayout(&foot);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(&qt::makeButton(kit(), form_->cmdDelete, foot));
    row->addWidget(&qt::makeButton(kit(), form_->cmdDeleteAll, foot));
    row->addSpacing(2 * qt::gap(foot));
    const design::QuantityInfo& area = info(design::Quantity::ReducedArea);
    qt::showAsResult(addField(kit(), *row, foot, form_->txtOdvodNepPlocha, QString::fromUtf8(area.caption),
                              QString::fromUtf8(area.unit)));
    row->addStretch(1);
    row->addWidget(&qt::makeButton(kit(), form_->OKButton, foot));
    row->addWidget(&qt::makeButton(kit(), form_->CancelButton, foot));
    return foot;
}

}  // namespace mero::forms
