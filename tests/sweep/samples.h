// SPDX-License-Identifier: MIT
/// A project for sweeps: own rain, so that no database is needed, and the inputs of every type.
#pragma once

#include <string>
#include <vector>

#include "project/read_project.h"
#include "sweep/variants.h"

namespace mero::sweep::test {

inline project::Project sampleProject(const std::string& rain = R"("intensities_l_s_ha":
    [332, 228, 178, 147, 110, 80.5, 64, 46.2, 36.5], "design_duration_min": 15)") {
    return project::readProject(R"({"rain": {"periodicity": 0.2, )" + rain + R"(},
        "areas": [{"area_m2": 800, "runoff_coefficient": 0.9}, {"area_m2": 300, "runoff_coefficient": 0.5}],
        "subsoil": {"filtration_coefficient_m_s": 1e-4},
        "facility": {"type": "trench", "swale_filtration_coefficient_m_s": 5e-5, "trench_width_m": 1.2,
            "trench_height_m": 1, "catalogue_shaft": "RSC - Q.1 250/..", "inlet_frost_depth_m": 0.8,
            "filter_layer_m": 0.5, "specific_infiltration_l_s_ha": 10, "bottom_length_m": 12,
            "bottom_width_m": 5, "tank_depth_m": 0.6, "side_slope": 2}})",
                                "sample.json");
}

inline Variants variants(const std::vector<std::string>& texts,
                         const project::Project& project = sampleProject()) {
    std::vector<Variation> variations;
    for (const std::string& text : texts) {
        variations.push_back(Variation::parse(text, project));
    }
    return {project, variations};
}

}  // namespace mero::sweep::test
