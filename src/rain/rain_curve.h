// SPDX-License-Identifier: MIT
/// The intensities of one return period over the durations, and values between the given ones.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace mero::rain {

struct CurvePoint {
    double duration_min = 0.0;
    double intensity_l_s_ha = 0.0;

    bool operator==(const CurvePoint&) const = default;
};

/// The intensity [l/(s.ha)] of a depth [mm] that falls in a duration [min]: one millimetre on a hectare is
/// 10,000 litres.
[[nodiscard]] double intensityOfDepth(double depth_mm, double duration_min);
/// The depth [mm] of an intensity [l/(s.ha)] over a duration [min].
[[nodiscard]] double depthOfIntensity(double intensity_l_s_ha, double duration_min);
/// The intensity [l/(s.ha)] of a rate [mm/h].
[[nodiscard]] double intensityOfRate(double rate_mm_h);

/// Durations rise, intensities are positive.
class RainCurve {
  public:
    /// Sorts the points by duration.
    /// @throws std::invalid_argument in Czech: no point, a duration or an intensity that is not positive and
    /// finite, a duration that stands twice
    explicit RainCurve(std::vector<CurvePoint> points);

    [[nodiscard]] std::span<const CurvePoint> points() const { return points_; }

    /// The intensity of a duration: given, or between two given ones on the straight line of the logarithms.
    /// None outside the given durations: nothing is extrapolated.
    [[nodiscard]] std::optional<double> at(double duration_min) const;
    [[nodiscard]] bool isGiven(double duration_min) const;

    /// What is not as rains are, a sentence each, in Czech: an intensity that does not fall with the
    /// duration, a depth that falls.
    [[nodiscard]] std::vector<std::string> remarks() const;

  private:
    std::vector<CurvePoint> points_;
};

}  // namespace mero::rain
