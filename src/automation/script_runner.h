// SPDX-License-Identifier: MIT
/// Runs a script: one action per line, each performed by the given User.
/// The desk traces what happens meanwhile; an action that a user could not perform is refused.
#pragma once

#include <functional>
#include <istream>
#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "automation/script_line.h"
#include "automation/trace_desk.h"
#include "automation/user.h"
#include "forms/calc/program.h"
#include "forms/keeping/project_work.h"

namespace mero::automation {

class ScriptRunner {
  public:
    /// @param diagnostics where "SCRIPT:LINE: reason" goes when the script is unusable
    ScriptRunner(forms::Program& program, User& user, TraceDesk& desk, std::ostream& diagnostics,
                 std::string script_name);

    /// The actions on projects and steps use the window's own work, before the first line.
    void workOn(forms::ProjectWork& work) { work_ = &work; }

    enum class Step {
        Continue,
        ProgramEnded,
        Unusable,  ///< the line cannot be performed; the reason is printed
    };
    /// Performs one line.
    Step execute(std::string_view line, int line_number);

    /// Performs all lines of the input.
    /// @param stop asked before each line: true ends the script there
    /// @return exit status: 0 ran to the end, 1 the program ended with an error, 2 unusable script
    int run(
        std::istream& script, const std::function<bool()>& stop = [] { return false; });
    /// The exit status after the last step.
    [[nodiscard]] int exitStatus(Step last) const;

  private:
    using Words = std::vector<Word>;
    using Action = void (ScriptRunner::*)(const Words& words);
    /// An action and the number of words after its name.
    struct Entry {
        Action action;
        std::size_t fewest;
        std::size_t most;
    };
    [[nodiscard]] static const std::map<std::string_view, Entry>& actions();

    void type(const Words& words);
    void set(const Words& words);
    void erase(const Words& words);
    void focus(const Words& words);
    void leave(const Words& words);
    void click(const Words& words);
    void select(const Words& words);
    void spin(const Words& words);
    void cell(const Words& words);
    void key(const Words& words);
    void tab(const Words& words);
    void tick(const Words& words);
    void close(const Words& words);
    void answerSave(const Words& words);
    void get(const Words& words);
    void value(const Words& words);
    void echo(const Words& words);
    void openProject(const Words& words);
    void saveProject(const Words& words);
    void newProject(const Words& words);
    void undo(const Words& words);
    void redo(const Words& words);

    /// A path of the script; a relative one is taken from the program's folder.
    [[nodiscard]] std::string absolute(const std::string& path) const;
    void refuseProject(const std::string& path, const std::string& why);
    /// Begins the history of the window's steps, unless it has one.
    void beginWork();

    /// The control with that name, with or without its form's name. @throws ScriptError for an unknown name
    [[nodiscard]] platform::Control& find(const std::string& name) const;
    /// The same for one kind of control. @throws ScriptError when the control is of another kind
    template <typename T>
    [[nodiscard]] T& find(const std::string& name, const char* kind) const;
    /// True when the user can reach the control now; otherwise prints the refusal.
    bool possible(const std::string& name, const platform::Control& control);
    /// True when the user can still reach the control, for the next key of an action of several keys.
    [[nodiscard]] bool stillPossible(const platform::Control& control) const;

    forms::Program* program_;
    User* user_;
    TraceDesk* desk_;
    std::ostream* diagnostics_;
    std::string script_name_;
    forms::ProjectWork* work_ = nullptr;
    std::optional<forms::ProjectWork> own_work_;  ///< made with the first line, unless another was given
};

}  // namespace mero::automation
