// SPDX-License-Identifier: MIT
/// Infiltration shaft: the storage balance over all rains, then the design with its groundwater checks.
#pragma once

#include "design/balances.h"
#include "design/sink.h"
#include "platform/numbers/checked.h"

namespace mero::design {

/// Water level, infiltration area, depth of the shaft and of the groundwater that it needs.
/// @throws RuntimeError DivisionByZero when the shaft has no section, Overflow
template <Sink S>
void calculateArea(OfType<FacilityType::Shaft> /*type*/, S& sink) {
    data::DesignNumbers& numbers = sink.numbers();
    const auto rains = sink.rains();
    const calc::shaft::Balance balance = shaftBalance(numbers);
    const calc::CriticalRain level = calc::shaft::waterLevel(balance, rains);
    pick(numbers, level);
    const float level_m = sink.show(Quantity::WaterDepth, numbers::toSingle(level.maximum));
    sink.show(Quantity::InfiltrationArea, calc::shaft::infiltrationArea(balance.shafts, level_m));
    sink.show(Quantity::ShaftDepth,
              calc::shaft::depth(level_m, {.inlet_depth_m = numbers.txtNezamrzHlPritok,
                                           .filter_layer_m = numbers.txtVyskaFiltrVrstvy,
                                           .sand_layer_m = numbers.txtVyskaPiskVrstvy,
                                           .has_sand_layer = sink.hasSandLayer()}));
    sink.show(Quantity::RequiredGroundwaterDepth,
              calc::shaft::requiredEmbedding(numbers.txtNezamrzHlPritok, level_m, numbers.txtMinPrusakDraha));
}

/// Volume and filter, after calculateArea(). A groundwater check that fails ends it.
/// @throws RuntimeError DivisionByZero when the shaft has no inner diameter, Overflow
template <Sink S>
void calculateDesign(OfType<FacilityType::Shaft> /*type*/, S& sink) {
    data::DesignNumbers& numbers = sink.numbers();
    const calc::shaft::Balance balance = shaftBalance(numbers);
    sink.show(Quantity::StorageVolume,
              calc::shaft::storageVolume(balance, numbers.txtVsakPlocha,
                                         {numbers.VybranaDoba, numbers.VybranaIntenzita}));
    const float permeability_m_s =
        sink.show(Quantity::RequiredFilterPermeability,
                  calc::shaft::requiredFilterPermeability(numbers.txtVyskaVzduti, balance.shafts,
                                                          numbers.txtSoucFiltrace));

    if (calc::shaft::judgeGroundwater(numbers.txtHPV, numbers.txtPotrHloubkaZahl) ==
        calc::shaft::GroundwaterVerdict::TooHigh) {
        sink.tell(VerdictId::ShaftGroundwaterTooHigh);
        return;
    }
    if (calc::shaft::judgeBottom(numbers.txtHloubkaSachty, numbers.txtPotrHloubkaZahl) ==
        calc::shaft::BottomVerdict::TooClose) {
        sink.tell(VerdictId::ShaftBottomTooClose);
        return;
    }
    const bool sufficient =
        calc::shaft::judgeFilter(permeability_m_s) == calc::shaft::FilterVerdict::Sufficient;
    sink.tell(sufficient ? VerdictId::ShaftFilterSufficient : VerdictId::ShaftFilterTooPermeable);
    sink.complete();
}

}  // namespace mero::design
