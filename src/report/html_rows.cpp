// SPDX-License-Identifier: MIT
/// The building blocks of the report: lines, value rows, option headers.
#include "report/html_rows.h"

#include "platform/numbers/number_text.h"

namespace mero::report {

std::string line(std::initializer_list<std::string_view> pieces) {
    std::string text;
    for (const std::string_view piece : pieces) {
        text += piece;
    }
    return text += "\r\n";
}

std::string twoDecimals(float value) {
    return numbers::fixed(value, 2);
}

std::string scientific(float value) {
    return numbers::scientific(value, 2);
}

std::string valueRow(std::string_view label, std::string_view value, std::string_view closing) {
    std::string row = "<TR><TD valign=bottom width=200>";
    row += label;
    row += "</TD><TH valign=bottom align=right width=200>";
    row += value;
    row += closing;
    return row;
}

std::string inputRow(const ReportData& data, design::Input input, std::string_view closing) {
    return valueRow(design::reportLabel(input), twoDecimals(data.numbers.*design::info(input).stored),
                    closing);
}

std::string resultRow(const ReportData& data, design::Quantity quantity, std::string_view closing) {
    return valueRow(design::reportLabel(quantity, data.type),
                    twoDecimals(data.numbers.*design::info(quantity).stored), closing);
}

std::string optionHeader(std::string_view caption) {
    std::string rows = "<TR><TD>-</TD><TD><TD></TD></TR><TR><TD valign=bottom width=200><i><u>";
    rows += caption;
    rows +=
        "</u></i></TD><TH valign=bottom align=right width=200></TH>"
        "<TH valign=bottom align=left width=250></TH></TR>";
    return rows;
}

std::string withBreakTags(const std::string& text) {
    constexpr std::string_view kLineEnd = "\r\n";
    std::string tagged;
    std::size_t begin = 0;
    for (std::size_t at = text.find(kLineEnd); at != std::string::npos; at = text.find(kLineEnd, begin)) {
        tagged.append(text, begin, at - begin);
        tagged += "<br>";
        begin = at + kLineEnd.size();
    }
    return tagged.append(text, begin, std::string::npos);
}

}  // namespace mero::report
