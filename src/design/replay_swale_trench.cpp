// SPDX-License-Identifier: MIT
/// Combined object of a swale and a trench.
/// The swale's starting area is live; the design follows the calculate button.
#include "calc/swale_trench.h"

#include "calc/drain.h"
#include "calc/swale.h"
#include "design/window_replay.h"

namespace mero::design {

void WindowReplay::runSwaleTrench() {
    DesignResult& result = *result_;
    clearArea();
    event([this] { calcSwaleTrenchArea(); });
    if (facility_->soil_option != soil_option_) {
        event([this] {
            soil_option_ = facility_->soil_option;
            calcSwaleTrenchArea();
        });
    }
    // Left after typing, like the coefficient of the subsoil.
    result.swale_filtration_m_s = facility_->swale_filtration_m_s > 0.0F
                                      ? throughScientificField(facility_->swale_filtration_m_s)
                                      : facility_->swale_filtration_m_s;
    enterSafetyFactor([this] { calcSwaleTrenchArea(); });
    if (facility_->overflow.given) {
        result.pipes = true;
        event([this] { confirmOverflow(); });
    }

    bool refused = refuse(result.swale_filtration_m_s <= 0.0F, Verdict::SwaleFiltrationNotPositive);
    refused |= refuse(safety_factor_ <= 0.0F, Verdict::SafetyFactorNotPositive);
    refused |= refuse(facility_->fill_porosity <= 0.0F, Verdict::FillPorosityNotPositive);
    refused |= refuse(facility_->trench_height_m <= 0.0F, Verdict::TrenchHeightNotPositive);
    refused |= refuse(facility_->trench_width_m <= 0.0F, Verdict::TrenchWidthNotPositive);
    if (!refused) {
        event([this] { designSwaleTrench(); });
    }
}

void WindowReplay::calcSwaleTrenchArea() {
    if (site_->reduced_area_m2 <= 0.0F) {
        return;
    }
    showArea1(
        calc::swale::startingArea(site_->reduced_area_m2, soil_option_, value(Quantity::InfiltrationArea)));
}

void WindowReplay::confirmOverflow() {
    DesignResult& result = *result_;
    result.show(Quantity::ThrottledOutflow,
                calc::drain::throttledOutflow(site_->reduced_area_m2, facility_->throttled_outflow_l_s_ha));
    if (value(Quantity::ThrottledOutflow) == 0.0F) {
        result.pipes = false;
        return;
    }
    setStorageCoefficient(facility_->overflow);
    result.pipes = value(Quantity::StorageCoefficient) != 0.0F;
}

void WindowReplay::designSwaleTrench() {
    DesignResult& result = *result_;
    if (!result.pipes) {
        result.show(Quantity::ThrottledOutflow, 0.0F);
        result.show(Quantity::StorageCoefficient, facility_->fill_porosity);
    }
    const float area_m2 = value(Quantity::InfiltrationArea);
    const calc::CriticalRain volume =
        calc::swale::storageVolume({.reduced_area_m2 = site_->reduced_area_m2,
                                    .infiltration_area_m2 = area_m2,
                                    .filtration_m_s = result.swale_filtration_m_s,
                                    .safety_factor = safety_factor_},
                                   site_->rains);
    pick(volume);
    result.show(Quantity::StorageVolume, numbers::toSingle(volume.maximum));
    const float volume_m3 = value(Quantity::StorageVolume);

    if (area_m2 <= 0.0F) {
        tell(Verdict::InfiltrationAreaMissing);
    } else {
        result.show(Quantity::WaterDepth, calc::swale::pondingDepth(volume_m3, area_m2));
    }

    const calc::CriticalRain length =
        calc::swale_trench::trenchLength({.reduced_area_m2 = site_->reduced_area_m2,
                                          .infiltration_area_m2 = area_m2,
                                          .throttled_m3_s = value(Quantity::ThrottledOutflow),
                                          .swale_volume_m3 = volume_m3,
                                          .safety_factor = safety_factor_,
                                          .trench = trenchSection()},
                                         site_->rains);
    pick(length);
    result.show(Quantity::TrenchLength, numbers::toSingle(length.maximum));

    result.store(Quantity::SwaleWidth, facility_->trench_width_m);
    if (value(Quantity::TrenchLength) > 0.0F) {
        result.show(Quantity::SwaleDepth,
                    calc::swale_trench::swaleDepth(volume_m3, value(Quantity::TrenchLength),
                                                   value(Quantity::SwaleWidth)));
        result.show(Quantity::SwaleWidth, facility_->trench_width_m);
        judgeSwaleTrenchArea();
    }
    result.show(Quantity::EmptyingTime,
                calc::swale::emptyingTimeHours(value(Quantity::SwaleDepth), result.swale_filtration_m_s));
    result.completed = true;
}

void WindowReplay::judgeSwaleTrenchArea() {
    const double designed_m2 =
        calc::swale_trench::designedArea(value(Quantity::TrenchLength), value(Quantity::SwaleWidth));
    switch (calc::swale_trench::judgeArea(designed_m2, value(Quantity::InfiltrationArea))) {
        case calc::swale_trench::AreaVerdict::Sufficient:
            tell(Verdict::SwaleTrenchAreaSufficient);
            break;
        case calc::swale_trench::AreaVerdict::Insufficient:
            tell(Verdict::SwaleTrenchAreaInsufficient);
            break;
    }
}

}  // namespace mero::design
