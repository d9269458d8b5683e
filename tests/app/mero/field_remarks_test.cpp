// SPDX-License-Identifier: MIT
/// Remarks below the fields of the real window, and their tooltips.
#include <QTest>

#include "app/mero/main_window.h"
#include "qt/field_note.h"

namespace mero::app {
namespace {

using testing::HasSubstr;

class FieldRemarks : public MainWindow {
  protected:
    void giveSite() {
        run({"click cmdEdit(0)", "select frmIntDialog.cboSelStanice 4",
             "select frmIntDialog.cboSelPeriod \"0.2\"", "cell frmIntDialog.fgIntDeste 3 2",
             "click frmIntDialog.cmdOK", "click cmdEdit(1)", "set frmDialog.txtSoucinitel 1",
             "set frmDialog.txtPlocha 1000", "click frmDialog.cmdZapsat", "click frmDialog.OKButton",
             "set txtSoucFiltrace 1e-4", "tab 1", "click optSelType(0)"});
    }
    /// The remark that is on screen below a field, "" for none.
    std::string remark(const std::string& name) {
        QApplication::processEvents();
        const QLabel* note = qt::findFieldNote(*program.window().find(name), window);
        return note == nullptr || !note->isVisible() ? "" : qt::stored(note->text());
    }
};

TEST_F(FieldRemarks, FollowTheInputs) {
    EXPECT_EQ(remark("txtHPV"), "Nezadána, neposoudí se.");
    run("set txtHPV 4");
    EXPECT_EQ(remark("txtHPV"), "");
    giveSite();
    run("tab 0");
    EXPECT_EQ(remark("txtSelIntDeste"), "Brno, p = 0.2, návrhový déšť 15 min");
    run("set txtSoucFiltrace 0.5");
    EXPECT_THAT(remark("txtSoucFiltrace"), HasSubstr("⚠ Neobvyklá hodnota"));
    EXPECT_THAT(qt::stored(widget<QWidget>("txtSoucFiltrace").accessibleDescription()),
                HasSubstr("Neobvyklá hodnota"));
    run("set txtSoucFiltrace 5e-5");
    EXPECT_EQ(remark("txtSoucFiltrace"), "");
}

TEST_F(FieldRemarks, StandOnThePanels) {
    giveSite();
    run("select cboSelType 4");
    EXPECT_EQ(remark("txtPorVyplne(4)"), "⚠ Prázdné pole: počítá se s 0.35.");
    run("click chkSelPretok(4)");
    EXPECT_THAT(remark("chkSelPretok(4)"), HasSubstr("Panel není potvrzen"));
    run("click chkSelPretok(4)");
    EXPECT_EQ(remark("chkSelPretok(4)"), "");
}

TEST_F(FieldRemarks, ARunoffCoefficientAboveOneIsRemarkedInItsDialog) {
    run({"click cmdEdit(1)", "set frmDialog.txtSoucinitel 1"});
    const QWidget& dialog = *kit.find(program.window().areaDialog);
    const QLabel& note = *qt::findFieldNote(program.window().areaDialog.txtSoucinitel, dialog);
    EXPECT_FALSE(note.isVisible());
    run("set frmDialog.txtSoucinitel 9");
    EXPECT_TRUE(note.isVisible());
    EXPECT_EQ(qt::stored(note.text()), "⚠ Součinitel odtoku je větší než 1.");
    run({"set frmDialog.txtSoucinitel 1", "set frmDialog.txtSoucinitel 9e999"});
    EXPECT_TRUE(note.isVisible());
}

TEST_F(FieldRemarks, TheRemarkOfTheRunoffCoefficientMovesNothingInItsDialog) {
    run("click cmdEdit(1)");
    const auto& areas = program.window().areaDialog;
    const auto place = [this, &areas] {
        QApplication::processEvents();
        const QWidget& button = *kit.find(areas.OKButton);
        return QRect(button.mapTo(button.window(), QPoint()), button.size());
    };
    const QRect before = place();
    run("set frmDialog.txtSoucinitel 2");
    EXPECT_EQ(place(), before);
    EXPECT_TRUE(kit.find(areas)->rect().contains(place()));
}

TEST_F(FieldRemarks, WaitWhileAPersonTypes) {
    auto& line = widget<QLineEdit>("txtSoucFiltrace");
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    line.setFocus();
    QTest::keyClicks(&line, "1");
    EXPECT_EQ(remark("txtSoucFiltrace"), "") << "1 m/s is only the beginning of 1e-4";
    QTest::keyClicks(&line, "e-4");
    QTest::qWait(1200);
    EXPECT_EQ(remark("txtSoucFiltrace"), "");
    QTest::keyClick(&line, Qt::Key_Backspace);
    QTest::keyClick(&line, Qt::Key_Backspace);
    QTest::keyClick(&line, Qt::Key_Backspace);
    QTest::qWait(1200);
    EXPECT_THAT(remark("txtSoucFiltrace"), HasSubstr("Neobvyklá hodnota")) << "after a pause it is said";
}

TEST_F(FieldRemarks, TooltipsSayMeaningUnitUsualValuesAndDefault) {
    giveSite();
    run("select cboSelType 3");
    EXPECT_EQ(qt::stored(widget<QWidget>("txtPorVyplne(3)").toolTip()),
              "Podíl dutin ve výplni\nObvykle: 0.30 až 0.40\nVýchozí: 0.35");
    EXPECT_EQ(qt::stored(widget<QWidget>("txtSirkaRyhy(3)").toolTip()),
              "Střední šířka rýhy\nJednotka: m\nObvykle: 0.5 až 3\nVýchozí: prázdné");
    EXPECT_THAT(qt::stored(widget<QWidget>("optSelTypPudy3(1)").toolTip()), HasSubstr("pětina"));
}

}  // namespace
}  // namespace mero::app
