// SPDX-License-Identifier: MIT
/// Lays out fields in columns: caption, field, unit, widget beside it.
/// All groups of a window use it, so that they look alike.
#pragma once

#include <QGridLayout>
#include <QLabel>

#include "qt/text_fields.h"
#include "qt/widget_kit.h"

namespace mero::qt {

/// Least widths of the columns, so that the grids of a window stand in line [px].
struct FieldColumns {
    int caption = 0;
    int field = 0;
    int unit = 0;
};

class FieldGrid {
  public:
    /// Sets the layout of `parent`.
    FieldGrid(WidgetKit& kit, QWidget& parent);

    /// Width that the caption takes in the font of `widget`.
    [[nodiscard]] static int captionWidth(const QWidget& widget, const QString& caption);
    /// Widens the columns.
    void align(const FieldColumns& least);

    /// A title above the following rows.
    void section(const QString& title);
    /// A field for a number.
    QLineEdit& input(platform::TextBox& box, const QString& caption, const QString& unit = {},
                     numbers::NumberField kind = numbers::NumberField::Plain);
    /// A read-only field, filled by the program.
    QLineEdit& result(platform::TextBox& box, const QString& caption, const QString& unit = {});
    /// A field for a text, as wide as the space allows.
    QLineEdit& text(platform::TextBox& box, const QString& caption);
    /// Several lines of text.
    QPlainTextEdit& area(platform::TextBox& box, const QString& caption);
    /// Any other widget with a caption.
    void widget(const QString& caption, QWidget& widget);
    /// Two widgets in one row; the caption is the first one's.
    void pair(const QString& caption, QWidget& first, QWidget& second);
    /// A widget on the right of the last row.
    void beside(QWidget& widget);
    /// A widget in place of the last row's unit.
    void besideField(QWidget& widget);
    /// A widget as wide as its content, across all columns.
    void line(QWidget& widget);
    /// A widget across all columns.
    void wide(QWidget& widget);
    /// A small gap before the next row.
    void space();
    /// A line for a remark about the control below the last row, hidden until it has a text.
    void note(const platform::Control& control);
    /// Keeps the rows together at the top.
    void end();

    [[nodiscard]] QWidget& parent() const { return *parent_; }

  private:
    QLabel& caption(const QString& text);
    QLineEdit& place(QLineEdit& line, const platform::TextBox& box, const QString& caption,
                     const QString& unit);

    WidgetKit* kit_;
    QWidget* parent_;
    QGridLayout* grid_;
    int row_ = 0;
    int last_ = 0;  ///< row of the last field
};

}  // namespace mero::qt
