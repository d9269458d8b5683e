// SPDX-License-Identifier: MIT
// The pictures in the real window: one pair on each panel, updated by every change, never covering a field.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>

#include "app/mero/main_window.h"
#include "qt/picture_view.h"

namespace mero::app {
namespace {

using testing::HasSubstr;

class PicturePaneTest : public MainWindow {
  protected:
    void SetUp() override {
        MainWindow::SetUp();
        window.resize(1024, 768);
        run({"set txtHPV 5", "click cmdEdit(0)", "select frmIntDialog.cboSelStanice 4",
             "select frmIntDialog.cboSelPeriod \"0.2\"", "cell frmIntDialog.fgIntDeste 3 2",
             "click frmIntDialog.cmdOK", "click cmdEdit(1)", "set frmDialog.txtSoucinitel 1",
             "set frmDialog.txtPlocha 1000", "click frmDialog.cmdZapsat", "click frmDialog.OKButton",
             "set txtSoucFiltrace 1e-4", "tab 1", "click optSelType(0)"});
    }
    void chooseTrench() { run({"select cboSelType 4", "set txtSirkaRyhy(4) 1", "set txtVyskaRyhy(4) 0.8"}); }
    /// The view that is on screen.
    qt::PictureView& shownView(const char* name) {
        QApplication::processEvents();
        qt::PictureView* found = nullptr;
        for (auto* view : window.findChildren<qt::PictureView*>(QString::fromLatin1(name))) {
            if (view->isVisible()) {
                EXPECT_EQ(found, nullptr) << "one panel at a time";
                found = view;
            }
        }
        if (found == nullptr) {
            throw std::logic_error("no picture on screen");
        }
        return *found;
    }
    std::string described(const char* name) {
        qt::PictureView& view = shownView(name);
        view.grab();
        return qt::stored(view.accessibleDescription());
    }
};

TEST_F(PicturePaneTest, FollowsTheCalculationAndEveryChangeAfterIt) {
    chooseTrench();
    EXPECT_EQ(described("picSection"), "Řez se nakreslí po výpočtu.");
    EXPECT_EQ(described("picBalance"), "Bilance dešťů se nakreslí po výpočtu.");
    const QImage before = shownView("picSection").grab().toImage();
    run("click cmdCalcul(4)");
    EXPECT_THAT(described("picSection"), HasSubstr("šířka 1 m, výška rýhy 0.8 m, hladina podzemní vody 5 m"));
    EXPECT_THAT(described("picBalance"), HasSubstr("Délka rýhy [m]: rozhoduje déšť"));
    const QImage after = shownView("picSection").grab().toImage();
    EXPECT_NE(before, after);
    run("type txtSirkaRyhy(4) .5");
    EXPECT_THAT(described("picSection"), HasSubstr("šířka 1.5 m"));
    run({"tab 0", "set txtHPV 2.5", "tab 1"});
    EXPECT_THAT(described("picSection"), HasSubstr("hladina podzemní vody 2.5 m"));
}

TEST_F(PicturePaneTest, EveryPanelHasItsPictures) {
    for (const char* type : {"1", "2", "3", "4", "5"}) {
        run(std::string("select cboSelType ") + type);
        EXPECT_NE(described("picSection"), "") << type;
        EXPECT_NE(described("picBalance"), "") << type;
    }
    run("click optSelType(1)");
    EXPECT_NE(described("picSection"), "");
}

TEST_F(PicturePaneTest, TheyNeverPushAFieldOffASmallScreen) {
    const auto all_fields_in_view = [&](const std::string& panel) {
        QApplication::processEvents();
        int fields = 0;
        for (const auto* field : window.findChildren<QLineEdit*>()) {
            if (field->isVisible()) {
                ++fields;
                EXPECT_TRUE(window.rect().contains(QRect(field->mapTo(&window, QPoint()), field->size())))
                    << panel << ": " << qt::stored(field->objectName());
            }
        }
        EXPECT_GT(fields, 1) << panel;
        EXPECT_LE(window.width(), 1024) << panel;
        EXPECT_LE(window.height(), 768) << panel;
        EXPECT_GE(shownView("picSection").height(), shownView("picSection").minimumSizeHint().height());
    };
    for (const char* type : {"1", "2", "3", "4", "5"}) {
        run(std::string("select cboSelType ") + type);
        all_fields_in_view(std::string("type ") + type);
    }
    run({"select cboSelType 3", "click chkSelPretok(3)"});
    all_fields_in_view("type 3 with pipes");
    run({"select cboSelType 4", "click chkSelPretok(4)"});
    all_fields_in_view("type 4 with pipes");
    run("click optSelType(1)");
    all_fields_in_view("type 6");
}

TEST_F(PicturePaneTest, TheRainDialogsCurveFollowsTheTable) {
    run({"tab 0", "click cmdEdit(0)"});
    EXPECT_THAT(described("picRain"), HasSubstr("5 až 120 min. Zvolený déšť: 15 min, 500 l/(s.ha)."));
    run({"cell frmIntDialog.fgIntDeste 9 0", "set frmIntDialog.txtSChange 240"});
    EXPECT_THAT(described("picRain"), HasSubstr("5 až 240 min"));
    run({"cell frmIntDialog.fgIntDeste 1 2"});
    EXPECT_THAT(described("picRain"), HasSubstr("Zvolený déšť: 5 min"));
    run("close frmIntDialog");
}

TEST_F(PicturePaneTest, TheRainDialogsCurveGivesWayToTheTable) {
    run({"tab 0", "click cmdEdit(0)"});
    QWidget& curve = shownView("picRain");
    QWidget& dialog = *curve.window();
    const QSize whole = dialog.size();
    dialog.resize(whole.width(), whole.height() - curve.height());
    QApplication::processEvents();
    EXPECT_TRUE(curve.isHidden());
    dialog.resize(whole);
    QApplication::processEvents();
    EXPECT_FALSE(curve.isHidden());
    run("close frmIntDialog");
}

TEST_F(PicturePaneTest, PicturesAreNoControlsOfAScript) {
    for (const platform::Control* control : program.window().controls()) {
        EXPECT_THAT(control->name(), testing::Not(testing::StartsWith("picSection")));
    }
    EXPECT_EQ(program.window().find("picSection"), nullptr);
    EXPECT_EQ(program.window().find("picBalance"), nullptr);
}

}  // namespace
}  // namespace mero::app
