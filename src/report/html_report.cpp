// SPDX-License-Identifier: MIT
/// The frame of the report: project table, description, design rain, drained areas, date and time.
#include "report/html_report.h"

#include <cstddef>

#include "design/text_input.h"
#include "platform/numbers/number_text.h"
#include "report/html_rows.h"
#include "report/type_sections.h"

namespace mero::report {
namespace {

using data::FacilityType;
using design::TextInput;

/// A row of the table of the project, without its end.
std::string projectRow(std::string_view label, std::string_view value) {
    std::string row = "<TR><TD width=200>";
    row += label;
    row += "</TD><TH align=left width=450>";
    row += value;
    return row += "</TH>";
}

std::string textRow(const ReportData& data, TextInput text) {
    return projectRow(design::reportLabel(text), data.texts.*design::info(text).stored);
}

std::string projectTable(const ReportData& data) {
    constexpr std::string_view kEndOfRow = "</TR>";
    return line({
        "<html><body><div style=position:relative;width:650px;height:350px>",
        "<table border=0>",
        textRow(data, TextInput::ProjectName),
        "<TD rowspan=4 width=210><img border=0 src=Webs\\Desc_soubory\\logo.gif></TD></TR>",
        textRow(data, TextInput::Designer),
        kEndOfRow,
        textRow(data, TextInput::Investor),
        kEndOfRow,
        textRow(data, TextInput::Place),
        kEndOfRow,
        projectRow(design::reportLabel(design::Input::Type), data.type_name),
        kEndOfRow,
        kTableEnd,
    });
}

std::string descriptionLine(const ReportData& data) {
    if (data.texts.txtDetails.empty()) {
        return {};
    }
    return line({"<br><u>", design::reportLabel(TextInput::Description), "</u><br><align=justify>",
                 data.texts.txtDetails, "</p>"});
}

/// The row of the chosen duration has header cells, which a browser shows bold.
std::string rainRow(float duration_min, float intensity_lsha, bool chosen) {
    const std::string_view opening = chosen ? "<th width=150 align=center>" : "<td width=150 align=center>";
    const std::string_view closing = chosen ? "</th>" : "</td>";
    return line({"<tr>", opening, numbers::general(duration_min), closing, opening,
                 numbers::general(intensity_lsha), closing, "</tr>"});
}

std::string rainTable(const RainValues& rain, float chosen_duration_min) {
    std::string table = line({
        "<hr><u>Návrhový déšť</u> dešťoměrná stanice - <b>",
        rain.station,
        "</b>, periodicita - <b>",
        rain.periodicity,
        "</b><p><table border=1 style=border-collapse:collapse>",
        "<tr><th width=150 align=center>Doba trvání deště (min)</th>",
        "<th width=150 align=center>Intenzita deště (l/s.ha)</th></tr>",
    });
    for (const calc::Rain& row : rain.rows) {
        table += rainRow(row.duration_min, row.intensity_l_s_ha, row.duration_min == chosen_duration_min);
    }
    return table + line({"</table><hr>"});
}

std::string areaTable(const ReportData& data) {
    std::string table = line({
        "<u>Odvodňovaná plocha</u><p><table border=1 style=border-collapse:collapse>",
        "<tr><th width=150 align=center>Dílčí plocha (m<sup>2</sup>)</th>",
        "<th width=200 align=center>Souč. povrch. odtoku</th>",
        "<th width=250 align=center>Dílčí typ povrchu</th></tr>",
    });
    for (const PartialArea& part : data.partial_areas) {
        table += line({"<tr><td width=150 align=center>", numbers::general(part.area_m2),
                       "</td><td width=200 align=center>", numbers::general(part.runoff_coefficient),
                       "</td><td width=250 align=left>", part.surface, "</td></tr>"});
    }
    return table + line({"</table><br>"});
}

std::string typeSection(const ReportData& data) {
    switch (data.type) {
        case FacilityType::None:
            break;
        case FacilityType::Surface:
            return surfaceSection(data);
        case FacilityType::Swale:
            return swaleSection(data);
        case FacilityType::SwaleTrench:
            return combinedSection(data);
        case FacilityType::Trench:
            return trenchSection(data);
        case FacilityType::Shaft:
            return shaftSection(data);
        case FacilityType::Tank:
            return tankSection(data);
    }
    return {};
}

std::string footLine(const ReportData& data) {
    return line({"<hr><p><font size=2>Datum a čas výpočtu:  ", data.date, ",  ", data.time, "</font></p>",
                 "</div></body><html>"});
}

}  // namespace

std::string htmlReport(const ReportData& data) {
    return projectTable(data) + descriptionLine(data) + rainTable(data.rain, data.numbers.VybranaDoba) +
           areaTable(data) + typeSection(data) + footLine(data);
}

}  // namespace mero::report
