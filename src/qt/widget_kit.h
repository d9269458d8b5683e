// SPDX-License-Identifier: MIT
/// Shared by all widgets: the gate for events, the list of bound widgets, and the binding of the properties
/// common to all controls (name, enabled, visible, focus).
#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>
#include <functional>
#include <memory>
#include <unordered_map>

#include "platform/controls/control.h"
#include "qt/spoken.h"
#include "qt/typing.h"

namespace mero::qt {

/// Runs an event of the user. The owner of the program handles errors in it.
using Gate = std::function<void(const std::function<void()>&)>;

/// Whether focus events of the window system run the controls' handlers, and messages of keystrokes are told
/// beside the field. They do and are for a person; a script states itself when a field gets and loses the
/// focus.
enum class FocusEvents { RunHandlers, RunNothing };

class WidgetKit {
  public:
    explicit WidgetKit(Gate gate, FocusEvents focus_events = FocusEvents::RunHandlers);

    /// Runs an event of the user. What was told beside a field while typing has its box first.
    void enter(const std::function<void()>& event) const;
    /// Runs the event of a keystroke or paste in the field.
    void enterTyped(QWidget& field, const std::function<void()>& event) const;
    /// Runs the event of leaving a field.
    void enterLeaving(const std::function<void()>& event) const { gate_(event); }
    [[nodiscard]] Typing& typing() const { return *typing_; }
    /// True when a person works at the window, and not a script.
    [[nodiscard]] bool servesPerson() const { return focus_events_ == FocusEvents::RunHandlers; }

    void add(const platform::Control& control, QWidget& widget) { widgets_[&control] = &widget; }
    /// The widget of a control, null until it is built.
    [[nodiscard]] QWidget* find(const platform::Control& control) const;

  private:
    Gate gate_;
    FocusEvents focus_events_;
    std::unique_ptr<Typing> typing_;
    std::unordered_map<const platform::Control*, QPointer<QWidget>> widgets_;
};

/// Calls `action` with the changed property of the control, as long as the widget exists.
void follow(platform::Control& control, QWidget& widget, std::function<void(platform::Aspect)> action);

/// Binds the properties common to all controls and adds the widget to the kit. The widget must have a parent.
void bindCommon(WidgetKit& kit, platform::Control& control, QWidget& widget);

/// Runs the handlers when a person moves the focus to the widget or away from it. Switching windows, menus
/// and drop-down lists count as neither.
void bindFocus(WidgetKit& kit, QWidget& widget, std::function<void()> got, std::function<void()> lost);

/// Whether a lost focus means that a person left the field.
[[nodiscard]] bool countsAsLeaving(Qt::FocusReason reason);

/// Scrolls the areas around the widget until it is visible.
void showInScrollAreas(QWidget& widget);

/// Shows the widget, focuses it and selects its text. No handler runs, as when the window is left and entered
/// again.
void leadTo(QWidget& widget);

/// Puts the focus into the first widget of the page or window that the Tab key reaches. No handler runs.
void focusFirst(QWidget& page);

/// Calls `action` once, after the running event, if the object still exists then.
void later(QObject& object, std::function<void()> action);

}  // namespace mero::qt
