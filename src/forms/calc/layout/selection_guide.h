// SPDX-License-Identifier: MIT
/// The chart that helps to choose an infiltration system, by the subsoil's capacity and the area at hand.
/// It is drawn, not stored: sharp at any scale, in the colours of the desktop.
#pragma once

#include <QWidget>
#include <functional>

#include "data/facility_type.h"

namespace mero::forms {

using data::FacilityType;

class SelectionGuide : public QWidget {
  public:
    explicit SelectionGuide(QWidget& parent);

    /// Called with the type of the region that was clicked.
    std::function<void(FacilityType type)> chosen;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    bool event(QEvent* event) override;

  private:
    /// Where the regions are drawn.
    [[nodiscard]] QRectF regionsPlace() const;
    /// The type of the region there; None between regions and for one that is no single type.
    [[nodiscard]] FacilityType typeAt(QPointF position) const;
    void pointAt(FacilityType type);

    void paintAxes(QPainter& painter, const QRectF& chart) const;
    void paintRegions(QPainter& painter, const QRectF& chart) const;
    void paintLegend(QPainter& painter, const QRectF& strip) const;

    FacilityType pointed_at_ = FacilityType::None;
    FacilityType pressed_ = FacilityType::None;
};

}  // namespace mero::forms
