// SPDX-License-Identifier: MIT
/// The table of actions and their errors.
/// Actions that are not in the table (ticks, tabs, focus, spins, closing, most clicks) give no error.
#include "monkey/known_errors.h"

#include <algorithm>
#include <array>
#include <span>

#include "data/rain_database.h"

namespace mero::monkey {
namespace {

enum class Action { Typing, Leaving, Clicking, Selecting, Entering };

enum Errors : unsigned {
    kRoot = 1U,        ///< 5: the root of a negative number
    kOverflow = 2U,    ///< 6
    kDivision = 4U,    ///< 11
    kMismatch = 8U,    ///< 13
    kEndsEntry = 16U,  ///< 6 or 13 in the area column of the entries, ending the program
    kEndsRead = 32U,   ///< the rain database cannot be read, ending the program
};

struct Row {
    Action action;
    std::string_view control;  ///< with its form; without an index it means all members
    unsigned errors;
};

constexpr std::array<Row, 30> kRows{{
    // Boxes whose handler does not catch conversion errors.
    {Action::Typing, "frmCalc.txtPocetPotrubi", kMismatch | kOverflow},
    {Action::Typing, "frmCalc.txtPotrHloubkaZahl", kMismatch | kOverflow},
    // The safety factor calculates the current type at every key, and so do the soil and overflow options.
    {Action::Typing, "frmCalc.txtSoucBezp", kOverflow | kDivision},
    {Action::Clicking, "frmCalc.optSelTypPudy2", kOverflow | kDivision},
    {Action::Clicking, "frmCalc.optSelTypPudy3", kOverflow | kDivision},
    {Action::Clicking, "frmCalc.chkSelPretok", kOverflow | kDivision},
    {Action::Selecting, "frmCalc.cboSelType", kOverflow | kDivision},
    // Leaving reads the text again, leniently; a text such as 1e309 stays in the field.
    {Action::Leaving, "frmCalc.txtSoucFiltrace", kOverflow},
    {Action::Leaving, "frmCalc.txtSoucFiltrPruleh", kOverflow},
    // The inflow is area times intensity.
    {Action::Typing, "frmCalc.txtOdvodNepPlocha", kOverflow},
    {Action::Typing, "frmCalc.txtSelIntDeste", kOverflow},
    // Equivalent diameters are roots; a round shaft's is a sum.
    {Action::Typing, "frmCalc.txtPrumerSachtyVnit", kRoot | kOverflow},
    {Action::Typing, "frmCalc.txtPrumerSachtyVnej", kRoot | kOverflow},
    {Action::Typing, "frmCalc.txtTloustkaSteny", kRoot | kOverflow},
    {Action::Clicking, "frmCalc.optSelTypSachty", kOverflow},
    // The calculate command; the pipes of a trench without porosity or section.
    {Action::Clicking, "frmCalc.cmdCalcul", kRoot | kOverflow | kDivision},
    {Action::Clicking, "frmCalc.cmdOK", kOverflow | kDivision},
    // Opening a dialog sums the entries, or reads the station that was chosen last.
    {Action::Clicking, "frmCalc.cmdEdit(0)", kEndsRead},
    {Action::Clicking, "frmCalc.cmdEdit(1)", kOverflow},
    // Drained area: conversions and the sum.
    {Action::Typing, "frmDialog.txtSoucinitel", kOverflow},
    {Action::Typing, "frmDialog.txtSChange", kOverflow | kEndsEntry},
    {Action::Entering, "frmDialog.txtPlocha", kOverflow},
    {Action::Clicking, "frmDialog.cmdZapsat", kOverflow},
    {Action::Clicking, "frmDialog.cmdDelete", kOverflow},
    {Action::Clicking, "frmDialog.OKButton", kOverflow},
    // Rain: typed values, the 16-bit sum of the confirmation, the inflow.
    {Action::Typing, "frmIntDialog.txtSChange", kOverflow},
    {Action::Clicking, "frmIntDialog.cmdOK", kOverflow},
    {Action::Selecting, "frmIntDialog.cboSelStanice", kEndsRead},
    // A soil is a positive coefficient; the inflow does not depend on it.
    {Action::Clicking, "frmCoefDialog.cmdOK", 0},
    {Action::Clicking, "frmCalc.optSelType", 0},
}};

std::optional<Action> actionOf(const std::vector<automation::Word>& words) {
    const std::string& name = words.front().text;
    if (name == "type" || name == "set" || name == "erase") {
        return Action::Typing;
    }
    if (name == "leave") {
        return Action::Leaving;
    }
    if (name == "click") {
        return Action::Clicking;
    }
    if (name == "select") {
        return Action::Selecting;
    }
    if (name == "key" && words.size() > 2 && words[2].text == "Enter") {
        return Action::Entering;
    }
    return std::nullopt;
}

bool isReadFailure(int number) {
    return number == static_cast<int>(ErrorNumber::FileNotFound) || number == data::kCannotOpenDatabase ||
           number == data::kTableNotFound || number == data::kReadFailed;
}

bool isAmong(const RuntimeError& error, unsigned errors) {
    if (error.endsProgram()) {
        const bool entry = error.is(ErrorNumber::TypeMismatch) || error.is(ErrorNumber::Overflow);
        return ((errors & kEndsEntry) != 0 && entry) ||
               ((errors & kEndsRead) != 0 && isReadFailure(error.number()));
    }
    return ((errors & kRoot) != 0 && error.is(ErrorNumber::InvalidCall)) ||
           ((errors & kOverflow) != 0 && error.is(ErrorNumber::Overflow)) ||
           ((errors & kDivision) != 0 && error.is(ErrorNumber::DivisionByZero)) ||
           ((errors & kMismatch) != 0 && error.is(ErrorNumber::TypeMismatch));
}

bool standsFor(std::string_view row_control, std::string_view target) {
    return target == row_control ||
           (target.starts_with(row_control) && target.substr(row_control.size()).starts_with('('));
}

}  // namespace

std::string targetOf(const std::vector<automation::Word>& words) {
    if (words.size() < 2) {
        return {};
    }
    const std::string& name = words[1].text;
    return name.find('.') == std::string::npos ? "frmCalc." + name : name;
}

bool isKnown(const RuntimeError& error, const std::vector<automation::Word>& words) {
    if (words.empty()) {
        return false;
    }
    const auto action = actionOf(words);
    const std::string target = targetOf(words);
    return std::any_of(kRows.begin(), kRows.end(), [&](const Row& row) {
        return row.action == action && standsFor(row.control, target) && isAmong(error, row.errors);
    });
}

}  // namespace mero::monkey
