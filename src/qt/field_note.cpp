// SPDX-License-Identifier: MIT
/// Notes are labels that a field's name finds.
#include "qt/field_note.h"

#include "qt/texts.h"

namespace mero::qt {
namespace {

QString noteName(const platform::Control& control) {
    return shown(control.name()) + QLatin1String("_note");
}

/// Claims the lines that its text takes in the width that it has, not those of the narrowest width.
class Note : public QLabel {
  public:
    using QLabel::QLabel;
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, fontMetrics().lineSpacing()}; }
};

}  // namespace

QLabel& makeFieldNote(const platform::Control& control, QWidget& parent) {
    auto& note = *new Note(&parent);
    note.setObjectName(noteName(control));
    note.setTextFormat(Qt::PlainText);
    note.setWordWrap(true);
    // It wraps in the width that the fields leave it, and never widens them.
    note.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    QFont font = note.font();
    font.setItalic(true);
    note.setFont(font);
    note.hide();
    return note;
}

QLabel* findFieldNote(const platform::Control& control, const QWidget& holder) {
    return holder.findChild<QLabel*>(noteName(control));
}

void tellInNote(QLabel& note, const QString& text, bool caution) {
    const QString whole = caution && !text.isEmpty() ? QStringLiteral("⚠ ") + text : text;
    if (note.text() != whole) {
        note.setText(whole);
    }
    note.setVisible(!text.isEmpty());
}

}  // namespace mero::qt
