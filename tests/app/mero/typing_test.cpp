// SPDX-License-Identifier: MIT
/// A person types and pastes as is usual in Czech: what is typed is what is calculated.
#include <QClipboard>
#include <QPushButton>
#include <QTest>

#include "app/mero/main_window.h"
#include "qt/balloon.h"
#include "qt/grid_view.h"

namespace mero::app {
namespace {

using testing::ElementsAre;

class TypingPerson : public MainWindow {
  protected:
    TypingPerson() : MainWindow(qt::FocusEvents::RunHandlers) {}

    void SetUp() override {
        MainWindow::SetUp();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        qt::hideBalloon();
    }
    /// Types into a field of the window after selecting what is in it, and leaves it.
    void enter(std::string_view name, const char* text) {
        auto& line = widget<QLineEdit>(name);
        line.setFocus();
        line.selectAll();
        QTest::keyClicks(&line, text);
        QTest::keyClick(&line, Qt::Key_Tab);
    }
    static void paste(QWidget& at, const QString& text) {
        QApplication::clipboard()->setText(text);
        QTest::keySequence(&at, QKeySequence::Paste);
    }
    void open(int button) {
        auto& opener = widget<QPushButton>("cmdEdit(" + std::to_string(button) + ")");
        QTest::mouseClick(&opener, Qt::LeftButton);
    }
    void clickCell(const platform::Grid& grid, platform::GridCell cell) {
        auto& view = gridView(grid);
        view.reveal(cell);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.cellRect(cell).center());
    }
    qt::GridView& gridView(const platform::Grid& grid) {
        return dynamic_cast<qt::GridView&>(*kit.find(grid));
    }
    QWidget& field(const platform::Control& control) { return *kit.find(control); }
    /// An entry of a surface with the coefficient 0.90.
    void enterArea(const char* area) {
        clickCell(areas().fgSoucPovrchOdtok, {1, 3});
        QTest::keyClicks(&field(areas().txtPlocha), area);
        QTest::keyClick(&field(areas().txtPlocha), Qt::Key_Return);
    }
    forms::frmDialog& areas() { return program.window().areaDialog; }
    forms::frmIntDialog& rains() { return program.window().intDialog; }
    [[nodiscard]] const data::modPublicVariables& values() const { return program.values(); }
};

TEST_F(TypingPerson, TypesTheFiltrationCoefficientWithAComma) {
    enter("txtSoucFiltrace", "0,0001");
    EXPECT_EQ(values().txtSoucFiltrace, 0.0001F);
    EXPECT_EQ(widget<QLineEdit>("txtSoucFiltrace").text(), "1.0E-04");
}

TEST_F(TypingPerson, TypesTheSizeOfATrenchWithCommas) {
    run({"set txtSoucFiltrace 1e-4", "click cmdEdit(1)", "cell frmDialog.fgSoucPovrchOdtok 1 3",
         "set frmDialog.txtPlocha 1000", "click frmDialog.cmdZapsat", "click frmDialog.OKButton", "tab 1",
         "click optSelType(0)", "select cboSelType 4"});
    enter("txtSirkaRyhy(4)", "0,8");
    enter("txtVyskaRyhy(4)", "1,5");
    EXPECT_EQ(values().txtSirkaRyhy, 0.8F);
    EXPECT_EQ(values().txtVyskaRyhy, 1.5F);
}

TEST_F(TypingPerson, TypesAnAreaWithABlank) {
    open(1);
    enterArea("1 200");
    ASSERT_EQ(areas().fgZapisTab.dataRows(), 1);
    EXPECT_EQ(values().DilciPlocha(1), 1200.0F);
}

TEST_F(TypingPerson, TypesACommaInAnAreaCell) {
    open(1);
    enterArea("300");
    clickCell(areas().fgZapisTab, {1, 1});
    QTest::keyClicks(&field(areas().txtSChange), "1200,5");
    EXPECT_FALSE(program.ended());
    EXPECT_EQ(values().DilciPlocha(1), 1200.5F);
}

TEST_F(TypingPerson, TypesALetterOnAnAreaCellThatHasTheFocus) {
    open(1);
    enterArea("300");
    auto& view = gridView(areas().fgZapisTab);
    view.setFocus();
    view.setCurrentIndex(view.model()->index(0, 1));
    QTest::keyClicks(&view, "x");
    EXPECT_FALSE(program.ended());
    EXPECT_FALSE(areas().txtSChange.visible());
    EXPECT_EQ(values().DilciPlocha(1), 300.0F);
}

TEST_F(TypingPerson, TypesALetterOnARainCellThatHasTheFocus) {
    open(0);
    clickCell(rains().fgIntDeste, {1, 1});
    QTest::keyClicks(&field(rains().txtSChange), "434,3");
    QTest::keyClick(&field(rains().txtSChange), Qt::Key_Return);
    QTest::keyClicks(&gridView(rains().fgIntDeste), "B");
    EXPECT_FALSE(rains().txtSChange.visible());
    EXPECT_EQ(values().IntenzitaDeste[0], 434.3F);
}

TEST_F(TypingPerson, PastesThreeRainsIntoACell) {
    open(0);
    clickCell(rains().fgIntDeste, {1, 1});
    paste(field(rains().txtSChange), "434\r\n320\r\n253\r\n");
    EXPECT_EQ(values().IntenzitaDeste[0], 434.0F);
    EXPECT_EQ(values().IntenzitaDeste[1], 320.0F);
    EXPECT_EQ(values().IntenzitaDeste[2], 253.0F);
}

TEST_F(TypingPerson, PastesNineRainsWithTheirDurations) {
    open(0);
    auto& view = gridView(rains().fgIntDeste);
    view.setFocus();
    view.setCurrentIndex(view.model()->index(0, 0));
    paste(view,
          "5\t434,3\r\n10\t300\r\n15\t221,1\r\n20\t180\r\n30\t133\r\n40\t108\r\n60\t79,7\r\n90\t57,2\r\n"
          "120\t44,9\r\n");
    EXPECT_THAT(values().DobaTrvani, ElementsAre(5, 10, 15, 20, 30, 40, 60, 90, 120));
    EXPECT_THAT(values().IntenzitaDeste,
                ElementsAre(434.3F, 300, 221.1F, 180, 133, 108, 79.7F, 57.2F, 44.9F));
    EXPECT_EQ(qt::balloonText(), "");
}

TEST_F(TypingPerson, PastesAreasWithCoefficientAndName) {
    open(1);
    enterArea("1");
    enterArea("2");
    auto& view = gridView(areas().fgZapisTab);
    view.setFocus();
    view.setCurrentIndex(view.model()->index(0, 1));
    paste(view, "1 200,5\t0,9\tStřecha\n300\t0,05\tZahrada\n");
    EXPECT_EQ(values().DilciPlocha(1), 1200.5F);
    EXPECT_EQ(values().OdtokovySoucinitel(1), 0.9F);
    EXPECT_EQ(values().TypPovrchu(1), "Střecha");
    EXPECT_EQ(values().DilciPlocha(2), 300.0F);
    EXPECT_EQ(values().OdtokovySoucinitel(2), 0.05F);
    EXPECT_EQ(values().TypPovrchu(2), "Zahrada");
    // 1200.5 x 0.9 + 300 x 0.05
    EXPECT_FLOAT_EQ(values().RedukovanaPlocha, 1095.45F);
}

TEST_F(TypingPerson, PastesAreasIntoAnEmptyTable) {
    open(1);
    auto& area = field(areas().txtPlocha);
    area.setFocus();
    paste(area, "Plocha\tSoučinitel\tPovrch\n1 200,5\t0,9\tStřecha\n300 m²\t0,05\tZahrada\n0\t1\tnic\n");
    ASSERT_EQ(areas().fgZapisTab.dataRows(), 2);
    EXPECT_EQ(values().DilciPlocha(1), 1200.5F);
    EXPECT_EQ(values().TypPovrchu(2), "Zahrada");
    EXPECT_FLOAT_EQ(values().RedukovanaPlocha, 1095.45F);
    EXPECT_EQ(qt::balloonText(), "Řádek s nadpisy byl vynechán. Vynecháno: řádek 3 nelze zapsat.");
}

TEST_F(TypingPerson, AddsAreasBelowTheLastOne) {
    open(1);
    enterArea("100");
    auto& view = gridView(areas().fgZapisTab);
    view.setFocus();
    view.setCurrentIndex(view.model()->index(0, 1));
    paste(view, "10\t0,5\n20\t0,25\n");
    ASSERT_EQ(areas().fgZapisTab.dataRows(), 2);
    // 10 x 0.5 + 20 x 0.25
    EXPECT_EQ(values().RedukovanaPlocha, 10.0F);
}

TEST_F(TypingPerson, ADescriptionStaysFree) {
    open(1);
    enterArea("300");
    clickCell(areas().fgZapisTab, {1, 3});
    QTest::keyClicks(&field(areas().txtSChange), "Dvur, 1.200,5");
    EXPECT_EQ(values().TypPovrchu(1), "Dvur, 1.200,5");
}

TEST_F(TypingPerson, AProjectsNameStaysFree) {
    auto& name = widget<QLineEdit>("txtProjName");
    name.setFocus();
    QTest::keyClicks(&name, "Hala 1,5 a");
    EXPECT_EQ(program.window().txtProjName.text(), "Hala 1,5 a");
}

TEST_F(TypingPerson, WhatIsRefusedIsToldBesideTheField) {
    auto& kf = widget<QLineEdit>("txtSoucFiltrace");
    kf.setFocus();
    paste(kf, "2.10-5");
    EXPECT_EQ(kf.text(), "");
    EXPECT_EQ(qt::balloonText(), "Nevloženo: „2.10-5“ lze číst různě, mocninu deseti zapište jako 2e-5.");
    paste(kf, QString::fromUtf8("2×10⁻⁵ m/s"));
    EXPECT_EQ(values().txtSoucFiltrace, 2e-5F);
}

/// A field for each number of the table: no letter gets in by a key or by a paste.
TEST_F(TypingPerson, EveryNumberOfTheTableIsANumberField) {
    showAll();
    for (const design::InputInfo& input : design::inputs()) {
        const bool number =
            input.kind == design::InputKind::Number || input.kind == design::InputKind::WholeNumber;
        if (!number || std::string_view(input.box).empty() || input.input == design::Input::DesignDuration) {
            continue;
        }
        for (const data::FacilityType type : data::kFacilityTypes) {
            const auto* control = program.window().find(design::controlName(input.box, type));
            auto* line = control == nullptr ? nullptr : dynamic_cast<QLineEdit*>(kit.find(*control));
            if (line == nullptr || line->isReadOnly()) {
                continue;
            }
            line->setEnabled(true);
            line->setText("");
            QTest::keyClicks(line, "7x");
            EXPECT_EQ(line->text(), "7") << control->name();
            line->selectAll();
            paste(*line, "1.200,5");
            EXPECT_EQ(line->text(), "7") << control->name();
        }
    }
}

}  // namespace
}  // namespace mero::app
