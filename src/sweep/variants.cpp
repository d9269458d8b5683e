// SPDX-License-Identifier: MIT
/// Counts, checks and iterates over the variants.
/// Missing values are checked for every combination of the choices that require them.
#include "sweep/variants.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "design/design.h"
#include "platform/numbers/number_text.h"
#include "project/prepare_site.h"

namespace mero::sweep {
namespace {

/// The choices that determine which values a facility needs.
constexpr const char* kDecidingPaths[] = {"facility.type", "facility.shape", "facility.variant",
                                          "facility.catalogue_shaft"};

bool decides(const Variation& variation) {
    return std::find(std::begin(kDecidingPaths), std::end(kDecidingPaths), variation.path()) !=
           std::end(kDecidingPaths);
}

}  // namespace

Variants::Variants(const project::Project& project, std::vector<Variation> variations)
    : project_(project), variations_(std::move(variations)) {
    for (const Variation& variation : variations_) {
        const auto same_path = [&](const Variation& other) { return other.path() == variation.path(); };
        if (std::count_if(variations_.begin(), variations_.end(), same_path) > 1) {
            throw VariationError(variation.path() + ": is varied twice");
        }
        if (count_ > std::numeric_limits<std::uint64_t>::max() / variation.size()) {
            throw VariationError("there are more variants than can be counted");
        }
        count_ *= variation.size();
        project_.given.push_back(variation.path());
    }
    requireValues();
}

void Variants::requireValues() const {
    project::Inputs inputs = project_.inputs;
    std::vector<const Variation*> deciding;
    std::size_t combinations = 1;
    for (const Variation& variation : variations_) {
        if (decides(variation)) {
            deciding.push_back(&variation);
            combinations *= variation.size();
        }
    }
    for (std::size_t combination = 0; combination < combinations; ++combination) {
        std::size_t rest = combination;
        for (const Variation* variation : deciding) {
            variation->apply(inputs, rest % variation->size());
            rest /= variation->size();
        }
        const std::string missing = project::missingValue(inputs.facility, project_.given);
        if (!missing.empty()) {
            throw VariationError(missing + ": is missing in the project, but some variants need it");
        }
    }
}

std::vector<int> Variants::stations() const {
    for (const Variation& variation : variations_) {
        if (variation.path() == "rain.station") {
            std::vector<int> stations;
            for (std::size_t i = 0; i < variation.size(); ++i) {
                stations.push_back(static_cast<int>(variation.value(i)));
            }
            return stations;
        }
    }
    return project_.inputs.rain.station > 0 ? std::vector<int>{project_.inputs.rain.station}
                                            : std::vector<int>{};
}

bool Variants::hasType(design::FacilityType type) const {
    for (const Variation& variation : variations_) {
        if (variation.path() == "facility.type") {
            project::Inputs inputs;
            for (std::size_t i = 0; i < variation.size(); ++i) {
                variation.apply(inputs, i);
                if (inputs.facility.type == type) {
                    return true;
                }
            }
            return false;
        }
    }
    return project_.inputs.facility.type == type;
}

VariantWalk::VariantWalk(const Variants& variants, std::uint64_t first)
    : variants_(&variants), inputs_(variants.inputs()), positions_(variants.variations().size()) {
    for (std::size_t i = positions_.size(); i-- > 0;) {
        const Variation& variation = variants.variations()[i];
        positions_[i] = static_cast<std::size_t>(first % variation.size());
        first /= variation.size();
        variation.apply(inputs_, positions_[i]);
    }
}

VariantWalk::VariantWalk(const Variants& variants, std::vector<std::size_t> positions)
    : variants_(&variants), inputs_(variants.inputs()), positions_(std::move(positions)) {
    for (std::size_t i = 0; i < positions_.size(); ++i) {
        variants.variations()[i].apply(inputs_, positions_[i]);
    }
}

void VariantWalk::next() {
    for (std::size_t i = positions_.size(); i-- > 0;) {
        const Variation& variation = variants_->variations()[i];
        const bool carries = ++positions_[i] == variation.size();
        if (carries) {
            positions_[i] = 0;
        }
        variation.apply(inputs_, positions_[i]);
        if (!carries) {
            return;
        }
    }
}

design::DesignResult VariantWalk::design(const project::RainStore& rain) const {
    return design::design(project::prepareSite(inputs_, rain), inputs_.facility);
}

}  // namespace mero::sweep
