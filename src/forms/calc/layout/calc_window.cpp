// SPDX-License-Identifier: MIT
/// Building of the main window.
/// Only the first tab is built at the start; everything else when it is first shown.
#include "forms/calc/layout/calc_window.h"

#include <QVBoxLayout>
#include <utility>

#include "design/messages.h"
#include "forms/calc/layout/concerned_field.h"
#include "forms/calc/layout/design_page.h"
#include "forms/calc/layout/documents_pages.h"
#include "forms/calc/layout/inputs_page.h"
#include "forms/dialogs/layout/dialog_windows.h"
#include "qt/look.h"
#include "qt/tab_view.h"

namespace mero::forms {
namespace {

/// The size that the window asks for, where the screen has room for it.
constexpr int kWidthCharacters = 166;
constexpr int kHeightLines = 48;

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
      soil_window_(std::make_unique<SoilWindow>(kit, form.coefDialog, *this)) {}

CalcWindow::~CalcWindow() = default;

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
    auto& tabs = *new qt::TabView(kit(), form_->SSTab1, content);
    column->addWidget(&tabs);
    tabs.setPage(kTabInputs, [this](QWidget& page) { buildInputsPage(kit(), *form_, page); });
    tabs.setPage(kTabDesign, [this](QWidget& page) { buildDesignPage(kit(), *form_, page); });
    tabs.setPage(kTabTechnology,
                 [this](QWidget& page) { buildTechnologyPage(kit(), *form_, services_, page); });
    tabs.setPage(kTabResults, [this](QWidget& page) { buildResultsPage(kit(), *form_, services_, page); });

    // One starts by naming the project.
    kit().find(form_->txtProjName)->setFocus();
    const QSize wanted(qt::textWidth(*this, kWidthCharacters), fontMetrics().height() * kHeightLines);
    resize(wanted.boundedTo(roomOnScreen()));
}

}  // namespace mero::forms
