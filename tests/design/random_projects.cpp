// SPDX-License-Identifier: MIT
/// The generator: a fixed sequence of bits, shaped into what engineers and careless users enter.
/// The machine's random source has no part in it, so that a failure shows again.
#include "design/random_projects.h"

#include <cmath>
#include <string>

#include "design/shaft_catalogue.h"
#include "project/project.h"
#include "project/read_project.h"

namespace mero::design::test {

std::uint64_t RandomProjects::bits() {
    // SplitMix64.
    state_ += 0x9E3779B97F4A7C15ULL;
    std::uint64_t z = state_;
    z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27U)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31U);
}

float RandomProjects::number(double low, double high) {
    const double share = static_cast<double>(bits() >> 11U) * 0x1p-53;
    const double value = low + share * (high - low);
    switch (below(40)) {
        case 0:
            return 0.0F;
        case 1:
            return project::singleOf(-value);
        case 2:
            return project::singleOf(value * 1e-9);
        case 3:
            return project::singleOf(value * 1e6);
        case 4:
        case 5:
            return project::singleOf(value);  // all digits
        default:
            break;
    }
    const double step = std::pow(10.0, std::floor(std::log10(high - low)) - 2.0);
    return project::singleOf(std::round(value / step) * step);
}

float RandomProjects::filtration() {
    if (oneIn(25)) {
        return number(0.0, 1e-3);
    }
    const double mantissa = oneIn(3) ? 1.0 + 0.001 * below(9000) : 1.0 + 0.1 * below(90);
    return project::singleOf(mantissa * std::pow(10.0, -3 - below(6)));
}

project::RainChoice RandomProjects::rain() {
    project::RainChoice rain;
    rain.periodicity = below(data::kPeriodicityCount);
    rain.durations_min = project::reference().DobaTrvani;
    if (oneIn(2)) {
        rain.station = 1 + below(data::kStationCount);
    } else {
        for (std::size_t k = 0; k < rain.intensities_l_s_ha.size(); ++k) {
            rain.intensities_l_s_ha[k] = oneIn(60) ? number(1e4, 4e4) : number(20.0, 400.0);
            if (oneIn(12)) {
                rain.durations_min[k] = number(1.0, 200.0);
            }
        }
        if (oneIn(30)) {
            rain.intensities_l_s_ha.fill(oneIn(2) ? 0.4F : 0.0F);
        }
    }
    if (!oneIn(6)) {
        rain.picks_row = true;
        rain.design_duration_min = rain.durations_min[static_cast<std::size_t>(below(9))];
    }
    return rain;
}

Pipes RandomProjects::pipes() {
    Pipes pipes;
    pipes.given = !oneIn(3);
    pipes.txtPocetPotrubi = static_cast<float>(oneIn(8) ? below(5) : 1 + below(3));
    pipes.txtPrumTroubVnej = number(100.0, 500.0);
    pipes.txtPrumTroubVnit = oneIn(10) ? 0.0F : number(90.0, 480.0);
    return pipes;
}

void RandomProjects::shaft(Facility& facility) {
    facility.catalogue_row = oneIn(2) ? below(static_cast<int>(shaftCatalogue().size())) : -1;
    facility.shape = oneIn(2) ? ShaftShape::Round : ShaftShape::Rectangular;
    facility.sand_layer = oneIn(2);
    facility.txtSachtyCount = static_cast<std::int16_t>(oneIn(20) ? below(7) - 3 : 1 + below(4));
    facility.inner_diameter_m = number(0.8, 3.0);
    facility.inner_width_m = number(0.8, 3.0);
    facility.txtPrumerSachtyVnej = number(0.8, 6.0);
    facility.txtTloustkaSteny = number(0.05, 0.3);
    facility.txtMinPrusakDraha = oneIn(2) ? 1.5F : number(0.5, 4.0);
    facility.txtNezamrzHlPritok = number(0.5, 1.5);
    facility.txtVyskaFiltrVrstvy = number(0.2, 1.0);
    facility.txtVyskaPiskVrstvy = number(0.1, 0.6);
}

Facility RandomProjects::facility() {
    Facility facility;
    facility.type = kFacilityTypes[static_cast<std::size_t>(below(6))];
    facility.txtSoucBezp = oneIn(2) ? 1.2F : number(0.9, 2.0);
    facility.soil_option = below(2);
    facility.txtSoucFiltrPruleh = filtration();
    facility.txtPorVyplne = oneIn(3) ? 0.35F : number(0.2, 0.95);
    facility.txtSirkaRyhy = number(0.4, 3.0);
    facility.txtVyskaRyhy = number(0.5, 3.0);
    facility.overflow = pipes();
    facility.overflow.txtSpecDrenOdtok = oneIn(8) ? 0.0F : number(0.5, 20.0);
    facility.drain = pipes();
    facility.drain.txtVystupPlocha = number(10.0, 200.0);
    facility.drain.txtVystupRychlost = number(0.05, 1.0);
    shaft(facility);
    facility.txtSpecMeroIntenz = number(0.5, 20.0);
    facility.txtDelkaDnaNadrz = number(3.0, 60.0);
    facility.txtSirkaDnaNadrz = number(2.0, 30.0);
    facility.txtHloubkaNadrz = number(0.3, 4.0);
    facility.txtSklonSvahuNadrz = oneIn(3) ? 0.0F : number(0.5, 4.0);
    facility.upstream_settling = oneIn(2);
    return facility;
}

project::Project RandomProjects::next() {
    project::Project project;
    project.texts.txtProjName = "Projekt " + std::string(static_cast<std::size_t>(below(4)), 'x');
    project.texts.txtProjektant = "Ing. Nováková";
    project.texts.txtDetails = oneIn(2) ? "první řádek\r\ndruhý <b>řádek</b>" : "";
    project.texts.txtTypPudyPodlozi = oneIn(2) ? "Písčitý štěrk" : "";
    project.inputs.rain = rain();
    for (int areas = oneIn(25) ? 0 : 1 + below(4); areas > 0; --areas) {
        float area = number(20.0, 5000.0);
        float coefficient = number(0.1, 1.0);
        area = area == 0.0F ? 100.0F : area;
        coefficient = coefficient == 0.0F ? 0.9F : coefficient;
        project.inputs.areas.push_back({area, coefficient});
        project.texts.surfaces.emplace_back(oneIn(3) ? "asfalt" : "");
    }
    project.inputs.filtration_m_s = filtration();
    project.inputs.groundwater_depth_m = oneIn(3) ? 0.0F : number(1.0, 12.0);
    project.inputs.facility = facility();
    return project;
}

}  // namespace mero::design::test
