// SPDX-License-Identifier: MIT
/// The real desk: the content of its boxes, and that it never blocks a script.
#include "app/mero/qt_desk.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <csignal>
#include <filesystem>

#include "qt/balloon.h"
#include "qt/bench_form.h"
#include "qt/text_fields.h"
#include "support/message_box.h"
#include "support/temporary_folder.h"

namespace mero::app {
namespace {

using mero::test::critical;
using mero::test::exclamation;
using mero::test::messageOf;

std::string plain(std::string_view bytes) {
    return std::string(bytes);
}

/// Content of a box before it was closed.
struct Seen {
    QString text;
    QString title;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    int boxes = 0;
    Qt::TextFormat format = Qt::AutoText;
};

/// Closes the next box like a person and stores its content in `seen`.
void closeNextBox(Seen& seen) {
    QTimer::singleShot(0, [&seen] {
        auto* box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        seen = {box->text(), box->windowTitle(), box->icon(), seen.boxes + 1, box->textFormat()};
        box->accept();
    });
}

TEST(RealDesk, ShowsIconTextAndTitle) {
    QtDesk desk(Sitter::Person, plain);
    Seen seen;
    closeNextBox(seen);
    desk.showMessage(messageOf(exclamation("Vyberte odtokový součinitel", "Chyba")));
    EXPECT_EQ(seen.text, "Vyberte odtokový součinitel");
    EXPECT_EQ(seen.title, "Chyba");
    EXPECT_EQ(seen.icon, QMessageBox::Warning);
}

TEST(RealDesk, WithoutATitleTheApplicationsShows) {
    QtDesk desk(Sitter::Person, plain);
    Seen seen;
    closeNextBox(seen);
    desk.showMessage(messageOf(critical("a < b\r\nc\r\n")));
    EXPECT_EQ(seen.title, "MERO");
    EXPECT_EQ(seen.text, "a < b\nc");
    EXPECT_EQ(seen.icon, QMessageBox::Critical);
}

// A path or a project name in the text may hold mark-up.
TEST(RealDesk, ShowsMarkUpAsItIs) {
    const char* text = "Zprávu se nepodařilo uložit do souboru /x/<b>hala</b> &amp; <img src=x>.html.";
    QtDesk desk(Sitter::Person, plain);
    Seen seen;
    closeNextBox(seen);
    desk.showMessage(messageOf(critical(text)));
    EXPECT_EQ(seen.text, text);
    EXPECT_EQ(seen.format, Qt::PlainText);
    closeNextBox(seen);
    desk.reportError(RuntimeError(53, "Soubor <b>x</b> nebyl nalezen"));
    EXPECT_EQ(seen.boxes, 2);
    EXPECT_EQ(seen.format, Qt::PlainText);
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

/// A search path with only an opener of addresses, or without one.
class OnlyOpener {
  public:
    /// @param shell_script the opener; empty: no opener
    explicit OnlyOpener(const std::string& shell_script) : path_before_(qgetenv("PATH")) {
        if (!shell_script.empty()) {
            folder_.write("xdg-open", "#!/bin/sh\n" + shell_script + "\n");
            std::filesystem::permissions(folder_.file("xdg-open"), std::filesystem::perms(0755));
        }
        qputenv("PATH", QByteArray::fromStdString(folder_.path()));
    }
    ~OnlyOpener() { qputenv("PATH", path_before_); }
    OnlyOpener(const OnlyOpener&) = delete;
    OnlyOpener& operator=(const OnlyOpener&) = delete;
    OnlyOpener(OnlyOpener&&) = delete;
    OnlyOpener& operator=(OnlyOpener&&) = delete;

    [[nodiscard]] const test::TemporaryFolder& folder() const { return folder_; }

  private:
    QByteArray path_before_;
    test::TemporaryFolder folder_;
};

/// Opens an address and waits for a box. @return its text, empty when none appeared in time
QString boxAfterOpening(int most_ms) {
    QtDesk desk(Sitter::Person, plain);
    QString text;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&text] {
        if (auto* box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            text = box->text();
            box->accept();
        }
    });
    watch.start(5);
    desk.openAddress("https://www.chmi.cz/");
    static_cast<void>(QTest::qWaitFor([&text] { return !text.isEmpty(); }, most_ms));
    return text;
}

constexpr int kLongMs = 20000;
constexpr const char* kNotOpened = "Adresu https://www.chmi.cz/ se nepodařilo otevřít.";

TEST(RealDesk, TellsThatThereIsNoBrowser) {
    const OnlyOpener none("");
    EXPECT_EQ(boxAfterOpening(kLongMs), kNotOpened);
}

TEST(RealDesk, TellsThatTheOpenerFoundNoBrowser) {
    const OnlyOpener failing("exit 3");
    EXPECT_EQ(boxAfterOpening(kLongMs), kNotOpened);
}

TEST(RealDesk, TellsThatTheOpenerCrashedOrIsNoProgram) {
    const OnlyOpener crashing("kill -SEGV $$");
    EXPECT_EQ(boxAfterOpening(kLongMs), kNotOpened);
    const OnlyOpener unusable("");
    unusable.folder().write("xdg-open", "#!/nonexistent\n");
    std::filesystem::permissions(unusable.folder().file("xdg-open"), std::filesystem::perms(0755));
    EXPECT_EQ(boxAfterOpening(kLongMs), kNotOpened);
}

TEST(RealDesk, GivesTheAddressToTheOpenerAndSaysNothing) {
    const OnlyOpener opener(R"(printf '%s' "$*" >"${0%/*}/given.part" && : >"${0%/*}/given")");
    EXPECT_EQ(boxAfterOpening(1000), "");
    EXPECT_TRUE(opener.folder().has("given"));
    EXPECT_EQ(opener.folder().read("given.part"), "https://www.chmi.cz/");
}

TEST(RealDesk, DoesNotWaitForABrowserThatRunsOn) {
    const OnlyOpener opener(R"(echo $$ >"${0%/*}/pid"; read line <>"${0%/*}/fifo")");
    ASSERT_EQ(mkfifo(opener.folder().file("fifo").c_str(), 0600), 0);
    EXPECT_EQ(boxAfterOpening(500), "");
    // The browser outlives the desk.
    const int browser = std::stoi(opener.folder().read("pid"));
    EXPECT_EQ(kill(browser, 0), 0);
    kill(browser, SIGKILL);
}

/// A field whose keystrokes make the desk speak.
class TypedMessages : public testing::Test {
  protected:
    qt::BenchForm bench;
    platform::TextBox box{bench.form, "txtSoucBezp"};
    qt::BenchWindow window;
    QLineEdit& field = window.put(qt::makeLineEdit(bench.kit, box, window));
    QtDesk desk{Sitter::Person, plain};
    Seen seen;

    void SetUp() override { tellBesideFields(desk, bench.kit.typing()); }
};

TEST_F(TypedMessages, AreBalloonsUntilTheFieldIsLeft) {
    box.changed = [this] { desk.reportError(RuntimeError(ErrorNumber::DivisionByZero)); };
    QTest::keyClicks(&field, "0.5");
    EXPECT_EQ(qt::balloonText(), "Chyba za běhu programu č. 11: Dělení nulou.");
    closeNextBox(seen);
    bench.kit.enter([] {});
    EXPECT_EQ(seen.boxes, 1) << "one box for three keys";
    EXPECT_EQ(seen.text, "Chyba za běhu programu č. 11: Dělení nulou.");
}

TEST_F(TypedMessages, ThatEndTheProgramAreBoxesAtOnce) {
    box.changed = [this] {
        desk.reportError(RuntimeError(53, "Soubor nebyl nalezen", RuntimeError::Effect::EndsProgram));
    };
    closeNextBox(seen);
    QTest::keyClicks(&field, "1");
    EXPECT_EQ(seen.boxes, 1);
    EXPECT_EQ(qt::balloonText(), "");
}

TEST(RealDesk, AnswersAScriptAtOnce) {
    QtDesk desk(Sitter::Script, plain);
    desk.showMessage(messageOf(exclamation("Zadejte dílčí plochu", "Chyba")));
    desk.openAddress("https://www.chmi.cz/");
    desk.openPrintPreview("/nonexistent");
    EXPECT_FALSE(desk.askSavePath("/tmp/x").has_value());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace
}  // namespace mero::app
