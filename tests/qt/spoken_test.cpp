// SPDX-License-Identifier: MIT
/// Accessible names, descriptions and roles of widgets.
#include "qt/spoken.h"

#include <gtest/gtest.h>

#include <QComboBox>

#include "qt/bench_form.h"
#include "qt/buttons.h"
#include "qt/field_grid.h"
#include "qt/grid_view.h"
#include "qt/panels.h"

namespace mero::qt {
namespace {

class Spoken : public testing::Test {
  protected:
    BenchForm bench;
    BenchWindow window;

    static QAccessibleInterface& of(QWidget& widget) {
        return *QAccessible::queryAccessibleInterface(&widget);
    }
    static QString name(QWidget& widget) { return of(widget).text(QAccessible::Name); }
    static QString description(QWidget& widget) { return of(widget).text(QAccessible::Description); }
};

TEST_F(Spoken, FieldsSayCaptionAndUnit) {
    platform::TextBox level(bench.form, "txtHPV");
    platform::TextBox project(bench.form, "txtProjName");
    platform::TextBox area(bench.form, "txtVsakPlocha(1)");
    FieldGrid grid(bench.kit, window.put(*new QWidget));
    EXPECT_EQ(name(grid.input(level, "Hladina podzemní vody", "m")), "Hladina podzemní vody, m");
    EXPECT_EQ(name(grid.text(project, "Název projektu:")), "Název projektu");
    QLineEdit& result = grid.result(area, "Plocha", "m²");
    EXPECT_EQ(description(result), "výsledek");
    EXPECT_TRUE(of(result).state().readOnly);
    area.setText("428.6");
    EXPECT_EQ(of(result).text(QAccessible::Value), "428.6");
}

TEST_F(Spoken, OptionsSayWhatTheyAreOptionsOf) {
    platform::OptionButton option(bench.form, "optSelTypSachty(0)", "kruhový",
                                  std::make_shared<std::vector<platform::OptionButton*>>());
    FieldGrid grid(bench.kit, window.put(*new QWidget));
    auto& row = *new QWidget(&grid.parent());
    speakAs(row, QAccessible::Grouping);
    QRadioButton& radio = makeOption(bench.kit, option, row);
    grid.widget("Tvar šachty:", row);
    EXPECT_EQ(name(radio), "kruhový");
    EXPECT_EQ(description(radio), "Tvar šachty");
    EXPECT_EQ(of(row).role(), QAccessible::Grouping);
    EXPECT_FALSE(of(radio).state().checked);
    option.setSelected(true);
    EXPECT_TRUE(of(radio).state().checked);
}

TEST_F(Spoken, AListIsCalledByItsCaption) {
    FieldGrid grid(bench.kit, window.put(*new QWidget));
    auto& list = *new QComboBox(&grid.parent());
    auto& help = *new QPushButton("?", &grid.parent());
    grid.pair("Periodicita", list, help);
    const auto relations = of(list).relations(QAccessible::Label);
    ASSERT_EQ(relations.size(), 1);
    EXPECT_EQ(relations[0].first->text(QAccessible::Name), "Periodicita");
}

TEST_F(Spoken, ALinkIsALinkAndCanBePressed) {
    platform::Label label(bench.form, "lblOdkaz(0)", "Portál o vodě");
    QLabel& link = window.put(makeLink(bench.kit, label, window));
    int clicks = 0;
    label.clicked = [&] { ++clicks; };
    EXPECT_EQ(of(link).role(), QAccessible::Link);
    EXPECT_EQ(name(link), "Portál o vodě");
    QAccessibleActionInterface* actions = of(link).actionInterface();
    ASSERT_NE(actions, nullptr);
    ASSERT_TRUE(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    actions->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicks, 1);
}

TEST_F(Spoken, APanelInAGroupHasItsOwnName) {
    platform::Panel panel(bench.form, "picPretokSkrOdtok(4)");
    auto& group = window.put(*new QGroupBox("Vstupy"));
    group.setLayout(new QVBoxLayout);
    QGroupBox& inner = makeFramedPanel(bench.kit, panel, "Drenáž", group);
    EXPECT_EQ(name(inner), "Drenáž");
}

TEST_F(Spoken, CellsSayTheirColumnAndRow) {
    platform::Grid grid(bench.form, "fgSoucPovrchOdtok");
    grid.build("Typ plochy|Povrch|Součinitel|Výběr", {0.3, 0.3, 0.2, 0.2});
    grid.mergeColumn(0);
    grid.addRow({"střechy", "kov", "0.95", ""});
    grid.addRow({"střechy", "štěrk", "0.70", ""});
    GridView& view = window.put(makeGrid(bench.kit, grid, 3, {.characters = 40, .rows = 2}, window));
    const auto cell = [&](int row, int column) { return view.model()->index(row, column); };
    EXPECT_EQ(cell(1, 2).data(Qt::AccessibleTextRole), "0.70");
    EXPECT_EQ(cell(1, 2).data(Qt::AccessibleDescriptionRole), "Součinitel, štěrk") << "the first is merged";
    EXPECT_EQ(cell(1, 3).data(Qt::AccessibleTextRole), "nevybráno");
    grid.setMark({2, 3}, true);
    EXPECT_EQ(cell(1, 3).data(Qt::AccessibleTextRole), "vybráno");
}

}  // namespace
}  // namespace mero::qt
