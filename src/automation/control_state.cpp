// SPDX-License-Identifier: MIT
/// The state of a control, as `get` prints it.
/// Each kind of control adds its own members after the common ones.
#include "automation/inspection.h"
#include "platform/controls/buttons.h"
#include "platform/controls/containers.h"
#include "platform/controls/drop_list.h"
#include "platform/controls/form.h"
#include "platform/controls/grid.h"
#include "platform/controls/text_box.h"

namespace mero::automation {
namespace {

JsonLine common(const std::string& name, const platform::Control& control, const char* kind) {
    JsonLine line;
    line.add("get", name)
        .add("kind", kind)
        .add("enabled", control.enabled())
        .add("visible", control.visible());
    return line;
}

std::string marksOf(const platform::Grid& grid) {
    std::vector<std::string> rows;
    for (int row = 0; row <= grid.dataRows() && !grid.rows().empty(); ++row) {
        std::vector<std::string> cells;
        cells.reserve(grid.columns().size());
        for (int column = 0; column < static_cast<int>(grid.columns().size()); ++column) {
            cells.push_back(json(grid.mark({row, column})));
        }
        rows.push_back(jsonArray(cells));
    }
    return jsonArray(rows);
}

JsonLine stateOfGrid(const std::string& name, const platform::Grid& grid) {
    return common(name, grid, "grid")
        .add("greyed", false)
        .add("rows", grid.rows())
        .addJson("marks", marksOf(grid))
        .add("row", grid.current().row)
        .add("col", grid.current().column);
}

JsonLine stateOfList(const std::string& name, const platform::DropList& list) {
    return common(name, list, "list")
        .add("items", list.items())
        .add("position", list.position())
        .add("text", list.text());
}

}  // namespace

JsonLine stateOf(const std::string& name, const platform::Control& control) {
    if (const auto* box = dynamic_cast<const platform::TextBox*>(&control)) {
        return common(name, *box, "text box").add("text", box->text()).add("greyed", box->greyed());
    }
    if (const auto* option = dynamic_cast<const platform::OptionButton*>(&control)) {
        return common(name, *option, "option button")
            .add("text", option->text())
            .add("checked", option->selected());
    }
    if (const auto* check = dynamic_cast<const platform::CheckBox*>(&control)) {
        return common(name, *check, "check box").add("text", check->text()).add("checked", check->checked());
    }
    if (const auto* button = dynamic_cast<const platform::Button*>(&control)) {
        return common(name, *button, "button").add("text", button->text());
    }
    if (const auto* label = dynamic_cast<const platform::Label*>(&control)) {
        return common(name, *label, "label").add("text", label->text());
    }
    if (const auto* frame = dynamic_cast<const platform::Captioned*>(&control)) {
        return common(name, *frame, "frame").add("text", frame->text());
    }
    if (const auto* list = dynamic_cast<const platform::DropList*>(&control)) {
        return stateOfList(name, *list);
    }
    if (const auto* grid = dynamic_cast<const platform::Grid*>(&control)) {
        return stateOfGrid(name, *grid);
    }
    if (const auto* view = dynamic_cast<const platform::BrowserView*>(&control)) {
        return common(name, *view, "browser view").add("path", view->path());
    }
    if (const auto* tabs = dynamic_cast<const platform::TabControl*>(&control)) {
        return common(name, *tabs, "tab control")
            .add("position", tabs->position())
            .add("items", tabs->captions());
    }
    if (const auto* form = dynamic_cast<const platform::Form*>(&control)) {
        return common(name, *form, "form").add("text", form->title());
    }
    return common(name, control, "up-down");
}

}  // namespace mero::automation
