// SPDX-License-Identifier: MIT
/// A control of a form without any window system: a name, a container, whether it is enabled and visible.
/// Observers (a widget, a test) are told what changed before the form's handler runs.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace mero::platform {

class Form;

/// What of a control changed.
enum class Aspect {
    Text,  ///< caption or content
    Enabled,
    Visible,
    Colour,  ///< background set by the program
    Checked,
    Items,     ///< entries of a list
    Position,  ///< selected entry, tab
    Cells,     ///< texts or marks of a grid
    CurrentCell,
    Place,  ///< where code put a panel or an editor
    Path,   ///< document of a browser view
    Focus,  ///< code asks for the input focus
};

/// Base of every control. It belongs to one form for its whole life and is neither copied nor moved.
class Control {
  public:
    Control(Control& container, std::string name);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    Control(Control&&) = delete;
    Control& operator=(Control&&) = delete;

    /// Name within the form, members of an array with their index: `txtVsakPlocha(3)`.
    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] Form& form() const { return *form_; }
    /// What holds this control: a panel, a tab page, the form. Null for a form.
    [[nodiscard]] Control* container() const { return container_; }

    [[nodiscard]] bool enabled() const { return enabled_; }
    [[nodiscard]] bool visible() const { return visible_; }
    void setEnabled(bool enabled);
    void setVisible(bool visible);
    void show() { setVisible(true); }
    void hide() { setVisible(false); }

    /// True when the control and everything that holds it is shown.
    [[nodiscard]] bool onScreen() const;
    /// True when the control and everything that holds it is enabled.
    [[nodiscard]] bool reachable() const;

    /// Code asks for the input focus.
    void setFocus() { notify(Aspect::Focus); }

    using Observer = std::function<void(Aspect)>;
    void observe(Observer observer) { observers_.push_back(std::move(observer)); }

  protected:
    /// A form: no container, it is its own form.
    Control(Form& self, std::string name, bool visible);
    void notify(Aspect aspect) const;
    /// Whether what this control holds is shown while the control itself is (a tab page: only the current).
    [[nodiscard]] virtual bool showsContent() const { return visible_; }

  private:
    std::string name_;
    Form* form_;
    Control* container_;
    bool enabled_ = true;
    bool visible_ = true;
    std::vector<Observer> observers_;
};

}  // namespace mero::platform
