// SPDX-License-Identifier: MIT
/// Tabs, forms as windows, dialogs over a disabled main window.
#include <gtest/gtest.h>

#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>

#include "qt/bench_form.h"
#include "qt/buttons.h"
#include "qt/form_window.h"
#include "qt/tab_view.h"

namespace mero::qt {
namespace {

using platform::Form;
using platform::TabControl;

class Tabs : public testing::Test {
  protected:
    BenchForm bench;
    TabControl tabs{bench.form, "SSTab1", {"Základní informace", "Výpočet", "Výsledky"}};
    BenchWindow window;
    TabView& view = window.put(*new TabView(bench.kit, tabs, window));

    void click(int position) const {
        QTest::mouseClick(view.tabBar(), Qt::LeftButton, {}, view.tabRect(position).center());
    }
};

TEST_F(Tabs, AClickRunsTheHandlerWithThePreviousTab) {
    int previous = -1;
    tabs.changed = [&](int tab) { previous = tab; };
    click(2);
    EXPECT_EQ(previous, 0);
    EXPECT_EQ(tabs.position(), 2);
    EXPECT_EQ(view.currentIndex(), 2);
}

TEST_F(Tabs, CodeSwitchesWithoutEcho) {
    int changes = 0;
    tabs.changed = [&](int) { ++changes; };
    tabs.setPosition(1);
    EXPECT_EQ(view.currentIndex(), 1);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(bench.entered, 0);
}

TEST_F(Tabs, AHandlerCanSwitchBack) {
    tabs.changed = [&](int previous) {
        if (tabs.position() == 2) {
            tabs.setPosition(previous);
        }
    };
    click(2);
    EXPECT_EQ(view.currentIndex(), 0);
    EXPECT_EQ(tabs.position(), 0);
}

TEST_F(Tabs, KeysTurnThePagesAndRunTheHandler) {
    std::vector<int> left;
    tabs.changed = [&](int previous) { left.push_back(previous); };
    view.tabBar()->setFocus();
    QTest::keyClick(view.tabBar(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(tabs.position(), 1);
    QTest::keyClick(view.tabBar(), Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(tabs.position(), 2);
    QTest::keyClick(view.tabBar(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(tabs.position(), 0) << "from the last to the first";
    QTest::keyClick(view.tabBar(), Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(tabs.position(), 2);
    QTest::keyClick(view.tabBar(), Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(tabs.position(), 1);
    EXPECT_EQ(left, (std::vector{0, 1, 2, 0, 2}));
}

TEST_F(Tabs, PagesAreBuiltWhenTheyAreFirstShown) {
    int built = 0;
    view.setPage(1, [&](QWidget&) { ++built; });
    EXPECT_EQ(built, 0);
    tabs.changed = [&](int) { EXPECT_EQ(built, 1) << "before the handler runs"; };
    click(1);
    click(0);
    click(1);
    EXPECT_EQ(built, 1);
}

/// A window with one button.
class ButtonWindow : public FormWindow {
  public:
    ButtonWindow(WidgetKit& kit, Form& form, platform::Button& button, FormWindow* owner)
        : FormWindow(kit, form, owner), button_(&button) {}
    int built = 0;

  protected:
    void build(QWidget& content) override {
        ++built;
        content.setLayout(new QVBoxLayout);
        content.layout()->addWidget(&makeButton(kit(), *button_, content));
    }

  private:
    platform::Button* button_;
};

class Windows : public testing::Test {
  protected:
    WidgetKit kit{[](const std::function<void()>& event) { event(); }};
    Form main_form{"frmCalc", "MERO - Výpočet vsakovacích zařízení"};
    Form dialog_form{"frmDialog", "Střední odtokový součinitel"};
    platform::Button edit{main_form, "cmdEdit", "Zadat"};
    platform::Button ok{dialog_form, "OKButton", "OK"};
    ButtonWindow main_window{kit, main_form, edit, nullptr};
    ButtonWindow dialog{kit, dialog_form, ok, &main_window};

    void SetUp() override { main_form.show(); }
};

TEST_F(Windows, ShowTheirFormsTitleAndAreBuiltOnce) {
    EXPECT_TRUE(main_window.isVisible());
    EXPECT_EQ(main_window.windowTitle(), "MERO - Výpočet vsakovacích zařízení");
    EXPECT_EQ(dialog.built, 0);
    dialog_form.show();
    dialog_form.hide();
    dialog_form.show();
    EXPECT_EQ(dialog.built, 1);
    EXPECT_EQ(main_window.built, 1);
}

TEST_F(Windows, AMainWindowThatIsDisabledTakesNoClicksButItsDialogDoes) {
    int edits = 0;
    int confirmations = 0;
    edit.clicked = [&] { ++edits; };
    ok.clicked = [&] { ++confirmations; };
    main_form.setEnabled(false);
    dialog_form.show();
    QTest::mouseClick(kit.find(edit), Qt::LeftButton);
    QTest::mouseClick(kit.find(ok), Qt::LeftButton);
    EXPECT_EQ(edits, 0);
    EXPECT_EQ(confirmations, 1);
    EXPECT_TRUE(dialog.isEnabled());
    main_form.setEnabled(true);
    QTest::mouseClick(kit.find(edit), Qt::LeftButton);
    EXPECT_EQ(edits, 1);
}

TEST_F(Windows, TheCloseBoxOnlyAsks) {
    int requests = 0;
    dialog_form.close_requested = [&] { ++requests; };
    dialog_form.show();
    EXPECT_FALSE(dialog.close());
    EXPECT_EQ(requests, 1);
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(Windows, AFormThatClosesAnswersTheRequest) {
    dialog_form.close_requested = [&] { dialog_form.hide(); };
    dialog_form.show();
    EXPECT_TRUE(dialog.close());
}

TEST_F(Windows, ADisabledWindowCannotBeClosed) {
    bool asked = false;
    main_form.close_requested = [&] { asked = true; };
    main_form.setEnabled(false);
    main_window.close();
    EXPECT_FALSE(asked);
    EXPECT_TRUE(main_window.isVisible());
}

TEST_F(Windows, EscapeIsADialogsCloseBoxAndNotTheMainWindows) {
    int requests = 0;
    dialog_form.close_requested = [&] { ++requests; };
    main_form.close_requested = [&] { ADD_FAILURE() << "Escape must not end the program"; };
    QTest::keyClick(kit.find(edit), Qt::Key_Escape);
    dialog_form.show();
    QTest::keyClick(kit.find(ok), Qt::Key_Escape);
    EXPECT_EQ(requests, 1);
    EXPECT_TRUE(dialog.isVisible()) << "closing is the form's decision";
}

TEST_F(Windows, EnterPressesTheButtonThatHasTheFocus) {
    int edits = 0;
    edit.clicked = [&] { ++edits; };
    QTest::keyClick(kit.find(edit), Qt::Key_Return);
    QTest::keyClick(kit.find(edit), Qt::Key_Space);
    EXPECT_EQ(edits, 2);
}

TEST_F(Windows, ADialogTooLargeForTheScreenScrolls) {
    dialog_form.show();
    auto& button = *kit.find(ok);
    const QSize screen = dialog.screen()->availableGeometry().size();
    EXPECT_EQ(button.window(), &dialog);
    button.setMinimumSize(screen * 2);
    dialog_form.hide();
    dialog_form.show();
    EXPECT_LE(dialog.width(), screen.width());
    EXPECT_LE(dialog.height(), screen.height());
    QApplication::processEvents();
    const auto* area = dialog.findChild<QScrollArea*>();
    ASSERT_NE(area, nullptr);
    EXPECT_GT(area->verticalScrollBar()->maximum(), 0);
}

TEST_F(Windows, ADialogOpensWhollyOnTheScreen) {
    main_window.move(main_window.screen()->geometry().bottomRight());
    dialog_form.show();
    EXPECT_TRUE(main_window.screen()->availableGeometry().contains(dialog.geometry()));
}

}  // namespace
}  // namespace mero::qt
