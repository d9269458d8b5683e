// SPDX-License-Identifier: MIT
/// What is copied of a panel is what it shows.
#include "forms/calc/layout/result_rows.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>
#include <QTimer>

#include "app/mero/main_window.h"

namespace mero::app {
namespace {

class CopiedResults : public MainWindow {
  protected:
    void showTrench() {
        run({"click cmdEdit(1)", "cell frmDialog.fgSoucPovrchOdtok 8 3", "type frmDialog.txtPlocha 800",
             "key frmDialog.txtPlocha Enter", "click frmDialog.OKButton", "type txtSoucFiltrace 1e-4",
             "tab 1", "click optSelType(0)", "select cboSelType 4"});
        program.window().txtDelkaRyhy[4].setText("23.5");
        program.window().txtObjAkum[4].setText("1 234.5");
    }
};

TEST_F(CopiedResults, AreTheBoxesWithTheirCaptionsAndUnits) {
    showTrench();
    const qt::CopiedRows rows = forms::resultRows(program.window(), data::FacilityType::Trench);
    ASSERT_EQ(rows.size(), 5U);
    EXPECT_EQ(rows[0], std::vector<QString>{"Vsakování rýhové a kombinace rýhy a drénu"});
    EXPECT_EQ(rows[2], (std::vector<QString>{"Délka vsakovací rýhy", "23.5", "m"}));
    EXPECT_EQ(rows[4], (std::vector<QString>{"Objem akumulace", "1 234.5", "m³"}));
}

TEST_F(CopiedResults, ComeFromTheMenuOfAResultsBox) {
    showTrench();
    auto& box = widget<QLineEdit>("txtDelkaRyhy(4)");
    QTimer::singleShot(0, [] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        menu->actions().constLast()->trigger();
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, {3, 3}, box.mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(&box, &event);
    EXPECT_TRUE(QGuiApplication::clipboard()->text().contains("Délka vsakovací rýhy\t23.5\tm\n"));
}

}  // namespace
}  // namespace mero::app
