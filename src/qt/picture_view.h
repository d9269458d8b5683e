// SPDX-License-Identifier: MIT
/// A picture in a window. It asks for its drawing when it is painted, and only then.
#pragma once

#include <QWidget>
#include <functional>

#include "picture/drawing.h"

namespace mero::qt {

class PictureView : public QWidget {
  public:
    /// Sets the picture of this moment out on the sheet.
    using Source = std::function<picture::Drawing(const picture::Sheet&, const picture::TextSizes&)>;

    /// @param name what assistive technology calls it; the drawing's summary describes it
    PictureView(QWidget& parent, const QString& name, Source source);

    /// The size that it likes and the smallest one, in characters and lines.
    void setRoom(QSize liked, QSize least);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] QSize inPixels(const QSize& room) const;

    Source source_;
    QSize liked_{40, 12};
    QSize least_{24, 8};
};

}  // namespace mero::qt
