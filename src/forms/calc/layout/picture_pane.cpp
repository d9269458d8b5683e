// SPDX-License-Identifier: MIT
/// Setting out of the pictures: beside each other where there is room, below each other where there is not.
#include "forms/calc/layout/picture_pane.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QResizeEvent>

#include "forms/calc/pictures.h"
#include "picture/arrange.h"
#include "platform/qt/look.h"
#include "platform/qt/picture_view.h"
#include "platform/qt/widget_kit.h"

namespace mero::forms {
namespace {

/// A pane stands its pictures below each other where it is narrow and high enough for two [characters,
/// lines].
constexpr int kNarrowPair = 90;
constexpr int kHighPair = 28;
constexpr QSize kSectionRoom{44, 13};
constexpr QSize kLeastSection{30, 8};
constexpr QSize kChartRoom{36, 10};
constexpr QSize kLeastChart{26, 7};

class PicturePane : public QGroupBox {
  public:
    PicturePane(frmCalc& form, int type, QWidget& parent)
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
        layout_->addWidget(&section, 3);
        layout_->addWidget(&chart, 2);
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

  protected:
    void resizeEvent(QResizeEvent* event) override {
        QGroupBox::resizeEvent(event);
        const bool narrow = width() < qt::textWidth(*this, kNarrowPair);
        const bool high = height() >= fontMetrics().height() * kHighPair;
        layout_->setDirection(narrow && high ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    }

  private:
    QBoxLayout* layout_;
};

}  // namespace

QWidget& makePicturePane(frmCalc& form, int type, QWidget& parent) {
    return *new PicturePane(form, type, parent);
}

}  // namespace mero::forms
