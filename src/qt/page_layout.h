// SPDX-License-Identifier: MIT
/// Lays out whole pages: two columns, stacked in a narrow window, and scroll areas.
#pragma once

#include <QBoxLayout>
#include <QScrollArea>
#include <QWidget>

namespace mero::qt {

/// Two widgets side by side, or stacked where the width is too small.
class FlowPair : public QWidget {
  public:
    explicit FlowPair(QWidget& parent);

    /// Adds the next of the two. @param stretch share of the remaining space
    void add(QWidget& widget, int stretch);

    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

  private:
    [[nodiscard]] bool fitsBeside(int width) const;
    void choose();

    QBoxLayout* layout_;
};

/// Fills `page` with a scroll area, for windows that are too small. @return the widget to build in
QWidget& makeScrollPage(QWidget& page);

/// Options or buttons in one row, kept together on the left.
QWidget& makeRow(QWidget& parent);

}  // namespace mero::qt
