// SPDX-License-Identifier: MIT
/// After a message the focus is in the field that it is about, and no handler has run because of that.
#include <QLineEdit>
#include <QTest>

#include "app/mero/main_window.h"
#include "design/messages.h"
#include "forms/calc/layout/concerned_field.h"

namespace mero::app {
namespace {

using design::VerdictId;

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
    [[nodiscard]] std::string concerned(VerdictId id) {
        const auto* control = forms::concernedControl(program.window(), id);
        return control == nullptr ? "" : control->name();
    }
    void close(const platform::Message& message) {
        window.returnToField(message);
        QApplication::processEvents();
    }
    void close(VerdictId id) { close(design::box(id)); }
};

/// The field that each message leads to on a panel where all of them can be reached.
struct Lead {
    VerdictId id;
    const char* field;
};

TEST_F(MessageFields, OnTheCombinedPanel) {
    enterSite();
    choose("0", "3");
    for (const Lead& lead :
         {Lead{VerdictId::SwaleFiltrationNotPositive, "txtSoucFiltrPruleh(3)"},
          Lead{VerdictId::SafetyFactorNotPositive, "txtSoucBezp(3)"},
          Lead{VerdictId::FillPorosityNotPositive, "txtPorVyplne(3)"},
          Lead{VerdictId::TrenchHeightNotPositive, "txtVyskaRyhy(3)"},
          Lead{VerdictId::TrenchWidthNotPositive, "txtSirkaRyhy(3)"},
          Lead{VerdictId::SwaleTrenchAreaInsufficient, "txtSirkaRyhy(3)"},
          Lead{VerdictId::InfiltrationAreaMissing, ""}, Lead{VerdictId::SwaleTrenchAreaSufficient, ""}}) {
        EXPECT_EQ(concerned(lead.id), lead.field) << design::info(lead.id).code;
    }
}

TEST_F(MessageFields, OnTheTrenchPanel) {
    enterSite();
    choose("0", "4");
    run("click chkSelPretok(4)");
    for (const Lead& lead :
         {Lead{VerdictId::TrenchHeightNotPositive, "txtVyskaRyhy(4)"},
          Lead{VerdictId::TrenchWidthNotPositive, "txtSirkaRyhy(4)"},
          Lead{VerdictId::FillPorosityNotPositive, "txtPorVyplne(4)"},
          Lead{VerdictId::DrainOutflowNotMet, "txtVystupPlocha(4)"}, Lead{VerdictId::DrainOutflowMet, ""}}) {
        EXPECT_EQ(concerned(lead.id), lead.field) << design::info(lead.id).code;
    }
}

TEST_F(MessageFields, OnTheShaftPanel) {
    enterSite();
    choose("0", "5");
    run({"click optSelTypPudy5(1)", "click optSelTypSachty(1)"});
    for (const Lead& lead : {Lead{VerdictId::SafetyFactorNotPositive, "txtSoucBezp(5)"},
                             Lead{VerdictId::InletDepthNotPositive, "txtNezamrzHlPritok"},
                             Lead{VerdictId::FilterLayerNotPositive, "txtVyskaFiltrVrstvy"},
                             Lead{VerdictId::InnerDiameterNotPositive, "txtPrumerSachtyVnit"},
                             Lead{VerdictId::OuterDiameterNotPositive, "txtPrumerSachtyVnej"},
                             Lead{VerdictId::SeepagePathNotPositive, "txtMinPrusakDraha"},
                             Lead{VerdictId::SandLayerNotPositive, "txtVyskaPiskVrstvy"},
                             Lead{VerdictId::ShaftOuterDiameterTooSmall, "txtPrumerSachtyVnej"},
                             Lead{VerdictId::ShaftGroundwaterTooHigh, "txtPrumerSachtyVnit"},
                             Lead{VerdictId::ShaftBottomTooClose, "txtVyskaFiltrVrstvy"},
                             Lead{VerdictId::ShaftFilterTooPermeable, "txtPrumerSachtyVnit"},
                             Lead{VerdictId::ShaftFilterSufficient, ""}}) {
        EXPECT_EQ(concerned(lead.id), lead.field) << design::info(lead.id).code;
    }
    run("click optSelTypSachty(0)");
    EXPECT_EQ(concerned(VerdictId::OuterDiameterNotPositive), "txtTloustkaSteny") << "the first is disabled";
}

TEST_F(MessageFields, OnTheTankPanel) {
    enterSite();
    choose("1", "0");
    for (const Lead& lead :
         {Lead{VerdictId::SpecificInfiltrationNotPositive, "txtSpecMeroIntenz"},
          Lead{VerdictId::BottomLengthNotPositive, "txtDelkaDnaNadrz"},
          Lead{VerdictId::BottomWidthNotPositive, "txtSirkaDnaNadrz"},
          Lead{VerdictId::TankDepthNotPositive, "txtHloubkaNadrz"},
          Lead{VerdictId::SideSlopeNegative, "txtSklonSvahuNadrz"},
          Lead{VerdictId::TankVolumeTooSmall, "txtDelkaDnaNadrz"},
          Lead{VerdictId::TankInfiltrationExceeded, "txtSpecMeroIntenz"},
          Lead{VerdictId::TankVolumeSufficient, ""}, Lead{VerdictId::TankInfiltrationProven, ""}}) {
        EXPECT_EQ(concerned(lead.id), lead.field) << design::info(lead.id).code;
    }
}

TEST_F(MessageFields, OnTheSwalePanel) {
    enterSite();
    choose("0", "2");
    for (const Lead& lead :
         {Lead{VerdictId::SafetyFactorNotPositive, "txtSoucBezp(2)"},
          Lead{VerdictId::SwaleFiltrationNotPositive, ""}, Lead{VerdictId::TrenchWidthNotPositive, ""}}) {
        EXPECT_EQ(concerned(lead.id), lead.field) << design::info(lead.id).code;
    }
}

/// A list of the catalogue takes the place of the sizes that are typed.
TEST_F(MessageFields, OnTheShaftPanelWithACatalogueShaft) {
    enterSite();
    choose("0", "5");
    run("click optSelTypSachty(0)");
    for (const Lead& lead : {Lead{VerdictId::InnerDiameterNotPositive, "txtPrumerSachtyVnit"},
                             Lead{VerdictId::ShaftGroundwaterTooHigh, "txtPrumerSachtyVnit"},
                             Lead{VerdictId::ShaftFilterTooPermeable, "txtPrumerSachtyVnit"},
                             Lead{VerdictId::ShaftOuterDiameterTooSmall, "txtTloustkaSteny"}}) {
        EXPECT_EQ(concerned(lead.id), lead.field) << design::info(lead.id).code;
    }
}

TEST_F(MessageFields, OnTheFirstTab) {
    for (const Lead& lead : {Lead{VerdictId::DrainedAreaMissing, "cmdEdit(1)"},
                             Lead{VerdictId::InfiltrationAreaMissing, "cmdEdit(1)"},
                             Lead{VerdictId::FiltrationMissing, "txtSoucFiltrace"},
                             Lead{VerdictId::DesignRainMissing, "cmdEdit(0)"},
                             Lead{VerdictId::ErrorInvalidCall, ""}, Lead{VerdictId::ErrorOverflow, ""},
                             Lead{VerdictId::ErrorSubscript, ""}, Lead{VerdictId::ErrorDivisionByZero, ""}}) {
        EXPECT_EQ(concerned(lead.id), lead.field) << design::info(lead.id).code;
    }
}

TEST_F(MessageFields, OnTheDesignTabWithoutAType) {
    run("tab 1");
    EXPECT_EQ(concerned(VerdictId::TechnologyNotChosen), "optSelType(0)") << "the list is disabled";
    enterSite();
    choose("0", "4");
    EXPECT_EQ(concerned(VerdictId::TechnologyNotChosen), "cboSelType");
}

TEST_F(MessageFields, InTheDialogs) {
    run("click cmdEdit(1)");
    EXPECT_EQ(concerned(VerdictId::RunoffCoefficientMissing), "txtSoucinitel");
    EXPECT_EQ(concerned(VerdictId::PartialAreaMissing), "txtPlocha");
    EXPECT_EQ(concerned(VerdictId::FiltrationMissing), "") << "the main window is disabled";
    run({"click frmDialog.CancelButton", "click cmdEdit(0)"});
    EXPECT_EQ(concerned(VerdictId::RainIntensitiesMissing), "cboSelStanice");
}

/// The text is for the reader only: whatever it says, the id leads to the field.
TEST_F(MessageFields, AChangedTextLeadsToTheSameField) {
    enterSite();
    choose("0", "4");
    for (const VerdictId id : {VerdictId::TrenchHeightNotPositive, VerdictId::TrenchWidthNotPositive,
                               VerdictId::FillPorosityNotPositive}) {
        platform::Message message = design::box(id);
        message.text = "Jiný text.";
        close(message);
        EXPECT_EQ(QApplication::focusWidget(), kit.find(*forms::concernedControl(program.window(), id)))
            << design::info(id).code;
    }
}

TEST_F(MessageFields, TheFirstMissingInputGetsTheFocusWithItsTextSelected) {
    enterSite();
    choose("0", "4");
    run({"set txtPorVyplne(4) 0.35", "set txtSirkaRyhy(4) 0", "set txtVyskaRyhy(4) 1.2"});
    trace.str("");
    close(VerdictId::TrenchWidthNotPositive);
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
    close(VerdictId::DesignRainMissing);
    EXPECT_EQ(QApplication::focusWidget(), kit.find(program.window().cmdEdit[0]));
    EXPECT_EQ(line.text(), "1.26e-4");
}

TEST_F(MessageFields, AFieldThatCannotBeReachedDoesNotGetIt) {
    enterSite();
    choose("0", "5");
    run("click optSelTypPudy5(0)");
    auto& number = widget<QLineEdit>("txtMinPrusakDraha");
    number.setFocus();
    close(VerdictId::SandLayerNotPositive);
    EXPECT_EQ(QApplication::focusWidget(), &number) << "disabled";
    close(VerdictId::DesignRainMissing);
    EXPECT_EQ(QApplication::focusWidget(), &number) << "on another tab";
    close(VerdictId::ShaftFilterSufficient);
    EXPECT_EQ(QApplication::focusWidget(), &number) << "about no field";
}

TEST_F(MessageFields, AGuardThatAsksForTheSiteLeadsToTheFirstTab) {
    run("tab 1");
    trace.str("");
    close(VerdictId::FiltrationMissing);
    EXPECT_EQ(program.window().SSTab1.position(), forms::kTabInputs);
    EXPECT_EQ(QApplication::focusWidget(), &widget<QLineEdit>("txtSoucFiltrace"));
    run("tab 1");
    close(VerdictId::DrainedAreaMissing);
    EXPECT_EQ(program.window().SSTab1.position(), forms::kTabInputs);
    EXPECT_EQ(QApplication::focusWidget(), kit.find(program.window().cmdEdit[1]));
    EXPECT_EQ(trace.str(), "") << "nothing runs on the way";
}

TEST_F(MessageFields, AnOpenDialogKeepsTheTab) {
    run({"tab 1", "tab 0", "click cmdEdit(2)"});
    program.window().SSTab1.setPosition(1);
    close(VerdictId::FiltrationMissing);
    EXPECT_EQ(program.window().SSTab1.position(), 1);
}

}  // namespace
}  // namespace mero::app
