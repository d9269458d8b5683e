// SPDX-License-Identifier: MIT
/// All combinations of the variations of one project, in a fixed order: the last variation runs fastest.
/// A walk visits any stretch of them, so that several threads share the work.
#pragma once

#include <cstdint>
#include <vector>

#include "design/design_result.h"
#include "design/site.h"
#include "project/project.h"
#include "project/rain_store.h"
#include "sweep/variation.h"

namespace mero::sweep {

class Variants {
  public:
    /// @throws VariationError when a path is varied twice, a variant lacks a value that its type needs, or
    ///         there are more variants than can be counted
    Variants(const project::Project& project, std::vector<Variation> variations);

    [[nodiscard]] std::uint64_t count() const { return count_; }
    [[nodiscard]] const std::vector<Variation>& variations() const { return variations_; }
    [[nodiscard]] const project::Inputs& inputs() const { return project_.inputs; }
    /// Positions of the stations that the variants need; empty for own values.
    [[nodiscard]] std::vector<int> stations() const;
    /// Can one of the variants be of that type?
    [[nodiscard]] bool hasType(design::FacilityType type) const;

  private:
    void requireValues() const;

    project::Project project_;
    std::vector<Variation> variations_;
    std::uint64_t count_ = 1;
};

/// Steps through variants from a first one on. Only next() and the values' sizes cost anything.
class VariantWalk {
  public:
    VariantWalk(const Variants& variants, std::uint64_t first);
    /// From given positions of the variations on.
    VariantWalk(const Variants& variants, std::vector<std::size_t> positions);

    /// Position of each variation's value.
    [[nodiscard]] const std::vector<std::size_t>& positions() const { return positions_; }
    [[nodiscard]] const project::Inputs& inputs() const { return inputs_; }
    void next();
    /// The design of the current variant.
    [[nodiscard]] design::DesignResult design(const project::RainStore& rain) const;

  private:
    const Variants* variants_;
    project::Inputs inputs_;
    std::vector<std::size_t> positions_;
};

}  // namespace mero::sweep
