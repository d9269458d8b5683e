// SPDX-License-Identifier: MIT
/// Verdicts as message boxes. Input checks that fail together share one box, one line each.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "design/design_result.h"
#include "platform/desk.h"

namespace mero::design {

struct Message {
    std::string text;
    Severity severity = Severity::Information;
    bool titled_error = false;
    /// The run-time error that the box reports, 0 for none.
    int error_number = 0;
    /// The verdict; the first one of a box that holds several.
    VerdictId id = VerdictId::RainIntensitiesMissing;
};

[[nodiscard]] std::vector<Message> messages(std::span<const Verdict> verdicts);

/// The box as the window shows it.
[[nodiscard]] platform::Message box(const Message& message);
/// The box of a verdict that speaks of no numbers.
[[nodiscard]] platform::Message box(VerdictId id);

/// The id under which a verdict's box goes through the desk, and back.
[[nodiscard]] platform::MessageId messageId(VerdictId id);
[[nodiscard]] std::optional<VerdictId> verdictId(platform::MessageId id);

}  // namespace mero::design
