// SPDX-License-Identifier: MIT
/// A script's actions on the whole main window: every control has its widget, and the widgets show its state.
#include "app/mero/qt_user.h"

#include <QTest>

#include "app/mero/main_window.h"

namespace mero::app {
namespace {

TEST_F(MainWindow, EveryControlHasAWidgetWithItsName) {
    showAll();
    for (const platform::Form* form : program.forms()) {
        for (const platform::Control* control : form->controls()) {
            const QWidget* widget = kit.find(*control);
            ASSERT_NE(widget, nullptr) << control->name();
            if (dynamic_cast<const platform::TabPage*>(control) == nullptr) {
                EXPECT_EQ(qt::stored(widget->objectName()), control->name());
            }
        }
    }
}

TEST_F(MainWindow, EveryFieldListAndGridHasASpokenName) {
    showAll();
    for (const platform::Form* form : program.forms()) {
        for (const platform::Control* control : form->controls()) {
            const bool needs_name = dynamic_cast<const platform::TextBox*>(control) != nullptr ||
                                    dynamic_cast<const platform::DropList*>(control) != nullptr ||
                                    dynamic_cast<const platform::Grid*>(control) != nullptr;
            if (needs_name && control->name() != "txtSChange") {
                EXPECT_FALSE(kit.find(*control)->accessibleName().isEmpty()) << control->name();
            }
        }
    }
}

TEST_F(MainWindow, CarriesTheCaptionsAsTheyHaveAlwaysStood) {
    showAll();
    EXPECT_THAT(captions(),
                testing::IsSupersetOf({"Vstupní infromace",
                                       "Název projektu:",
                                       "Řešitel projektu:",
                                       "Místo akce:",
                                       "Investor:",
                                       "Detilní popis:",
                                       "Typ nesoudržné horniny",
                                       "Hladina podzemní vody (pod povrchem)",
                                       "Celková odvodňovaná plocha",
                                       "Intenzita trvání deště",
                                       "l/(s.ha)",
                                       "Doba trvání deště",
                                       "Odtok do vsakovacího zařízení",
                                       "Součinitel filtrace (kf) podloží",
                                       "m²",
                                       "Zadat",
                                       "Vodítko k výběru systému vsakování",
                                       "Výběr typu vsakování",
                                       "Decenralizované",
                                       "Centralizované",
                                       "Součinitel bezpečnosti",
                                       "Typ půdy",
                                       "Typ půdy:",
                                       "Součinitel filtrace (kf) průlehu",
                                       "Součinitel filtrace náplně filtru",
                                       "Pórovitost výplně rýhy",
                                       "Šířka rýhy (střední)",
                                       "Výška rýhy",
                                       "Vnější průměr vsakovací trouby",
                                       "Vnitřní průměr vsakovací trouby",
                                       "Počet potrubí",
                                       "Škrcená odtoková intenzita",
                                       "Výstupní plocha",
                                       "cm²/m",
                                       "Výstupní rychlost",
                                       "Počet šachet:",
                                       "Minimální průsaková dráha",
                                       "Nezámrzná hloubka přitoku",
                                       "Vrstva písku/jemného štěrku",
                                       "Výška filtrační vrstvy",
                                       "Min. hloubka hladiny podzemní vody",
                                       "Specifická vsakovací intenzita",
                                       "l/s.ha",
                                       "Délka dna nádrže",
                                       "Šířka dna nádrže",
                                       "Hloubka nádrže",
                                       "Sklon svahů nádrže",
                                       "1 : n",
                                       "Plocha potřebná pro vsakování",
                                       "Vsakovací plocha šachty",
                                       "DN / Šířka",
                                       "Délka",
                                       "Tloušťka",
                                       "Typ šachty:",
                                       "kruhový",
                                       "pravoúhlý",
                                       "Předsazené usazování",
                                       "Výpočti",
                                       "Editovat",
                                       "Nutno ověřit dlouhodobou simulací!",
                                       "Hloubka průlehu (výška vzdutí)",
                                       "Celkový součinitel akumulace vsakovací rýhy (vč. příp. trouby)",
                                       "Uložit jako",
                                       "Stanice",
                                       "Periodicita",
                                       "Součinitel odtoku",
                                       "Dílčí plocha"}));
}

TEST_F(MainWindow, ResultsCannotBeTypedIntoByAPersonButAScriptCan) {
    auto& result = widget<QLineEdit>("txtOdtokDoVsak");
    EXPECT_TRUE(result.isReadOnly());
    QTest::keyClicks(&result, "7");
    EXPECT_EQ(program.window().txtOdtokDoVsak.text(), "");
    run("type txtOdtokDoVsak \"25.1\"");
    EXPECT_EQ(program.window().txtOdtokDoVsak.text(), "25.1");
    EXPECT_TRUE(result.isReadOnly());
    EXPECT_FALSE(widget<QLineEdit>("txtHPV").isReadOnly());
}

TEST_F(MainWindow, LaterTabsAreBuiltWhenTheyAreShown) {
    EXPECT_EQ(kit.find(program.window().cboSelType), nullptr);
    run("tab 1");
    EXPECT_NE(kit.find(program.window().cboSelType), nullptr);
    EXPECT_EQ(kit.find(program.window().wbShowResults), nullptr);
}

TEST_F(MainWindow, IsDisabledWhileADialogIsOpen) {
    run("click cmdEdit(1)");
    EXPECT_FALSE(widget<QLineEdit>("txtHPV").isEnabled());
    run("close frmDialog");
    EXPECT_TRUE(widget<QLineEdit>("txtHPV").isEnabled());
}

TEST_F(MainWindow, PickingTheSelectedTypeAgainRunsItsHandlerOnce) {
    run({"tab 1", "click optSelType(0)", "select cboSelType 3"});
    int clicks = 0;
    program.window().cboSelType.clicked = [&] { ++clicks; };
    run("select cboSelType 3");
    EXPECT_EQ(clicks, 1);
}

TEST_F(MainWindow, FocusAndLeaveRunTheirHandlersOnceAndOtherActionsNone) {
    int entered = 0;
    int left = 0;
    auto& box = program.window().txtSoucFiltrace;
    box.got_focus = [&] { ++entered; };
    box.lost_focus = [&] { ++left; };
    run({"type txtSoucFiltrace 1", "focus txtSoucFiltrace", "leave txtSoucFiltrace", "click cmdEdit(2)",
         "close frmCoefDialog", "focus txtHPV"});
    EXPECT_EQ(entered, 1);
    EXPECT_EQ(left, 1);
}

TEST_F(MainWindow, AShaftOfRoundShapeGreysTheLength) {
    run({"tab 1", "click optSelType(0)", "select cboSelType 5", "click optSelTypSachty(0)"});
    auto& length = widget<QLineEdit>("txtPrumerSachtyVnej");
    EXPECT_FALSE(length.isEnabled());
    EXPECT_EQ(length.palette().color(QPalette::Base), window.palette().color(QPalette::Button));
    run("click optSelTypSachty(1)");
    EXPECT_TRUE(length.isEnabled());
}

TEST_F(MainWindow, ItsCloseBoxEndsTheProgramAndHidesAllWindows) {
    run("close frmCalc");
    EXPECT_TRUE(program.ended());
    EXPECT_FALSE(window.isVisible());
    EXPECT_THAT(trace.str(), testing::HasSubstr("{\"ended\": true}"));
}

TEST_F(MainWindow, FitsASmallScreen) {
    EXPECT_LE(window.minimumSizeHint().width(), 680);
    EXPECT_LE(window.minimumSizeHint().height(), 480);
}

}  // namespace
}  // namespace mero::app
