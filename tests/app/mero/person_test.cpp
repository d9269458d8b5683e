// SPDX-License-Identifier: MIT
/// A person at the window: keys and clicks are sent to the window, focus comes from the window system.
#include <QComboBox>
#include <QFocusEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "app/mero/main_window.h"
#include "design/messages.h"
#include "qt/grid_view.h"

namespace mero::app {
namespace {

class Person : public MainWindow {
  protected:
    Person() : MainWindow(qt::FocusEvents::RunHandlers) {}

    void SetUp() override {
        MainWindow::SetUp();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    static void click(QWidget& widget) { QTest::mouseClick(&widget, Qt::LeftButton); }
    void clickCell(const platform::Grid& grid, platform::GridCell cell) {
        auto& view = dynamic_cast<qt::GridView&>(*kit.find(grid));
        view.reveal(cell);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.cellRect(cell).center());
    }
    /// Opens a dialog by its button.
    void open(int button, const platform::Form& dialog) {
        click(widget<QPushButton>("cmdEdit(" + std::to_string(button) + ")"));
        ASSERT_TRUE(kit.find(dialog)->isVisible());
    }
    /// The widget with the focus in a dialog's window.
    QWidget* focused(const platform::Form& dialog) { return kit.find(dialog)->focusWidget(); }
    forms::frmDialog& area() { return program.window().areaDialog; }
    forms::frmIntDialog& rainDialog() { return program.window().intDialog; }
};

TEST_F(Person, LeavingTheCoefficientByTheTabKeyWritesItAsItIsStored) {
    auto& line = widget<QLineEdit>("txtSoucFiltrace");
    line.setFocus();
    QTest::keyClicks(&line, "1e-5");
    QTest::keyClick(&line, Qt::Key_Tab);
    EXPECT_EQ(line.text(), "1.0E-05");
}

TEST_F(Person, LeavingTheCoefficientByChoosingAnotherTabDoesToo) {
    auto& line = widget<QLineEdit>("txtSoucFiltrace");
    line.setFocus();
    QTest::keyClicks(&line, "2e-4");
    program.window().SSTab1.userSelect(1);
    EXPECT_EQ(program.window().txtSoucFiltrace.text(), "2.0E-04");
}

TEST_F(Person, StartsInTheProjectsName) {
    EXPECT_EQ(QApplication::focusWidget(), kit.find(program.window().txtProjName));
}

TEST_F(Person, TheTabKeyReachesWhatIsToBeReadToo) {
    widget<QPlainTextEdit>("txtDetails").setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), kit.find(program.window().txtOdvodNepPlocha));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), kit.find(program.window().cmdEdit[1]));
}

TEST_F(Person, EntersAreasByTheEnterKey) {
    open(1, area());
    clickCell(area().fgSoucPovrchOdtok, {8, 3});
    EXPECT_EQ(focused(area()), kit.find(area().txtPlocha)) << "ready for the area";
    QTest::keyClicks(focused(area()), "800");
    QTest::keyClick(focused(area()), Qt::Key_Return);
    QTest::keyClick(focused(area()), Qt::Key_Return);
    EXPECT_EQ(area().fgZapisTab.dataRows(), 2);
    EXPECT_TRUE(kit.find(area().fgZapisTab)->isVisible());
}

TEST_F(Person, EditsACellAndClosesTheEditorByLeavingIt) {
    open(0, rainDialog());
    clickCell(rainDialog().fgIntDeste, {2, 1});
    auto* editor = kit.find(rainDialog().txtSChange);
    ASSERT_EQ(focused(rainDialog()), editor);
    QTest::keyClicks(editor, "333");
    EXPECT_EQ(rainDialog().fgIntDeste.rows()[2][1], "333.0");
    QFocusEvent leaving(QEvent::FocusOut, Qt::MouseFocusReason);
    QApplication::sendEvent(editor, &leaving);
    EXPECT_FALSE(editor->isVisible());
    EXPECT_EQ(program.values().IntenzitaDeste[1], 333.0F);
}

TEST_F(Person, EnterInTheEditorGivesTheFocusBackToTheGrid) {
    open(0, rainDialog());
    clickCell(rainDialog().fgIntDeste, {2, 0});
    QTest::keyClick(focused(rainDialog()), Qt::Key_Return);
    EXPECT_FALSE(rainDialog().txtSChange.visible());
    EXPECT_EQ(focused(rainDialog()), kit.find(rainDialog().fgIntDeste));
}

TEST_F(Person, IsToldWhatIsMissingOnEnteringTheTypeList) {
    program.window().SSTab1.userSelect(1);
    QTest::mouseClick(&widget<QRadioButton>("optSelType(0)"), Qt::LeftButton, {}, {8, 8});
    trace.str("");
    widget<QComboBox>("cboSelType").setFocus(Qt::TabFocusReason);
    EXPECT_THAT(trace.str(), testing::HasSubstr("Zadejte nepropustnou odvodňovanou plochu"));
}

TEST_F(Person, OpensAndClosesTheHelp) {
    open(0, rainDialog());
    EXPECT_FALSE(kit.find(rainDialog().txtHelp)->isVisible());
    click(*kit.find(rainDialog().cmdEdit));
    EXPECT_TRUE(kit.find(rainDialog().txtHelp)->isVisible());
    QApplication::processEvents();
    const int wide = kit.find(rainDialog())->width();
    click(*kit.find(rainDialog().cmdCloseHelp));
    QApplication::processEvents();
    EXPECT_FALSE(kit.find(rainDialog().txtHelp)->isVisible());
    EXPECT_LT(kit.find(rainDialog())->width(), wide);
}

TEST_F(Person, CannotTypeIntoTheHelp) {
    open(0, rainDialog());
    click(*kit.find(rainDialog().cmdEdit));
    const std::string help = rainDialog().txtHelp.text();
    QTest::keyClicks(kit.find(rainDialog().txtHelp), "x");
    EXPECT_EQ(rainDialog().txtHelp.text(), help);
}

TEST_F(Person, PicksASoilByTheKeyboardAlone) {
    open(2, program.window().coefDialog);
    auto* grid = kit.find(program.window().coefDialog.fgCoefProp);
    grid->setFocus();
    for (const int key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_Space}) {
        QTest::keyClick(grid, static_cast<Qt::Key>(key));
    }
    click(*kit.find(program.window().coefDialog.cmdOK));
    EXPECT_EQ(program.window().txtTypPudyPodlozi.text(), "Písčitý štěrk");
    EXPECT_EQ(program.window().txtSoucFiltrace.text(), "4.0E-04");
}

TEST_F(Person, FindsADialogsFirstControlEachTime) {
    open(0, rainDialog());
    QWidget* stations = kit.find(rainDialog().cboSelStanice);
    EXPECT_EQ(focused(rainDialog()), stations);
    clickCell(rainDialog().fgIntDeste, {2, 0});
    QTest::keyClick(focused(rainDialog()), Qt::Key_Return);
    ASSERT_NE(focused(rainDialog()), stations);
    kit.find(rainDialog())->close();
    open(0, rainDialog());
    EXPECT_EQ(focused(rainDialog()), stations);
    QTest::keyClicks(focused(rainDialog()), "Brno");
    EXPECT_EQ(program.values().DobaTrvani[1], 10.0F)
        << "typing chooses a station, no duration is overwritten";
    EXPECT_EQ(program.values().VybranaStanice.substr(0, 4), "Brno");
}

TEST_F(Person, MovesPastTypesThatCannotBeChosenYetWithoutAMessage) {
    program.window().SSTab1.userSelect(1);
    QTest::mouseClick(&widget<QRadioButton>("optSelType(0)"), Qt::LeftButton, {}, {8, 8});
    auto& types = widget<QComboBox>("cboSelType");
    types.setFocus(Qt::OtherFocusReason);
    trace.str("");
    for (int i = 0; i < 4; ++i) {
        QTest::keyClick(&types, Qt::Key_Down);
    }
    EXPECT_EQ(trace.str(), "");
    EXPECT_EQ(program.window().SelectedType, data::FacilityType::None);
    QTest::keyClick(&types, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(program.window().SelectedType, data::FacilityType::Trench);
}

TEST_F(Person, CannotChooseATypePastTheGuardWhenATabGivesTheListItsFocusBack) {
    run({"click cmdEdit(1)", "set frmDialog.txtSoucinitel 1", "set frmDialog.txtPlocha 1000",
         "click frmDialog.cmdZapsat", "click frmDialog.OKButton"});
    run({"click cmdEdit(0)", "select frmIntDialog.cboSelStanice 1", "select frmIntDialog.cboSelPeriod 1",
         "cell frmIntDialog.fgIntDeste 3 2", "click frmIntDialog.cmdOK"});
    // The box is closed at once, which leads to the field.
    auto& list = program.window().cboSelType;
    list.got_focus = [this, guard = list.got_focus] {
        guard();
        window.returnToField(design::box(design::VerdictId::FiltrationMissing));
    };
    program.window().SSTab1.userSelect(1);
    QTest::mouseClick(&widget<QRadioButton>("optSelType(0)"), Qt::LeftButton, {}, {8, 8});
    auto& types = widget<QComboBox>("cboSelType");
    types.setFocus(Qt::OtherFocusReason);
    trace.str("");
    QTest::keyClick(&types, Qt::Key_Down);
    QTest::keyClick(&types, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_THAT(trace.str(), testing::HasSubstr("Zadejte součinitel filtrace podloží"));
    EXPECT_EQ(program.window().SelectedType, data::FacilityType::None) << "nothing is calculated with kf = 0";
    EXPECT_EQ(types.currentIndex(), 0);
    EXPECT_EQ(window.focusWidget(), kit.find(program.window().txtSoucFiltrace));
}

TEST_F(Person, FindsTheFieldAgainAfterADialog) {
    auto& button = widget<QPushButton>("cmdEdit(2)");
    button.setFocus();
    open(2, program.window().coefDialog);
    kit.find(program.window().coefDialog)->close();
    EXPECT_EQ(window.focusWidget(), &button);
}

}  // namespace
}  // namespace mero::app
