// SPDX-License-Identifier: MIT
/// F1 opens the manual at the field: every input of the tables has its row there.
#include "forms/calc/layout/manual_place.h"

#include <QTest>
#include <QTextBlock>

#include "app/mero/main_window.h"
#include "design/input.h"
#include "design/text_input.h"
#include "qt/manual_window.h"

namespace mero::app {
namespace {

using data::FacilityType;

class Manual : public MainWindow {
  protected:
    Manual() : MainWindow(qt::FocusEvents::RunHandlers) {}

    [[nodiscard]] forms::frmCalc& form() { return program.window(); }
    [[nodiscard]] qt::ManualPlace placeOf(const std::string& control) {
        return forms::manualPlace(form(), form(), control);
    }
    /// The control has a row of its own in the chapter.
    void expectRow(const std::string& control, const char* chapter) {
        const qt::ManualPlace place = placeOf(control);
        EXPECT_EQ(place.chapter, chapter) << control;
        EXPECT_FALSE(place.row.isEmpty()) << control;
        EXPECT_TRUE(manual.has(place)) << control << ": " << qt::stored(place.row);
    }

    qt::ManualWindow manual{":/manual", {}};
};

TEST_F(Manual, HasARowForEachFieldOfTheFirstTab) {
    for (const design::TextInputInfo& row : design::textInputs()) {
        expectRow(row.box, "4.1");
    }
    expectRow("txtHPV", "4.1");
    expectRow("txtSoucFiltrace", "4.1");
}

TEST_F(Manual, HasARowForEachNumberOfEachPanel) {
    form().SSTab1.setPosition(forms::kTabDesign);
    for (const FacilityType type : data::kFacilityTypes) {
        form().SelectedType = type;
        for (const design::PanelInput& row : design::panelInputs(type)) {
            const std::string control = design::controlName(info(row.input).box, type);
            if (type != FacilityType::Surface && !control.empty()) {
                expectRow(control, ("6." + std::to_string(static_cast<int>(type) - 1)).c_str());
            }
        }
        EXPECT_TRUE(manual.has(placeOf("cboSelType"))) << static_cast<int>(type);
    }
}

TEST_F(Manual, HasTheDialogsAndTheOtherTabs) {
    for (const platform::Form* dialog : {static_cast<const platform::Form*>(&form().intDialog),
                                         static_cast<const platform::Form*>(&form().areaDialog),
                                         static_cast<const platform::Form*>(&form().coefDialog)}) {
        EXPECT_TRUE(manual.has(forms::manualPlace(form(), *dialog, "txtSChange"))) << dialog->name();
    }
    EXPECT_TRUE(manual.has(placeOf("")));
    form().SelectedType = FacilityType::Surface;
    for (const int tab : {forms::kTabTechnology, forms::kTabResults}) {
        form().SSTab1.setPosition(tab);
        EXPECT_EQ(form().SSTab1.position(), tab);
        EXPECT_TRUE(manual.has(placeOf("")));
    }
    EXPECT_FALSE(manual.has({"4.1", "Sklon svahů nádrže"})) << "a row of another chapter";
    EXPECT_FALSE(manual.has({"99"}));
}

TEST_F(Manual, OpensAtTheFieldWithTheFocus) {
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    auto& line = widget<QLineEdit>("txtHPV");
    line.setFocus();
    QTest::keyClick(&line, Qt::Key_F1);
    QWidget* shown = nullptr;
    for (QWidget* each : QApplication::topLevelWidgets()) {
        if (each->objectName() == "manual" && each->isVisible()) {
            shown = each;
        }
    }
    ASSERT_NE(shown, nullptr);
    auto* text = shown->findChild<QTextBrowser*>();
    EXPECT_EQ(text->textCursor().block().text(), "Hladina podzemní vody (pod povrchem)");
    EXPECT_TRUE(text->rect().contains(text->cursorRect()));
    QTest::keyClick(shown, Qt::Key_Escape);
    EXPECT_FALSE(shown->isVisible());
}

}  // namespace
}  // namespace mero::app
