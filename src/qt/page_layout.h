// SPDX-License-Identifier: MIT
/// Setting out of whole pages: two columns that stand below each other in a narrow window, and scrolling.
#pragma once

#include <QBoxLayout>
#include <QScrollArea>
#include <QWidget>

namespace mero::qt {

/// Two widgets beside each other where there is room, below each other where there is not.
class FlowPair : public QWidget {
  public:
    explicit FlowPair(QWidget& parent);

    /// Adds the next of the two. @param stretch share of the room that is left
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

/// Fills `page` with an area that scrolls where the window is too small, and returns what to build in.
QWidget& makeScrollPage(QWidget& page);

/// Options or buttons in one row, kept together on the left.
QWidget& makeRow(QWidget& parent);

}  // namespace mero::qt
