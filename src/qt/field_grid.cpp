// SPDX-License-Identifier: MIT
/// Lays out fields.
/// Long captions are wrapped instead of being cut or pushing the fields away.
#include "qt/field_grid.h"

#include <QRadioButton>
#include <QScreen>

#include "qt/field_note.h"
#include "qt/look.h"
#include "qt/section_title.h"

namespace mero::qt {
namespace {

enum Column { kCaption, kField, kUnit, kBeside, kRest };

/// Room for a number of a result's larger font, too.
constexpr int kNumberCharacters = 15;
constexpr int kLongestCaptionLine = 36;
/// On a screen narrower than this [characters] captions have shorter lines, so that one need not scroll
/// sideways.
constexpr int kNarrowScreen = 90;
constexpr int kLongestNarrowLine = 34;
constexpr int kLeastAreaLines = 3;
/// A text area takes the free space before the empty end of the grid does.
constexpr int kAreaStretch = 1000;

/// The text in lines of about equal length, none longer than a caption may be, except for a longer word.
QString broken(const QString& text, const QWidget& widget) {
    const bool narrow = widget.screen()->availableGeometry().width() < textWidth(widget, kNarrowScreen);
    const int longest = narrow ? kLongestNarrowLine : kLongestCaptionLine;
    if (text.length() <= longest) {
        return text;
    }
    const auto lines = text.length() / longest + 1;
    const auto line_length = text.length() / lines;
    QString result;
    qsizetype length = 0;
    for (const QString& word : text.split(QLatin1Char(' '))) {
        if (length > 0 && length + word.length() / 2 > line_length) {
            result += QLatin1Char('\n');
            length = 0;
        } else if (length > 0) {
            result += QLatin1Char(' ');
        }
        result += word;
        length += word.length() + 1;
    }
    return result;
}

/// Widens a field whose text does not fit, because a number without its first digits is another number.
void growWithText(QLineEdit& line) {
    const auto fit = [&line, usual = line.width()] {
        const int needed = line.fontMetrics().horizontalAdvance(line.text()) + 2 * gap(line);
        line.setFixedWidth(qMax(usual, needed));
    };
    fit();
    QObject::connect(&line, &QLineEdit::textChanged, &line, fit);
}

}  // namespace

FieldGrid::FieldGrid(WidgetKit& kit, QWidget& parent)
    : kit_(&kit), parent_(&parent), grid_(new QGridLayout(&parent)) {
    grid_->setColumnStretch(kRest, 1);
    grid_->setHorizontalSpacing(gap(parent));
    grid_->setVerticalSpacing(gap(parent) * 3 / 4);
}

int FieldGrid::captionWidth(const QWidget& widget, const QString& caption) {
    return widget.fontMetrics().size(Qt::TextShowMnemonic, broken(caption, widget)).width();
}

void FieldGrid::align(const FieldColumns& least) {
    grid_->setColumnMinimumWidth(kCaption, least.caption);
    grid_->setColumnMinimumWidth(kField, least.field);
    grid_->setColumnMinimumWidth(kUnit, least.unit);
}

void FieldGrid::section(const QString& title) {
    if (row_ > 0) {
        space();
    }
    wide(*new SectionTitle(title, *parent_));
}

QLabel& FieldGrid::caption(const QString& text) {
    auto& label = *new QLabel(broken(text, *parent_), parent_);
    label.setTextFormat(Qt::PlainText);
    grid_->addWidget(&label, row_, kCaption, Qt::AlignLeft | Qt::AlignVCenter);
    return label;
}

QLineEdit& FieldGrid::place(QLineEdit& line, const platform::TextBox& box, const QString& text,
                            const QString& unit) {
    QLabel& label = caption(text);
    line.setFixedWidth(textWidth(line, kNumberCharacters));
    label.setBuddy(&line);
    describe(line, text, unit);
    grid_->addWidget(&line, row_, kField);
    if (!unit.isEmpty()) {
        auto* unit_label = new QLabel(unit, parent_);
        unit_label->setTextFormat(Qt::PlainText);
        grid_->addWidget(unit_label, row_, kUnit);
    }
    last_ = row_++;
    note(box);
    return line;
}

QLineEdit& FieldGrid::input(platform::TextBox& box, const QString& text, const QString& unit,
                            numbers::NumberField kind) {
    return place(makeNumberLine(*kit_, box, *parent_, NumberEntry{kind, unit}), box, text, unit);
}

QLineEdit& FieldGrid::result(platform::TextBox& box, const QString& text, const QString& unit) {
    QLineEdit& line = place(makeLineEdit(*kit_, box, *parent_), box, text, unit);
    showAsResult(line);
    growWithText(line);
    return line;
}

QLineEdit& FieldGrid::text(platform::TextBox& box, const QString& text) {
    QLabel& label = caption(text);
    QLineEdit& line = makeLineEdit(*kit_, box, *parent_);
    label.setBuddy(&line);
    describe(line, text);
    grid_->addWidget(&line, row_, kField, 1, kRest - kField + 1);
    ++row_;
    return line;
}

QPlainTextEdit& FieldGrid::area(platform::TextBox& box, const QString& text) {
    QLabel& label = caption(text);
    QPlainTextEdit& edit = makeTextArea(*kit_, box, *parent_);
    label.setBuddy(&edit);
    describe(edit, text);
    const int line = edit.fontMetrics().lineSpacing();
    edit.setMinimumHeight(line * kLeastAreaLines + 2 * gap(edit));
    grid_->setAlignment(&label, Qt::AlignLeft | Qt::AlignTop);
    grid_->addWidget(&edit, row_, kField, 1, kRest - kField + 1);
    grid_->setRowStretch(row_, kAreaStretch);
    ++row_;
    return edit;
}

void FieldGrid::widget(const QString& text, QWidget& widget) {
    caption(text).setBuddy(&widget);
    if (widget.accessibleName().isEmpty()) {
        describe(widget, text);
    }
    // The caption of an option alone does not say what the option is for.
    for (auto* option : widget.findChildren<QRadioButton*>()) {
        option->setAccessibleDescription(widget.accessibleName());
    }
    grid_->addWidget(&widget, row_, kField, 1, kRest - kField + 1, Qt::AlignLeft | Qt::AlignVCenter);
    ++row_;
}

void FieldGrid::pair(const QString& text, QWidget& first, QWidget& second) {
    // Both remain children of the grid's parent: assistive technology looks for the caption among siblings.
    caption(text).setBuddy(&first);
    describe(first, text);
    auto* row = new QHBoxLayout;
    row->addWidget(&first);
    row->addWidget(&second);
    row->addStretch(1);
    grid_->addLayout(row, row_, kField, 1, kRest - kField + 1);
    ++row_;
}

void FieldGrid::beside(QWidget& widget) {
    grid_->addWidget(&widget, last_, kBeside);
}

void FieldGrid::besideField(QWidget& widget) {
    grid_->addWidget(&widget, last_, kUnit, Qt::AlignLeft | Qt::AlignVCenter);
}

void FieldGrid::line(QWidget& widget) {
    grid_->addWidget(&widget, row_, kCaption, 1, kRest + 1, Qt::AlignLeft | Qt::AlignVCenter);
    ++row_;
}

void FieldGrid::wide(QWidget& widget) {
    grid_->addWidget(&widget, row_, kCaption, 1, kRest + 1);
    ++row_;
}

void FieldGrid::space() {
    grid_->setRowMinimumHeight(row_, gap(*parent_));
    ++row_;
}

void FieldGrid::note(const platform::Control& control) {
    grid_->addWidget(&makeFieldNote(control, *parent_), row_, kCaption, 1, kRest + 1);
    ++row_;
}

void FieldGrid::end() {
    grid_->setRowStretch(row_, 1);
}

}  // namespace mero::qt
