// SPDX-License-Identifier: MIT
/// Why a table could not be read, with the exit status for the caller.
/// The text is for a person who runs the reader by hand.
#pragma once

#include <stdexcept>
#include <string>

#include "data/rain_protocol.h"

namespace mero::rain {

class TableError : public std::runtime_error {
  public:
    TableError(data::ReaderExit exit, const std::string& what) : std::runtime_error(what), exit_(exit) {}
    [[nodiscard]] data::ReaderExit exit() const { return exit_; }

  private:
    data::ReaderExit exit_;
};

[[noreturn]] inline void failRead(const std::string& what) {
    throw TableError(data::ReaderExit::ReadFailed, what);
}

}  // namespace mero::rain
