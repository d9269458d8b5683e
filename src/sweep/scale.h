// SPDX-License-Identifier: MIT
/// Where a value of an axis lies on the drawing, and the round numbers beside it.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace mero::sweep {

class Scale {
  public:
    /// A scale over all values, widened to round numbers. Values that it cannot show are left out.
    Scale(const std::vector<double>& values, bool logarithmic, bool from_zero);

    [[nodiscard]] const std::vector<double>& ticks() const { return ticks_; }
    [[nodiscard]] bool logarithmic() const { return logarithmic_; }
    /// 0 at the low end, 1 at the high end; nothing for a value that the scale cannot show.
    [[nodiscard]] std::optional<double> share(double value) const;

  private:
    [[nodiscard]] double measure(double value) const;
    void roundLinear(double low, double high);
    void roundLogarithmic(double low, double high);

    bool logarithmic_;
    double low_ = 0.0;
    double high_ = 1.0;
    std::vector<double> ticks_;
};

/// The text beside a tick; small and large decades as powers of ten.
[[nodiscard]] std::string tickText(double value, bool logarithmic);

}  // namespace mero::sweep
