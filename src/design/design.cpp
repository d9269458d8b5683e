// SPDX-License-Identifier: MIT
/// The first tab, the choice of the type, and what the pages share.
/// The guards tell of a missing input; only the tank refuses to go on without it.
#include "design/design.h"

#include "calc/drain.h"
#include "calc/inflow.h"
#include "design/window_replay.h"

namespace mero::design {

DesignResult design(const Site& site, const Facility& facility) {
    DesignResult result;
    WindowReplay replay(site, facility, result);
    replay.enterSite();
    replay.run();
    if (result.picked_rain != calc::Rain{}) {
        result.show(Quantity::CriticalDuration, result.picked_rain.duration_min);
        result.show(Quantity::CriticalIntensity, result.picked_rain.intensity_l_s_ha);
    }
    return result;
}

WindowReplay::WindowReplay(const Site& site, const Facility& facility, DesignResult& result)
    : site_(&site),
      facility_(&facility),
      result_(&result),
      // Left after typing, the field shows and stores a positive coefficient with two significant digits.
      filtration_m_s_(site.filtration_m_s > 0.0F ? throughScientificField(site.filtration_m_s)
                                                 : site.filtration_m_s) {}

void WindowReplay::enterSite() {
    DesignResult& result = *result_;
    if (site_->picked_row >= 0) {
        result.picked_rain = site_->rains[static_cast<std::size_t>(site_->picked_row)];
    }
    const bool rain_accepted = site_->rain_confirmation == RainConfirmation::Accepted;
    if (site_->rain_confirmation == RainConfirmation::NoIntensities) {
        tell(Verdict::RainIntensitiesMissing);
    } else if (!rain_accepted) {
        tell(Verdict::ErrorOverflow);
    }
    result.show(Quantity::ReducedArea, site_->reduced_area_m2);
    result.show(Quantity::Filtration, filtration_m_s_);
    // The box is empty without a picked rain, and after areas that cancel each other.
    const bool inflow_shown = site_->has_areas ? site_->reduced_area_m2 != 0.0F : rain_accepted;
    if (result.picked_rain.intensity_l_s_ha > 0.0F && inflow_shown) {
        event([&] {
            result.show(Quantity::Inflow,
                        calc::inflow(site_->reduced_area_m2, result.picked_rain.intensity_l_s_ha));
        });
    }
}

void WindowReplay::run() {
    const bool input_missing = tellMissingInput();
    if (facility_->type == FacilityType::Tank && input_missing) {
        return;
    }
    result_->type_chosen = true;
    switch (facility_->type) {
        case FacilityType::Surface:
            runSurface();
            break;
        case FacilityType::Swale:
            runSwale();
            break;
        case FacilityType::SwaleTrench:
            runSwaleTrench();
            break;
        case FacilityType::Trench:
            runTrench();
            break;
        case FacilityType::Shaft:
            runShaft();
            break;
        case FacilityType::Tank:
            runTank();
            break;
    }
}

bool WindowReplay::tellMissingInput() {
    if (!(site_->reduced_area_m2 > 0.0F)) {
        tell(Verdict::DrainedAreaMissing);
        return true;
    }
    if (!(filtration_m_s_ > 0.0F)) {
        tell(Verdict::FiltrationMissing);
        return true;
    }
    return false;
}

bool WindowReplay::refuse(bool failed, Verdict verdict) {
    if (failed) {
        tell(verdict);
    }
    return failed;
}

void WindowReplay::pick(const calc::CriticalRain& critical) {
    if (critical.rain) {
        result_->picked_rain = *critical.rain;
    }
}

void WindowReplay::clearArea() {
    result_->clear(Quantity::InfiltrationArea);
    result_->store(Quantity::InfiltrationArea, 0.0F);
}

calc::TrenchSection WindowReplay::trenchSection() const {
    return {.width_m = facility_->trench_width_m,
            .height_m = facility_->trench_height_m,
            .storage_coefficient = value(Quantity::StorageCoefficient),
            .filtration_m_s = filtration_m_s_};
}

void WindowReplay::setStorageCoefficient(const Pipes& pipes) {
    result_->show(Quantity::StorageCoefficient,
                  calc::drain::storageCoefficient({.inner_diameter_mm = pipes.inner_diameter_mm,
                                                   .outer_diameter_mm = pipes.outer_diameter_mm,
                                                   .count = pipes.count},
                                                  facility_->fill_porosity, facility_->trench_width_m,
                                                  facility_->trench_height_m));
}

}  // namespace mero::design
