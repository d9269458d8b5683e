// SPDX-License-Identifier: MIT
/// The banner beside results that do not belong to the inputs, with the button that calculates them anew.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <functional>

#include "forms/calc/frm_calc.h"
#include "qt/widget_kit.h"

namespace mero::forms {

class StaleBanner : public QFrame {
  public:
    StaleBanner(QWidget& parent, const QString& button, std::function<void()> calculate);

    /// Shows the text; hides the banner when it is empty.
    void tell(const QString& text);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QLabel* label_;
};

/// What the results of the type say when they are stale.
[[nodiscard]] QString staleText();
/// Greys a widget that shows what is no longer valid. A scrolled view gets a veil: it would leave traces of
/// what it showed before otherwise.
void setFaded(QWidget& widget, bool faded);
[[nodiscard]] bool isFaded(const QWidget& widget);
/// What a person would do to calculate the type: press its button, or choose a live type again.
void calculateAnew(qt::WidgetKit& kit, frmCalc& form, FacilityType type);

}  // namespace mero::forms
