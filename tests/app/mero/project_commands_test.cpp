// SPDX-License-Identifier: MIT
/// The menus as a person uses them: by keys in the fields and by the entries.
#include "app/mero/project_commands.h"

#include <QAction>
#include <QClipboard>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTest>

#include "app/mero/main_window.h"
#include "support/temporary_folder.h"

namespace mero::app {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class Commands : public MainWindow {
  protected:
    Commands() : MainWindow(qt::FocusEvents::RunHandlers) {
        places = {folder.file("config/mero.json"), folder.file("recovery")};
    }
    void SetUp() override {
        MainWindow::SetUp();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    /// Opens a menu and returns what it shows, separators left out.
    QStringList entriesOf(int menu) {
        QMenu& shown = *bar().actions().at(menu)->menu();
        emit shown.aboutToShow();
        QStringList entries;
        for (const QAction* action : shown.actions()) {
            if (!action->isSeparator()) {
                entries += QString(action->text()).remove('&') + (action->isEnabled() ? "" : " (-)");
            }
        }
        emit shown.aboutToHide();
        QApplication::processEvents();
        return entries;
    }
    QMenuBar& bar() { return *window.findChild<QMenuBar*>(); }
    QAction& action(const char* name) { return *window.findChild<QAction*>(QLatin1String(name)); }
    void typeName(const QString& text) {
        auto& line = widget<QLineEdit>("txtProjName");
        line.setFocus();
        QTest::keyClicks(&line, text);
    }
    /// Waits until the title has followed.
    QString title() {
        QTest::qWait(400);
        return window.windowTitle();
    }

    test::TemporaryFolder folder;
};

TEST_F(Commands, StandInThreeMenus) {
    EXPECT_THAT(entriesOf(0), ElementsAre("Nový", "Otevřít…", "Naposledy otevřené (-)", "Uložit",
                                          "Uložit jako…", "Tisk… (-)", "Konec"));
    EXPECT_THAT(entriesOf(1), ElementsAre("Zpět (-)", "Znovu (-)", "Kopírovat výsledky (-)"));
    EXPECT_THAT(entriesOf(2), ElementsAre("Příručka\tF1", "O programu"));
}

TEST_F(Commands, HaveLettersThatNoTabAndNoPageHas) {
    std::map<QChar, QStringList> letters;
    const auto add = [&](const QString& caption) {
        const qsizetype mark = caption.indexOf('&');
        if (mark >= 0) {
            letters[caption[mark + 1].toLower()] += caption;
        }
    };
    for (const QAction* menu : bar().actions()) {
        add(menu->text());
    }
    auto& tabs = *window.findChild<QTabWidget*>();
    for (int tab = 0; tab < tabs.count(); ++tab) {
        add(tabs.tabText(tab));
    }
    for (const auto* label : window.findChildren<QLabel*>()) {
        if (label->buddy() != nullptr) {
            add(label->text());
        }
    }
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
        add(button->text());
    }
    EXPECT_GT(letters.size(), 12U);
    for (const auto& [letter, captions] : letters) {
        EXPECT_EQ(captions.size(), 1) << captions.join(", ").toStdString();
    }
}

TEST_F(Commands, UndoATextAsAWholeFromWithinTheField) {
    typeName("dum");
    QTest::keyClick(&window, Qt::Key_Tab);
    QTest::keyClicks(QApplication::focusWidget(), "Jana");
    EXPECT_EQ(entriesOf(1).first(), "Zpět: Řešitel projektu");
    auto& designer = widget<QLineEdit>("txtProjektant");
    QTest::keyClick(&designer, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(designer.text(), "");
    EXPECT_EQ(widget<QLineEdit>("txtProjName").text(), "dum");
    EXPECT_EQ(QApplication::focusWidget(), &designer) << "where it was undone";
    QTest::keyClick(&designer, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(widget<QLineEdit>("txtProjName").text(), "");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(widget<QLineEdit>("txtProjName").text(), "dum");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(designer.text(), "Jana");
    EXPECT_EQ(program.values().txtProjektant, "Jana");
}

TEST_F(Commands, UndoNumbersAndTextsOfSeveralLinesToo) {
    auto& level = widget<QLineEdit>("txtHPV");
    level.setFocus();
    QTest::keyClicks(&level, "2,5");
    auto& details = widget<QPlainTextEdit>("txtDetails");
    details.setFocus();
    QTest::keyClicks(&details, "ab");
    QTest::keyClick(&details, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(details.toPlainText(), "");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(level.text(), "");
    EXPECT_EQ(program.values().txtHPV, 0.0F);
}

TEST_F(Commands, LeadToTheTabOfWhatIsUndone) {
    typeName("dum");
    run("tab 1");
    run("click optSelType(0)");
    run("tab 0");
    EXPECT_EQ(entriesOf(1).first(), "Zpět: Decenralizované");
    QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(program.window().SSTab1.position(), forms::kTabDesign);
    QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(program.window().SSTab1.position(), forms::kTabInputs);
}

TEST_F(Commands, DoNothingWhileADialogIsOpen) {
    typeName("dum");
    run("click cmdEdit(1)");
    QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(&window, Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(widget<QLineEdit>("txtProjName").text(), "dum");
    EXPECT_TRUE(program.window().areaDialog.visible());
    EXPECT_FALSE(bar().isEnabled());
}

TEST_F(Commands, PrintAndCopyOnceATypeIsChosen) {
    run({"set txtSoucFiltrace 1e-4", "click cmdEdit(1)", "cell frmDialog.fgSoucPovrchOdtok 2 3",
         "set frmDialog.txtPlocha 1000", "key frmDialog.txtPlocha Enter", "click frmDialog.OKButton",
         "click cmdEdit(0)", "cell frmIntDialog.fgIntDeste 3 1", "set frmIntDialog.txtSChange 150",
         "cell frmIntDialog.fgIntDeste 3 2", "select frmIntDialog.cboSelPeriod 1", "click frmIntDialog.cmdOK",
         "tab 1", "click optSelType(0)", "select cboSelType 1"});
    EXPECT_TRUE(entriesOf(0).contains("Tisk…"));
    EXPECT_TRUE(entriesOf(1).contains("Kopírovat výsledky"));
    QTest::keyClick(&window, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    const QMimeData& copied = *QApplication::clipboard()->mimeData();
    EXPECT_THAT(copied.text().toStdString(), HasSubstr("Plocha potřebná pro vsakování\t"));
    EXPECT_THAT(copied.html().toStdString(), HasSubstr("<td>m²</td>"));
    trace.str("");
    QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier);
    EXPECT_THAT(trace.str(), HasSubstr("{\"preview\""));
    EXPECT_EQ(program.window().SSTab1.position(), forms::kTabResults);
}

TEST_F(Commands, SayInTheTitleWhichFileItIsAndWhetherItIsChanged) {
    const QString fixed = "MERO - Výpočet vsakovacích zařízení";
    EXPECT_EQ(title(), fixed);
    typeName("a");
    EXPECT_EQ(title(), fixed + " – bez názvu *");
    work->save(folder.file("dům.json"));
    typeName("b");
    EXPECT_EQ(title(), fixed + " – dům.json *");
    QTest::keyClick(&window, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(title(), fixed + " – dům.json");
    QTest::keyClick(&window, Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(title(), fixed);
    EXPECT_EQ(program.window().title(), fixed.toStdString()) << "the form's own";
}

TEST_F(Commands, OpenWhatTheySaved) {
    typeName("dum");
    work->save(folder.file("a.json"));
    QTest::keyClick(&window, Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(widget<QLineEdit>("txtProjName").text(), "");
    commands.files().open(qt::shown(folder.file("a.json")));
    EXPECT_EQ(widget<QLineEdit>("txtProjName").text(), "dum");
    EXPECT_THAT(commands.files().usedLast(), ElementsAre(folder.file("a.json")));
    EXPECT_EQ(entriesOf(1).first(), "Zpět: Otevření projektu");
    QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(widget<QLineEdit>("txtProjName").text(), "");
    EXPECT_EQ(title(), "MERO - Výpočet vsakovacích zařízení");
}

TEST_F(Commands, KeepTheWindowWhenAFileIsNoProject) {
    typeName("dum");
    folder.write("b.json", "nothing");
    commands.files().open(qt::shown(folder.file("b.json")));
    EXPECT_EQ(widget<QLineEdit>("txtProjName").text(), "dum");
    EXPECT_THAT(commands.files().usedLast(), testing::IsEmpty());
    EXPECT_EQ(title(), "MERO - Výpočet vsakovacích zařízení – bez názvu *");
}

TEST_F(Commands, KeepACopyOfWhatIsUnsavedAtTheEnd) {
    typeName("dum");
    window.close();
    commands.files().finish();
    RecoveryCopies next(places.recovery_folder);
    EXPECT_FALSE(work->project().recovery_copy.empty());
    EXPECT_THAT(next.takeLost(), testing::IsEmpty()) << "while the program lives";
}

TEST_F(Commands, KeepNoCopyOfWhatIsSaved) {
    typeName("dum");
    commands.files().finish();
    const std::string copy = work->project().recovery_copy;
    EXPECT_TRUE(std::filesystem::exists(copy));
    work->save(folder.file("a.json"));
    commands.files().finish();
    EXPECT_FALSE(std::filesystem::exists(copy));
}

TEST_F(Commands, OfferWhatAProgramBeforeHasLost) {
    {
        RecoveryCopies before(places.recovery_folder);
        typeName("dum");
        static_cast<void>(
            forms::saveProject(before.make("/home/jana/dům.json"), forms::stateOf(program), ""));
        QTest::keyClick(&window, Qt::Key_N, Qt::ControlModifier);
    }
    commands.files().offerLost();
    qt::NoticeBar& bar = *window.lastingNotice();
    ASSERT_TRUE(bar.isVisible());
    EXPECT_THAT(bar.text().toStdString(), testing::StartsWith("Neuložená práce: dům.json, "));
    bar.findChild<QPushButton*>()->click();
    EXPECT_FALSE(bar.isVisible());
    EXPECT_EQ(widget<QLineEdit>("txtProjName").text(), "dum");
    EXPECT_EQ(title(), "MERO - Výpočet vsakovacích zařízení – dům.json *");
}

}  // namespace
}  // namespace mero::app
