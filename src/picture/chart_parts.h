// SPDX-License-Identifier: MIT
/// Parts that all charts share: the value axis with its grid, and labels that keep apart.
#pragma once

#include <vector>

#include "picture/drawing.h"
#include "picture/scale.h"

namespace mero::picture {

/// Adds labels to a drawing and drops those that come too close to an earlier one.
class LabelPlacer {
  public:
    /// @param gap the least horizontal distance between two labels
    LabelPlacer(Drawing& drawing, double gap) : drawing_(&drawing), gap_(gap) {}

    /// @return whether the label was added
    bool place(PlacedText label);

  private:
    Drawing* drawing_;
    double gap_;
    std::vector<Box> taken_;
};

/// Distances of an axis from its plot.
struct AxisGaps {
    double tick = 0;   ///< length of a tick outside of the plot
    double label = 0;  ///< from the plot to the tick's text
};

/// How many steps a value axis of that height has room for, 1 to 6.
[[nodiscard]] int mostValueSteps(double height, const TextSizes& sizes);

/// Adds horizontal grid lines with the values of the ticks on the left; the lowest line is the axis.
void addValueAxis(Drawing& drawing, const Box& plot, const Scale& scale, const AxisGaps& gaps,
                  const TextSizes& sizes);

}  // namespace mero::picture
