// SPDX-License-Identifier: MIT
/// One message box; its text can be selected.
#include "app/mero/about_box.h"

#include <QMessageBox>
#include <QPushButton>

#include "qt/texts.h"

namespace mero::app {
namespace {

QString dataText(const DataInUse& data) {
    if (!data.demonstration) {
        return QStringLiteral("databázi nelze přečíst");
    }
    return QStringLiteral("%1 stanic, ").arg(data.stations) +
           (*data.demonstration ? QStringLiteral("ukázkové hodnoty (vypočtené, ne naměřené)")
                                : QStringLiteral("vlastní data"));
}

}  // namespace

void showAbout(QWidget* parent, const QString& version, const DataInUse& data) {
    const QString text = QStringLiteral(
                             "<h3>MERO %1</h3>"
                             "<p>Výpočet vsakovacích zařízení</p>"
                             "<p><b>Databáze dešťů</b><br>%2<br>%3</p>"
                             "<p><b>Licence</b><br>MERO: MIT<br>Qt %4: LGPL 3.0, sdílené knihovny<br>"
                             "JSON for Modern C++: MIT</p>")
                             .arg(version, qt::shown(data.path).toHtmlEscaped(), dataText(data),
                                  QString::fromLatin1(qVersion()));
    QMessageBox box(QMessageBox::NoIcon, QStringLiteral("O programu"), text, QMessageBox::Ok, parent);
    box.setObjectName(QStringLiteral("about"));
    box.setTextFormat(Qt::RichText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.setIconPixmap(parent->windowIcon().pixmap(64));
    box.exec();
}

}  // namespace mero::app
