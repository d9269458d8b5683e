// SPDX-License-Identifier: MIT
/// Checks the rules that hold after every action.
/// Texts are checked when code writes them, so that texts typed by the user cause no fault.
#include "monkey/watcher.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <exception>
#include <string_view>

#include "monkey/known_errors.h"
#include "platform/numbers/number_text.h"

namespace mero::monkey {
namespace {

constexpr int kSoilChoiceColumn = 2;
constexpr int kFreeTextColumn = 3;  // of the entries: the user's name of a surface

bool isLetter(char c) {
    return std::isalpha(static_cast<unsigned char>(c)) != 0 || static_cast<unsigned char>(c) >= 0x80U;
}

std::string cellsOf(const platform::Grid& grid) {
    std::string text;
    const bool has_free_text = grid.name() == "fgZapisTab";
    for (const auto& row : grid.rows()) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            if (!has_free_text || column != kFreeTextColumn) {
                text += row[column] + "|";
            }
        }
    }
    return text;
}

/// True for boxes that code fills with texts that the user typed elsewhere.
bool showsFreeText(const platform::Control& control) {
    return control.name() == "txtSChange" || control.name() == "txtTypPudyPodlozi";
}

/// True for the messages that refuse a group choice without area or filtration coefficient.
bool isRefusal(const platform::Message& message) {
    return message.text == "Zadejte nepropustnou odvodňovanou plochu" ||
           message.text == "Zadejte součinitel filtrace podloží";
}

}  // namespace

bool hasNoNumber(const std::string& text) {
    std::string lower = text;
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    for (const std::string_view word : {"infinity", "inf", "nan"}) {
        for (std::size_t at = lower.find(word); at != std::string::npos; at = lower.find(word, at + 1)) {
            const std::size_t end = at + word.size();
            if ((at == 0 || !isLetter(lower[at - 1])) && (end == lower.size() || !isLetter(lower[end]))) {
                return true;
            }
        }
    }
    return false;
}

Watcher::Watcher(Stage& stage) : stage_(&stage), fields_(stage.program()) {
    for (platform::Form* form : stage.program().forms()) {
        watchNumbers(*form);
    }
}

void Watcher::watchNumbers(platform::Form& form) {
    for (platform::Control* control : form.controls()) {
        const std::string name = control->name();
        const std::string full_name = form.name() + "." + name;
        control->observe([this, control, name, full_name](platform::Aspect aspect) {
            const auto* box = dynamic_cast<const platform::TextBox*>(control);
            const auto* grid = dynamic_cast<const platform::Grid*>(control);
            std::string text;
            if (aspect == platform::Aspect::Text && box != nullptr && !showsFreeText(*box) &&
                full_name != target_) {
                text = box->text();
            } else if (aspect == platform::Aspect::Cells && grid != nullptr) {
                text = cellsOf(*grid);
            }
            if (hasNoNumber(text)) {
                odd_text_ = std::string(name).append(" shows ").append(text);
            }
        });
    }
}

std::string Watcher::perform(const std::string& line) {
    Words words;
    try {
        words = automation::splitLine(line);
    } catch (const automation::ScriptError&) {
        // The runner reports the same.
    }
    target_ = targetOf(words);
    odd_text_.clear();
    try {
        last_step_ = stage_->perform(line);
    } catch (const std::exception& error) {
        return std::string("exception: ") + error.what();
    }
    return words.empty() || last_step_ == Stage::Step::Unusable ? std::string() : check(words);
}

std::string Watcher::check(const Words& words) {
    const auto& soils = stage_->program().window().coefDialog;
    const bool refused = stage_->trace().starts_with("{\"refused\"");
    if (words.front().text == "cell" && target_ == "frmCoefDialog.fgCoefProp" && !refused &&
        soils.fgCoefProp.mouse().column == kSoilChoiceColumn) {
        fields_.soilWasPicked(soils.fgCoefProp.mouse().row);
    }
    if (!odd_text_.empty()) {
        return "no number: " + odd_text_;
    }
    for (const std::string& fault : {checkErrors(words), checkMessages(), checkLists()}) {
        if (!fault.empty()) {
            return fault;
        }
    }
    if (const std::string disagreement = fields_.disagreement(); !disagreement.empty()) {
        return "fields: " + disagreement;
    }
    std::string panels = checkPanels(words);
    if (!panels.empty() || stage_->program().ended()) {
        return panels;
    }
    return checkDialogs();
}

std::string Watcher::checkErrors(const Words& words) const {
    bool ends = false;
    for (const RuntimeError& error : stage_->errors()) {
        if (!isKnown(error, words)) {
            return "error: " + numbers::general(error.number()) + (error.endsProgram() ? " ending" : "") +
                   " out of " + words.front().text + " " + target_;
        }
        ends = ends || error.endsProgram();
    }
    const bool closed = words.front().text == "close" && target_ == "frmCalc.frmCalc";
    if (stage_->program().ended() && !ends && !closed) {
        return "end: the program ended by itself";
    }
    return {};
}

std::string Watcher::checkMessages() const {
    for (const platform::Message& message : stage_->messages()) {
        const bool names_a_file = message.text.starts_with("Soubor") || message.text.starts_with("Zpr");
        if (!names_a_file && hasNoNumber(message.text)) {
            return "no number: the message " + message.text;
        }
    }
    return {};
}

std::string Watcher::checkLists() const {
    const auto& values = stage_->program().values();
    const int length = values.DilciPlocha.length();
    const bool same =
        length >= 1 && values.OdtokovySoucinitel.length() == length && values.TypPovrchu.length() == length;
    return same ? "" : "lists: of the drained area differ in length";
}

std::string Watcher::checkPanels(const Words& words) {
    const forms::frmCalc& window = stage_->program().window();
    std::vector<int> visible;
    window.picResults.forEach([&](int type, const platform::Panel& panel) {
        if (panel.visible()) {
            visible.push_back(type);
        }
    });
    const auto& messages = stage_->messages();
    const bool refused = words.front().text == "click" && target_ == "frmCalc.optSelType(1)" &&
                         std::any_of(messages.begin(), messages.end(), isRefusal);
    // A refused "Centralizované" leaves the panels unchanged and the type at 5.
    kept_panel_ =
        (kept_panel_ || refused) && visible == panels_ && window.SelectedType == data::FacilityType::Shaft;
    panels_ = visible;
    if (visible.size() > 1) {
        return "panels: more than one shows";
    }
    if (!visible.empty() && visible.front() != static_cast<int>(window.SelectedType) && !kept_panel_) {
        return "panels: " + numbers::general(visible.front()) + " shows, the type is " +
               numbers::general(static_cast<int>(window.SelectedType));
    }
    return {};
}

std::string Watcher::checkDialogs() const {
    const auto forms = stage_->program().forms();
    const auto open = std::count_if(forms.begin() + 1, forms.end(),
                                    [](const platform::Form* form) { return form->visible(); });
    if (!forms.front()->visible()) {
        return "dialogs: the main window is gone";
    }
    if (open > 1) {
        return "dialogs: two are open";
    }
    if (forms.front()->enabled() != (open == 0)) {
        return open == 0 ? "dialogs: the main window is disabled, no dialog is open"
                         : "dialogs: the main window is enabled beside an open dialog";
    }
    return {};
}

}  // namespace mero::monkey
