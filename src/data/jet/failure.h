// SPDX-License-Identifier: MIT
/// Why a database could not be read. The text is for developers; users are told the kind.
#pragma once

#include <stdexcept>
#include <string>

namespace mero::data::jet {

class Failure : public std::runtime_error {
  public:
    enum class Kind {
        CannotOpen,  ///< no database of this format, encrypted, or with a password
        Damaged,
        NoSuchTable,
        NoNumbers,  ///< no column of those that are asked for is of a type with numbers
    };

    Failure(Kind kind, const std::string& what) : std::runtime_error(what), kind_(kind) {}
    [[nodiscard]] Kind kind() const { return kind_; }

  private:
    Kind kind_;
};

[[noreturn]] inline void failDamaged(const std::string& what) {
    throw Failure(Failure::Kind::Damaged, what);
}

}  // namespace mero::data::jet
