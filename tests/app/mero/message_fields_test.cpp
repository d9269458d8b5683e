// SPDX-License-Identifier: MIT
/// After a message the focus is in the field that it is about, and no handler has run because of that.
#include <QLineEdit>
#include <QTest>

#include "app/mero/main_window.h"
#include "forms/calc/input_checks.h"
#include "forms/calc/layout/concerned_field.h"

namespace mero::app {
namespace {

class MessageFields : public MainWindow {
  protected:
    MessageFields() : MainWindow(qt::FocusEvents::RunHandlers) {}

    void SetUp() override {
        MainWindow::SetUp();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    /// Enters a site with which each type can be chosen.
    void enterSite() {
        run({"click cmdEdit(1)", "cell frmDialog.fgSoucPovrchOdtok 8 3", "type frmDialog.txtPlocha 800",
             "key frmDialog.txtPlocha Enter", "click frmDialog.OKButton", "type txtSoucFiltrace 1e-4"});
    }
    void choose(const char* group, const char* type) {
        run("tab 1");
        run(std::string("click optSelType(") + group + ")");
        run(std::string("select cboSelType ") + type);
    }
    [[nodiscard]] std::string concerned(std::string_view message) {
        const auto* control = forms::concernedControl(program.window(), message);
        return control == nullptr ? "" : control->name();
    }
    void close(const std::string& message) {
        window.returnToField(message);
        QApplication::processEvents();
    }
};

TEST_F(MessageFields, EachMissingInputOfATypeHasItsField) {
    enterSite();
    const data::modPublicVariables nothing = [] {
        data::modPublicVariables values;
        values.txtSklonSvahuNadrz = -1;
        return values;
    }();
    for (const int type : {forms::kSwaleTrench, forms::kTrench, forms::kShaft, forms::kTank}) {
        type == forms::kTank ? choose("1", "0") : choose("0", std::to_string(type).c_str());
        if (type == forms::kShaft) {
            run("click optSelTypPudy5(1)");
        }
        std::istringstream lines(forms::failedChecks(type, nothing, true));
        int count = 0;
        for (std::string line; std::getline(lines, line); ++count) {
            EXPECT_NE(concerned(line), "") << line;
        }
        EXPECT_GE(count, 3) << "type " << type;
    }
}

TEST_F(MessageFields, TheFirstMissingInputGetsTheFocusWithItsTextSelected) {
    enterSite();
    choose("0", "4");
    run({"set txtPorVyplne(4) 0.35", "set txtSirkaRyhy(4) 0", "set txtVyskaRyhy(4) 1.2"});
    trace.str("");
    close("Šířka rýhy je menší nebo rovna nule.\r\nPórovitost výplně je menší nebo rovna nule.\r\n");
    auto& line = widget<QLineEdit>("txtSirkaRyhy(4)");
    EXPECT_EQ(QApplication::focusWidget(), &line);
    EXPECT_EQ(line.selectedText(), "0");
    EXPECT_EQ(trace.str(), "");
}

TEST_F(MessageFields, NoHandlerRunsOnTheWay) {
    auto& line = widget<QLineEdit>("txtSoucFiltrace");
    line.setFocus();
    QTest::keyClicks(&line, "1.26e-4");
    // A user who leaves the field would get "1.3E-04".
    close("Intenzita návrhového deště není zadána");
    EXPECT_EQ(QApplication::focusWidget(), kit.find(program.window().cmdEdit[0]));
    EXPECT_EQ(line.text(), "1.26e-4");
}

TEST_F(MessageFields, AFieldThatCannotBeReachedDoesNotGetIt) {
    enterSite();
    choose("0", "5");
    run("click optSelTypPudy5(0)");
    auto& number = widget<QLineEdit>("txtMinPrusakDraha");
    number.setFocus();
    close("Výška pískové vrstvy je menší nebo rovna nule.");
    EXPECT_EQ(QApplication::focusWidget(), &number) << "disabled";
    close("Zadejte součinitel filtrace podloží");
    EXPECT_EQ(QApplication::focusWidget(), &number) << "on another tab";
    close("Potřebná propustnost filtru je dostačující.");
    EXPECT_EQ(QApplication::focusWidget(), &number) << "about no field";
}

TEST_F(MessageFields, InTheDrainedAreaDialog) {
    run("click cmdEdit(1)");
    EXPECT_EQ(concerned("Vyberte odtokový součinitel"), "txtSoucinitel");
    EXPECT_EQ(concerned("Zadejte dílčí plochu"), "txtPlocha");
    EXPECT_EQ(concerned("Zadejte součinitel filtrace podloží"), "") << "the main window is disabled";
}

TEST_F(MessageFields, VerdictsLeadToWhatMendsThem) {
    enterSite();
    choose("0", "5");
    EXPECT_EQ(concerned("Dno šachty je vzdáleno méně než 0.5 m od hladiny podzemní vody."),
              "txtVyskaFiltrVrstvy");
    choose("0", "4");
    run("click chkSelPretok(4)");
    EXPECT_EQ(concerned("Není splněna podmínka výstupního odtoku. ( 1 < 2 )"), "txtVystupPlocha(4)");
}

}  // namespace
}  // namespace mero::app
