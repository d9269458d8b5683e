// SPDX-License-Identifier: MIT
/// Binding of the tab control.
/// A handler may switch back at once; the control's position is what counts.
#include "platform/qt/tab_view.h"

#include <QTabBar>
#include <utility>

#include "platform/qt/texts.h"

namespace mero::qt {

TabView::TabView(WidgetKit& kit, platform::TabControl& tabs, QWidget& parent)
    : QTabWidget(&parent), tabs_(&tabs) {
    setDocumentMode(true);
    for (const std::string& caption : tabs.captions()) {
        addTab(new QWidget(this), captionText(caption));
    }
    setCurrentIndex(tabs.position());
    bindCommon(kit, tabs, *this);
    for (int position = 0; position < count(); ++position) {
        kit.add(tabs.page(position), *widget(position));
    }
    follow(tabs, *this, [this](platform::Aspect aspect) {
        if (aspect == platform::Aspect::Position) {
            showPosition();
        }
    });
    connect(this, &QTabWidget::currentChanged, this, [this, &kit](int position) {
        if (position != tabs_->position()) {
            kit.enter([this, position] { tabs_->userSelect(position); });
            showPosition();
        }
    });
}

void TabView::setPage(int position, Builder builder) {
    builders_[position] = std::move(builder);
    if (position == tabs_->position()) {
        buildPage(position);
    }
}

QRect TabView::tabRect(int position) const {
    return tabBar()->tabRect(position);
}

void TabView::buildPage(int position) {
    const auto found = builders_.find(position);
    if (found == builders_.end()) {
        return;
    }
    const Builder build = std::move(found->second);
    builders_.erase(found);
    build(*widget(position));
}

void TabView::showPosition() {
    buildPage(tabs_->position());
    setCurrentIndex(tabs_->position());
}

}  // namespace mero::qt
