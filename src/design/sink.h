// SPDX-License-Identifier: MIT
/// What a design procedure asks of its surroundings: inputs, a place for results and verdicts.
/// The window's sink writes boxes, whose handlers run at once and nested; the sink without a window rounds
/// by arithmetic as the boxes do.
#pragma once

#include <concepts>
#include <type_traits>

#include "calc/critical_rain.h"
#include "design/quantity.h"
#include "design/verdict.h"

namespace mero::design {

/// Names the type whose procedure is meant: `calculateDesign(OfType<FacilityType::Tank>(), sink)`.
template <FacilityType type>
using OfType = std::integral_constant<FacilityType, type>;

template <typename T>
concept Sink = requires(T sink, const T asked, Quantity quantity, float value, VerdictId id,
                        std::span<const VerdictId> ids) {
    /// The stored numbers.
    { sink.numbers() } -> std::same_as<data::DesignNumbers&>;
    /// The design rain table.
    { asked.rains() } -> std::convertible_to<calc::RainTable>;
    { asked.soilOption() } -> std::same_as<int>;  ///< 0, 1, or -1 when none is selected
    { asked.hasSandLayer() } -> std::same_as<bool>;
    { asked.upstreamSettling() } -> std::same_as<bool>;
    { asked.pipesTicked() } -> std::same_as<bool>;  ///< overflow (combined object) or drain (trench)

    /// Stores a result and shows it in its box, if the type has one. Gives back what is stored then: a field
    /// with a change rule stores what it shows.
    { sink.show(quantity, value) } -> std::same_as<float>;
    /// Empties the box; a field with a change rule stores 0.
    sink.clear(quantity);
    sink.tell(id);
    /// Input checks that share one box.
    sink.tellTogether(ids);

    /// Clears the results of the chosen type as choosing it does.
    sink.clearResults();
    /// The sub-panel of the pipes is confirmed; or its check box is unticked, which clears the results.
    sink.closePipes(bool());
    /// Without a design rain no type stays chosen.
    sink.abandonType();
    /// The design came to its end.
    sink.complete();
};

/// The critical rain becomes the picked rain; without one the picked rain stays.
inline void pick(data::DesignNumbers& numbers, const calc::CriticalRain& critical) {
    if (critical.rain) {
        numbers.VybranaDoba = critical.rain->duration_min;
        numbers.VybranaIntenzita = critical.rain->intensity_l_s_ha;
    }
}

}  // namespace mero::design
