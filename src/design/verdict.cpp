// SPDX-License-Identifier: MIT
/// Looks up verdicts in the table, and writes their texts.
#include "design/verdict.h"

#include <algorithm>
#include <utility>

#include "calc/swale_trench.h"
#include "platform/numbers/number_text.h"

namespace mero::design {
namespace {

void replace(std::string& text, std::string_view mark, const std::string& number) {
    if (const std::size_t at = text.find(mark); at != std::string::npos) {
        text.replace(at, mark.size(), number);
    }
}

/// The two numbers that the verdict's text compares. The ground plan of a swale over its trench is a product
/// and is shown in double precision.
std::pair<std::string, std::string> comparedNumbers(const Verdict& verdict) {
    constexpr int kDecimals = 2;
    const auto& [first, second, third] = verdict.values;
    const bool ground_plan = verdict.id == VerdictId::SwaleTrenchAreaSufficient ||
                             verdict.id == VerdictId::SwaleTrenchAreaInsufficient;
    if (ground_plan) {
        return {numbers::fixed(calc::swale_trench::designedArea(second, third), kDecimals),
                numbers::fixed(first, kDecimals)};
    }
    return {numbers::fixed(first, kDecimals), numbers::fixed(second, kDecimals)};
}

struct ErrorRow {
    VerdictId id;
    ErrorNumber number;
};
constexpr std::array<ErrorRow, 4> kErrors{{{VerdictId::ErrorInvalidCall, ErrorNumber::InvalidCall},
                                           {VerdictId::ErrorOverflow, ErrorNumber::Overflow},
                                           {VerdictId::ErrorSubscript, ErrorNumber::SubscriptOutOfRange},
                                           {VerdictId::ErrorDivisionByZero, ErrorNumber::DivisionByZero}}};

}  // namespace

std::span<const Subject> subjects(VerdictId id) {
    const auto& about = info(id).about;
    const auto end = std::ranges::find(about, nullptr, &Subject::name);
    return {about.begin(), end};
}

std::string text(const Verdict& verdict) {
    if (isRuntimeError(verdict.id)) {
        return describe(errorNumber(verdict.id));
    }
    std::string text = info(verdict.id).text;
    const auto [compared, with] = comparedNumbers(verdict);
    replace(text, "%1", compared);
    replace(text, "%2", with);
    return text;
}

ErrorNumber errorNumber(VerdictId id) {
    const auto* found = std::ranges::find(kErrors, id, &ErrorRow::id);
    return found == kErrors.end() ? ErrorNumber::InvalidCall : found->number;
}

VerdictId verdictOf(const RuntimeError& error) {
    const auto* found =
        std::ranges::find_if(kErrors, [&](const ErrorRow& row) { return error.is(row.number); });
    return found == kErrors.end() ? VerdictId::ErrorInvalidCall : found->id;
}

}  // namespace mero::design
