// SPDX-License-Identifier: MIT
/// Lists judgements. All numbers are those of the calculation, not those that the fields hold by now.
#include "forms/calc/judgements.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "calc/shaft.h"
#include "calc/swale.h"
#include "calc/tank.h"
#include "design/balances.h"
#include "platform/numbers/number_text.h"

namespace mero::forms {
namespace {

using data::DesignNumbers;
using design::VerdictId;
using numbers::fixed;
using numbers::general;

std::string metres(float value) {
    return fixed(value, 2) + " m";
}

std::string rainText(float duration_min, float intensity_l_s_ha) {
    return general(duration_min) + " min, " + general(intensity_l_s_ha) + " l/(s.ha)";
}

/// Does any rain of the table ask for storage?
bool needsStorage(FacilityType type, const DesignNumbers& at) {
    switch (type) {
        case FacilityType::Trench:
            return at.txtDelkaRyhy > 0.0F;
        case FacilityType::Shaft:
            return at.txtVyskaVzduti > 0.0F;
        default:
            return at.txtObjAkum > 0.0F;
    }
}

/// The swale of a combined object has a critical rain of its own [min]; 0 for other types.
float swaleDuration(FacilityType type, const CalculationState& state) {
    if (type != FacilityType::SwaleTrench) {
        return 0.0F;
    }
    std::array<calc::Rain, calc::kRainRows> rains;
    for (std::size_t k = 0; k < rains.size(); ++k) {
        rains[k] = {state.durations_min[k], state.intensities_l_s_ha[k]};
    }
    const calc::CriticalRain volume = calc::swale::storageVolume(
        design::swaleBalance(state.numbers, state.numbers.txtSoucFiltrPruleh), rains);
    return volume.rain ? volume.rain->duration_min : 0.0F;
}

/// Collects the judgements of one calculation.
class Collector {
  public:
    Collector(const frmCalc& form, FacilityType type)
        : form_(&form), type_(type), last_(&form.record().last(type)) {}

    std::vector<Judgement> collect() {
        if (last_->end == CalculationEnd::None) {
            return {};
        }
        for (const design::Verdict& verdict : last_->verdicts) {
            addVerdict(verdict);
        }
        if (last_->end == CalculationEnd::Running) {
            return std::move(found_);
        }
        if (last_->end == CalculationEnd::Refused || last_->end == CalculationEnd::Failed) {
            notJudged("Výpočet neproběhl celý, návrh není posouzen.");
            return std::move(found_);
        }
        switch (type_) {
            case FacilityType::Surface:
                ofSurface();
                break;
            case FacilityType::Swale:
                ofSwale();
                break;
            case FacilityType::SwaleTrench:
                ofSwaleTrench();
                break;
            case FacilityType::Trench:
                ofTrench();
                break;
            case FacilityType::Shaft:
                ofShaft();
                break;
            case FacilityType::Tank:
                ofTank();
                break;
            case FacilityType::None:
                break;
        }
        longestRain();
        groundwater();
        return std::move(found_);
    }

  private:
    [[nodiscard]] const DesignNumbers& numbers() const { return last_->state.numbers; }
    [[nodiscard]] bool told(VerdictId id) const {
        return std::ranges::find(last_->verdicts, id, &design::Verdict::id) != last_->verdicts.end();
    }

    void holds(std::string text, VerdictId mended_as) {
        found_.push_back({Judged::Holds, std::move(text), mended_as});
    }
    void notJudged(std::string text, const platform::Control* field = nullptr) {
        found_.push_back({.judged = Judged::Not, .text = std::move(text), .field = field});
    }

    void addVerdict(const design::Verdict& verdict) {
        const bool good = info(verdict.id).severity == design::Severity::Information;
        found_.push_back({good ? Judged::Holds : Judged::Fails, design::text(verdict) + compared(verdict.id),
                          counterpart(verdict.id)});
    }

    /// The verdict that the same field would mend, if it did not hold.
    static VerdictId counterpart(VerdictId id) {
        switch (id) {
            case VerdictId::SwaleTrenchAreaSufficient:
                return VerdictId::SwaleTrenchAreaInsufficient;
            case VerdictId::DrainOutflowMet:
                return VerdictId::DrainOutflowNotMet;
            case VerdictId::ShaftFilterSufficient:
                return VerdictId::ShaftFilterTooPermeable;
            case VerdictId::TankVolumeSufficient:
                return VerdictId::TankVolumeTooSmall;
            case VerdictId::TankInfiltrationProven:
                return VerdictId::TankInfiltrationExceeded;
            default:
                return id;
        }
    }

    /// The numbers of verdicts whose texts have none.
    [[nodiscard]] std::string compared(VerdictId id) const {
        if (last_->end == CalculationEnd::Running) {
            return "";  // while a box of the calculation is open, the numbers are still those of the last one
        }
        const DesignNumbers& at = numbers();
        switch (id) {
            case VerdictId::ShaftGroundwaterTooHigh:
                return groundwaterLevels(" < ");
            case VerdictId::ShaftBottomTooClose:
                return bottomDepths(" > ");
            case VerdictId::ShaftFilterSufficient:
                return filters(" ≤ ");
            case VerdictId::ShaftFilterTooPermeable:
                return filters(" > ");
            case VerdictId::TankVolumeSufficient:
                return " ( " + fixed(at.txtVypObjNadrz, 2) + " ≥ " + fixed(at.txtObjAkum, 2) + " m³ )";
            case VerdictId::TankVolumeTooSmall:
                return " ( " + fixed(at.txtVypObjNadrz, 2) + " < " + fixed(at.txtObjAkum, 2) + " m³ )";
            case VerdictId::TankInfiltrationProven:
                return " ( " + tankFlows(" ≥ ") + " )";
            case VerdictId::TankInfiltrationExceeded:
                return " ( " + tankFlows(" < ") + " )";
            default:
                return "";
        }
    }

    /// The level of the groundwater, whose sign does not count, and the one that the shaft requires.
    [[nodiscard]] std::string groundwaterLevels(const std::string& sign) const {
        return " ( " + metres(std::fabs(numbers().txtHPV)) + sign + metres(numbers().txtPotrHloubkaZahl) +
               " )";
    }
    [[nodiscard]] std::string bottomDepths(const std::string& sign) const {
        return " ( " + fixed(numbers().txtHloubkaSachty, 2) + " + " + general(calc::shaft::kBottomClearance) +
               sign + metres(numbers().txtPotrHloubkaZahl) + " )";
    }
    [[nodiscard]] std::string filters(const std::string& sign) const {
        return " ( " + numbers::scientific(numbers().txtSoucFiltrPruleh, 1) + sign +
               numbers::scientific(calc::shaft::kMostPermeableFilter, 1) + " m/s )";
    }

    /// Mean and assumed infiltration flow, in l/s: in m3/s small ones would show as 0.
    [[nodiscard]] std::string tankFlows(const std::string& sign) const {
        constexpr double kLitres = 1000.0;
        const DesignNumbers& at = numbers();
        const calc::tank::Shape shape{.bottom_length_m = at.txtDelkaDnaNadrz,
                                      .bottom_width_m = at.txtSirkaDnaNadrz,
                                      .top_length_m = at.tank_top_length_m,
                                      .top_width_m = at.tank_top_width_m,
                                      .depth_m = at.txtHloubkaNadrz};
        const double filtration_m_s =
            calc::tank::effectiveFiltration(at.txtSoucFiltrace, last_->state.upstream_settling);
        return fixed(calc::tank::meanInfiltrationFlow(shape, filtration_m_s) * kLitres, 2) + sign +
               fixed(static_cast<double>(at.txtVsakTok) * kLitres, 2) + " l/s";
    }

    void ofSurface() {
        if (numbers().txtVsakPlocha < 0.0F) {
            found_.push_back({.judged = Judged::Fails,
                              .text = "Vsakovací plocha vyšla záporná: podloží vsakuje méně, než na plochu "
                                      "při tomto dešti naprší.",
                              .mended_as = VerdictId::FiltrationMissing});
        }
        notJudged("Ostatní deště tabulky: plošné vsakování počítá jen s vybraným.", &form_->cmdEdit[0]);
    }
    void ofSwale() {
        notJudged("Výška vzdutí " + metres(numbers().txtVyskaVzduti) + ": mez stanoví projektant.");
        notJudged("Doba prázdnění " + fixed(numbers().txtDobaPrazdneni, 1) + " h: mez stanoví projektant.");
    }
    void ofSwaleTrench() {
        if (!(numbers().txtDelkaRyhy > 0.0F)) {
            notJudged("Vsakovací plocha rýhy: žádný déšť rýhu nevyžaduje.");
        }
        notJudged("Hloubka průlehu " + metres(numbers().txtHloubkaPrulehu) + " a doba prázdnění " +
                  fixed(numbers().txtDobaPrazdneni, 1) + " h: meze stanoví projektant.");
    }
    void ofTrench() {
        if (!last_->state.pipes_ticked) {
            notJudged("Výstupní odtok: rýha je bez drenáže.", &form_->chkSelPretok[FacilityType::Trench]);
        }
    }
    void ofShaft() {
        const bool too_high = told(VerdictId::ShaftGroundwaterTooHigh);
        const bool too_close = told(VerdictId::ShaftBottomTooClose);
        if (numbers().txtHPV != 0.0F && !too_high) {
            holds("Hladina podzemní vody leží dost hluboko." + groundwaterLevels(" ≥ "),
                  VerdictId::ShaftGroundwaterTooHigh);
        }
        if (too_high) {
            notJudged("Dno šachty: výpočet skončil předchozím posouzením.");
        } else if (!too_close) {
            holds("Dno šachty je dost vysoko." + bottomDepths(" ≤ "), VerdictId::ShaftBottomTooClose);
        }
        if (too_high || too_close) {
            notJudged("Propustnost filtru: výpočet skončil předchozím posouzením.");
        }
    }
    void ofTank() {
        if (told(VerdictId::TankVolumeTooSmall)) {
            notJudged("Vsakovací tok: výpočet skončil předchozím posouzením.");
        }
        notJudged("Opakované plnění: nádrž je nutno ověřit dlouhodobou simulací.");
    }

    /// Rains that are longer than the table may ask for more, where its longest one governs.
    void longestRain() {
        if (type_ == FacilityType::Surface) {
            return;
        }
        float longest_min = 0;
        for (std::size_t k = 0; k < last_->state.durations_min.size(); ++k) {
            if (last_->state.intensities_l_s_ha[k] > 0.0F) {
                longest_min = std::max(longest_min, last_->state.durations_min[k]);
            }
        }
        if (needsStorage(type_, numbers()) &&
            (numbers().VybranaDoba == longest_min || swaleDuration(type_, last_->state) == longest_min)) {
            notJudged("Delší deště: rozhoduje nejdelší déšť tabulky (" + general(longest_min) +
                          " min), delší může být horší.",
                      &form_->cmdEdit[0]);
        }
    }
    void groundwater() {
        const bool given = form_->values().txtHPV != 0.0F;
        if (!given) {
            notJudged("Hladina podzemní vody: není zadána.", &form_->txtHPV);
        } else if (type_ != FacilityType::Shaft) {
            notJudged("Hladina podzemní vody: program ji posuzuje jen u šachty.", &form_->txtHPV);
        }
    }

    const frmCalc* form_;
    FacilityType type_;
    const Calculation* last_;
    std::vector<Judgement> found_;
};

std::string rainThatCounted(const frmCalc& form, FacilityType type) {
    const Calculation& last = form.record().last(type);
    if (last.end != CalculationEnd::Done) {
        return "";
    }
    const DesignNumbers& counted = last.state.numbers;
    if (type != FacilityType::Surface && !needsStorage(type, counted)) {
        return "Žádný déšť tabulky nevyžaduje akumulaci.";
    }
    std::string text = "Počítáno s deštěm " + rainText(counted.VybranaDoba, counted.VybranaIntenzita);
    if (const float swale_min = swaleDuration(type, last.state);
        swale_min > 0.0F && swale_min != counted.VybranaDoba) {
        text += " (průleh s deštěm " + general(swale_min) + " min)";
    }
    const std::string& picked_min = form.txtSelDTrvDeste.text();
    if (picked_min.empty()) {
        return text + ", žádný nebyl vybrán.";
    }
    if (picked_min != general(counted.VybranaDoba) ||
        form.txtSelIntDeste.text() != general(counted.VybranaIntenzita)) {
        text += ", vybrán byl " + picked_min + " min";
    }
    return text + ".";
}

}  // namespace

std::vector<Judgement> judgements(const frmCalc& form, FacilityType type) {
    return Collector(form, type).collect();
}

std::string countedRain(const frmCalc& form, FacilityType type) {
    const std::string text = rainThatCounted(form, type);
    const bool demonstration = !text.empty() && !form.intDialog.demonstrationNote().empty();
    return demonstration ? text + " Hodnoty deště jsou ukázkové." : text;
}

std::string line(const Judgement& judgement) {
    switch (judgement.judged) {
        case Judged::Holds:
            return "✓ " + judgement.text;
        case Judged::Fails:
            return "✗ " + judgement.text;
        case Judged::Not:
            break;
    }
    return "– Neposouzeno. " + judgement.text;
}

}  // namespace mero::forms
