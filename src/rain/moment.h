// SPDX-License-Identifier: MIT
/// Moments of measured values as files write them.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace mero::rain {

/// Minutes since the beginning of 1970.
using Minute = std::int32_t;

struct Moment {
    Minute minute = 0;      ///< in UTC when the zone is known, else as the clock showed
    bool has_zone = false;  ///< "Z" or an offset was given
};

/// "2024-05-01T12:10:00Z", "2024-05-01 12:10+02:00", "2024/05/01 12:10", "1.5.2024 12:10", "202405011210".
/// Seconds must be zero; 24:00 is the next midnight. None for everything else, "03/04/2024" too, of which
/// nobody knows whether it is in March or in April.
[[nodiscard]] std::optional<Moment> readMoment(std::string_view text);

[[nodiscard]] int yearOf(Minute minute);
/// The first minute of a year.
[[nodiscard]] Minute beginOfYear(int year);
/// Does the minute lie in the hour that a clock with Central European summer time shows twice (October) or
/// not at all (March)?
[[nodiscard]] bool isRepeatedHour(Minute local);
[[nodiscard]] bool isSkippedHour(Minute local);

}  // namespace mero::rain
