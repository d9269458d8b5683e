// SPDX-License-Identifier: MIT
/// A small valid project file, and the error that a changed one gives.
#pragma once

#include <string>

#include "project/read_project.h"

namespace mero::project::test {

inline const std::string kRain =
    R"("rain": {"station": "Brno", "periodicity": 0.2, "design_duration_min": 15})";
inline const std::string kAreas = R"("areas": [{"area_m2": 800, "runoff_coefficient": 0.9}])";
inline const std::string kSubsoil = R"("subsoil": {"filtration_coefficient_m_s": 1e-4})";
inline const std::string kFacility =
    R"("facility": {"type": "trench", "trench_width_m": 1.2, "trench_height_m": 1})";

inline std::string document(const std::string& rain = kRain, const std::string& areas = kAreas,
                            const std::string& subsoil = kSubsoil, const std::string& facility = kFacility) {
    return "{" + rain + ",\n" + areas + ",\n" + subsoil + ",\n" + facility + "}";
}

inline std::string withFacility(const std::string& members) {
    return document(kRain, kAreas, kSubsoil, "\"facility\": {" + members + "}");
}

/// The text of the error, empty when the document is read.
inline std::string errorOf(const std::string& json) {
    try {
        static_cast<void>(readProject(json, "p.json"));
    } catch (const ProjectError& error) {
        return error.what();
    }
    return "";
}

}  // namespace mero::project::test
