// SPDX-License-Identifier: MIT
/// Binds the tab control to a tab widget.
/// A handler may switch back at once, so the widget follows the control's position.
#include "qt/tab_view.h"

#include <QPainter>
#include <QShortcut>
#include <QTabBar>
#include <utility>

#include "qt/focus_ring.h"
#include "qt/texts.h"

namespace mero::qt {

namespace {

/// Draws the focus ring on the current tab, from which the arrow keys start.
class TabBar : public QTabBar {
  public:
    explicit TabBar(QWidget* parent) : QTabBar(parent) { showsFocusItself(*this); }

  protected:
    void paintEvent(QPaintEvent* event) override {
        QTabBar::paintEvent(event);
        if (hasFocus()) {
            QPainter painter(this);
            paintRing(painter, QRectF(tabRect(currentIndex())).adjusted(1, 1, -1, -1), palette());
        }
    }
};

}  // namespace

TabView::TabView(WidgetKit& kit, platform::TabControl& tabs, QWidget& parent, Letters taken)
    : QTabWidget(&parent), tabs_(&tabs) {
    setTabBar(new TabBar(this));
    setDocumentMode(true);
    addShortcuts();
    for (const std::string& caption : tabs.captions()) {
        addTab(new QWidget(this), captionText(caption));
    }
    letters_ = addMnemonics(*this, std::move(taken));
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
            enterPage();
        }
    });
}

void TabView::addShortcuts() {
    const auto add = [this](const QKeySequence& keys, int step) {
        auto* shortcut = new QShortcut(keys, this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this,
                [this, step] { setCurrentIndex((currentIndex() + step + count()) % count()); });
    };
    add(Qt::CTRL | Qt::Key_Tab, 1);
    add(Qt::CTRL | Qt::Key_PageDown, 1);
    add(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, -1);
    add(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, -1);
    add(Qt::CTRL | Qt::Key_PageUp, -1);
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
    addMnemonics(*widget(position), letters_);
}

void TabView::enterPage() {
    QWidget* page = currentWidget();
    if (page->window()->focusWidget() == page) {
        focusFirst(*page);
    }
}

void TabView::showPosition() {
    buildPage(tabs_->position());
    setCurrentIndex(tabs_->position());
}

}  // namespace mero::qt
