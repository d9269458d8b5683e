// SPDX-License-Identifier: MIT
/// Compares texts of fields with what is stored, and stored values with the table of plausible ones.
#include "forms/calc/remarks.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "calc/drain.h"
#include "design/input_guide.h"
#include "platform/numbers/number_text.h"

namespace mero::forms {
namespace {

using data::DesignNumbers;
using design::Input;
using numbers::general;
using platform::TextBox;

/// The number that the field shows; an empty one shows 0. Nothing while a number is being typed.
std::optional<float> shownNumber(const TextBox& box) {
    if (box.text().empty()) {
        return 0.0F;
    }
    try {
        return numbers::strictSingle(box.text());
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

std::string withUnit(float value, Input input) {
    const std::string unit = info(input).unit;
    // "1 : n" and the like are no units to put behind a number.
    return general(value) + (unit.empty() || unit.find(':') != std::string::npos ? "" : " " + unit);
}

/// "1e-7", as the guide writes its usual values; the general text of a number is "1E-07".
std::string limit(float value) {
    std::string text = general(value);
    const std::size_t exponent = text.find("E-0");
    return exponent == std::string::npos ? text : text.replace(exponent, 3, "e-");
}

std::string plausibleRange(Input input) {
    const design::InputGuide& row = design::guide(input);
    const std::string usual = row.usual;
    return "Neobvyklá hodnota: čeká se " + limit(row.least) + " až " + limit(row.most) +
           (usual.empty() ? "." : ", obvykle " + usual + ".");
}

/// What counts, where the field shows something else.
std::string whatCounts(const TextBox& box, float stored, Input input) {
    if (box.text().empty()) {
        return "Prázdné pole: počítá se s " + withUnit(stored, input) + ".";
    }
    const bool shared = std::string_view(info(input).box).find('#') != std::string_view::npos;
    const char* reason = shared ? ": pole sdílí hodnotu s jiným panelem. Zapište ji znovu."
                         : input == Input::Filtration ? ": okno zemin bylo zavřeno bez „OK“."
                                                      : ". Zapište hodnotu znovu.";
    return "Počítá se s " + withUnit(stored, input) + reason;
}

class Remarks {
  public:
    void number(const TextBox& box, Input input, float stored) {
        if (!box.enabled() || box.greyed() || has(box)) {
            return;
        }
        const std::optional<float> shown = shownNumber(box);
        if (!shown) {
            return;
        }
        if (*shown != stored) {
            add(box, whatCounts(box, stored, input));
        } else if (design::isImplausible(input, stored)) {
            add(box, plausibleRange(input));
        }
    }
    void add(const platform::Control& beside, std::string text, bool caution = true) {
        found_.push_back({&beside, std::move(text), caution});
    }
    std::vector<Remark> take() { return std::move(found_); }

  private:
    /// Two inputs may share one box.
    [[nodiscard]] bool has(const platform::Control& control) const {
        return std::ranges::find(found_, &control, &Remark::beside) != found_.end();
    }

    std::vector<Remark> found_;
};

/// What the confirmation of the sub-panel would store now differs from what is stored.
bool pipesChanged(const DesignNumbers& numbers, FacilityType type) {
    try {
        const float coefficient =
            calc::drain::storageCoefficient({.inner_diameter_mm = numbers.txtPrumTroubVnit,
                                             .outer_diameter_mm = numbers.txtPrumTroubVnej,
                                             .count = numbers.txtPocetPotrubi},
                                            numbers.txtPorVyplne, numbers.txtSirkaRyhy, numbers.txtVyskaRyhy);
        const bool same_outflow =
            type != FacilityType::SwaleTrench ||
            calc::drain::throttledOutflow(numbers.RedukovanaPlocha, numbers.txtSpecDrenOdtok) == numbers.Q_dr;
        return coefficient != numbers.s_RR || !same_outflow;
    } catch (const RuntimeError&) {
        return true;
    }
}

void addPipes(Remarks& remarks, const frmCalc& form, FacilityType type) {
    const platform::CheckBox& box = form.chkSelPretok[type];
    if (!box.checked()) {
        return;
    }
    const std::string edit = form.cmdEdit[type].text();
    if (form.picPretokSkrOdtok[type].visible()) {
        remarks.add(box, "Panel není potvrzen: doplňte jej a stiskněte „OK“.");
    } else if (pipesChanged(form.values(), type)) {
        remarks.add(box, "Vstupy se od potvrzení panelu změnily: stiskněte „" + edit + "“ a „OK“.");
    }
}

std::string pickedOnFirstTab(const frmCalc& form) {
    return form.txtSelDTrvDeste.text() + " min";
}

/// Does a calculation without a critical rain of its own go on with another rain than the first tab shows?
bool otherRainCounts(const frmCalc& form) {
    const DesignNumbers& values = form.values();
    return values.VybranaIntenzita > 0.0F &&
           (form.txtSelIntDeste.text() != general(values.VybranaIntenzita) ||
            form.txtSelDTrvDeste.text() != general(values.VybranaDoba));
}

void addRain(Remarks& remarks, const frmCalc& form) {
    const std::string summary = rainSummary(form);
    if (!summary.empty()) {
        remarks.add(form.txtSelIntDeste, summary, false);
    }
    if (otherRainCounts(form)) {
        const DesignNumbers& values = form.values();
        remarks.add(form.txtSelDTrvDeste,
                    "Plošné vsakování by počítalo s deštěm " + general(values.VybranaDoba) + " min, " +
                        general(values.VybranaIntenzita) +
                        " l/(s.ha): vybraný déšť nahradil rozhodující déšť jiného typu, nebo výběr bez „OK“.",
                    false);
    }
}

void addArea(Remarks& remarks, const frmCalc& form) {
    const data::modPublicVariables& values = form.values();
    const float area_m2 = values.RedukovanaPlocha;
    const std::string stored = area_m2 == 0.0F ? "" : general(area_m2);
    const auto& coefficients = values.OdtokovySoucinitel.items();
    // The last position is a spare slot.
    const bool above_one =
        !coefficients.empty() && std::any_of(coefficients.begin(), coefficients.end() - 1,
                                             [](float each) { return each > design::kMostRunoff; });
    if (form.txtOdvodNepPlocha.text() != stored) {
        remarks.add(form.txtOdvodNepPlocha,
                    "Počítá se s " + general(area_m2) + " m²: okno ploch bylo zavřeno bez „OK“.");
    } else if (above_one) {
        remarks.add(form.txtOdvodNepPlocha, "Některá plocha má součinitel odtoku větší než 1.");
    }
}

}  // namespace

std::string rainSummary(const frmCalc& form) {
    const data::modPublicVariables& values = form.values();
    const bool any = std::ranges::any_of(values.IntenzitaDeste, [](float each) { return each > 0.0F; });
    if (!any) {
        return values.VybranaStanice.empty() ? "" : "Intenzity deště nejsou zadány.";
    }
    const bool own = values.VybranaStanice.empty() || values.VybranaStanice == values.StaniceNazev.front();
    std::string text = own ? "Vlastní hodnoty" : values.VybranaStanice;
    if (!values.VybranaPeriodicita.empty()) {
        text += ", p = " + values.VybranaPeriodicita;
    }
    text += form.txtSelDTrvDeste.text().empty() ? ", návrhový déšť nevybrán"
                                                : ", návrhový déšť " + pickedOnFirstTab(form);
    return form.intDialog.demonstrationNote().empty() ? text : text + ", ukázkové hodnoty";
}

std::vector<Remark> siteRemarks(const frmCalc& form) {
    const DesignNumbers& values = form.values();
    Remarks remarks;
    addArea(remarks, form);
    addRain(remarks, form);
    remarks.number(form.txtSoucFiltrace, Input::Filtration, values.txtSoucFiltrace);
    if (values.txtHPV == 0.0F) {
        remarks.add(form.txtHPV, "Nezadána, neposoudí se.", false);
    } else {
        remarks.number(form.txtHPV, Input::Groundwater, values.txtHPV);
    }
    return remarks.take();
}

std::vector<Remark> panelRemarks(const frmCalc& form, FacilityType type) {
    const DesignNumbers& values = form.values();
    Remarks remarks;
    for (const design::PanelInput& row : design::panelInputs(type)) {
        const design::InputInfo& input = info(row.input);
        if (row.input == Input::ShaftCount) {
            remarks.number(form.txtSachtyCount, row.input, values.txtSachtyCount);
        } else if (input.stored != nullptr) {
            remarks.number(form.textBox(design::controlName(input.box, type)), row.input,
                           values.*input.stored);
        }
    }
    if (type == FacilityType::SwaleTrench || type == FacilityType::Trench) {
        addPipes(remarks, form, type);
    }
    return remarks.take();
}

}  // namespace mero::forms
