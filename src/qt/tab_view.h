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

    TabView(WidgetKit& kit, platform::TabControl& tabs, QWidget& parent);

    /// How a page gets its content. The page that is shown now gets it at once.
    void setPage(int position, Builder builder);

    /// Where a tab is drawn, in coordinates of the tab bar.
    [[nodiscard]] QRect tabRect(int position) const;

  private:
    void addShortcuts();
    /// Brings the focus from an empty page that got it to the first field of the page.
    void enterPage();
    void showPosition();
    void buildPage(int position);

    platform::TabControl* tabs_;
    std::map<int, Builder> builders_;
    Letters letters_;  ///< that the tabs have taken
};

}  // namespace mero::qt
