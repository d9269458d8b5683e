// SPDX-License-Identifier: MIT
/// What the context menus put on the clipboard.
#include "qt/copy_menu.h"

#include <gmock/gmock.h>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QTimer>

#include "qt/bench_form.h"
#include "qt/picture_view.h"
#include "qt/texts.h"

namespace mero::qt {
namespace {

const QMimeData& clipboard() {
    return *QGuiApplication::clipboard()->mimeData();
}

/// Opens the context menu of the widget and chooses the entry. @return all entries
QStringList choose(QWidget& widget, const QString& entry) {
    QStringList entries;
    QTimer::singleShot(0, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (QAction* action : menu->actions()) {
            entries += action->text();
            if (action->text() == entry) {
                action->trigger();
            }
        }
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, {3, 3}, widget.mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(&widget, &event);
    return entries;
}

TEST(CopiedTable, IsTextWithTabsAndAnHtmlTable) {
    copyRows({{"Rýha <1>"}, {"Délka rýhy", "23.5", "m"}, {"Objem", "1 234.5", "m³"}});
    EXPECT_EQ(clipboard().text(), "Rýha <1>\nDélka rýhy\t23.5\tm\nObjem\t1 234.5\tm³\n");
    EXPECT_EQ(clipboard().html(),
              "<table><tr><td>Rýha &lt;1&gt;</td></tr><tr><td>Délka rýhy</td><td>23.5</td><td>m</td></tr>"
              "<tr><td>Objem</td><td>1 234.5</td><td>m³</td></tr></table>");
}

TEST(CopyMenu, IsOfferedByTheAreaAndBesideTheEntriesOfAField) {
    BenchWindow window;
    auto& area = window.put(*new QWidget);
    auto* field = new QLineEdit("23.5", &area);
    QString value = "23.5";
    addCopyMenu(area, "Kopírovat výsledky", [&value] { return CopiedRows{{"Délka", value}}; });
    EXPECT_EQ(choose(area, "Kopírovat výsledky"), QStringList("Kopírovat výsledky"));
    EXPECT_EQ(clipboard().text(), "Délka\t23.5\n");
    value = "24";
    EXPECT_GT(choose(*field, "Kopírovat výsledky").size(), 5) << "undo, cut, copy, ... stay";
    EXPECT_EQ(clipboard().text(), "Délka\t24\n") << "read when it is chosen";
}

TEST(CopiedPicture, IsAPictureOrAnSvgDocument) {
    BenchWindow window;
    auto& view = window.put(
        *new PictureView(window, "Řez", [](const picture::Sheet& sheet, const picture::TextSizes& sizes) {
            picture::Drawing drawing;
            drawing.texts.push_back({{0, 0, sheet.width, sizes.line_height}, "voda <1>"});
            return drawing;
        }));
    choose(view, "Kopírovat jako obrázek");
    const auto image = qvariant_cast<QImage>(clipboard().imageData());
    EXPECT_EQ(image.size(), view.size() * 2);
    EXPECT_EQ(image.pixelColor(image.width() - 1, image.height() - 1), view.palette().color(QPalette::Base));
    choose(view, "Kopírovat jako SVG");
    const QByteArray svg = clipboard().data("image/svg+xml");
    EXPECT_THAT(svg.toStdString(), testing::HasSubstr("<svg"));
    EXPECT_THAT(svg.toStdString(), testing::HasSubstr("voda &lt;1&gt;"));
    EXPECT_EQ(clipboard().text().toUtf8(), svg);
}

}  // namespace
}  // namespace mero::qt
