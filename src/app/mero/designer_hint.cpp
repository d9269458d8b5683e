// SPDX-License-Identifier: MIT
/// What is taken from the list of completions is an edit of the user, as typing it is.
#include "app/mero/designer_hint.h"

#include <QCompleter>
#include <QLineEdit>

#include "qt/texts.h"

namespace mero::app {

void hintDesigner(qt::WidgetKit& kit, platform::TextBox& box, const QString& designer) {
    auto* line = qobject_cast<QLineEdit*>(kit.find(box));
    if (line == nullptr || designer.isEmpty()) {
        return;
    }
    line->setPlaceholderText(QStringLiteral("naposledy: %1").arg(designer));
    auto* completer = new QCompleter({designer}, line);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    line->setCompleter(completer);
    QObject::connect(completer, qOverload<const QString&>(&QCompleter::activated), line,
                     [&kit, &box, line](const QString& taken) {
                         kit.enterTyped(*line, [&box, &taken] { box.userEdit(qt::stored(taken)); });
                     });
}

}  // namespace mero::app
