// SPDX-License-Identifier: MIT
/// mero-tables: writes the tables of inputs, results, texts and verdicts as JSON, for the test of the manual.
#include <algorithm>
#include <iostream>
#include <nlohmann/json.hpp>

#include "design/input.h"
#include "design/input_guide.h"
#include "design/quantity.h"
#include "design/text_input.h"
#include "design/verdict.h"
#include "project/project.h"

namespace {

using namespace mero::design;
using Json = nlohmann::ordered_json;

const char* nameOf(InputKind kind) {
    switch (kind) {
        case InputKind::Number:
        case InputKind::WholeNumber:
            return "number";
        case InputKind::Truth:
            return "truth";
        case InputKind::Choice:
            return "choice";
        case InputKind::Station:
        case InputKind::Periodicity:
            break;
    }
    return "list";
}

Json ofInput(const PanelInput& on_panel, FacilityType type) {
    const InputInfo& row = info(on_panel.input);
    const bool has_text = row.kind == InputKind::Number || row.kind == InputKind::WholeNumber;
    Json options = Json::array();
    for (const Choice& choice : row.choices) {
        options.push_back(choice.caption);
    }
    return {{"path", row.path},
            {"kind", on_panel.input == Input::CatalogueShaft ? "list" : nameOf(row.kind)},
            {"caption", on_panel.caption == nullptr ? row.caption : on_panel.caption},
            {"unit", row.unit},
            {"opening", has_text ? openingText(on_panel) : ""},
            {"usual", has_text ? guide(on_panel.input).usual : ""},
            {"box", controlName(row.box, type)},
            {"options", options}};
}

/// The check box that opens the sub-panel of the overflow or the drain.
Json subPanel(FacilityType type) {
    return {{"path", ""},
            {"kind", "truth"},
            {"caption", type == FacilityType::Trench ? kDrainCaption : kOverflowCaption},
            {"unit", ""},
            {"opening", ""},
            {"box", controlName("chkSelPretok(#)", type)},
            {"options", Json::array()}};
}

Json inputsOf(FacilityType type) {
    Json rows = Json::array();
    bool in_sub_panel = false;
    for (const PanelInput& input : panelInputs(type)) {
        if (isOfSubPanel(input.input) && !in_sub_panel) {
            rows.push_back(subPanel(type));
            in_sub_panel = true;
        }
        rows.push_back(ofInput(input, type));
    }
    return rows;
}

Json resultsOf(FacilityType type) {
    Json rows = Json::array();
    for (const ResultBox& box : resultBoxes(type)) {
        rows.push_back({{"caption", captionOf(box.quantity, type)},
                        {"unit", info(box.quantity).unit},
                        {"box", controlName(box.box, type)}});
    }
    return rows;
}

Json types() {
    Json rows = Json::array();
    for (const FacilityType type : kFacilityTypes) {
        rows.push_back({{"name", mero::project::reference().TypyZasakovani[mero::data::index(type)]},
                        {"inputs", inputsOf(type)},
                        {"results", resultsOf(type)}});
    }
    return rows;
}

/// The inputs that are on no panel, without the choice of the type.
Json site() {
    Json rows = Json::array();
    for (const InputInfo& row : inputs()) {
        const bool on_panel = std::ranges::any_of(kFacilityTypes, [&](FacilityType type) {
            return std::ranges::count(panelInputs(type), row.input, &PanelInput::input) != 0;
        });
        if (!on_panel && row.input != Input::Type) {
            rows.push_back(ofInput({row.input}, FacilityType::None));
        }
    }
    return rows;
}

Json texts() {
    Json rows = Json::array();
    for (const TextInputInfo& row : textInputs()) {
        rows.push_back({{"path", row.path}, {"caption", row.caption}, {"box", row.box}});
    }
    return rows;
}

Json results() {
    Json rows = Json::object();
    for (const QuantityInfo& row : quantities()) {
        rows[row.name] = {{"caption", row.caption}, {"unit", row.unit}};
    }
    return rows;
}

Json verdictTexts() {
    Json rows = Json::object();
    for (const VerdictInfo& row : verdicts()) {
        rows[row.code] = isRuntimeError(row.id) ? describe(errorNumber(row.id)) : row.text;
    }
    return rows;
}

}  // namespace

int main() {
    constexpr int kIndent = 1;
    const Json tables = {{"types", types()},
                         {"site", site()},
                         {"texts", texts()},
                         {"results", results()},
                         {"verdicts", verdictTexts()}};
    std::cout << tables.dump(kIndent) << "\n";
}
