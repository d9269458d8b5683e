// SPDX-License-Identifier: MIT
/// The chart that helps to choose an infiltration system, by the subsoil's capacity and the area at hand.
/// It is drawn, not stored: sharp at any scale, in the colours of the desktop.
#pragma once

#include <QWidget>

namespace mero::forms {

class SelectionGuide : public QWidget {
  public:
    explicit SelectionGuide(QWidget& parent);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void paintAxes(QPainter& painter, const QRectF& chart) const;
    void paintRegions(QPainter& painter, const QRectF& chart) const;
    void paintLegend(QPainter& painter, const QRectF& strip) const;
};

}  // namespace mero::forms
