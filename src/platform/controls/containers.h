// SPDX-License-Identifier: MIT
/// Containers of other controls (frame, panel, tab control with its pages) and the document view.
/// A control on a tab page that is not the current one is not on screen.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/controls/buttons.h"
#include "platform/controls/control.h"

namespace mero::platform {

/// Frame with a caption around a group of controls.
class Frame : public Captioned {
  public:
    using Captioned::Captioned;
};

/// Panel that code shows, hides and places (in twips, 1/1440 inch, within its container).
class Panel : public Captioned {
  public:
    Panel(Control& container, std::string name) : Captioned(container, std::move(name), "") {}

    [[nodiscard]] int left() const { return left_; }
    [[nodiscard]] int top() const { return top_; }
    void moveTo(int left, int top) {
        left_ = left;
        top_ = top;
        notify(Aspect::Place);
    }

    [[nodiscard]] ControlState state() const override;
    void showState(const ControlState& state) override;

  private:
    int left_ = 0;
    int top_ = 0;
};

class TabControl;

/// One page of a tab control.
class TabPage : public Control {
  public:
    TabPage(TabControl& tabs, int position);

  protected:
    [[nodiscard]] bool showsContent() const override;

  private:
    const TabControl* tabs_;
    int position_;
};

/// Tab control. The handler runs with the previous tab when the tab changes, by the user or by code.
class TabControl : public Control {
  public:
    TabControl(Control& container, std::string name, std::vector<std::string> captions);

    [[nodiscard]] int position() const { return position_; }
    [[nodiscard]] const std::vector<std::string>& captions() const { return captions_; }
    [[nodiscard]] TabPage& page(int position) const { return *pages_.at(static_cast<std::size_t>(position)); }
    /// @param position 0 to the number of tabs - 1
    void setPosition(int position);
    void userSelect(int position) {
        beforeUserActs();
        setPosition(position);
    }

    std::function<void(int previous)> changed;

  private:
    std::vector<std::string> captions_;
    std::vector<std::unique_ptr<TabPage>> pages_;
    int position_ = 0;
};

/// View of a local document.
class BrowserView : public Control {
  public:
    using Control::Control;

    /// Full path of the document shown, empty before the first.
    [[nodiscard]] const std::string& path() const { return path_; }
    /// Sends the view to a local file. For a file that does not exist the view shows a note.
    void navigate(const std::string& path) {
        path_ = path;
        notify(Aspect::Path);
    }

  private:
    std::string path_;
};

}  // namespace mero::platform
