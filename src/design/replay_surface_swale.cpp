// SPDX-License-Identifier: MIT
/// Surface infiltration and swales: calculated when the type is chosen and whenever an input changes.
/// A swale is designed once for each change, and each design may pick another rain.
#include "calc/surface_infiltration.h"
#include "calc/swale.h"
#include "design/window_replay.h"

namespace mero::design {

void WindowReplay::runSurface() {
    clearArea();
    event([this] { calcSurface(); });
    if (result_->type_chosen) {
        enterSafetyFactor([this] { calcSurface(); });
    }
}

void WindowReplay::calcSurface() {
    if (result_->picked_rain.intensity_l_s_ha <= 0.0F) {
        tell(Verdict::DesignRainMissing);
        // The group is chosen anew, which leaves no type.
        result_->type_chosen = false;
        result_->show(Quantity::InfiltrationArea, 0.0F);
    } else {
        showArea1(calc::surface::infiltrationArea(site_->reduced_area_m2, filtration_m_s_,
                                                  result_->picked_rain.intensity_l_s_ha));
    }
    result_->completed = true;
}

void WindowReplay::runSwale() {
    clearArea();
    event([this] { calcSwaleArea(); });
    if (facility_->soil_option != soil_option_) {
        event([this] {
            soil_option_ = facility_->soil_option;
            calcSwaleArea();
        });
    }
    enterSafetyFactor([this] { calcSwaleArea(); });
}

void WindowReplay::calcSwaleArea() {
    if (site_->reduced_area_m2 <= 0.0F) {
        return;
    }
    const float area_m2 =
        calc::swale::startingArea(site_->reduced_area_m2, soil_option_, value(Quantity::InfiltrationArea));
    result_->clear(Quantity::StorageVolume);
    showArea1(area_m2);
    designSwale();
}

void WindowReplay::designSwale() {
    const float area_m2 = value(Quantity::InfiltrationArea);
    const calc::CriticalRain volume = calc::swale::storageVolume({.reduced_area_m2 = site_->reduced_area_m2,
                                                                  .infiltration_area_m2 = area_m2,
                                                                  .filtration_m_s = filtration_m_s_,
                                                                  .safety_factor = safety_factor_},
                                                                 site_->rains);
    pick(volume);
    result_->show(Quantity::StorageVolume, numbers::toSingle(volume.maximum));
    result_->show(Quantity::WaterDepth, calc::swale::pondingDepth(value(Quantity::StorageVolume), area_m2));
    if (filtration_m_s_ > 0.0F) {
        result_->show(Quantity::EmptyingTime,
                      calc::swale::emptyingTimeHours(value(Quantity::WaterDepth), filtration_m_s_));
    }
    result_->completed = true;
}

}  // namespace mero::design
