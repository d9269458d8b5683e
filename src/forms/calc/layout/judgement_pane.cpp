// SPDX-License-Identifier: MIT
/// Refreshes the state of the results, and leads from a judgement to its field.
#include "forms/calc/layout/judgement_pane.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

#include "design/input.h"
#include "forms/calc/judgements.h"
#include "forms/calc/layout/after_event.h"
#include "forms/calc/layout/concerned_field.h"
#include "forms/calc/layout/stale_banner.h"
#include "forms/calc/layout/verdict_list.h"
#include "forms/calc/result_state.h"
#include "qt/texts.h"

namespace mero::forms {
namespace {

/// Does the control stand on the first tab?
bool isOnInputsTab(const frmCalc& form, const platform::Control& control) {
    for (const platform::Control* each = &control; each != nullptr; each = each->container()) {
        if (each == &form.fraVstup) {
            return true;
        }
    }
    return false;
}

/// Puts the focus into the field of the judgement; one of the first tab is shown first.
void lead(qt::WidgetKit& kit, frmCalc& form, QWidget& from, const Judgement& judgement) {
    const platform::Control* control = judgement.field;
    if (judgement.mended_as == design::VerdictId::FiltrationMissing) {
        control = &form.txtSoucFiltrace;
    } else if (judgement.mended_as) {
        control = concernedControl(form, *judgement.mended_as);
    }
    if (control == nullptr) {
        return;
    }
    if (isOnInputsTab(form, *control) && form.SSTab1.position() != kTabInputs) {
        kit.enter([&form] { form.SSTab1.userSelect(kTabInputs); });
    }
    qt::later(from, [&kit, control] {
        if (QWidget* widget = kit.find(*control); widget != nullptr && widget->isVisible()) {
            qt::leadTo(*widget);
        }
    });
}

void setValid(QLineEdit& result, bool valid) {
    setFaded(result, !valid);
    const QString description =
        valid ? QStringLiteral("výsledek") : QStringLiteral("výsledek neplatí, vstupy se od výpočtu změnily");
    if (result.accessibleDescription() != description) {
        result.setAccessibleDescription(description);
    }
}

QString calculateCaption(const frmCalc& form, FacilityType type) {
    return design::isLive(type) ? QStringLiteral("Přepočítat") : qt::shown(form.cmdCalcul[type].text());
}

}  // namespace

void addResultState(qt::WidgetKit& kit, frmCalc& form, FacilityType type, QWidget& side, QBoxLayout& column,
                    QWidget& results) {
    auto* banner = new StaleBanner(side, calculateCaption(form, type),
                                   [&kit, &form, type] { calculateAnew(kit, form, type); });
    auto* box = new QGroupBox(QStringLiteral("Posouzení"), &side);
    auto* rows = new QVBoxLayout(box);
    auto* rain = new QLabel(box);
    rain->setObjectName(QStringLiteral("countedRain"));
    rain->setWordWrap(true);
    rain->setTextFormat(Qt::PlainText);
    rows->addWidget(rain);
    auto* list = new VerdictList(
        *box, [&kit, &form, &side](const Judgement& judgement) { lead(kit, form, side, judgement); });
    rows->addWidget(list);
    const int below = column.indexOf(&results) + 1;
    column.insertWidget(below, banner);
    column.insertWidget(below + 1, box);

    refreshAfterEvents(form, side, [=, &form, &side, &results] {
        const ResultState state = resultState(form, type);
        const bool stale = state == ResultState::Stale;
        banner->tell(stale ? staleText() : QString());
        // The refused inputs of a calculation that never had results are listed, too.
        const bool any =
            state != ResultState::None || form.record().last(type).end == CalculationEnd::Refused;
        const auto found = any ? judgements(form, type) : std::vector<Judgement>();
        list->show(found);
        rain->setText(found.empty() ? QStringLiteral("Zatím není co posoudit: výpočet neproběhl.")
                                    : qt::shown(countedRain(form, type)));
        rain->setVisible(!rain->text().isEmpty());
        list->setVisible(!found.empty());
        for (auto* result : results.findChildren<QLineEdit*>()) {
            setValid(*result, !stale);
        }
        for (auto* part : side.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (part != &results && part != banner) {
                setFaded(*part, stale);
            }
        }
    });
}

void addReportState(qt::WidgetKit& kit, frmCalc& form, QWidget& page, QBoxLayout& column, QWidget& view) {
    auto* banner = new StaleBanner(page, QStringLiteral("Výpočti"), [&kit, &form] {
        const FacilityType type = form.SelectedType;
        kit.enter([&form] { form.SSTab1.userSelect(kTabDesign); });
        calculateAnew(kit, form, type);
        // With inputs that are refused one stays where they are mended.
        if (resultState(form, type) == ResultState::Current) {
            kit.enter([&form] { form.SSTab1.userSelect(kTabResults); });
        }
    });
    column.addWidget(banner);
    refreshAfterEvents(form, page, [=, &form, &view] {
        const ResultState state = reportState(form);
        banner->tell(state == ResultState::Current ? QString()
                     : state == ResultState::None
                         ? QStringLiteral("Tento typ není spočítán. Výsledky ve zprávě k němu nepatří.")
                         : staleText());
        setFaded(view, state != ResultState::Current);
    });
}

}  // namespace mero::forms
