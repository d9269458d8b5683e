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

std::string optionHeader(std::string_view caption) {
    std::string rows = "<TR><TD>-</TD><TD><TD></TD></TR><TR><TD valign=bottom width=200><i><u>";
    rows += caption;
    rows +=
        "</u></i></TD><TH valign=bottom align=right width=200></TH>"
        "<TH valign=bottom align=left width=250></TH></TR>";
    return rows;
}

}  // namespace mero::report
