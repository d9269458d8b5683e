// SPDX-License-Identifier: MIT
/// The state of a window as JSON, as a project file keeps it: exact, readable, only what differs from the
/// window as it opens.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <vector>

#include "forms/keeping/window_state.h"

namespace mero::forms {

class StateDocument {
  public:
    /// @param program just started
    explicit StateDocument(const Program& program);

    /// The members in which the state differs from the opening one.
    [[nodiscard]] nlohmann::json differences(const WindowState& state) const;
    /// The opposite. @throws std::exception for what differences() never writes, unknown names excepted
    [[nodiscard]] WindowState state(const nlohmann::json& differences) const;
    /// The members that no state has, at any depth.
    [[nodiscard]] nlohmann::json unknown(const nlohmann::json& document) const;

    /// The state of the control with that name.
    [[nodiscard]] const platform::ControlState& control(const WindowState& state,
                                                        const std::string& name) const;
    [[nodiscard]] const WindowState& opening() const { return opening_; }

  private:
    [[nodiscard]] nlohmann::json whole(const WindowState& state) const;
    void checkLists(const WindowState& state) const;

    WindowState opening_;
    std::vector<std::string> names_;  ///< of the kept controls
    std::vector<bool> multi_line_;    ///< of those that are text boxes
};

}  // namespace mero::forms
