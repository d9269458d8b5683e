// SPDX-License-Identifier: MIT
/// Reads a script line by line, finds controls, and refuses actions that a user could not perform.
/// The actions are in script_actions.cpp.
#include "automation/script_runner.h"

#include <streambuf>
#include <utility>

#include "platform/numbers/number_text.h"

namespace mero::automation {
namespace {

/// Like std::getline, but ends after one byte more than a line may have, so that endless input needs no
/// endless memory.
bool readLine(std::istream& script, std::string& line) {
    line.clear();
    std::streambuf& input = *script.rdbuf();
    for (int byte = input.sbumpc(); byte != std::streambuf::traits_type::eof(); byte = input.sbumpc()) {
        if (byte == '\n') {
            return true;
        }
        line += static_cast<char>(byte);
        if (line.size() > kLongestLine) {
            return true;
        }
    }
    return !line.empty();
}

}  // namespace

ScriptRunner::ScriptRunner(forms::Program& program, User& user, TraceDesk& desk, std::ostream& diagnostics,
                           std::string script_name)
    : program_(&program),
      user_(&user),
      desk_(&desk),
      diagnostics_(&diagnostics),
      script_name_(std::move(script_name)) {}

int ScriptRunner::run(std::istream& script, const std::function<bool()>& stop) {
    std::string line;
    Step step = program_->ended() ? Step::ProgramEnded : Step::Continue;
    for (int number = 1; step == Step::Continue && !stop() && readLine(script, line); ++number) {
        step = execute(line, number);
    }
    return exitStatus(step);
}

int ScriptRunner::exitStatus(Step last) const {
    constexpr int kUnusable = 2;
    return last == Step::Unusable ? kUnusable : program_->exitStatus();
}

ScriptRunner::Step ScriptRunner::execute(std::string_view line, int line_number) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (line_number == 1 && line.starts_with(kByteOrderMark)) {
        line.remove_prefix(kByteOrderMark.size());
    }
    beginWork();
    try {
        if (line.size() > kLongestLine) {
            throw ScriptError("the line is longer than 64 MB");
        }
        Words words = splitLine(line);
        if (!words.empty()) {
            const auto entry = actions().find(words.front().text);
            if (entry == actions().end() || words.front().quoted) {
                throw ScriptError("unknown action " + words.front().text);
            }
            words.erase(words.begin());
            const auto& [action, fewest, most] = entry->second;
            if (words.size() < fewest || words.size() > most) {
                throw ScriptError("wrong number of words for " + std::string(entry->first));
            }
            (this->*action)(words);
        }
    } catch (const ScriptError& error) {
        *diagnostics_ << script_name_ << ':' << numbers::general(line_number) << ": " << error.what()
                      << std::endl;
        return Step::Unusable;
    }
    return program_->ended() ? Step::ProgramEnded : Step::Continue;
}

platform::Control& ScriptRunner::find(const std::string& name) const {
    const std::size_t dot = name.find('.');
    const bool qualified = dot != std::string::npos;
    platform::Form* form = program_->form(qualified ? name.substr(0, dot) : "frmCalc");
    platform::Control* control =
        form != nullptr ? form->find(qualified ? name.substr(dot + 1) : name) : nullptr;
    if (control == nullptr && !qualified) {
        control = program_->form(name);
    }
    if (control == nullptr) {
        throw ScriptError("unknown control " + name);
    }
    return *control;
}

bool ScriptRunner::stillPossible(const platform::Control& control) const {
    return !program_->ended() && control.onScreen() && control.reachable();
}

bool ScriptRunner::possible(const std::string& name, const platform::Control& control) {
    const bool hidden = !control.onScreen() || !control.form().enabled();
    if (!hidden && control.reachable()) {
        return true;
    }
    desk_->print(JsonLine().add("refused", name).add("why", hidden ? "hidden" : "disabled"));
    return false;
}

}  // namespace mero::automation
