// SPDX-License-Identifier: MIT
/// Collects the report's data: the stored numbers and texts, the options of the panels.
#include "forms/calc/report_data.h"

#include "forms/calc/frm_calc.h"

namespace mero::forms {
namespace {

std::vector<report::PartialArea> partialAreasOf(const data::DrainedAreaValues& values) {
    std::vector<report::PartialArea> areas;
    const int spare = values.DilciPlocha.length();
    for (int i = 1; i < spare; ++i) {
        areas.push_back({values.DilciPlocha(i), values.OdtokovySoucinitel(i), values.TypPovrchu(i)});
    }
    return areas;
}

report::Options optionsOf(const frmCalc& window) {
    const auto& soils =
        window.SelectedType == FacilityType::SwaleTrench ? window.optSelTypPudy3 : window.optSelTypPudy2;
    return {.soil_caption = soils[window.SoilVariant].text(),
            .overflow = window.chkSelPretok[FacilityType::SwaleTrench].checked(),
            .drain = window.chkSelPretok[FacilityType::Trench].checked(),
            .shape = window.ShaftShape,
            .sand_layer = window.SoilVariant == 1,
            .ring = window.cboTypSachty.text(),
            .upstream_settling = window.chkPredUsaz.checked()};
}

}  // namespace

report::ReportData reportData(const frmCalc& window, const platform::DateTime& now) {
    const data::modPublicVariables& values = window.values();
    return {.texts = static_cast<const data::ProjectTexts&>(values),
            .type = window.SelectedType,
            .type_name = values.TypyZasakovani[index(window.SelectedType)],
            .rain = {.station = values.VybranaStanice,
                     .periodicity = values.VybranaPeriodicita,
                     .rows = window.intDialog.rains()},
            .partial_areas = partialAreasOf(values),
            .numbers = static_cast<const data::DesignNumbers&>(values),
            .options = optionsOf(window),
            .date = platform::dateText(now),
            .time = platform::timeText(now)};
}

}  // namespace mero::forms
