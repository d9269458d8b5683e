// SPDX-License-Identifier: MIT
/// Follows a script: one action per line, each performed by the user's hands it was given.
/// What happens meanwhile is traced by the desk; an action that a user could not do is refused.
#pragma once

#include <istream>
#include <map>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "automation/script_line.h"
#include "automation/trace_desk.h"
#include "automation/user.h"
#include "forms/calc/program.h"

namespace mero::automation {

class ScriptRunner {
  public:
    /// @param diagnostics where "SCRIPT:LINE: reason" goes when the script is unusable
    ScriptRunner(forms::Program& program, User& user, TraceDesk& desk, std::ostream& diagnostics,
                 std::string script_name);

    enum class Step {
        Continue,
        ProgramEnded,
        Unusable,  ///< the line cannot be followed; the reason is told
    };
    /// Performs one line.
    Step execute(std::string_view line, int line_number);

    /// Performs all lines of the input. @return exit status: 0 to the end, 1 ended by an error, 2 unusable
    int run(std::istream& script);
    /// The exit status after the last step.
    [[nodiscard]] int exitStatus(Step last) const;

  private:
    using Words = std::vector<Word>;
    using Action = void (ScriptRunner::*)(const Words& words);
    /// An action with the count of words behind its name.
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

    /// The control of that name, with or without its form's name. @throws ScriptError for an unknown one
    [[nodiscard]] platform::Control& find(const std::string& name) const;
    /// The same for one kind of control. @throws ScriptError when it is of another kind
    template <typename T>
    [[nodiscard]] T& find(const std::string& name, const char* kind) const;
    /// Whether the user can act on the control now; if not, the refusal is printed.
    bool possible(const std::string& name, const platform::Control& control);
    /// Whether the user still can, in the middle of an action of several keys.
    [[nodiscard]] bool stillPossible(const platform::Control& control) const;

    forms::Program* program_;
    User* user_;
    TraceDesk* desk_;
    std::ostream* diagnostics_;
    std::string script_name_;
};

}  // namespace mero::automation
