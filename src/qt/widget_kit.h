// SPDX-License-Identifier: MIT
/// What every widget needs of the program around it: the gate for events and the list of what is bound.
/// It also holds what all controls have in common: name, enabled, visible, focus.
#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>
#include <functional>
#include <unordered_map>

#include "platform/controls/control.h"
#include "qt/spoken.h"

namespace mero::qt {

/// Runs an event of the user. Whoever owns the program decides what an error in it means.
using Gate = std::function<void(const std::function<void()>&)>;

/// Whether getting and losing the focus of the window system runs the controls' handlers. It does for a
/// person; a script says itself when a field gets and loses the focus.
enum class FocusEvents { RunHandlers, RunNothing };

class WidgetKit {
  public:
    explicit WidgetKit(Gate gate, FocusEvents focus_events = FocusEvents::RunHandlers);

    void enter(const std::function<void()>& event) const { gate_(event); }
    [[nodiscard]] bool runsFocusHandlers() const { return focus_events_ == FocusEvents::RunHandlers; }

    void add(const platform::Control& control, QWidget& widget) { widgets_[&control] = &widget; }
    /// The widget of a control, null while it is not built.
    [[nodiscard]] QWidget* find(const platform::Control& control) const;

  private:
    Gate gate_;
    FocusEvents focus_events_;
    std::unordered_map<const platform::Control*, QPointer<QWidget>> widgets_;
};

/// Calls `action` with what of the control changed, for as long as the widget lives.
void follow(platform::Control& control, QWidget& widget, std::function<void(platform::Aspect)> action);

/// Binds what all controls have in common and enters the widget into the kit. The widget has a parent.
void bindCommon(WidgetKit& kit, platform::Control& control, QWidget& widget);

/// Runs the handlers when a person moves the focus to the widget or away from it. Switching windows, menus
/// and lists that drop down count as neither.
void bindFocus(WidgetKit& kit, QWidget& widget, std::function<void()> got, std::function<void()> lost);

/// Scrolls the areas around the widget to where it is seen.
void showInScrollAreas(QWidget& widget);

/// Shows the widget and puts the focus there, its text selected. No handler runs: it is as if the window had
/// been left and entered again.
void leadTo(QWidget& widget);

/// Calls `action` once, after the running event, if the object still lives then.
void later(QObject& object, std::function<void()> action);

}  // namespace mero::qt
