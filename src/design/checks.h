// SPDX-License-Identifier: MIT
/// The checks of the calculate command, and the guard of the type choice.
#pragma once

#include <array>
#include <optional>

#include "design/sink.h"
#include "design/verdict.h"

namespace mero::design::checks {

/// The input of the site that is missing; a type is only chosen when none is.
[[nodiscard]] inline std::optional<VerdictId> missingInput(const data::DesignNumbers& numbers) {
    if (!(numbers.RedukovanaPlocha > 0.0F)) {
        return VerdictId::DrainedAreaMissing;
    }
    if (!(numbers.txtSoucFiltrace > 0.0F)) {
        return VerdictId::FiltrationMissing;
    }
    return std::nullopt;
}

/// The checks of a type in the order of their lines.
template <FacilityType type>
inline constexpr std::array<VerdictId, 0> kChecks{};
template <>
inline constexpr std::array kChecks<FacilityType::SwaleTrench>{
    VerdictId::SwaleFiltrationNotPositive, VerdictId::SafetyFactorNotPositive,
    VerdictId::FillPorosityNotPositive, VerdictId::TrenchHeightNotPositive,
    VerdictId::TrenchWidthNotPositive};
template <>
inline constexpr std::array kChecks<FacilityType::Trench>{VerdictId::TrenchHeightNotPositive,
                                                          VerdictId::TrenchWidthNotPositive,
                                                          VerdictId::FillPorosityNotPositive};
template <>
inline constexpr std::array kChecks<FacilityType::Shaft>{
    VerdictId::SafetyFactorNotPositive,  VerdictId::InletDepthNotPositive,
    VerdictId::FilterLayerNotPositive,   VerdictId::InnerDiameterNotPositive,
    VerdictId::OuterDiameterNotPositive, VerdictId::SeepagePathNotPositive,
    VerdictId::SandLayerNotPositive};
template <>
inline constexpr std::array kChecks<FacilityType::Tank>{
    VerdictId::SpecificInfiltrationNotPositive, VerdictId::BottomLengthNotPositive,
    VerdictId::BottomWidthNotPositive, VerdictId::TankDepthNotPositive, VerdictId::SideSlopeNegative};

/// Does the number that the check speaks of fail it? Vertical sides, slope 0, are allowed.
template <VerdictId id>
[[nodiscard]] bool fails(const data::DesignNumbers& numbers) {
    const float value = numbers.*info(id).about[0].stored;
    return id == VerdictId::SideSlopeNegative ? value < 0.0F : value <= 0.0F;
}

/// Checks all inputs of the type and tells the failed ones in one box; the diameters of a shaft are compared
/// when all others passed.
/// @param sand_layer the shaft variant with a sand layer is selected
/// @return true when all passed
template <FacilityType type, Sink S>
[[nodiscard]] bool pass(S& sink, bool sand_layer) {
    const data::DesignNumbers& numbers = sink.numbers();
    std::array<VerdictId, kChecks<type>.size()> failed{};
    std::size_t count = 0;
    const auto check = [&]<VerdictId id>() {
        const bool concerned = id != VerdictId::SandLayerNotPositive || sand_layer;
        if (concerned && fails<id>(numbers)) {
            failed[count++] = id;
        }
    };
    [&]<std::size_t... i>(std::index_sequence<i...>) {
        (check.template operator()<kChecks<type>[i]>(), ...);
    }
    (std::make_index_sequence<kChecks<type>.size()>());
    if (count > 0) {
        sink.tellTogether({failed.data(), count});
        return false;
    }
    if (type == FacilityType::Shaft && numbers.D_a <= numbers.D_i) {
        sink.tell(VerdictId::ShaftOuterDiameterTooSmall);
        return false;
    }
    return true;
}

}  // namespace mero::design::checks
