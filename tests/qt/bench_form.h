// SPDX-License-Identifier: MIT
/// A form and a window for tests of single widgets.
#pragma once

#include <QApplication>
#include <QVBoxLayout>
#include <QWidget>

#include "platform/controls/form.h"
#include "qt/widget_kit.h"

namespace mero::qt {

/// A shown form. Events enter directly; `entered` counts them.
struct BenchForm {
    explicit BenchForm(FocusEvents focus_events = FocusEvents::RunHandlers)
        : kit(
              [this](const std::function<void()>& event) {
                  ++entered;
                  event();
              },
              focus_events) {
        form.show();
    }

    platform::Form form{"frmBench", "Bench"};
    int entered = 0;
    WidgetKit kit;
};

/// The window of the widgets. Declare it after the controls, because it must be destroyed before them, as in
/// the program.
class BenchWindow : public QWidget {
  public:
    BenchWindow() { setLayout(new QVBoxLayout); }

    /// Shows the window with the widget in it.
    template <typename Widget>
    Widget& put(Widget& widget) {
        layout()->addWidget(&widget);
        show();
        QApplication::processEvents();
        return widget;
    }
};

}  // namespace mero::qt
