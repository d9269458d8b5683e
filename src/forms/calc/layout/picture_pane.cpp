// SPDX-License-Identifier: MIT
/// Lays out the pictures: beside each other where there is room, below each other where there is not.
#include "forms/calc/layout/picture_pane.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QResizeEvent>
#include <algorithm>

#include "forms/calc/pictures.h"
#include "picture/arrange.h"
#include "qt/look.h"
#include "qt/picture_view.h"
#include "qt/widget_kit.h"

namespace mero::forms {
namespace {

/// A pane stands its pictures below each other where it is narrow and high enough for two [characters,
/// lines].
constexpr int kNarrowPair = 90;
constexpr int kHighPair = 28;
/// Beside each other they do not fit into less [characters].
constexpr int kLeastPair = 62;
/// The pane takes the height that its panel leaves. A panel with wrapped notes asks for preferred heights, so
/// what the pictures would like is no more than what they need; otherwise small screens scroll.
constexpr QSize kSectionRoom{44, 10};
constexpr QSize kLeastSection{30, 10};
constexpr QSize kChartRoom{36, 9};
constexpr QSize kLeastChart{26, 9};

class PicturePane : public QGroupBox {
  public:
    PicturePane(frmCalc& form, FacilityType type, QWidget& parent)
        : QGroupBox(QStringLiteral("Řez a bilance dešťů"), &parent),
          layout_(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
        auto& section =
            *new qt::PictureView(*this, QStringLiteral("Řez"),
                                 [&form, type](const picture::Sheet& sheet, const picture::TextSizes& sizes) {
                                     return picture::arrange(facilitySection(form, type), sheet, sizes);
                                 });
        section.setObjectName(QStringLiteral("picSection"));
        section.setRoom(kSectionRoom, kLeastSection);
        auto& chart =
            *new qt::PictureView(*this, QStringLiteral("Bilance dešťů"),
                                 [&form, type](const picture::Sheet& sheet, const picture::TextSizes& sizes) {
                                     return picture::arrange(balanceChart(form, type), sheet, sizes);
                                 });
        chart.setObjectName(QStringLiteral("picBalance"));
        chart.setRoom(kChartRoom, kLeastChart);
        layout_->setSpacing(qt::gap(*this) / 2);
        layout_->addWidget(&section);
        layout_->addWidget(&chart);
        setDirection(QBoxLayout::LeftToRight);
        for (platform::Form* each :
             {static_cast<platform::Form*>(&form), static_cast<platform::Form*>(&form.intDialog)}) {
            for (platform::Control* control : each->controls()) {
                // Painting comes after the running event; until then this costs next to nothing.
                qt::follow(*control, *this, [&section, &chart](platform::Aspect aspect) {
                    if (aspect != platform::Aspect::Focus) {
                        section.update();
                        chart.update();
                    }
                });
            }
        }
    }

    /// Below each other they need no more width than one of them.
    [[nodiscard]] QSize minimumSizeHint() const override {
        QSize least = QGroupBox::minimumSizeHint();
        least.setWidth(least.width() - layout_->minimumSize().width() + widestMinimum());
        return least;
    }

  protected:
    void resizeEvent(QResizeEvent* event) override {
        QGroupBox::resizeEvent(event);
        const bool narrow = width() < qt::textWidth(*this, kNarrowPair);
        const bool high = height() >= fontMetrics().height() * kHighPair;
        const bool too_narrow = width() < qt::textWidth(*this, kLeastPair);
        const auto direction =
            too_narrow || (narrow && high) ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight;
        if (layout_->direction() != direction) {
            setDirection(direction);
        }
    }

  private:
    void setDirection(QBoxLayout::Direction direction) {
        const bool beside = direction == QBoxLayout::LeftToRight;
        layout_->setDirection(direction);
        layout_->setStretch(0, beside ? 2 : 5);
        layout_->setStretch(1, beside ? 1 : 4);
        updateGeometry();
    }

    [[nodiscard]] int widestMinimum() const {
        int widest = 0;
        for (int i = 0; i < layout_->count(); ++i) {
            widest = std::max(widest, layout_->itemAt(i)->minimumSize().width());
        }
        const QMargins margins = layout_->contentsMargins();
        return widest + margins.left() + margins.right();
    }

    QBoxLayout* layout_;
};

}  // namespace

QWidget& makePicturePane(frmCalc& form, FacilityType type, QWidget& parent) {
    return *new PicturePane(form, type, parent);
}

}  // namespace mero::forms
