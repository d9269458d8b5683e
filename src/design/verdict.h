// SPDX-License-Identifier: MIT
/// A verdict as a value: its id and the numbers that it speaks of, as they were when it was given.
/// Severity, text and the names of these numbers come from the table of verdicts.
#pragma once

#include <array>
#include <span>
#include <string>

#include "design/input.h"
#include "design/quantity.h"
#include "design/verdict_id.h"
#include "platform/numbers/runtime_error.h"

namespace mero::design {

/// How a message is meant, and which icon its box has.
enum class Severity : std::uint8_t { Information, Warning, Refusal };

/// An input or a quantity that a verdict speaks of.
struct Subject {
    const char* name = nullptr;  ///< of the quantity, or the path of the input
    const char* unit = "";
    float data::DesignNumbers::*stored = nullptr;
};

/// Most numbers that one verdict speaks of.
inline constexpr std::size_t kMostSubjects = 3;

struct VerdictInfo {
    VerdictId id = VerdictId::RainIntensitiesMissing;
    const char* code = "";  ///< stable: `shaft_bottom_too_close`
    /// Czech. "%1" stands for the number of comparedNumbers(), "%2" for the one that it is compared with.
    const char* text = "";
    Severity severity = Severity::Information;
    std::array<Subject, kMostSubjects> about{};  ///< ends at the first without a name
    bool titled_error = false;  ///< the box has the title "Chyba" instead of the application's
};

/// All verdicts in the order of their ids.
[[nodiscard]] std::span<const VerdictInfo, kVerdictCount> verdicts();
[[nodiscard]] const VerdictInfo& info(VerdictId id);

struct Verdict {
    VerdictId id;
    std::array<float, kMostSubjects> values;  ///< of the subjects of info(id), in their order

    friend bool operator==(const Verdict& verdict, VerdictId other) { return verdict.id == other; }
};

/// What the verdict speaks of.
[[nodiscard]] std::span<const Subject> subjects(VerdictId id);
/// The Czech text with its numbers, without a line break at its end.
[[nodiscard]] std::string text(const Verdict& verdict);

/// The run-time error behind an id for which isRuntimeError() holds.
[[nodiscard]] ErrorNumber errorNumber(VerdictId id);
[[nodiscard]] VerdictId verdictOf(const RuntimeError& error);

}  // namespace mero::design
