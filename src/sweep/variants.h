// SPDX-License-Identifier: MIT
/// All combinations of the variations of one project; the last variation changes fastest.
/// A walk visits any range of them, so that several threads can share the work.
#pragma once

#include <cstdint>
#include <vector>

#include "design/design_result.h"
#include "design/site.h"
#include "project/prepare_site.h"
#include "project/project.h"
#include "sweep/variation.h"

namespace mero::sweep {

class Variants {
  public:
    /// @throws VariationError when a path is varied twice, a variant lacks a value that its type needs, or
    ///         the number of variants overflows
    Variants(const project::Project& project, std::vector<Variation> variations);

    [[nodiscard]] std::uint64_t count() const { return count_; }
    [[nodiscard]] const std::vector<Variation>& variations() const { return variations_; }
    [[nodiscard]] const project::Inputs& inputs() const { return project_.inputs; }
    /// Positions of the stations that the variants use; empty when the rain is typed in.
    [[nodiscard]] std::vector<int> stations() const;
    /// Whether a variant can be of that type.
    [[nodiscard]] bool hasType(design::FacilityType type) const;

  private:
    void requireValues() const;

    project::Project project_;
    std::vector<Variation> variations_;
    std::uint64_t count_ = 1;
};

/// Iterates over variants from a first one on.
class VariantWalk {
  public:
    VariantWalk(const Variants& variants, std::uint64_t first);
    /// Starts at given positions of the variations.
    VariantWalk(const Variants& variants, std::vector<std::size_t> positions);

    /// Position of each variation's value.
    [[nodiscard]] const std::vector<std::size_t>& positions() const { return positions_; }
    [[nodiscard]] const project::Inputs& inputs() const { return inputs_; }
    void next();
    /// Designs the current variant.
    [[nodiscard]] design::DesignResult design(const project::RainStore& rain) const;

  private:
    const Variants* variants_;
    project::Inputs inputs_;
    std::vector<std::size_t> positions_;
};

}  // namespace mero::sweep
