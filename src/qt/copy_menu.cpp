// SPDX-License-Identifier: MIT
/// The clipboard gets every form that a target may take.
#include "qt/copy_menu.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <memory>
#include <utility>

#include "picture/svg_painter.h"
#include "qt/picture_painter.h"
#include "qt/texts.h"

namespace mero::qt {
namespace {

constexpr double kDensity = 2;

class CopyMenu : public QObject {
  public:
    CopyMenu(QWidget& area, QString entry, std::function<CopiedRows()> rows)
        : QObject(&area), entry_(std::move(entry)), rows_(std::move(rows)) {
        area.installEventFilter(this);
        for (auto* field : area.findChildren<QLineEdit*>()) {
            field->installEventFilter(this);
        }
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::ContextMenu) {
            return QObject::eventFilter(watched, event);
        }
        auto* field = qobject_cast<QLineEdit*>(watched);
        const std::unique_ptr<QMenu> menu(field == nullptr ? new QMenu(qobject_cast<QWidget*>(watched))
                                                           : field->createStandardContextMenu());
        if (field != nullptr) {
            menu->addSeparator();
        }
        QObject::connect(menu->addAction(entry_), &QAction::triggered, this, [this] { copyRows(rows_()); });
        menu->exec(dynamic_cast<QContextMenuEvent&>(*event).globalPos());
        return true;
    }

  private:
    QString entry_;
    std::function<CopiedRows()> rows_;
};

picture::Sheet sheetOf(const QWidget& widget) {
    return {static_cast<double>(widget.width()), static_cast<double>(widget.height())};
}

}  // namespace

void copyRows(const CopiedRows& rows) {
    QString text;
    QString html = QStringLiteral("<table>");
    for (const auto& row : rows) {
        html += QLatin1String("<tr>");
        for (std::size_t i = 0; i < row.size(); ++i) {
            text += (i == 0 ? QString() : QStringLiteral("\t")) + row[i];
            html += QLatin1String("<td>") + row[i].toHtmlEscaped() + QLatin1String("</td>");
        }
        text += QLatin1Char('\n');
        html += QLatin1String("</tr>");
    }
    auto* data = new QMimeData;
    data->setText(text);
    data->setHtml(html + QLatin1String("</table>"));
    QGuiApplication::clipboard()->setMimeData(data);
}

void addCopyMenu(QWidget& area, const QString& entry, std::function<CopiedRows()> rows) {
    new CopyMenu(area, entry, std::move(rows));
}

void copyAsPicture(const QWidget& widget, const PictureSource& source) {
    QImage image(widget.size() * kDensity, QImage::Format_RGB32);
    image.setDevicePixelRatio(kDensity);
    image.fill(widget.palette().color(QPalette::Active, QPalette::Base));
    QPainter painter(&image);
    paintDrawing(painter, source(sheetOf(widget), textSizes(widget.font())), widget.palette(), widget.font());
    painter.end();
    QGuiApplication::clipboard()->setImage(image);
}

void copyAsSvg(const QWidget& widget, const PictureSource& source) {
    const picture::Sheet sheet = sheetOf(widget);
    const std::string document = picture::svgDocument(source(sheet, picture::svgTextSizes()), sheet);
    auto* data = new QMimeData;
    data->setData(QStringLiteral("image/svg+xml"), QByteArray::fromStdString(document));
    data->setText(shown(document));
    QGuiApplication::clipboard()->setMimeData(data);
}

}  // namespace mero::qt
