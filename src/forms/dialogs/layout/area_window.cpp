// SPDX-License-Identifier: MIT
/// Lays out the drained-area dialog.
#include <QAbstractButton>
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
#include "qt/grid_clipboard.h"
#include "qt/look.h"
#include "qt/text_fields.h"
#include "qt/texts.h"

namespace mero::forms {
namespace {

constexpr int kSurfaceChoiceColumn = 3;
constexpr int kAreaColumn = 1;
constexpr int kCoefficientColumn = 2;
constexpr int kSurfaceColumn = 3;
constexpr int kEntryChoiceColumn = 4;
/// All surfaces, where the screen is high enough for them.
constexpr qt::GridRoom kSurfaceRoom{.characters = 140, .rows = 19};
constexpr qt::GridRoom kEntryRoom{.characters = 140, .rows = 4};
constexpr int kNumberCharacters = 14;

qt::NumberEntry coefficient() {
    return {};
}

qt::NumberEntry area() {
    return {numbers::NumberField::Plain, QStringLiteral("m²")};
}

QLabel& caption(const QString& text, QWidget& parent) {
    auto& label = *new QLabel(text, &parent);
    label.setTextFormat(Qt::PlainText);
    return label;
}

/// Caption, field and unit in one row.
QLineEdit& addField(QHBoxLayout& row, QLineEdit& line, const QString& text, const QString& unit) {
    QWidget& parent = *line.parentWidget();
    QLabel& label = caption(text, parent);
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

void addNumber(qt::WidgetKit& kit, QHBoxLayout& row, QWidget& parent, platform::TextBox& box,
               const QString& text, const qt::NumberEntry& entry) {
    addField(row, qt::makeNumberLine(kit, box, parent, entry), text, entry.unit);
}

void enter(QWidget& field, const QString& text) {
    auto& line = dynamic_cast<QLineEdit&>(field);
    line.selectAll();
    line.insert(text);
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
    // Its line is free from the start, so that the buttons below stay in view when it appears.
    note.setWordWrap(false);
    QSizePolicy policy = note.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    note.setSizePolicy(policy);
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
    // The surfaces have the first claim to the height, up to their last row; the entries take what is left.
    surfaces.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    column->addWidget(&surfaces, 1);
    column->addWidget(&buildEntry(content));
    column->addWidget(&makeRunoffNote(*form_, content));
    column->addWidget(&buildEntries(content));
    column->addWidget(&buildFoot(content));
}

QWidget& AreaWindow::buildEntry(QWidget& parent) {
    auto& entry = *new QWidget(&parent);
    auto* row = new QHBoxLayout(&entry);
    row->setContentsMargins(0, 0, 0, 0);
    addNumber(kit(), *row, entry, form_->txtSoucinitel, QStringLiteral("Součinitel odtoku"), coefficient());
    addNumber(kit(), *row, entry, form_->txtPlocha, QStringLiteral("Dílčí plocha"), area());
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
    // The counter of the rows, the area, the coefficient, the name of the surface.
    qt::makeCellEditor(kit(), form_->txtSChange, entries, form_->fgZapisTab,
                       {{.editable = false}, {.number = area()}, {.number = coefficient()}, {}});
    if (kit().servesPerson()) {
        takeBlocks(entries);
    }
    row->addWidget(&entries, 1);
    // The grid is hidden while there are no entries; its place stays, so that nothing jumps.
    place.setMinimumHeight(fontMetrics().height() * 6);
    return place;
}

void AreaWindow::takeBlocks(qt::GridView& entries) {
    entries.add_row = [this, &entries](const std::vector<QString>& texts) {
        return enterArea(entries, texts);
    };
    // The grid is hidden while it is empty: its first areas are pasted into the field above it.
    auto& area = dynamic_cast<qt::NumberLine&>(*kit().find(form_->txtPlocha));
    area.paste_cells = [&entries](const QString& text) { return qt::pasteBelow(entries, kAreaColumn, text); };
}

bool AreaWindow::enterArea(qt::GridView& entries, const std::vector<QString>& texts) {
    const QString& coefficient = texts[kCoefficientColumn];
    const bool has_coefficient = !coefficient.isEmpty() || !form_->txtSoucinitel.text().empty();
    if (numbers::leadingNumber(qt::stored(texts[kAreaColumn])) == 0 || !has_coefficient) {
        return false;
    }
    const int rows = form_->fgZapisTab.dataRows();
    if (!coefficient.isEmpty()) {
        enter(*kit().find(form_->txtSoucinitel), coefficient);
    }
    enter(*kit().find(form_->txtPlocha), texts[kAreaColumn]);
    dynamic_cast<QAbstractButton&>(*kit().find(form_->cmdZapsat)).click();
    if (form_->fgZapisTab.dataRows() != rows + 1) {
        return false;
    }
    return texts[kSurfaceColumn].isEmpty() ||
           entries.enterCell({rows + 1, kSurfaceColumn}, texts[kSurfaceColumn]);
}

QWidget& AreaWindow::buildFoot(QWidget& parent) {
    auto& foot = *new QWidget(&parent);
    auto* row = new QHBoxLayout(&foot);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(&qt::makeButton(kit(), form_->cmdDelete, foot));
    row->addWidget(&qt::makeButton(kit(), form_->cmdDeleteAll, foot));
    row->addSpacing(2 * qt::gap(foot));
    const design::QuantityInfo& reduced = info(design::Quantity::ReducedArea);
    qt::showAsResult(addField(*row, qt::makeLineEdit(kit(), form_->txtOdvodNepPlocha, foot),
                              QString::fromUtf8(reduced.caption), QString::fromUtf8(reduced.unit)));
    row->addStretch(1);
    row->addWidget(&qt::makeButton(kit(), form_->OKButton, foot));
    row->addWidget(&qt::makeButton(kit(), form_->CancelButton, foot));
    return foot;
}

}  // namespace mero::forms
