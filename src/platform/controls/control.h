// SPDX-License-Identifier: MIT
/// Base class of a form's controls, independent of any window system: name, container, enabled, visible.
/// Observers (a widget, a test) are notified of a change before the form's handler runs.
#pragma once

#include <functional>
#include <list>
#include <string>

#include "platform/controls/control_state.h"

namespace mero::platform {

class Form;

/// The property of a control that changed.
enum class Aspect {
    Text,  ///< caption or content
    Enabled,
    Visible,
    Colour,  ///< background
    Checked,
    Items,     ///< entries of a list
    Position,  ///< selected entry, tab
    Cells,     ///< texts or marks of a grid
    CurrentCell,
    Place,  ///< position of a panel or an editor, set by code
    Path,   ///< document of a browser view
    Focus,  ///< code requests the input focus
};

/// Base of every control. It belongs to one form for its whole lifetime and is neither copied nor moved.
class Control {
  public:
    Control(Control& container, std::string name);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    Control(Control&&) = delete;
    Control& operator=(Control&&) = delete;

    /// Name within the form; members of an array have their index in it: `txtVsakPlocha(3)`.
    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] Form& form() const { return *form_; }
    /// The panel, tab page or form that contains this control. Null for a form.
    [[nodiscard]] Control* container() const { return container_; }

    [[nodiscard]] bool enabled() const { return enabled_; }
    [[nodiscard]] bool visible() const { return visible_; }
    void setEnabled(bool enabled);
    void setVisible(bool visible);
    void show() { setVisible(true); }
    void hide() { setVisible(false); }

    /// True when the control and all its containers are shown.
    [[nodiscard]] bool onScreen() const;
    /// True when the control and all its containers are enabled.
    [[nodiscard]] bool reachable() const;

    /// What the control holds now.
    [[nodiscard]] virtual ControlState state() const;
    /// Takes the state of a control of the same kind. Observers are notified of what changes; no handler
    /// runs.
    virtual void showState(const ControlState& state);

    /// Requests the input focus (called by code).
    void setFocus() { notify(Aspect::Focus); }

    using Observer = std::function<void(Aspect)>;
    void observe(Observer observer) { observers_.push_back(std::move(observer)); }

  protected:
    /// A form: no container, it is its own form.
    Control(Form& self, std::string name, bool visible);
    void notify(Aspect aspect) const;
    /// Called by everything that a user does to the control, before its handlers run.
    void beforeUserActs() const;
    /// Assigns `to` and notifies when it differs.
    template <typename T>
    void take(T& member, const T& to, Aspect aspect) {
        if (member != to) {
            member = to;
            notify(aspect);
        }
    }
    /// Whether the content of this container is shown (of the tab pages: only the current one's).
    [[nodiscard]] virtual bool showsContent() const { return visible_; }

  private:
    std::string name_;
    Form* form_;
    Control* container_;
    bool enabled_ = true;
    bool visible_ = true;
    /// An observer may add others while it runs, as a page that is built when its tab is chosen does.
    std::list<Observer> observers_;
};

}  // namespace mero::platform
