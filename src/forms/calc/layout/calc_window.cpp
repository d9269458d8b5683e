// SPDX-License-Identifier: MIT
/// Building of the main window.
/// Only the first tab is built at the start; everything else when it is first shown.
#include "forms/calc/layout/calc_window.h"

#include <QFileInfo>
#include <QShortcut>
#include <QUrl>
#include <QVBoxLayout>
#include <utility>

#include "design/messages.h"
#include "forms/calc/layout/concerned_field.h"
#include "forms/calc/layout/design_page.h"
#include "forms/calc/layout/documents_pages.h"
#include "forms/calc/layout/inputs_page.h"
#include "forms/calc/layout/manual_place.h"
#include "forms/dialogs/layout/dialog_windows.h"
#include "qt/look.h"
#include "qt/tab_view.h"
#include "qt/texts.h"
#include "qt/undo_keys.h"

namespace mero::forms {
namespace {

/// The size that the window asks for, where the screen has room for it.
constexpr int kWidthCharacters = 166;
constexpr int kHeightLines = 52;

/// True for the guards that refuse to go on before the first tab is filled in.
bool asksForSite(design::VerdictId id) {
    return id == design::VerdictId::DrainedAreaMissing || id == design::VerdictId::FiltrationMissing;
}

}  // namespace

CalcWindow::CalcWindow(qt::WidgetKit& kit, frmCalc& form, qt::DocumentServices services)
    : FormWindow(kit, form, nullptr),
      form_(&form),
      services_(std::move(services)),
      rain_window_(std::make_unique<RainWindow>(kit, form.intDialog, *this)),
      area_window_(std::make_unique<AreaWindow>(kit, form.areaDialog, *this)),
      soil_window_(std::make_unique<SoilWindow>(kit, form.coefDialog, *this)) {
    addHelp();
}

CalcWindow::~CalcWindow() = default;

void CalcWindow::tellSaved(const std::string& path) {
    const QString file = qt::shown(path);
    const auto open = [this](const QString& what) {
        services_.open_address(qt::stored(QUrl::fromLocalFile(what).toString(QUrl::FullyEncoded)));
    };
    tell(QStringLiteral("Uloženo: %1").arg(file),
         {{QStringLiteral("Otevřít"), [open, file] { open(file); }},
          {QStringLiteral("Otevřít složku"), [open, file] { open(QFileInfo(file).absolutePath()); }}});
}

void CalcWindow::tell(const QString& text, const std::vector<qt::NoticeBar::Offer>& offers) {
    notice_->tell(text, offers);
}

void CalcWindow::setMenus(std::vector<qt::Menu> menus) {
    menus_ = std::move(menus);
    qt::undoByWindow(*this);
}

void CalcWindow::addHelp() {
    for (platform::Form* form :
         {static_cast<platform::Form*>(form_), static_cast<platform::Form*>(&form_->intDialog),
          static_cast<platform::Form*>(&form_->areaDialog),
          static_cast<platform::Form*>(&form_->coefDialog)}) {
        QWidget* window = kit().find(*form);
        auto* key = new QShortcut(QKeySequence(Qt::Key_F1), window);
        connect(key, &QShortcut::activated, this, [this, form, window] { showHelp(*form, *window); });
    }
}

void CalcWindow::showHelp(const platform::Form& form, const QWidget& window) {
    if (!manual_) {
        manual_ = std::make_unique<qt::ManualWindow>(
            QStringLiteral(":/manual"),
            [this](const QString& address) { services_.open_address(qt::stored(address)); });
    }
    std::string control;
    for (const QWidget* at = window.focusWidget(); at != nullptr && control.empty();
         at = at->parentWidget()) {
        control = qt::stored(at->objectName());
    }
    manual_->openAt(manualPlace(*form_, form, control));
}

void CalcWindow::returnToField(const platform::Message& message) {
    const auto id = design::verdictId(message.id);
    if (!id) {
        return;
    }
    qt::later(*this, [this, id = *id] {
        if (asksForSite(id) && form_->reachable() && form_->SSTab1.position() != kTabInputs) {
            // As a person goes there; the first tab runs nothing.
            kit().enter([this] { form_->SSTab1.userSelect(kTabInputs); });
        }
        const platform::Control* control = concernedControl(*form_, id);
        QWidget* widget = control == nullptr ? nullptr : kit().find(*control);
        if (widget != nullptr) {
            qt::leadTo(*widget);
        }
    });
}

void CalcWindow::build(QWidget& content) {
    auto* column = new QVBoxLayout(&content);
    column->setContentsMargins(0, 0, 0, 0);
    const qt::Letters letters = qt::lettersOf(menus_);
    if (!menus_.empty()) {
        column->setMenuBar(&qt::makeMenuBar(content, std::move(menus_)));
    }
    lasting_notice_ = new qt::NoticeBar(content);
    lasting_notice_->setObjectName(QStringLiteral("lastingNotice"));
    column->addWidget(lasting_notice_);
    auto& tabs = *new qt::TabView(kit(), form_->SSTab1, content, letters);
    column->addWidget(&tabs, 1);
    notice_ = new qt::NoticeBar(content);
    column->addWidget(notice_);
    connect(&tabs, &QTabWidget::currentChanged, notice_, &QWidget::hide);
    tabs.setPage(kTabInputs, [this](QWidget& page) { buildInputsPage(kit(), *form_, page); });
    tabs.setPage(kTabDesign, [this](QWidget& page) { buildDesignPage(kit(), *form_, page); });
    tabs.setPage(kTabTechnology,
                 [this](QWidget& page) { buildTechnologyPage(kit(), *form_, services_, page); });
    tabs.setPage(kTabResults, [this](QWidget& page) { buildResultsPage(kit(), *form_, services_, page); });

    // One starts by naming the project.
    kit().find(form_->txtProjName)->setFocus();
    if (!place || !place(*this)) {
        const QSize wanted(qt::textWidth(*this, kWidthCharacters), fontMetrics().height() * kHeightLines);
        resize(wanted.boundedTo(roomOnScreen()));
    }
}

}  // namespace mero::forms
