// SPDX-License-Identifier: MIT
/// The window's place, the designer's name, dropped files: offers that change no value by themselves.
#include <QCompleter>
#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QScreen>
#include <QTest>
#include <QUrl>

#include "app/mero/designer_hint.h"
#include "app/mero/main_window.h"
#include "app/mero/window_place.h"
#include "support/temporary_folder.h"

namespace mero::app {
namespace {

class Conveniences : public MainWindow {
  protected:
    Conveniences() : MainWindow(qt::FocusEvents::RunHandlers) {}

    /// Drags a file over the widget and drops it there; what ignores it leaves it to what it stands in.
    static void drop(QWidget& widget, const std::string& path) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(qt::shown(path))});
        data.setText(qt::shown(path));
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&widget, &enter);
        QDropEvent dropped({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&widget, &dropped);
        QApplication::processEvents();
    }

    test::TemporaryFolder folder;
};

TEST_F(Conveniences, TheWindowComesBackWhereItWas) {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    QWidget before;
    before.move(room.left() + 20, room.top() + 30);
    before.resize(400, 300);
    QWidget after;
    ASSERT_TRUE(takePlace(after, placeOf(before)));
    EXPECT_EQ(after.pos(), before.pos());
    EXPECT_EQ(after.size(), before.size());
    EXPECT_FALSE(after.windowState().testFlag(Qt::WindowMaximized));
}

TEST_F(Conveniences, APlaceOnNoScreenOfTodayIsNotTaken) {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    QWidget widget;
    EXPECT_FALSE(takePlace(widget, {room.right() + 10, room.top(), 400, 300, false}));
    EXPECT_FALSE(takePlace(widget, {room.right() - 100, room.top(), 400, 300, false})) << "most is off";
    EXPECT_FALSE(takePlace(widget, {room.left(), room.top() - 50, 400, 300, false})) << "no title to drag";
    EXPECT_TRUE(takePlace(widget, {room.left(), room.top(), 400, 300, true}));
    EXPECT_TRUE(widget.windowState().testFlag(Qt::WindowMaximized));
}

TEST_F(Conveniences, TheDesignerIsAnOfferAndNoValue) {
    auto& line = widget<QLineEdit>("txtProjektant");
    hintDesigner(kit, program.window().txtProjektant, "Ing. Jana Nováková");
    EXPECT_EQ(line.placeholderText(), "naposledy: Ing. Jana Nováková");
    EXPECT_EQ(line.text(), "");
    EXPECT_EQ(program.values().txtProjektant, "");
    EXPECT_FALSE(work->changed());
    emit line.completer()->activated("Ing. Jana Nováková");
    EXPECT_EQ(program.values().txtProjektant, "Ing. Jana Nováková");
    EXPECT_EQ(line.text(), "Ing. Jana Nováková");
}

TEST_F(Conveniences, AFileDroppedOnTheWindowIsOpened) {
    run("set txtProjName dum");
    work->save(folder.file("a.json"));
    run("set txtProjName jiny");
    auto& line = widget<QLineEdit>("txtProjName");
    drop(window, folder.file("a.json"));
    EXPECT_EQ(line.text(), "dum");
    run("set txtProjName jiny");
    drop(line, folder.file("a.json"));
    EXPECT_EQ(line.text(), "dum") << "a field takes no file as its text";
}

TEST_F(Conveniences, AFileDroppedBehindADialogIsNotOpened) {
    run("set txtProjName dum");
    work->save(folder.file("a.json"));
    run({"set txtProjName jiny", "click cmdEdit(2)"});
    drop(window, folder.file("a.json"));
    EXPECT_EQ(program.values().txtProjName, "jiny");
}

}  // namespace
}  // namespace mero::app
