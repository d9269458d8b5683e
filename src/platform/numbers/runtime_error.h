// SPDX-License-Identifier: MIT
/// Run-time errors of the program: a number and a description, thrown by conversions and arithmetic.
/// An error that no handler catches is reported where events enter the program.
#pragma once

#include <stdexcept>
#include <string>

namespace mero {

/// The numbers are a fixed interface: they are shown to the user and written to the trace.
enum class ErrorNumber {
    InvalidCall = 5,  ///< an argument is outside the function's range (root of a negative number)
    Overflow = 6,     ///< a value does not fit the type that stores it
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,  ///< a text is not a number
    FileNotFound = 53,
};

/// Czech description of an error number, as the report of an error shows it.
[[nodiscard]] const char* describe(ErrorNumber number);

/// An error that ends the running event.
class RuntimeError : public std::runtime_error {
  public:
    enum class Effect { AbandonsEvent, EndsProgram };

    /// An error with the standard description of its number.
    explicit RuntimeError(ErrorNumber error);
    /// An error with a special description, e.g. one that names a file and a table.
    RuntimeError(int error_number, const std::string& description, Effect effect = Effect::AbandonsEvent);

    [[nodiscard]] int number() const { return number_; }
    [[nodiscard]] std::string description() const { return what(); }
    [[nodiscard]] bool is(ErrorNumber error) const { return number_ == static_cast<int>(error); }
    /// True when the program ends after the report of this error.
    [[nodiscard]] bool endsProgram() const { return effect_ == Effect::EndsProgram; }

  private:
    int number_;
    Effect effect_;
};

}  // namespace mero
