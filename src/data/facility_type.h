// SPDX-License-Identifier: MIT
/// The infiltration types, and the shapes of a shaft.
/// The numbers are positions in the window's lists; scripts and project files rely on them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace mero::data {

/// The number is the position in `TypyZasakovani`.
enum class FacilityType : std::uint8_t {
    None = 0,
    Surface = 1,
    Swale = 2,
    SwaleTrench = 3,
    Trench = 4,
    Shaft = 5,
    Tank = 6,
};

inline constexpr std::array kFacilityTypes{
    FacilityType::Surface, FacilityType::Swale, FacilityType::SwaleTrench,
    FacilityType::Trench,  FacilityType::Shaft, FacilityType::Tank,
};

/// Length of an array that is indexed by the type, None included.
inline constexpr std::size_t kTypeSlots = kFacilityTypes.size() + 1;

[[nodiscard]] constexpr std::size_t index(FacilityType type) {
    return static_cast<std::size_t>(type);
}

/// Calls `action` with the type as a constant, as its template argument.
template <typename Action>
constexpr decltype(auto) withType(FacilityType type, Action action) {
    switch (type) {
        case FacilityType::Surface:
            return action.template operator()<FacilityType::Surface>();
        case FacilityType::Swale:
            return action.template operator()<FacilityType::Swale>();
        case FacilityType::SwaleTrench:
            return action.template operator()<FacilityType::SwaleTrench>();
        case FacilityType::Trench:
            return action.template operator()<FacilityType::Trench>();
        case FacilityType::Shaft:
            return action.template operator()<FacilityType::Shaft>();
        case FacilityType::Tank:
            return action.template operator()<FacilityType::Tank>();
        case FacilityType::None:
            break;
    }
    return action.template operator()<FacilityType::None>();
}

/// The number is the position of the option `optSelTypSachty`.
enum class ShaftShape : std::uint8_t { Round = 0, Rectangular = 1 };

}  // namespace mero::data
