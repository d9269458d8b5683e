// SPDX-License-Identifier: MIT
/// The state of the results in the real window: stale ones are greyed and can be calculated anew where one
/// sees them, and a judgement leads to its field.
#include <QClipboard>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "app/mero/main_window.h"
#include "forms/calc/layout/stale_banner.h"
#include "forms/calc/layout/verdict_list.h"

namespace mero::app {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class JudgementPane : public MainWindow {
  protected:
    void SetUp() override {
        MainWindow::SetUp();
        window.resize(1024, 768);
        run({"click cmdEdit(0)", "select frmIntDialog.cboSelStanice 4",
             "select frmIntDialog.cboSelPeriod \"0.2\"", "cell frmIntDialog.fgIntDeste 3 2",
             "click frmIntDialog.cmdOK", "click cmdEdit(1)", "set frmDialog.txtSoucinitel 1",
             "set frmDialog.txtPlocha 1000", "click frmDialog.cmdZapsat", "click frmDialog.OKButton",
             "set txtSoucFiltrace 1e-4", "tab 1", "click optSelType(0)"});
    }
    void calculateTrench() {
        run({"select cboSelType 4", "set txtSirkaRyhy(4) 1", "set txtVyskaRyhy(4) 0.8",
             "click cmdCalcul(4)"});
    }
    /// The one of that name that is on screen, null when none is.
    template <typename Widget>
    Widget* shown(const char* name) {
        QApplication::processEvents();
        for (auto* each : window.findChildren<QWidget*>(QString::fromLatin1(name))) {
            if (each->isVisible()) {
                return dynamic_cast<Widget*>(each);
            }
        }
        return nullptr;
    }
    std::string banner() {
        const auto* label = shown<QLabel>("staleText");
        return label == nullptr ? "" : qt::stored(label->text());
    }
    bool greyed(const char* name) { return forms::isFaded(widget<QWidget>(name)); }
    std::vector<std::string> lines() {
        std::vector<std::string> texts;
        if (const auto* list = shown<QListWidget>("judgements")) {
            for (int i = 0; i < list->count(); ++i) {
                texts.push_back(qt::stored(list->item(i)->text()));
            }
        }
        return texts;
    }
    void clickLine(int row) {
        auto& list = *shown<QListWidget>("judgements");
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
        QApplication::processEvents();
    }
};

TEST_F(JudgementPane, StaleResultsAreGreyedUntilTheBannersButtonCalculates) {
    calculateTrench();
    EXPECT_EQ(banner(), "");
    EXPECT_FALSE(greyed("txtDelkaRyhy(4)"));
    const std::string before = program.window().txtDelkaRyhy[4].text();

    run("set txtVyskaRyhy(4) 0.9");
    EXPECT_EQ(banner(), "Vstupy se od výpočtu změnily.");
    EXPECT_TRUE(greyed("txtDelkaRyhy(4)"));
    EXPECT_FALSE(greyed("txtVyskaRyhy(4)")) << "an input";
    EXPECT_TRUE(forms::isFaded(*shown<QWidget>("picSection")->parentWidget())) << "the pictures";

    QTest::mouseClick(shown<QPushButton>("staleButton"), Qt::LeftButton);
    EXPECT_EQ(banner(), "");
    EXPECT_FALSE(greyed("txtDelkaRyhy(4)"));
    EXPECT_NE(program.window().txtDelkaRyhy[4].text(), before);
}

TEST_F(JudgementPane, ALiveTypeIsCalculatedAnewByChoosingItAgain) {
    run({"select cboSelType 2", "click optSelTypPudy2(1)"});
    EXPECT_EQ(banner(), "");
    run({"tab 0", "click cmdEdit(0)", "cell frmIntDialog.fgIntDeste 9 1", "set frmIntDialog.txtSChange 3000",
         "close frmIntDialog", "tab 1"});
    EXPECT_EQ(banner(), "Vstupy se od výpočtu změnily.");
    const std::string before = program.window().txtObjAkum[2].text();
    QTest::mouseClick(shown<QPushButton>("staleButton"), Qt::LeftButton);
    EXPECT_EQ(banner(), "");
    EXPECT_NE(program.window().txtObjAkum[2].text(), before);
    EXPECT_TRUE(program.window().optSelTypPudy2[1].selected()) << "the soil stays";
}

TEST_F(JudgementPane, TheReportSaysThatItsResultsAreStaleAndIsWrittenAnew) {
    calculateTrench();
    run("tab 3");
    EXPECT_EQ(banner(), "");
    run({"tab 1", "set txtVyskaRyhy(4) 0.9", "tab 3"});
    EXPECT_EQ(banner(), "Vstupy se od výpočtu změnily.");
    EXPECT_TRUE(greyed("wbShowResults"));
    QTest::mouseClick(shown<QPushButton>("staleButton"), Qt::LeftButton);
    EXPECT_EQ(banner(), "");
    EXPECT_EQ(program.window().SSTab1.position(), 3) << "the report is shown again";
    EXPECT_FALSE(greyed("wbShowResults"));
}

TEST_F(JudgementPane, TheReportOfATypeThatWasNotCalculatedSaysSo) {
    calculateTrench();
    run({"select cboSelType 3", "tab 3"});
    EXPECT_THAT(banner(), HasSubstr("není spočítán"));
    QTest::mouseClick(shown<QPushButton>("staleButton"), Qt::LeftButton);
    EXPECT_EQ(program.window().SSTab1.position(), 1) << "its inputs are refused there";
}

TEST_F(JudgementPane, JudgementsStayAndLeadToTheirFields) {
    run("select cboSelType 4");
    run("click cmdCalcul(4)");
    EXPECT_THAT(lines(), ElementsAre("✗ Výška rýhy je menší nebo rovna nule.",
                                     "✗ Šířka rýhy je menší nebo rovna nule.",
                                     "– Neposouzeno. Výpočet neproběhl celý, návrh není posouzen."));
    clickLine(1);
    EXPECT_EQ(window.focusWidget(), &widget<QWidget>("txtSirkaRyhy(4)"));
    auto& list = *shown<QListWidget>("judgements");
    list.setCurrentRow(0);
    QTest::keyClick(&list, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(window.focusWidget(), &widget<QWidget>("txtVyskaRyhy(4)"));
}

TEST_F(JudgementPane, AMissingGroundwaterLeadsToItsFieldOnTheFirstTab) {
    calculateTrench();
    const auto found = lines();
    ASSERT_FALSE(found.empty());
    ASSERT_THAT(found.back(), HasSubstr("Hladina podzemní vody: není zadána"));
    clickLine(static_cast<int>(found.size()) - 1);
    EXPECT_EQ(program.window().SSTab1.position(), 0);
    EXPECT_EQ(window.focusWidget(), &widget<QWidget>("txtHPV"));
}

TEST_F(JudgementPane, TheListIsCopiedWhole) {
    calculateTrench();
    auto& list = *shown<forms::VerdictList>("judgements");
    QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
    const std::string copied = qt::stored(QApplication::clipboard()->text());
    for (const std::string& line : lines()) {
        EXPECT_THAT(copied, HasSubstr(line + "\n"));
    }
}

TEST_F(JudgementPane, ALongListIsNotCutInANarrowWindow) {
    calculateTrench();
    window.resize(560, 420);
    QTest::qWait(50);
    const auto& list = *shown<QListWidget>("judgements");
    EXPECT_LE(list.visualItemRect(list.item(list.count() - 1)).bottom(), list.viewport()->height());
}

}  // namespace
}  // namespace mero::app
