// SPDX-License-Identifier: MIT
/// Joins input checks, and maps verdicts to message boxes and back.
#include "design/messages.h"

namespace mero::design {
namespace {

platform::MessageIcon iconOf(Severity severity) {
    switch (severity) {
        case Severity::Information:
            return platform::MessageIcon::Information;
        case Severity::Warning:
            return platform::MessageIcon::Exclamation;
        case Severity::Refusal:
            break;
    }
    return platform::MessageIcon::Critical;
}

}  // namespace

std::vector<Message> messages(std::span<const Verdict> verdicts) {
    std::vector<Message> boxes;
    bool joins = false;
    for (const Verdict& verdict : verdicts) {
        const VerdictInfo& row = info(verdict.id);
        const bool check = isInputCheck(verdict.id);
        if (!check || !joins) {
            const int error = isRuntimeError(verdict.id) ? static_cast<int>(errorNumber(verdict.id)) : 0;
            boxes.push_back({"", row.severity, row.titled_error, error, verdict.id});
        }
        boxes.back().text += text(verdict) + (check ? "\r\n" : "");
        joins = check;
    }
    return boxes;
}

platform::Message box(const Message& message) {
    return {.text = message.text,
            .icon = iconOf(message.severity),
            .title = message.titled_error ? std::optional<std::string>("Chyba") : std::nullopt,
            .id = messageId(message.id)};
}

platform::Message box(VerdictId id) {
    const Verdict verdict{.id = id, .values = {}};
    return box(messages({&verdict, 1}).front());
}

platform::MessageId messageId(VerdictId id) {
    // 0 is a message without an id.
    return static_cast<platform::MessageId>(index(id) + 1);
}

std::optional<VerdictId> verdictId(platform::MessageId id) {
    const auto number = static_cast<std::size_t>(id);
    return number == 0 || number > kVerdictCount ? std::nullopt
                                                 : std::optional(static_cast<VerdictId>(number - 1));
}

}  // namespace mero::design
