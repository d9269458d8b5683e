// SPDX-License-Identifier: MIT
/// Binding of the rain curve. It gives way to the table: in a low window it is not there.
#include "forms/dialogs/layout/rain_curve_view.h"

#include <QEvent>
#include <QLayout>

#include "picture/arrange.h"
#include "picture/rain_curve.h"
#include "qt/picture_view.h"
#include "qt/widget_kit.h"

namespace mero::forms {
namespace {

constexpr QSize kRoom{40, 10};
constexpr QSize kLeastRoom{20, 7};

/// Takes the curve away while the window is too low for it and the whole table.
class GivesWay : public QObject {
  public:
    explicit GivesWay(QWidget& view) : QObject(&view), view_(&view) {
        view.parentWidget()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const QWidget& parent = *view_->parentWidget();
        if (event->type() == QEvent::Resize && parent.layout() != nullptr) {
            const int own = view_->isHidden() ? 0 : view_->sizeHint().height() + parent.layout()->spacing();
            const int needed = parent.layout()->sizeHint().height() - own +
                               view_->minimumSizeHint().height() + parent.layout()->spacing();
            view_->setVisible(parent.height() >= needed);
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    QWidget* view_;
};

}  // namespace

QWidget& makeRainCurve(frmIntDialog& form, QWidget& parent) {
    auto& view = *new qt::PictureView(
        parent, QStringLiteral("Křivka intenzit deště"),
        [&form](const picture::Sheet& sheet, const picture::TextSizes& sizes) {
            return picture::arrange(picture::rainCurve(form.rains(), form.pickedRain()), sheet, sizes);
        });
    view.setObjectName(QStringLiteral("picRain"));
    view.setRoom(kRoom, kLeastRoom);
    new GivesWay(view);
    for (platform::Control* control : {static_cast<platform::Control*>(&form.fgIntDeste),
                                       static_cast<platform::Control*>(&form.cboSelStanice),
                                       static_cast<platform::Control*>(&form.cboSelPeriod),
                                       static_cast<platform::Control*>(&form.txtSChange)}) {
        qt::follow(*control, view, [&view](platform::Aspect /*aspect*/) { view.update(); });
    }
    return view;
}

}  // namespace mero::forms
