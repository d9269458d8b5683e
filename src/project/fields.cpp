// SPDX-License-Identifier: MIT
/// The table of fields.
/// The captions are those of the window, so that a plot and a panel speak alike.
#include "project/fields.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>

#include "design/shaft_catalogue.h"

namespace mero::project {
namespace {

using enum FieldKind;

bool truth(float value) {
    return value != 0.0F;
}

int position(float value) {
    return static_cast<int>(value);
}

constexpr auto kFields = std::to_array<Field>({
    {"rain.station", Station, "Stanice", "", [](Inputs& in, float v) { in.rain.station = position(v); }},
    {"rain.periodicity", Periodicity, "Periodicita", "1/rok",
     [](Inputs& in, float v) { in.rain.periodicity = position(v); }},
    {"rain.design_duration_min", Number, "Doba trvání návrhového deště", "min",
     [](Inputs& in, float v) {
         in.rain.design_duration_min = v;
         in.rain.picks_row = true;
     }},
    {"subsoil.filtration_coefficient_m_s", Number, "Součinitel filtrace (kf) podloží", "m/s",
     [](Inputs& in, float v) { in.filtration_m_s = v; }},
    {"subsoil.groundwater_depth_m", Number, "Hladina podzemní vody (pod povrchem)", "m",
     [](Inputs& in, float v) { in.groundwater_depth_m = v; }},

    {"facility.type", Choice, "Typ vsakování", "",
     [](Inputs& in, float v) {
         in.facility.type = design::kFacilityTypes[static_cast<std::size_t>(position(v))];
     }},
    {"facility.safety_factor", Number, "Součinitel bezpečnosti", "",
     [](Inputs& in, float v) { in.facility.safety_factor = v; }},
    {"facility.soil", Choice, "Typ půdy", "",
     [](Inputs& in, float v) { in.facility.soil_option = position(v); }},
    {"facility.swale_filtration_coefficient_m_s", Number, "Součinitel filtrace (kf) průlehu", "m/s",
     [](Inputs& in, float v) { in.facility.swale_filtration_m_s = v; }},
    {"facility.fill_porosity", Number, "Pórovitost výplně rýhy", "",
     [](Inputs& in, float v) { in.facility.fill_porosity = v; }},
    {"facility.trench_width_m", Number, "Šířka rýhy (střední)", "m",
     [](Inputs& in, float v) { in.facility.trench_width_m = v; }},
    {"facility.trench_height_m", Number, "Výška rýhy", "m",
     [](Inputs& in, float v) { in.facility.trench_height_m = v; }},

    {"facility.overflow.pipe_count", Number, "Počet potrubí", "",
     [](Inputs& in, float v) { in.facility.overflow.count = v; }},
    {"facility.overflow.pipe_outer_diameter_mm", Number, "Vnější průměr vsakovací trouby", "mm",
     [](Inputs& in, float v) { in.facility.overflow.outer_diameter_mm = v; }},
    {"facility.overflow.pipe_inner_diameter_mm", Number, "Vnitřní průměr vsakovací trouby", "mm",
     [](Inputs& in, float v) { in.facility.overflow.inner_diameter_mm = v; }},
    {"facility.overflow.throttled_outflow_l_s_ha", Number, "Škrcená odtoková intenzita", "l/(s.ha)",
     [](Inputs& in, float v) { in.facility.throttled_outflow_l_s_ha = v; }},

    {"facility.drain.pipe_count", Number, "Počet potrubí", "",
     [](Inputs& in, float v) { in.facility.drain.count = v; }},
    {"facility.drain.pipe_outer_diameter_mm", Number, "Vnější průměr vsakovací trouby", "mm",
     [](Inputs& in, float v) { in.facility.drain.outer_diameter_mm = v; }},
    {"facility.drain.pipe_inner_diameter_mm", Number, "Vnitřní průměr vsakovací trouby", "mm",
     [](Inputs& in, float v) { in.facility.drain.inner_diameter_mm = v; }},
    {"facility.drain.outlet_area_cm2_m", Number, "Výstupní plocha", "cm²/m",
     [](Inputs& in, float v) { in.facility.outlet_area_cm2_m = v; }},
    {"facility.drain.outlet_velocity_m_s", Number, "Výstupní rychlost", "m/s",
     [](Inputs& in, float v) { in.facility.outlet_velocity_m_s = v; }},

    {"facility.catalogue_shaft", Choice, "Typ skruže", "",
     [](Inputs& in, float v) { in.facility.catalogue_row = position(v); }},
    {"facility.shape", Choice, "Tvar šachty", "",
     [](Inputs& in, float v) { in.facility.shape = static_cast<design::ShaftShape>(position(v)); }},
    {"facility.variant", Choice, "Typ šachty", "",
     [](Inputs& in, float v) { in.facility.sand_layer = truth(v); }},
    {"facility.shaft_count", WholeNumber, "Počet šachet", "",
     [](Inputs& in, float v) { in.facility.shaft_count = static_cast<std::int16_t>(v); }},
    {"facility.inner_diameter_m", Number, "DN", "m",
     [](Inputs& in, float v) { in.facility.inner_diameter_m = v; }},
    {"facility.inner_width_m", Number, "Šířka", "m",
     [](Inputs& in, float v) { in.facility.inner_width_m = v; }},
    {"facility.inner_length_m", Number, "Délka", "m",
     [](Inputs& in, float v) { in.facility.inner_length_m = v; }},
    {"facility.wall_thickness_m", Number, "Tloušťka", "m",
     [](Inputs& in, float v) { in.facility.wall_thickness_m = v; }},
    {"facility.seepage_path_m", Number, "Minimální průsaková dráha", "m",
     [](Inputs& in, float v) { in.facility.seepage_path_m = v; }},
    {"facility.inlet_frost_depth_m", Number, "Nezámrzná hloubka přitoku", "m",
     [](Inputs& in, float v) { in.facility.inlet_depth_m = v; }},
    {"facility.filter_layer_m", Number, "Výška filtrační vrstvy", "m",
     [](Inputs& in, float v) { in.facility.filter_layer_m = v; }},
    {"facility.sand_layer_m", Number, "Vrstva písku/jemného štěrku", "m",
     [](Inputs& in, float v) { in.facility.sand_layer_m = v; }},

    {"facility.specific_infiltration_l_s_ha", Number, "Specifická vsakovací intenzita", "l/(s.ha)",
     [](Inputs& in, float v) { in.facility.specific_infiltration_l_s_ha = v; }},
    {"facility.bottom_length_m", Number, "Délka dna nádrže", "m",
     [](Inputs& in, float v) { in.facility.bottom_length_m = v; }},
    {"facility.bottom_width_m", Number, "Šířka dna nádrže", "m",
     [](Inputs& in, float v) { in.facility.bottom_width_m = v; }},
    {"facility.tank_depth_m", Number, "Hloubka nádrže", "m",
     [](Inputs& in, float v) { in.facility.tank_depth_m = v; }},
    {"facility.side_slope", Number, "Sklon svahů nádrže 1 : n", "",
     [](Inputs& in, float v) { in.facility.side_slope = v; }},
    {"facility.upstream_settling", Truth, "Předsazené usazování", "",
     [](Inputs& in, float v) { in.facility.upstream_settling = truth(v); }},
});

constexpr auto kTextFields = std::to_array<TextField>({
    {"project.name", &Texts::name},
    {"project.designer", &Texts::designer},
    {"project.investor", &Texts::investor},
    {"project.site", &Texts::site},
    {"project.description", &Texts::description, true},
    {"subsoil.description", &Texts::subsoil},
});

/// Names that are neither fields nor texts: the document's own, lists, objects.
constexpr auto kOtherPaths = std::to_array<std::string_view>({
    "$schema",
    "project",
    "rain",
    "areas",
    "subsoil",
    "facility",
    "rain.durations_min",
    "rain.intensities_l_s_ha",
    "facility.overflow",
    "facility.drain",
    "areas[].area_m2",
    "areas[].runoff_coefficient",
    "areas[].surface",
});

/// The last name of a path when it lies right in that object, else nothing.
std::string_view nameIn(std::string_view object_path, std::string_view path) {
    if (!object_path.empty()) {
        if (!path.starts_with(object_path) || path.size() <= object_path.size() ||
            path[object_path.size()] != '.') {
            return {};
        }
        path.remove_prefix(object_path.size() + 1);
    }
    return path.find('.') == std::string_view::npos ? path : std::string_view();
}

std::vector<std::string> ringDesignations() {
    std::vector<std::string> names;
    for (const design::CatalogueShaft& shaft : design::shaftCatalogue()) {
        names.push_back(shaft.designation);
    }
    return names;
}

/// Number of single-character changes that turn one word into the other.
std::size_t editDistance(std::string_view from, std::string_view to) {
    std::vector<std::size_t> row(to.size() + 1);
    for (std::size_t j = 0; j < row.size(); ++j) {
        row[j] = j;
    }
    for (std::size_t i = 1; i <= from.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= to.size(); ++j) {
            const std::size_t change = diagonal + (from[i - 1] == to[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, change});
        }
    }
    return row.back();
}

}  // namespace

std::span<const Field> fields() {
    return kFields;
}

const Field* findField(std::string_view path) {
    const auto* found =
        std::find_if(kFields.begin(), kFields.end(), [&](const Field& field) { return path == field.path; });
    return found == kFields.end() ? nullptr : found;
}

std::span<const std::string> choices(const Field& field) {
    static const std::vector<std::string> kTypes{"surface", "swale", "swale_trench",
                                                 "trench",  "shaft", "tank"};
    static const std::vector<std::string> kSoils{"medium_to_fine_sand", "silt_and_sand"};
    static const std::vector<std::string> kShapes{"round", "rectangular"};
    static const std::vector<std::string> kVariants{"type_a", "type_b"};
    static const std::vector<std::string> kRings = ringDesignations();
    const std::string_view path = field.path;
    if (path == "facility.type") {
        return kTypes;
    }
    if (path == "facility.soil") {
        return kSoils;
    }
    if (path == "facility.shape") {
        return kShapes;
    }
    if (path == "facility.variant") {
        return kVariants;
    }
    if (path == "facility.catalogue_shaft") {
        return kRings;
    }
    return {};
}

std::span<const TextField> textFields() {
    return kTextFields;
}

std::vector<std::string> namesIn(std::string_view object_path) {
    std::vector<std::string> names;
    const auto add = [&](std::string_view path) {
        const std::string_view name = nameIn(object_path, path);
        if (!name.empty()) {
            names.emplace_back(name);
        }
    };
    for (const std::string_view path : kOtherPaths) {
        add(path);
    }
    for (const TextField& field : kTextFields) {
        add(field.path);
    }
    for (const Field& field : kFields) {
        add(field.path);
    }
    return names;
}

std::string nearestName(std::string_view name, std::span<const std::string> names) {
    constexpr std::size_t kTellingBeginning = 3;
    // Far longer than any name: nothing is near it, and comparing would take its time.
    constexpr std::size_t kLongestName = 100;
    if (name.size() > kLongestName) {
        return {};
    }
    std::string nearest;
    std::size_t least = std::max<std::size_t>(2, name.size() / 3) + 1;
    for (const std::string& candidate : names) {
        // A name without its unit is as good as right.
        const bool begins = name.size() >= kTellingBeginning && candidate.starts_with(name);
        const std::size_t distance = begins ? 0 : editDistance(name, candidate);
        if (distance < least) {
            least = distance;
            nearest = candidate;
        }
    }
    return nearest;
}

std::string missingValue(const design::Facility& facility, std::span<const std::string> given) {
    const auto firstMissing = [&](std::initializer_list<const char*> paths) -> std::string {
        for (const char* path : paths) {
            if (std::find(given.begin(), given.end(), path) == given.end()) {
                return path;
            }
        }
        return {};
    };
    switch (facility.type) {
        case design::FacilityType::Surface:
        case design::FacilityType::Swale:
            return {};
        case design::FacilityType::SwaleTrench:
            return firstMissing({"facility.swale_filtration_coefficient_m_s", "facility.trench_width_m",
                                 "facility.trench_height_m"});
        case design::FacilityType::Trench:
            return firstMissing({"facility.trench_width_m", "facility.trench_height_m"});
        case design::FacilityType::Tank:
            return firstMissing({"facility.specific_infiltration_l_s_ha", "facility.bottom_length_m",
                                 "facility.bottom_width_m", "facility.tank_depth_m", "facility.side_slope"});
        case design::FacilityType::Shaft:
            break;
    }
    std::string missing = firstMissing({"facility.inlet_frost_depth_m", "facility.filter_layer_m"});
    if (missing.empty() && facility.sand_layer) {
        missing = firstMissing({"facility.sand_layer_m"});
    }
    if (!missing.empty() || facility.catalogue_row >= 0) {
        return missing;
    }
    missing = firstMissing({"facility.shape", "facility.wall_thickness_m"});
    if (!missing.empty()) {
        return missing;
    }
    return facility.shape == design::ShaftShape::Round
               ? firstMissing({"facility.inner_diameter_m"})
               : firstMissing({"facility.inner_width_m", "facility.inner_length_m"});
}

}  // namespace mero::project
