// SPDX-License-Identifier: MIT
/// Compares what calculations read. Which inputs a type reads follows from the inputs of its panel.
#include "forms/calc/calculation_record.h"

#include <algorithm>

#include "design/input.h"
#include "design/quantity.h"

namespace mero::forms {
namespace {

using data::DesignNumbers;
using design::Input;

bool hasPipes(FacilityType type) {
    return type == FacilityType::SwaleTrench || type == FacilityType::Trench;
}

bool readsRainTable(FacilityType type) {
    return type != FacilityType::Surface;
}

/// Without a rain that needs any storage the formulas go on with the rain that was picked before.
bool readsPickedRain(FacilityType type, const DesignNumbers& numbers) {
    switch (type) {
        case FacilityType::Surface:
            return true;
        case FacilityType::Trench:
            return numbers.txtDelkaRyhy == 0.0F;
        case FacilityType::Shaft:
            return numbers.txtVyskaVzduti == 0.0F;
        case FacilityType::None:
        case FacilityType::Swale:
        case FacilityType::SwaleTrench:
        case FacilityType::Tank:
            break;
    }
    return false;
}

bool samePickedRain(const DesignNumbers& a, const DesignNumbers& b) {
    return a.VybranaDoba == b.VybranaDoba && a.VybranaIntenzita == b.VybranaIntenzita;
}

/// An input of the panel.
bool sameInput(FacilityType type, Input input, const CalculationState& a, const CalculationState& b) {
    switch (input) {
        case Input::Soil:
            return a.soil_option == b.soil_option;
        case Input::Shape:
            return a.shaft_shape == b.shaft_shape;
        case Input::Variant:
            return a.sand_layer == b.sand_layer;
        case Input::ShaftCount:
            return a.numbers.txtSachtyCount == b.numbers.txtSachtyCount;
        case Input::UpstreamSettling:
            return a.upstream_settling == b.upstream_settling;
        case Input::SandLayer:
            if (!a.sand_layer) {
                return true;
            }
            break;
        case Input::SafetyFactor:
            if (type == FacilityType::Surface) {
                return true;
            }
            break;
        default:
            if (design::isOfSubPanel(input) && !a.pipes_ticked) {
                return true;
            }
    }
    const auto stored = info(input).stored;
    return stored == nullptr || a.numbers.*stored == b.numbers.*stored;
}

/// What follows from inputs when they are entered or confirmed, and is read by the calculation.
bool sameDerived(FacilityType type, const CalculationState& a, const CalculationState& b) {
    if (type == FacilityType::Shaft) {
        return a.numbers.D_i == b.numbers.D_i && a.numbers.D_a == b.numbers.D_a;
    }
    if (!hasPipes(type)) {
        return true;
    }
    return a.pipes_ticked == b.pipes_ticked &&
           (!a.pipes_ticked || (a.numbers.s_RR == b.numbers.s_RR && a.numbers.Q_dr == b.numbers.Q_dr));
}

bool sameSite(FacilityType type, const CalculationState& a, const CalculationState& b) {
    const bool same_rain = (!readsRainTable(type) || (a.durations_min == b.durations_min &&
                                                      a.intensities_l_s_ha == b.intensities_l_s_ha)) &&
                           (!readsPickedRain(type, a.numbers) || samePickedRain(a.numbers, b.numbers));
    const bool same_groundwater = type != FacilityType::Shaft || a.numbers.txtHPV == b.numbers.txtHPV;
    return same_rain && same_groundwater && a.numbers.RedukovanaPlocha == b.numbers.RedukovanaPlocha &&
           a.numbers.txtSoucFiltrace == b.numbers.txtSoucFiltrace;
}

}  // namespace

bool sameInputs(FacilityType type, const CalculationState& a, const CalculationState& b) {
    return sameSite(type, a, b) && sameDerived(type, a, b) &&
           std::ranges::all_of(design::panelInputs(type), [&](const design::PanelInput& row) {
               return sameInput(type, row.input, a, b);
           });
}

bool sameResults(FacilityType type, const CalculationState& a, const CalculationState& b) {
    return samePickedRain(a.numbers, b.numbers) &&
           std::ranges::all_of(design::resultBoxes(type), [&](const design::ResultBox& row) {
               const auto stored = info(row.quantity).stored;
               return a.numbers.*stored == b.numbers.*stored;
           });
}

void CalculationRecord::restore(const Calculations& calculations) {
    last_ = calculations;
    if (ended) {
        ended();
    }
}

void CalculationRecord::begin(FacilityType type) {
    Calculation& calculation = last_[data::index(type)];
    calculation.end = CalculationEnd::Running;
    calculation.verdicts.clear();
}

void CalculationRecord::tell(FacilityType type, const design::Verdict& verdict) {
    Calculation& calculation = last_[data::index(type)];
    if (calculation.end != CalculationEnd::Running) {
        begin(type);
    }
    calculation.verdicts.push_back(verdict);
}

void CalculationRecord::end(FacilityType type, CalculationEnd how, const CalculationState& state) {
    Calculation& calculation = last_[data::index(type)];
    if (calculation.end != CalculationEnd::Running) {
        calculation.verdicts.clear();
    }
    calculation.end = how;
    calculation.state = state;
    if (ended) {
        ended();
    }
}

}  // namespace mero::forms
