// SPDX-License-Identifier: MIT
/// Texts of numbers: reads arbitrary bytes as a text, and writes and reads them as a number.
/// Written texts must consist of digits and signs and read back to the same number.
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

#include "platform/numbers/number_text.h"
#include "platform/numbers/runtime_error.h"
#include "support/require.h"

namespace {

using mero::RuntimeError;
using mero::fuzz::require;
namespace numbers = mero::numbers;

/// The value, or no value and the number of the error.
template <typename Value>
struct Read {
    std::optional<Value> value;
    int error = 0;
};

template <typename Convert>
auto readBy(Convert convert, std::string_view text) -> Read<decltype(convert(text))> {
    try {
        return {convert(text), 0};
    } catch (const RuntimeError& error) {
        require(error.number() == 6 || error.number() == 13, "a conversion fails with 6 or 13");
        require(!error.endsProgram(), "a conversion does not end the program");
        return {std::nullopt, error.number()};
    }
}

std::string withoutBlanks(std::string_view text) {
    std::string kept;
    for (const char c : text) {
        if (c != ' ') {
            kept += c;
        }
    }
    return kept;
}

void checkReading(std::string_view text) {
    const auto single = readBy(numbers::strictSingle, text);
    const auto integer = readBy(numbers::strictInteger, text);
    const auto leading = readBy(numbers::leadingNumber, text);
    require(leading.error != 13, "the lenient reading takes every text");
    require((single.error == 13) == (integer.error == 13), "one grammar for Single and Integer");
    if (leading.value) {
        require(std::isfinite(*leading.value), "a lenient number is finite");
        require(readBy(numbers::leadingNumber, std::string(text) + "x").value == leading.value,
                "what follows a number does not change it");
    }
    if (single.error == 13) {
        return;
    }
    const std::string padded = "  " + std::string(text) + " ";
    require(readBy(numbers::strictSingle, padded).value == single.value, "blanks around do not matter");
    const auto ungrouped = readBy(numbers::leadingNumber, withoutBlanks(text));
    if (single.value) {
        require(std::isfinite(*single.value), "a strict number is finite");
        require(numbers::strictSingle(numbers::general(*single.value)) == *single.value,
                "a strict number survives its general text");
        require(ungrouped.value.has_value(), "a strict number reads leniently, too");
        const double one_step = std::fabs(*ungrouped.value) * 1.2e-7 + 1e-44;
        require(std::fabs(*ungrouped.value - static_cast<double>(*single.value)) <= one_step,
                "both readings agree");
    } else {
        require(!ungrouped.value || std::fabs(*ungrouped.value) > 3.4e38, "only large numbers overflow");
    }
    if (integer.value) {
        require(std::fabs(*ungrouped.value - static_cast<double>(*integer.value)) <= 0.5,
                "an Integer is at most half away");
    }
}

void checkCharacters(const std::string& text, std::string_view allowed) {
    require(!text.empty() && text.find_first_not_of(allowed) == std::string::npos,
            "a number's text holds digits and signs only: " + text);
    require(text.find_first_of("123456789") != std::string::npos || text.front() != '-', "there is no -0");
}

/// Distance to the next larger value: the greatest difference of the shortest digits from the value.
template <typename Real>
double stepOf(Real value) {
    const Real magnitude = std::fabs(value);
    const Real lower = std::nextafter(magnitude, Real{0});
    return magnitude > 0 ? 2.0 * (static_cast<double>(magnitude) - static_cast<double>(lower)) : 0.0;
}

template <typename Real>
void checkFixed(Real value, int decimals) {
    const std::string text = numbers::fixed(value, decimals);
    checkCharacters(text, "-0123456789. ");
    const double half_unit = 0.5 * std::pow(10.0, -decimals);
    const double read = numbers::leadingNumber(withoutBlanks(text));
    const double step = stepOf(value);
    require(std::fabs(read - static_cast<double>(value)) <= half_unit * (1.0 + 1e-12) + step,
            "fixed decimals are at most half a unit away: " + text);
    const std::size_t point = text.find('.');
    require((decimals == 0) == (point == std::string::npos), "a point stands before decimals");
    if (decimals > 0) {
        require(text.size() - point - 1 == static_cast<std::size_t>(decimals), "as many decimals as asked");
    }
    if (sizeof(Real) == sizeof(float)) {
        require(numbers::strictSingle(text) == static_cast<float>(read) ||
                    std::fabs(numbers::strictSingle(text) - static_cast<float>(read)) <=
                        std::fabs(static_cast<float>(read)) * std::numeric_limits<float>::epsilon(),
                "a grouped text reads back through a field");
    }
}

template <typename Real>
void checkScientific(Real value, int decimals) {
    const std::string text = numbers::scientific(value, decimals);
    checkCharacters(text, "-0123456789.E+");
    const auto read = readBy(numbers::leadingNumber, text);
    if (!read.value) {
        return;  // rounded up beyond the largest double
    }
    const double magnitude = std::fabs(static_cast<double>(value));
    require(std::fabs(*read.value - static_cast<double>(value)) <=
                magnitude * 0.5 * std::pow(10.0, -decimals) * (1.0 + 1e-12) + stepOf(value),
            "a scientific text is at most half a unit away: " + text);
}

template <typename Real>
void checkWriting(Real value, int decimals) {
    if (!std::isfinite(value)) {
        return;
    }
    checkFixed(value, decimals);
    checkScientific(value, 1);
    checkScientific(value, 2);
    checkCharacters(numbers::general(value), "-0123456789.E+");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    checkReading(bytes);
    const int decimals = bytes.empty() ? 0 : static_cast<unsigned char>(bytes.back()) % 7;
    if (size >= sizeof(float)) {
        float value = 0;
        std::memcpy(&value, bytes.data(), sizeof value);
        checkWriting(value, decimals);
        if (std::isfinite(value)) {
            require(numbers::strictSingle(numbers::general(value)) == value, "a Single reads back");
        }
    }
    if (size >= sizeof(double)) {
        double value = 0;
        std::memcpy(&value, bytes.data(), sizeof value);
        checkWriting(value, decimals);
        if (std::isfinite(value)) {
            require(numbers::leadingNumber(numbers::general(value)) == value, "a double reads back");
        }
    }
    return 0;
}
