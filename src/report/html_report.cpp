// SPDX-License-Identifier: MIT
/// The frame of the report: project table, description, design rain, drained areas, date and time.
#include "report/html_report.h"

#include <cstddef>

#include "platform/numbers/number_text.h"
#include "report/html_rows.h"
#include "report/type_sections.h"

namespace mero::report {
namespace {

std::string projectTable(const ReportData& data) {
    constexpr std::string_view kEndOfRow = "</TH></TR>";
    return line({
        "<html><body><div style=position:relative;width:650px;height:350px>",
        "<table border=0>",
        "<TR><TD width=200>Název projektu</TD><TH align=left width=450>",
        data.project_name,
        "</TH><TD rowspan=4 width=210><img border=0 src=Webs\\Desc_soubory\\logo.gif></TD></TR>",
        "<TR><TD width=200>Projektant</TD><TH align=left width=450>",
        data.designer,
        kEndOfRow,
        "<TR><TD width=200>Investor</TD><TH align=left width=450>",
        data.investor,
        kEndOfRow,
        "<TR><TD width=200>Místo akce</TD><TH align=left width=450>",
        data.site,
        kEndOfRow,
        "<TR><TD width=200>Typ vsakování</TD><TH align=left width=450>",
        data.infiltration_type_name,
        kEndOfRow,
        kTableEnd,
    });
}

std::string descriptionLine(const ReportData& data) {
    if (data.description.empty()) {
        return {};
    }
    return line({"<br><u>Detailní popis</u><br><align=justify>", data.description, "</p>"});
}

/// The row of the chosen duration has header cells, which a browser shows bold.
std::string rainRow(float duration_min, float intensity_lsha, bool chosen) {
    const std::string_view opening = chosen ? "<th width=150 align=center>" : "<td width=150 align=center>";
    const std::string_view closing = chosen ? "</th>" : "</td>";
    return line({"<tr>", opening, numbers::general(duration_min), closing, opening,
                 numbers::general(intensity_lsha), closing, "</tr>"});
}

std::string rainTable(const RainValues& rain) {
    std::string table = line({
        "<hr><u>Návrhový déšť</u> dešťoměrná stanice - <b>",
        rain.station,
        "</b>, periodicita - <b>",
        rain.periodicity,
        "</b><p><table border=1 style=border-collapse:collapse>",
        "<tr><th width=150 align=center>Doba trvání deště (min)</th>",
        "<th width=150 align=center>Intenzita deště (l/s.ha)</th></tr>",
    });
    for (std::size_t k = 0; k < rain.durations_min.size(); ++k) {
        const float duration_min = rain.durations_min[k];
        table += rainRow(duration_min, rain.intensities_lsha[k], duration_min == rain.chosen_duration_min);
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
    switch (data.infiltration_type) {
        case 1:
            return surfaceSection(data);
        case 2:
            return swaleSection(data);
        case 3:
            return combinedSection(data);
        case 4:
            return trenchSection(data);
        case 5:
            return shaftSection(data);
        case 6:
            return tankSection(data);
        default:
            return {};
    }
}

std::string footLine(const ReportData& data) {
    return line({"<hr><p><font size=2>Datum a čas výpočtu:  ", data.date, ",  ", data.time, "</font></p>",
                 "</div></body><html>"});
}

}  // namespace

std::string htmlReport(const ReportData& data) {
    return projectTable(data) + descriptionLine(data) + rainTable(data.rain) + areaTable(data) +
           typeSection(data) + footLine(data);
}

}  // namespace mero::report
