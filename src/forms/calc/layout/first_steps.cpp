// SPDX-License-Identifier: MIT
/// The text only reads; it is written anew whenever the tab is shown.
#include "forms/calc/layout/first_steps.h"

#include <QLabel>
#include <QStringList>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "qt/look.h"
#include "qt/widget_kit.h"

namespace mero::forms {
namespace {

QString missingInputs(const data::modPublicVariables& values) {
    QStringList missing;
    if (!(values.RedukovanaPlocha > 0.0F)) {
        missing += QStringLiteral("odvodňovaná plocha");
    }
    if (std::ranges::none_of(values.IntenzitaDeste, [](float intensity) { return intensity > 0.0F; })) {
        missing += QStringLiteral("intenzity deště");
    }
    if (!(values.txtSoucFiltrace > 0.0F)) {
        missing += QStringLiteral("součinitel filtrace podloží");
    }
    return missing.join(QLatin1String(", "));
}

QString steps(const data::modPublicVariables& values) {
    const QString missing = missingInputs(values);
    return (missing.isEmpty() ? QStringLiteral("1. Záložka „Základní informace“ je vyplněna.")
                              : QStringLiteral("1. Vyplňte nejdřív záložku „Základní informace“. Chybí: %1.")
                                    .arg(missing)) +
           QStringLiteral(
               "\n2. Zvolte nahoře skupinu: „Decenralizované“ je pět typů, „Centralizované“ jsou nádrže.\n"
               "3. Vyberte typ ze seznamu. Objeví se jeho vstupy, výsledky a obrázky.\n\n"
               "Který typ se hodí, ukazuje vodítko na první záložce; klepnutím na jeho oblast typ zvolíte.\n"
               "Klávesa F1 otevře příručku u místa, kde právě jste.");
}

class FirstSteps : public QWidget {
  public:
    FirstSteps(frmCalc& form, QWidget& parent) : QWidget(&parent), form_(&form), text_(new QLabel(this)) {
        setObjectName(QStringLiteral("firstSteps"));
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(qt::gap(*this), 2 * qt::gap(*this), qt::gap(*this), 0);
        text_->setTextFormat(Qt::PlainText);
        text_->setWordWrap(true);
        column->addWidget(text_);
        column->addStretch(1);
        form.picResults.forEach([this](int, platform::Panel& panel) {
            qt::follow(panel, *this, [this](platform::Aspect aspect) {
                if (aspect == platform::Aspect::Visible) {
                    changed();
                }
            });
        });
        refresh();
    }

  protected:
    void showEvent(QShowEvent* event) override {
        refresh();
        QWidget::showEvent(event);
    }

  private:
    /// A handler hides and shows the panels in turn, so only the end counts.
    void changed() {
        if (!std::exchange(waiting_, true)) {
            qt::later(*this, [this] {
                waiting_ = false;
                refresh();
            });
        }
    }
    void refresh() {
        bool any = false;
        form_->picResults.forEach(
            [&any](int, const platform::Panel& panel) { any = any || panel.visible(); });
        text_->setText(steps(form_->values()));
        setVisible(!any);
    }

    frmCalc* form_;
    QLabel* text_;
    bool waiting_ = false;
};

}  // namespace

QWidget& makeFirstSteps(frmCalc& form, QWidget& parent) {
    return *new FirstSteps(form, parent);
}

}  // namespace mero::forms
