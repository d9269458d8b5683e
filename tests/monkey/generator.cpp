// SPDX-License-Identifier: MIT
/// Chooses the next action.
/// Entries and cells are chosen from those that exist; other actions may be refused by the program.
#include "monkey/generator.h"

#include <algorithm>
#include <array>

#include "automation/script_line.h"
#include "monkey/invented_rain.h"
#include "monkey/odd_texts.h"
#include "platform/numbers/number_text.h"

namespace mero::monkey {
namespace {

std::string text(int number) {
    return numbers::general(number);
}

std::string fullName(const platform::Control& control) {
    const std::string& form = control.form().name();
    return form == "frmCalc" ? control.name() : form + "." + control.name();
}

platform::Control* find(forms::Program& program, const std::string& name) {
    const std::size_t dot = name.find('.');
    platform::Form* form = program.form(dot == std::string::npos ? "frmCalc" : name.substr(0, dot));
    return form == nullptr ? nullptr : form->find(dot == std::string::npos ? name : name.substr(dot + 1));
}

bool canBeReached(const platform::Control& control) {
    return control.onScreen() && control.reachable();
}

/// True for controls without any action.
bool isPassive(const platform::Control& control) {
    return dynamic_cast<const platform::Frame*>(&control) != nullptr ||
           dynamic_cast<const platform::Panel*>(&control) != nullptr ||
           dynamic_cast<const platform::TabPage*>(&control) != nullptr;
}

/// The control of a planned line, null for lines without one, such as `tab`.
platform::Control* targetOf(const std::string& line, forms::Program& program) {
    const auto words = automation::splitLine(line);
    return words.size() > 1 ? find(program, words[1].text) : nullptr;
}

/// True when the area column of the entries is edited: a text that is not a number there ends the program.
bool editsAreas(forms::Program& program) {
    return program.window().areaDialog.fgZapisTab.current().column == 1;
}

}  // namespace

Generator::Generator(std::uint64_t seed, Life life) : random_(seed), life_(life) {}

std::string Generator::next(forms::Program& program) {
    while (true) {
        if (planned_.empty() && random_.percent(30)) {
            plan(program);
        }
        std::string line;
        // Now and then a plan is abandoned, or a step of it skipped.
        if (planned_.empty() || random_.percent(12)) {
            line = anyAction(program);
        } else {
            line = planned_.front();
            planned_.pop_front();
            if (random_.percent(2)) {
                planned_.clear();
            }
            const platform::Control* target = targetOf(line, program);
            if (target != nullptr && !canBeReached(*target) && random_.percent(80)) {
                continue;
            }
        }
        if (!line.empty() && isUsable(line, program)) {
            return line;
        }
    }
}

bool Generator::isUsable(const std::string& line, forms::Program& program) const {
    const auto words = automation::splitLine(line);
    const std::string& action = words.front().text;
    if (action == "select" || action == "cell") {
        const platform::Control* control = find(program, words.at(1).text);
        const int number = automation::wholeNumber(words.at(2).text).value_or(-1);
        if (const auto* list = dynamic_cast<const platform::DropList*>(control)) {
            const bool is_missing_station = life_ == Life::Endless && list->name() == "cboSelStanice" &&
                                            number > 0 &&
                                            !InventedRain::has(program.values().StaniceCislo(number));
            return number >= 0 && number < static_cast<int>(list->items().size()) && !is_missing_station;
        }
        const auto* grid = dynamic_cast<const platform::Grid*>(control);
        return grid != nullptr &&
               grid->hasDataCell({number, automation::wholeNumber(words.at(3).text).value_or(-1)});
    }
    if (life_ == Life::Endless) {
        if (action == "close" && words.at(1).text == "frmCalc") {
            return false;
        }
        const bool edits = action == "type" || action == "set" || action == "erase";
        if (edits && words.at(1).text == "frmDialog.txtSChange" && editsAreas(program)) {
            const std::string& typed = words.at(2).text;
            return action == "set" && !typed.empty() &&
                   typed.find_first_not_of("0123456789") == std::string::npos && typed.size() < 9;
        }
    }
    return true;
}

std::string Generator::number() {
    return quoted(random_.percent(75) ? plausibleNumber(random_) : nastyNumber(random_));
}

void Generator::addNumber(const std::string& field) {
    add((random_.percent(50) ? "set " : "type ") + field + " " + number());
}

void Generator::plan(forms::Program& program) {
    const auto& values = program.values();
    const bool knows_rain = values.VybranaIntenzita > 0;
    const bool knows_area = values.RedukovanaPlocha > 0;
    const bool knows_soil = values.txtSoucFiltrace > 0;
    switch (random_.below(10)) {
        case 0:
            planRain();
            break;
        case 1:
            planArea();
            break;
        case 2:
            planSoil();
            break;
        case 3:
            planReport();
            break;
        default:
            if (!knows_rain) {
                planRain();
            } else if (!knows_area) {
                planArea();
            } else if (!knows_soil) {
                planSoil();
            } else {
                planType(program);
            }
    }
}

void Generator::planRain() {
    add("tab 0");
    add("click cmdEdit(0)");
    // The real database has every station; in the invented one every 31st is missing, which ends the program.
    add("select frmIntDialog.cboSelStanice " + text(random_.below(93)));
    add("select frmIntDialog.cboSelPeriod " + text(random_.below(7)));
    if (random_.percent(25)) {
        add("cell frmIntDialog.fgIntDeste " + text(1 + random_.below(9)) + " " + text(random_.below(2)));
        addNumber("frmIntDialog.txtSChange");
        add("key frmIntDialog.txtSChange Enter");
    }
    add("cell frmIntDialog.fgIntDeste " + text(1 + random_.below(9)) + " 2");
    add("click frmIntDialog.cmdOK");
}

void Generator::planArea() {
    add("tab 0");
    add("click cmdEdit(1)");
    for (int entries = 1 + random_.below(3); entries > 0; --entries) {
        add("cell frmDialog.fgSoucPovrchOdtok " + text(1 + random_.below(19)) + " 3");
        addNumber("frmDialog.txtPlocha");
        add(random_.percent(50) ? "key frmDialog.txtPlocha Enter" : "click frmDialog.cmdZapsat");
    }
    if (random_.percent(30)) {
        add("cell frmDialog.fgZapisTab 1 " + text(1 + random_.below(3)));
        addNumber("frmDialog.txtSChange");
        add("key frmDialog.txtSChange Escape");
    }
    if (random_.percent(30)) {
        add("cell frmDialog.fgZapisTab " + text(1 + random_.below(3)) + " 4");
        add("click frmDialog.cmdDelete");
    }
    add(random_.percent(80) ? "click frmDialog.OKButton" : "click frmDialog.CancelButton");
}

void Generator::planSoil() {
    add("tab 0");
    if (random_.percent(50)) {
        add("click cmdEdit(2)");
        add("cell frmCoefDialog.fgCoefProp " + text(1 + random_.below(8)) + " 2");
        add("click frmCoefDialog.cmdOK");
    } else {
        add("set txtSoucFiltrace \"\"");
        add("type txtSoucFiltrace " + quoted(random_.percent(70) ? "1e-5" : plausibleNumber(random_)));
        add("leave txtSoucFiltrace");
    }
}

void Generator::planType(forms::Program& program) {
    add("tab 1");
    const int type = 1 + random_.below(6);
    if (type == static_cast<int>(data::FacilityType::Tank)) {
        add("click optSelType(1)");
    } else {
        add("click optSelType(0)");
        add("focus cboSelType");
        // The list is filled only after the group was clicked.
        add("select cboSelType " + text(type));
    }
    planInputs(type);
    if (program.window().cmdCalcul[type].visible()) {
        add("click cmdCalcul(" + text(type) + ")");
    }
    if (random_.percent(40)) {
        planReport();
    }
}

void Generator::planInputs(int type) {
    const std::string member = "(" + text(type) + ")";
    if (random_.percent(40)) {
        addNumber("txtSoucBezp" + member);
    }
    switch (static_cast<data::FacilityType>(type)) {
        case data::FacilityType::Swale:
            add("click optSelTypPudy2(" + text(random_.below(2)) + ")");
            break;
        case data::FacilityType::SwaleTrench:
            add("click optSelTypPudy3(" + text(random_.below(2)) + ")");
            addNumber("txtSoucFiltrPruleh(3)");
            [[fallthrough]];
        case data::FacilityType::Trench:
            addNumber("txtPorVyplne" + member);
            addNumber("txtSirkaRyhy" + member);
            addNumber("txtVyskaRyhy" + member);
            if (random_.percent(50)) {
                add("click chkSelPretok" + member);
                addNumber("txtPrumTroubVnej" + member);
                addNumber("txtPrumTroubVnit" + member);
                add(static_cast<data::FacilityType>(type) == data::FacilityType::Trench
                        ? "set txtVystupPlocha(4) \"50\""
                        : "set txtSpecDrenOdtok(3) \"2\"");
                add("set txtVystupRychlost(4) \"0.2\"");
                add("click cmdOK" + member);
            }
            break;
        case data::FacilityType::Shaft:
            add("click optSelTypSachty(" + text(random_.below(2)) + ")");
            add("select cboTypSachty " + text(random_.below(8)));
            add("click optSelTypPudy5(" + text(random_.below(2)) + ")");
            addNumber("txtNezamrzHlPritok");
            addNumber("txtVyskaFiltrVrstvy");
            addNumber("txtVyskaPiskVrstvy");
            add("spin updSacht " + std::string(random_.percent(70) ? "up" : "down"));
            break;
        case data::FacilityType::Tank:
            for (const char* field : {"txtSpecMeroIntenz", "txtDelkaDnaNadrz", "txtSirkaDnaNadrz",
                                      "txtHloubkaNadrz", "txtSklonSvahuNadrz"}) {
                addNumber(field);
            }
            break;
        default:
            break;
    }
}

void Generator::planReport() {
    add("tab 2");
    add("tab 3");
    if (random_.percent(30)) {
        add("answer-save " + quoted(random_.percent(60) ? "kopie.html" : freeText(random_)));
        add("click cmdSaveResults");
        add("click cmdPrint");
    }
    add("tab " + text(random_.below(2)));
}

platform::Control* Generator::anyControl(forms::Program& program) {
    // Mostly controls of the form in front.
    platform::Form* form = nullptr;
    for (platform::Form* each : program.forms()) {
        form = each->visible() ? each : form;
    }
    if (form == nullptr || random_.percent(4)) {
        form = random_.oneOf(program.forms());
    }
    const bool within_reach = random_.percent(93);
    for (int attempt = 0; attempt < 200; ++attempt) {
        platform::Control* control = random_.oneOf(form->controls());
        if (!isPassive(*control) && (!within_reach || canBeReached(*control))) {
            return control;
        }
    }
    return nullptr;
}

std::string Generator::anyAction(forms::Program& program) {
    const int choice = random_.below(100);
    if (choice < 8) {
        return "tab " + text(random_.below(4));
    }
    if (choice < 9) {
        return "tick";
    }
    if (choice < 11) {
        constexpr std::array kForms{"frmIntDialog", "frmDialog", "frmCoefDialog"};
        return std::string("close ") + (random_.percent(8) ? "frmCalc" : random_.oneOf(kForms));
    }
    if (choice < 12) {
        return random_.percent(30) ? "answer-save" : "answer-save " + quoted(freeText(random_));
    }
    platform::Control* control = anyControl(program);
    return control == nullptr ? std::string() : actionOn(*control);
}

std::string Generator::actionOn(platform::Control& control) {
    const std::string name = fullName(control);
    if (random_.percent(5)) {
        return (random_.percent(50) ? "focus " : "leave ") + name;
    }
    if (random_.percent(2)) {
        return "get " + name;
    }
    if (const auto* box = dynamic_cast<platform::TextBox*>(&control)) {
        return actionOnText(*box, name);
    }
    if (const auto* list = dynamic_cast<platform::DropList*>(&control)) {
        const int count = static_cast<int>(list->items().size());
        return count == 0 ? std::string() : "select " + name + " " + text(random_.below(count));
    }
    if (const auto* grid = dynamic_cast<platform::Grid*>(&control)) {
        const int columns = static_cast<int>(grid->columns().size());
        return grid->dataRows() == 0 ? std::string()
                                     : "cell " + name + " " + text(1 + random_.below(grid->dataRows())) +
                                           " " + text(random_.below(columns));
    }
    if (dynamic_cast<platform::UpDown*>(&control) != nullptr) {
        return "spin " + name + (random_.percent(50) ? " up" : " down");
    }
    const bool clickable = dynamic_cast<platform::Button*>(&control) != nullptr ||
                           dynamic_cast<platform::OptionButton*>(&control) != nullptr ||
                           dynamic_cast<platform::CheckBox*>(&control) != nullptr ||
                           dynamic_cast<platform::Label*>(&control) != nullptr;
    return clickable ? "click " + name : std::string();
}

std::string Generator::actionOnText(const platform::TextBox& box, const std::string& name) {
    const int choice = random_.below(100);
    if (choice < 10) {
        return "erase " + name + " " + text(1 + random_.below(3));
    }
    if (choice < 18) {
        return "key " + name + (random_.percent(50) ? " Enter" : " Escape");
    }
    constexpr std::array kTexts{"txtProjName", "txtProjektant", "txtMistoAkce",
                                "txtInvestor", "txtDetails",    "txtTypPudyPodlozi"};
    const bool is_text = std::find(kTexts.begin(), kTexts.end(), box.name()) != kTexts.end();
    const bool free_text = random_.percent(is_text ? 90 : 8);
    // Typing at the end of a long text would make it grow without limit.
    constexpr std::size_t kLongText = 40;
    const bool sets = choice < 60 || box.text().size() > kLongText;
    return (sets ? "set " : "type ") + name + " " + (free_text ? quoted(freeText(random_)) : number());
}

}  // namespace mero::monkey
