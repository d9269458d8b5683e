// SPDX-License-Identifier: MIT
/// A line edit for numbers: a person's keys, pastes, drops and input methods are cleaned before the field
/// gets them. What is not taken leaves the field as it was, and a balloon says why.
#pragma once

#include <QLineEdit>
#include <functional>
#include <optional>

#include "platform/numbers/typed_number.h"

namespace mero::qt {

/// The number that a field takes.
struct NumberEntry {
    numbers::NumberField kind = numbers::NumberField::Plain;
    QString unit;  ///< empty for a pure number
};

class NumberLine : public QLineEdit {
  public:
    using QLineEdit::QLineEdit;

    /// Without an entry it takes any text, as a plain line edit does.
    void setEntry(std::optional<NumberEntry> entry) { entry_ = std::move(entry); }
    [[nodiscard]] const std::optional<NumberEntry>& entry() const { return entry_; }

    /// Is offered a text that is to be pasted, and says whether it has taken it: a field of a table takes
    /// several cells.
    std::function<bool(const QString&)> paste_cells;

    /// Half an exponent is given up before the filters that are installed already see the focus leave.
    void finishOnLeaving() { installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

  private:
    [[nodiscard]] bool cleans() const { return entry_.has_value() && !isReadOnly(); }
    void type(const QString& text);
    void paste(const QString& text);
    /// Handles a key that deletes; false when it is none.
    bool deleteByKey(QKeyEvent& event);
    void removeText(qsizetype from, qsizetype to);
    /// The text on both sides of the selection, or of the cursor.
    [[nodiscard]] numbers::FieldText sides() const;
    /// Puts the text of `after` in place, in one step of the undo history.
    void change(const numbers::FieldText& after);
    /// Undoes or redoes, unless this gives a text that the field must not hold.
    void travel(bool back);
    /// Half an exponent gives way to the text that the field was entered with.
    void finish();
    void tell(numbers::NotTaken reason, const QString& pasted = {});

    std::optional<NumberEntry> entry_;
    QString entered_with_;  ///< text when the focus came
};

}  // namespace mero::qt
