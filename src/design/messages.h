// SPDX-License-Identifier: MIT
/// The message boxes of a design as the window shows them, from the verdicts and the numbers.
/// Input checks that fail together share one box, one line each.
#pragma once

#include <string>
#include <vector>

#include "design/design_result.h"

namespace mero::design {

struct Message {
    std::string text;
    Severity severity = Severity::Information;
    bool titled_error = false;
    /// The run-time error that the box reports, 0 for none.
    int error_number = 0;

    friend bool operator==(const Message&, const Message&) = default;
};

[[nodiscard]] std::vector<Message> messages(const DesignResult& result);
/// The text of one verdict, without a line break at its end.
[[nodiscard]] std::string verdictText(const DesignResult& result, Verdict verdict);

}  // namespace mero::design
