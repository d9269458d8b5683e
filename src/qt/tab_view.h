// SPDX-License-Identifier: MIT
/// A tab control as a widget whose pages are built when they are first shown.
#pragma once

#include <QTabWidget>
#include <functional>
#include <map>

#include "platform/controls/containers.h"
#include "qt/mnemonics.h"
#include "qt/widget_kit.h"

namespace mero::qt {

class TabView : public QTabWidget {
  public:
    using Builder = std::function<void(QWidget& page)>;

    /// @param taken letters that are no mnemonics of the pages
    TabView(WidgetKit& kit, platform::TabControl& tabs, QWidget& parent, Letters taken = {});

    /// Sets the function that builds a page. The current page is built at once.
    void setPage(int position, Builder builder);

    /// Rectangle of a tab, in coordinates of the tab bar.
    [[nodiscard]] QRect tabRect(int position) const;

  private:
    void addShortcuts();
    /// Moves the focus from the page itself to the page's first field.
    void enterPage();
    void showPosition();
    void buildPage(int position);

    platform::TabControl* tabs_;
    std::map<int, Builder> builders_;
    Letters letters_;  ///< used by the tabs and outside them
};

}  // namespace mero::qt
