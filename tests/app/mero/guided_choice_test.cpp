// SPDX-License-Identifier: MIT
/// The empty design tab says what to do first, and a click on the guide chooses a type as a person would.
#include <QLabel>
#include <QTest>

#include "app/mero/main_window.h"
#include "forms/calc/layout/selection_guide.h"

namespace mero::app {
namespace {

using data::FacilityType;
using testing::HasSubstr;
using testing::Not;

class Guide : public MainWindow {
  protected:
    Guide() : MainWindow(qt::FocusEvents::RunHandlers) {}

    [[nodiscard]] forms::frmCalc& form() { return program.window(); }
    void enterSite() {
        run({"click cmdEdit(1)", "cell frmDialog.fgSoucPovrchOdtok 8 3", "type frmDialog.txtPlocha 800",
             "key frmDialog.txtPlocha Enter", "click frmDialog.OKButton", "type txtSoucFiltrace 1e-4"});
        trace.str("");
    }
    /// Clicks in the chart at shares of its width and height from its lower left corner.
    void clickGuide(double x, double y) {
        auto& guide = dynamic_cast<QWidget&>(*window.findChild<QWidget*>("guide"));
        const double line = guide.fontMetrics().height();
        const QRectF chart = QRectF(guide.rect()).adjusted(2.9 * line, 0.7 * line, -0.9 * line, -4.9 * line);
        QTest::mouseClick(
            &guide, Qt::LeftButton, {},
            QPointF(chart.left() + x * chart.width(), chart.bottom() - y * chart.height()).toPoint());
    }
    [[nodiscard]] std::string steps() {
        QApplication::processEvents();
        auto* place = window.findChild<QWidget*>("firstSteps");
        return place == nullptr || place->isHidden() ? "" : qt::stored(place->findChild<QLabel*>()->text());
    }
};

TEST_F(Guide, AClickOnARegionChoosesItsType) {
    enterSite();
    struct Click {
        double x;
        double y;
        FacilityType type;
    };
    for (const Click& click :
         {Click{0.75, 0.68, FacilityType::Swale}, Click{0.6, 0.48, FacilityType::SwaleTrench},
          Click{0.7, 0.28, FacilityType::Trench}, Click{0.75, 0.1, FacilityType::Shaft},
          Click{0.2, 0.8, FacilityType::Tank}}) {
        run("tab 0");
        clickGuide(click.x, click.y);
        EXPECT_EQ(form().SelectedType, click.type);
        EXPECT_EQ(form().SSTab1.position(), forms::kTabDesign);
        EXPECT_TRUE(form().picResults[click.type].onScreen());
    }
    EXPECT_EQ(trace.str(), "") << "no message";
}

TEST_F(Guide, AClickOnTheChosenTypeKeepsItsResults) {
    enterSite();
    run({"tab 1", "click optSelType(0)", "select cboSelType 4", "set txtSirkaRyhy(4) 1"});
    form().txtDelkaRyhy[4].setText("12.3");
    run("tab 0");
    clickGuide(0.7, 0.28);
    EXPECT_EQ(form().SSTab1.position(), forms::kTabDesign);
    EXPECT_EQ(form().txtDelkaRyhy[4].text(), "12.3");
}

TEST_F(Guide, TellsWhatAGuardRefuses) {
    clickGuide(0.7, 0.28);
    EXPECT_THAT(trace.str(), HasSubstr("Zadejte nepropustnou odvodňovanou plochu"));
    EXPECT_EQ(form().SelectedType, FacilityType::None);
    run("tab 0");
    trace.str("");
    clickGuide(0.2, 0.8);
    EXPECT_THAT(trace.str(), HasSubstr("Zadejte nepropustnou odvodňovanou plochu"));
    EXPECT_FALSE(form().picResults[FacilityType::Tank].visible());
}

TEST_F(Guide, BetweenRegionsAndOnSeveralSystemsAClickDoesNothing) {
    enterSite();
    for (const auto& [x, y] : {std::pair{0.15, 0.3}, {0.49, 0.9}}) {
        clickGuide(x, y);
        EXPECT_EQ(form().SSTab1.position(), forms::kTabInputs) << x;
    }
}

TEST_F(Guide, TheEmptyTabSaysWhatIsMissingUntilATypeIsChosen) {
    run("tab 1");
    EXPECT_THAT(steps(),
                HasSubstr("Chybí: odvodňovaná plocha, intenzity deště, součinitel filtrace podloží."));
    run("tab 0");
    enterSite();
    run("tab 1");
    EXPECT_THAT(steps(), HasSubstr("Chybí: intenzity deště."));
    run({"click optSelType(0)", "select cboSelType 4"});
    EXPECT_EQ(steps(), "");
    run("select cboSelType 0");
    EXPECT_THAT(steps(), HasSubstr("Vyberte typ ze seznamu"));
}

}  // namespace
}  // namespace mero::app
