// SPDX-License-Identifier: MIT
/// The six panels stand on one grid, and the frames of the design tab are in line.
#include <QGroupBox>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>
#include <set>

#include "app/mero/main_window.h"

namespace mero::app {
namespace {

class PanelGrid : public MainWindow {
  protected:
    void SetUp() override {
        MainWindow::SetUp();
        run({"click cmdEdit(0)", "select frmIntDialog.cboSelStanice 4",
             "select frmIntDialog.cboSelPeriod \"0.2\"", "cell frmIntDialog.fgIntDeste 3 2",
             "click frmIntDialog.cmdOK", "click cmdEdit(1)", "set frmDialog.txtSoucinitel 1",
             "set frmDialog.txtPlocha 1000", "click frmDialog.cmdZapsat", "click frmDialog.OKButton",
             "set txtSoucFiltrace 1e-4", "tab 1", "click optSelType(0)"});
    }
    void choose(int type) {
        if (type == 6) {
            run("click optSelType(1)");
        } else {
            run("select cboSelType " + std::to_string(type));
        }
        QApplication::processEvents();
    }
    QRect onWindow(const QWidget& shown_widget) const {
        return {shown_widget.mapTo(&window, QPoint()), shown_widget.size()};
    }
    QRect place(const QString& title) const {
        for (const auto* box : window.findChildren<QGroupBox*>()) {
            if (box->isVisible() && box->title() == title) {
                return onWindow(*box);
            }
        }
        ADD_FAILURE() << qt::stored(title) << " is not shown";
        return {};
    }
    /// Left edges of the fields that are shown within a place.
    std::set<int> fieldEdges(const QRect& within) const {
        std::set<int> edges;
        for (const auto* line : window.findChildren<QLineEdit*>()) {
            if (line->isVisible() && within.contains(onWindow(*line))) {
                edges.insert(onWindow(*line).left());
            }
        }
        return edges;
    }
};

TEST_F(PanelGrid, IsTheSameForAllTypes) {
    window.resize(1280, 900);
    std::set<int> input_edges;
    std::set<int> result_edges;
    std::set<int> widths;
    for (int type = 1; type <= 6; ++type) {
        choose(type);
        const QRect inputs = place("Vstupy");
        input_edges.merge(fieldEdges(inputs));
        result_edges.merge(fieldEdges(place("Výsledky")));
        widths.insert(inputs.width());
    }
    EXPECT_EQ(input_edges.size(), 1U) << "inputs stand in one column";
    EXPECT_EQ(result_edges.size(), 1U) << "results stand in one column";
    EXPECT_EQ(widths.size(), 1U) << "results do not jump sideways";
}

TEST_F(PanelGrid, ThePipesFieldsStandInLineWithTheOthers) {
    window.resize(1280, 900);
    for (const int type : {3, 4}) {
        choose(type);
        run("click chkSelPretok(" + std::to_string(type) + ")");
        QApplication::processEvents();
        EXPECT_EQ(fieldEdges(place("Vstupy")).size(), 1U) << type;
    }
}

TEST_F(PanelGrid, TheFramesEndInLineInAVeryWideWindow) {
    window.resize(2560, 1200);
    choose(5);
    const int right = place("Výběr typu vsakování").right();
    EXPECT_EQ(place("Výsledky").right(), right);
    EXPECT_EQ(place("Řez a bilance dešťů").right(), right);
}

TEST_F(PanelGrid, NothingScrollsOnASmallScreen) {
    // A screen of 1024 x 768 less the frame of the window.
    window.resize(1020, 728);
    const auto scrolls = [this] {
        QApplication::processEvents();
        for (const auto* area : window.findChildren<QScrollArea*>()) {
            if (area->isVisible() && area->window() == &window &&
                (area->verticalScrollBar()->maximum() > 0 || area->horizontalScrollBar()->maximum() > 0)) {
                return true;
            }
        }
        return false;
    };
    for (int type = 1; type <= 6; ++type) {
        choose(type);
        if (type >= 3 && type <= 4) {
            run("click cmdCalcul(" + std::to_string(type) + ")");
        }
        EXPECT_FALSE(scrolls()) << "type " << type << " with its list of judgements and its pictures";
    }
    run("tab 0");
    EXPECT_FALSE(scrolls()) << "the first tab with its remarks";
}

TEST_F(PanelGrid, TheAreasDialogShowsAllSurfacesWhereTheScreenHasRoom) {
    run({"tab 0", "click cmdEdit(1)"});
    QApplication::processEvents();
    auto& surfaces = dynamic_cast<QTableView&>(*kit.find(program.window().areaDialog.fgSoucPovrchOdtok));
    ASSERT_EQ(surfaces.model()->rowCount(), 19);
    run({"cell frmDialog.fgSoucPovrchOdtok 8 3", "type frmDialog.txtPlocha 800",
         "key frmDialog.txtPlocha Enter"});
    QApplication::processEvents();
    EXPECT_EQ(surfaces.verticalScrollBar()->maximum(), 0) << "narrower than wanted, texts take more lines";
    surfaces.window()->resize(900, 1000);
    QApplication::processEvents();
    EXPECT_EQ(surfaces.verticalScrollBar()->maximum(), 0);
    const int enough = surfaces.height();
    surfaces.window()->resize(900, 1300);
    QApplication::processEvents();
    EXPECT_EQ(surfaces.height(), enough) << "more height goes to the entries";
    run("close frmDialog");
}

}  // namespace
}  // namespace mero::app
