// SPDX-License-Identifier: MIT
/// An array of controls: members share a name and differ by an index, which need not start at 0.
/// One handler serves all members and receives the member's index.
#pragma once

#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

#include "platform/controls/control.h"
#include "platform/numbers/number_text.h"
#include "platform/numbers/runtime_error.h"

namespace mero::platform {

template <typename T>
class ControlArray {
  public:
    explicit ControlArray(std::string name) : name_(std::move(name)) {}

    /// Adds the member with that index; the other arguments go to the control's constructor.
    template <typename... Arguments>
    T& add(int index, Control& container, Arguments&&... arguments) {
        auto member = std::make_unique<T>(container, name_ + "(" + numbers::general(index) + ")",
                                          std::forward<Arguments>(arguments)...);
        return *members_.emplace(index, std::move(member)).first->second;
    }

    /// @throws RuntimeError SubscriptOutOfRange when there is no member with that index
    [[nodiscard]] T& operator[](int index) const {
        const auto found = members_.find(index);
        if (found == members_.end()) {
            throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
        }
        return *found->second;
    }

    /// The same by an enumerator whose number is the index.
    template <typename Enum>
    requires std::is_enum_v<Enum>
    [[nodiscard]] T& operator[](Enum index) const { return (*this)[static_cast<int>(index)]; }

    [[nodiscard]] const std::string& name() const { return name_; }

    /// Calls `action(index, member)` for every member in ascending order of the index.
    template <typename Action>
    void forEach(Action action) const {
        for (const auto& [index, member] : members_) {
            action(index, *member);
        }
    }

  private:
    std::string name_;
    std::map<int, std::unique_ptr<T>> members_;
};

}  // namespace mero::platform
