// SPDX-License-Identifier: MIT
/// The real desk: what its boxes say, and that a script is never kept waiting.
#include "app/mero/qt_desk.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

namespace mero::app {
namespace {

using platform::Message;
using platform::MessageIcon;

std::string plain(std::string_view bytes) {
    return std::string(bytes);
}

/// What a box showed before it was closed.
struct Seen {
    QString text;
    QString title;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    int boxes = 0;
};

/// Closes the next box as a person would and tells what it showed.
void closeNextBox(Seen& seen) {
    QTimer::singleShot(0, [&seen] {
        auto* box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        seen = {box->text(), box->windowTitle(), box->icon(), seen.boxes + 1};
        box->accept();
    });
}

TEST(RealDesk, ShowsIconTextAndTitle) {
    QtDesk desk(Sitter::Person, plain);
    Seen seen;
    closeNextBox(seen);
    desk.showMessage({"Vyberte odtokový součinitel", MessageIcon::Exclamation, "Chyba"});
    EXPECT_EQ(seen.text, "Vyberte odtokový součinitel");
    EXPECT_EQ(seen.title, "Chyba");
    EXPECT_EQ(seen.icon, QMessageBox::Warning);
}

TEST(RealDesk, WithoutATitleTheApplicationsShows) {
    QtDesk desk(Sitter::Person, plain);
    Seen seen;
    closeNextBox(seen);
    desk.showMessage({"a < b\r\nc\r\n", MessageIcon::Critical});
    EXPECT_EQ(seen.title, "MERO");
    EXPECT_EQ(seen.text, "a < b\nc");
    EXPECT_EQ(seen.icon, QMessageBox::Critical);
}

TEST(RealDesk, ReportsErrorsWithNumberAndDescription) {
    QtDesk desk(Sitter::Person, plain);
    Seen seen;
    closeNextBox(seen);
    desk.reportError(RuntimeError(ErrorNumber::TypeMismatch));
    EXPECT_EQ(seen.text, "Chyba za běhu programu č. 13: Text není číslo.");
    EXPECT_EQ(seen.icon, QMessageBox::Critical);
    closeNextBox(seen);
    desk.reportError(RuntimeError(53, "Soubor nebyl nalezen", RuntimeError::Effect::EndsProgram));
    EXPECT_TRUE(seen.text.endsWith("Program bude ukončen."));
    EXPECT_EQ(seen.boxes, 2);
}

TEST(RealDesk, AnswersAScriptAtOnce) {
    QtDesk desk(Sitter::Script, plain);
    desk.showMessage({"Zadejte dílčí plochu", MessageIcon::Exclamation, "Chyba"});
    desk.openAddress("https://www.chmi.cz/");
    desk.openPrintPreview("/nonexistent");
    EXPECT_FALSE(desk.askSavePath("/tmp/x").has_value());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace
}  // namespace mero::app
