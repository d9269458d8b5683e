// SPDX-License-Identifier: MIT
/// Binding of the rain curve. It gives way to the table: in a low window it is not there.
#include "forms/dialogs/layout/rain_curve_view.h"

#include "picture/arrange.h"
#include "picture/rain_curve.h"
#include "platform/qt/picture_view.h"
#include "platform/qt/widget_kit.h"

namespace mero::forms {
namespace {

constexpr QSize kRoom{40, 10};
constexpr QSize kLeastRoom{20, 0};

}  // namespace

QWidget& makeRainCurve(frmIntDialog& form, QWidget& parent) {
    auto& view = *new qt::PictureView(
        parent, QStringLiteral("Křivka intenzit deště"),
        [&form](const picture::Sheet& sheet, const picture::TextSizes& sizes) {
            return picture::arrange(picture::rainCurve(form.rains(), form.pickedRain()), sheet, sizes);
        });
    view.setObjectName(QStringLiteral("picRain"));
    view.setRoom(kRoom, kLeastRoom);
    for (platform::Control* control : {static_cast<platform::Control*>(&form.fgIntDeste),
                                       static_cast<platform::Control*>(&form.cboSelStanice),
                                       static_cast<platform::Control*>(&form.cboSelPeriod),
                                       static_cast<platform::Control*>(&form.txtSChange)}) {
        qt::follow(*control, view, [&view](platform::Aspect /*aspect*/) { view.update(); });
    }
    return view;
}

}  // namespace mero::forms
