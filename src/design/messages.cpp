// SPDX-License-Identifier: MIT
/// Texts with numbers, and the joining of input checks.
/// The texts of the drain end without a full stop, those of the area with one.
#include "design/messages.h"

#include "calc/swale_trench.h"
#include "platform/numbers/number_text.h"

namespace mero::design {
namespace {

/// "( 12.00 < 15.00 )"
std::string comparison(const std::string& left, const char* sign, const std::string& right) {
    return "( " + left + " " + sign + " " + right + " )";
}

std::string areas(const DesignResult& result, const char* sign) {
    const double designed_m2 = calc::swale_trench::designedArea(result.value(Quantity::TrenchLength),
                                                                result.value(Quantity::SwaleWidth));
    return comparison(numbers::fixed(designed_m2, 2), sign,
                      numbers::fixed(result.value(Quantity::InfiltrationArea), 2));
}

std::string outflows(const DesignResult& result, const char* sign) {
    return comparison(numbers::fixed(result.value(Quantity::DrainOutflow), 2), sign,
                      numbers::fixed(result.value(Quantity::DrainInflow), 2));
}

}  // namespace

std::string verdictText(const DesignResult& result, Verdict verdict) {
    if (isRuntimeError(verdict)) {
        return describe(errorNumber(verdict));
    }
    switch (verdict) {
        case Verdict::SwaleTrenchAreaSufficient:
            return "Navržená vsakovací plocha je dostatečná " + areas(result, "<") + ".";
        case Verdict::SwaleTrenchAreaInsufficient:
            return "Navržená vsakovací plocha je nedostatečná " + areas(result, ">") + ".";
        case Verdict::DrainOutflowNotMet:
            return "Není splněna podmínka výstupního odtoku. " + outflows(result, "<");
        case Verdict::DrainOutflowMet:
            return "Podmínka výstupního odtoku je splněna. " + outflows(result, ">");
        default:
            return info(verdict).text;
    }
}

std::vector<Message> messages(const DesignResult& result) {
    std::vector<Message> boxes;
    bool joins = false;
    for (const Verdict verdict : result.verdicts.all()) {
        const std::string text = verdictText(result, verdict);
        if (!isInputCheck(verdict)) {
            const int error = isRuntimeError(verdict) ? static_cast<int>(errorNumber(verdict)) : 0;
            boxes.push_back({text, info(verdict).severity, info(verdict).titled_error, error});
            joins = false;
            continue;
        }
        if (!joins) {
            boxes.push_back({"", Severity::Refusal});
            joins = true;
        }
        boxes.back().text += text + "\r\n";
    }
    return boxes;
}

}  // namespace mero::design
