// SPDX-License-Identifier: MIT
/// Random projects from a seed: mostly sensible, often odd, now and then absurd.
/// Every value is one that a project file may hold.
#pragma once

#include <cstdint>

#include "project/project.h"

namespace mero::design::test {

class RandomProjects {
  public:
    explicit RandomProjects(std::uint64_t seed) : state_(seed) {}

    [[nodiscard]] project::Project next();

  private:
    std::uint64_t bits();
    int below(int count) { return static_cast<int>(bits() % static_cast<std::uint64_t>(count)); }
    bool oneIn(int count) { return below(count) == 0; }
    /// A number with few digits from low to high; sometimes 0, negative, with all digits, huge or tiny.
    float number(double low, double high);
    /// From clay to gravel.
    float filtration();
    project::RainChoice rain();
    Facility facility();
    Pipes pipes();
    void shaft(Facility& facility);

    std::uint64_t state_;
};

}  // namespace mero::design::test
