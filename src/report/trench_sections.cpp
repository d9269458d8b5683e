// SPDX-License-Identifier: MIT
/// Report sections of the combined swale and trench object and of the trench with or without a drain.
#include "report/html_rows.h"
#include "report/type_sections.h"

namespace mero::report {
namespace {

std::string trenchRows(const TrenchValues& trench) {
    return valueRow("Pórovitost výplně rýhy", twoDecimals(trench.fill_porosity), unit::kNone) +
           valueRow("Šířka rýhy (střední)", twoDecimals(trench.width_m), unit::kMetres) +
           valueRow("Výška rýhy", twoDecimals(trench.height_m), unit::kMetres);
}

std::string pipeDiameterRows(const PipeValues& pipes) {
    return valueRow("Vnitřní průměr vsakovací trouby", twoDecimals(pipes.inner_diameter_mm),
                    unit::kMillimetres) +
           valueRow("Vnější průměr vsakovací trouby", twoDecimals(pipes.outer_diameter_mm),
                    unit::kMillimetres);
}

std::string throttledOverflowLine(const PipeValues& pipes) {
    return line({
        optionHeader("Přetok a škrcený odtok"),
        pipeDiameterRows(pipes),
        valueRow("Škrcená odtoková intenzita", twoDecimals(pipes.throttled_outflow_lsha),
                 unit::kLitresPerSecondHectare),
        valueRow("Počet potrubí", twoDecimals(pipes.count), unit::kNone),
    });
}

std::string drainLine(const PipeValues& pipes) {
    return line({
        optionHeader("Drenáž"),
        pipeDiameterRows(pipes),
        valueRow("Počet potrubí", twoDecimals(pipes.count), unit::kNone),
        valueRow("Výstupní plocha", twoDecimals(pipes.outlet_area_cm2_per_m),
                 unit::kSquareCentimetresPerMetre),
        valueRow("Výstupní rychlost", twoDecimals(pipes.outlet_velocity_m_s), unit::kMetresPerSecond),
    });
}

}  // namespace

std::string combinedSection(const ReportData& data) {
    std::string section = line({
        siteInputs(data),
        kResultsHeading,
        kTableStart,
        valueRow("Typ půdy", data.swale.soil_caption, unit::kNone),
        valueRow("Součinitel filtrace průlehu", scientific(data.swale.filtration_m_s),
                 unit::kMetresPerSecond),
        valueRow("Součinitel bezpečnosti", twoDecimals(data.safety_factor), unit::kNone),
        trenchRows(data.trench),
    });
    if (data.pipes.throttled_overflow) {
        section += throttledOverflowLine(data.pipes);
    }
    section += line({
        kRuleRow,
        valueRow("Vsakovací plocha", twoDecimals(data.infiltration_area_m2), unit::kSquareMetres),
        valueRow("Objem akumulace průlehu", twoDecimals(data.storage_volume_m3), unit::kCubicMetresOpen),
        valueRow("Délka vsakovací rýhy", twoDecimals(data.trench.length_m), unit::kMetresOpen),
        valueRow("Šířka průlehu", twoDecimals(data.swale.width_m), unit::kMetresOpen),
        valueRow("Hloubka průlehu (výška vzdutí)", twoDecimals(data.swale.depth_m), unit::kMetresOpen),
        valueRow("Doba prázdnění průlehu", twoDecimals(data.swale.emptying_time_h), unit::kHoursOpen),
        kTableEnd,
    });
    return section;
}

std::string trenchSection(const ReportData& data) {
    std::string section = line({
        siteInputs(data),
        kResultsHeading,
        kTableStart,
        valueRow("Součinitel bezpečnosti", twoDecimals(data.safety_factor), unit::kNone),
        trenchRows(data.trench),
    });
    if (data.pipes.drain) {
        section += drainLine(data.pipes);
    }
    section += line({
        kRuleRow,
        valueRow("Vsakovací plocha", twoDecimals(data.infiltration_area_m2), unit::kSquareMetres),
        // The label says swale although the volume is the trench's: the report's required wording.
        valueRow("Objem akumulace průlehu", twoDecimals(data.storage_volume_m3), unit::kCubicMetresOpen),
        valueRow("Délka vsakovací rýhy", twoDecimals(data.trench.length_m), unit::kMetresOpen),
        kTableEnd,
    });
    return section;
}

}  // namespace mero::report
