// SPDX-License-Identifier: MIT
/// Maps the values of a chart's axis to positions and chooses the round values beside it.
/// Linear ticks are multiples of 1, 2 or 5 times a power of ten; logarithmic ticks are decades.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace mero::picture {

struct ScaleOptions {
    bool logarithmic = false;
    bool from_zero = false;  ///< a linear scale includes 0
    int most_steps = 6;      ///< linear: the values span at most so many steps, >= 1
    /// Linear: how far a value may lie beyond the last tick, as a share of the step. The default ignores that
    /// values were rounded to Singles.
    double tolerance = 1e-6;
};

class Scale {
  public:
    /// A scale over all values that it can show, widened to ticks at both ends.
    explicit Scale(const std::vector<double>& values, const ScaleOptions& options = {});

    /// A scale that runs exactly from `low` to `high`, without ticks.
    /// @param low  > 0 on a logarithmic scale
    /// @param high >= low
    [[nodiscard]] static Scale between(double low, double high, bool logarithmic);

    [[nodiscard]] const std::vector<double>& ticks() const { return ticks_; }
    /// 2 to 9 times each decade of a logarithmic scale; empty for a linear one.
    [[nodiscard]] std::vector<double> fineTicks() const;
    /// The text beside a tick: decades below 0.01 and above 10000 in scientific notation.
    [[nodiscard]] std::string tickText(double tick) const;
    /// 0 at the low end, 1 at the high end; nothing for a value that the scale cannot show.
    [[nodiscard]] std::optional<double> share(double value) const;

  private:
    Scale() = default;

    [[nodiscard]] double measure(double value) const;
    void roundLinear(double low, double high, const ScaleOptions& options);
    void roundLogarithmic(double low, double high);

    bool logarithmic_ = false;
    double low_ = 0.0;
    double high_ = 1.0;
    std::vector<double> ticks_;
};

}  // namespace mero::picture
