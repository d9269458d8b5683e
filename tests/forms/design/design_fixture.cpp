// SPDX-License-Identifier: MIT
/// The hands of the user.
/// Events enter the program where those of a window do.
#include "forms/design/design_fixture.h"

#include <algorithm>
#include <stdexcept>

#include "platform/numbers/number_text.h"

namespace mero::forms::test {

const std::vector<TypedRain> kStorm{{"5", "300"}, {"10", "200"}, {"15", "160"}, {"20", "130"}, {"30", "100"},
                                    {"45", "75"}, {"60", "60"},  {"90", "45"},  {"120", "36"}};

Project::Project() {
    program_.start();
}

void Project::act(const platform::Control& control, const std::function<void()>& action) {
    if (!control.onScreen() || !control.reachable()) {
        throw std::logic_error("a user cannot reach " + control.name());
    }
    program_.enter(action);
}

void Project::tab(int position) {
    act(window().SSTab1, [&] { window().SSTab1.userSelect(position); });
}

void Project::set(platform::TextBox& box, const std::string& text) {
    act(box, [&] { box.userEdit(text); });
}

void Project::type(platform::TextBox& box, const std::string& keys) {
    for (const char key : keys) {
        act(box, [&] { box.userEdit(box.text() + key); });
    }
}

void Project::click(platform::Button& button) {
    act(button, [&] { button.userClick(); });
}

void Project::click(platform::OptionButton& option) {
    act(option, [&] { option.userClick(); });
}

void Project::click(platform::CheckBox& box) {
    act(box, [&] { box.userClick(); });
}

void Project::cell(platform::Grid& grid, int row, int column) {
    act(grid, [&] { grid.userClick({row, column}); });
}

void Project::select(platform::DropList& list, int position) {
    act(list, [&] { list.userSelect(position); });
}

void Project::spin(platform::UpDown::Direction direction, int times) {
    for (int i = 0; i < times; ++i) {
        act(window().updSacht, [&] { window().updSacht.userSpin(direction); });
    }
}

void Project::leave(platform::TextBox& box) {
    act(box, [&] { box.userLostFocus(); });
}

void Project::rains(const std::vector<TypedRain>& rows, int picked_row) {
    tab(kTabInputs);
    click(window().cmdEdit[0]);
    frmIntDialog& dialog = window().intDialog;
    for (int row = 1; row <= data::kDurationCount; ++row) {
        const auto index = static_cast<std::size_t>(row) - 1;
        const bool given = index < rows.size();
        if (given) {
            cell(dialog.fgIntDeste, row, 0);
            set(dialog.txtSChange, rows[index].duration_min);
        }
        cell(dialog.fgIntDeste, row, 1);
        set(dialog.txtSChange, given ? rows[index].intensity_l_s_ha : "0");
    }
    if (picked_row > 0) {
        cell(dialog.fgIntDeste, picked_row, 2);
    }
    // Own values can be confirmed only after a periodicity was chosen.
    select(dialog.cboSelPeriod, 0);
    click(dialog.cmdOK);
    if (dialog.visible()) {
        // A table without intensities is refused, but its values are stored.
        desk_.messages.clear();
        act(dialog, [&] { dialog.close_requested(); });
    }
}

void Project::area(const std::string& area_m2) {
    tab(kTabInputs);
    click(window().cmdEdit[1]);
    frmDialog& dialog = window().areaDialog;
    click(dialog.cmdDeleteAll);
    set(dialog.txtSoucinitel, "1");
    set(dialog.txtPlocha, area_m2);
    click(dialog.cmdZapsat);
    click(dialog.OKButton);
}

void Project::filtration(const std::string& coefficient_m_s) {
    tab(kTabInputs);
    set(window().txtSoucFiltrace, coefficient_m_s);
}

void Project::site(const std::string& area_m2, const std::string& coefficient_m_s,
                   const std::vector<TypedRain>& rows, int picked_row) {
    area(area_m2);
    filtration(coefficient_m_s);
    rains(rows, picked_row);
}

void Project::choose(FacilityType type) {
    tab(kTabDesign);
    click(window().optSelType[0]);
    select(window().cboSelType, static_cast<int>(type));
}

void Project::chooseTank() {
    tab(kTabDesign);
    click(window().optSelType[1]);
}

std::string Project::pickedRain() const {
    return numbers::general(values().VybranaDoba) + " min, " + numbers::general(values().VybranaIntenzita) +
           " l/s.ha";
}

FacilityType Project::shownType() {
    tab(kTabDesign);
    FacilityType shown = FacilityType::None;
    window().picResults.forEach([&](int type, platform::Panel& panel) {
        if (panel.onScreen()) {
            shown = static_cast<FacilityType>(type);
        }
    });
    return shown;
}

}  // namespace mero::forms::test
