// SPDX-License-Identifier: MIT
/// A picture in a window. It requests its drawing only when it is painted.
#pragma once

#include <QWidget>
#include <functional>

#include "picture/drawing.h"

namespace mero::qt {

class PictureView : public QWidget {
  public:
    /// Arranges the current picture on the sheet.
    using Source = std::function<picture::Drawing(const picture::Sheet&, const picture::TextSizes&)>;

    /// @param name accessible name; the accessible description is the drawing's summary
    PictureView(QWidget& parent, const QString& name, Source source);

    /// Sets the preferred and the minimum size, in characters and lines.
    void setRoom(QSize liked, QSize least);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    /// Offers to copy the picture.
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    [[nodiscard]] QSize inPixels(const QSize& room) const;

    Source source_;
    QSize liked_{40, 12};
    QSize least_{24, 8};
};

}  // namespace mero::qt
