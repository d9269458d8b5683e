// SPDX-License-Identifier: MIT
/// Trench, with or without a drain.
/// A drain whose pipes have no diameter is unticked again, but its coefficient was computed.
#include "calc/trench.h"

#include "calc/inflow.h"
#include "design/window_replay.h"

namespace mero::design {

void WindowReplay::runTrench() {
    clearArea();
    enterSafetyFactor([this] { calcTrenchArea(); });
    if (facility_->drain.given) {
        // Ticking the box clears the results.
        clearArea();
        result_->pipes = true;
        event([this] { confirmDrain(); });
    }

    bool refused = refuse(facility_->trench_height_m <= 0.0F, Verdict::TrenchHeightNotPositive);
    refused |= refuse(facility_->trench_width_m <= 0.0F, Verdict::TrenchWidthNotPositive);
    refused |= refuse(facility_->fill_porosity <= 0.0F, Verdict::FillPorosityNotPositive);
    if (!refused) {
        event([this] { designTrench(); });
    }
}

void WindowReplay::calcTrenchArea() {
    showArea1(calc::trench::infiltrationArea(facility_->trench_height_m, facility_->trench_width_m,
                                             value(Quantity::TrenchLength)));
}

void WindowReplay::confirmDrain() {
    setStorageCoefficient(facility_->drain);
    if (facility_->drain.outer_diameter_mm == 0.0F || facility_->drain.inner_diameter_mm == 0.0F) {
        result_->pipes = false;
        clearArea();
    }
}

void WindowReplay::designTrench() {
    DesignResult& result = *result_;
    if (!result.pipes) {
        result.store(Quantity::StorageCoefficient, facility_->fill_porosity);
    }
    result.show(Quantity::StorageCoefficient, value(Quantity::StorageCoefficient));
    const calc::trench::Balance balance{.reduced_area_m2 = site_->reduced_area_m2,
                                        .safety_factor = safety_factor_,
                                        .section = trenchSection()};
    const calc::CriticalRain length = calc::trench::requiredLength(balance, site_->rains);
    pick(length);
    result.show(Quantity::TrenchLength, numbers::toSingle(length.maximum));
    const float length_m = value(Quantity::TrenchLength);
    result.show(Quantity::StorageVolume, calc::trench::storageVolume(balance, length_m, result.picked_rain));

    result.show(Quantity::DrainInflow,
                calc::inflow(site_->reduced_area_m2, result.picked_rain.intensity_l_s_ha));
    // Without a drain the boxes of its sub-panel are empty and count as 0, but for the number of pipes.
    const bool typed = facility_->drain.given;
    result.show(Quantity::DrainOutflow,
                calc::trench::drainOutflow({.openings_cm2_m = typed ? facility_->outlet_area_cm2_m : 0.0F,
                                            .pipe_count = typed ? facility_->drain.count : 1.0F,
                                            .velocity_m_s = typed ? facility_->outlet_velocity_m_s : 0.0F},
                                           length_m));
    calcTrenchArea();
    if (result.pipes) {
        switch (calc::trench::judgeOutflow(value(Quantity::DrainOutflow), value(Quantity::DrainInflow))) {
            case calc::trench::OutflowVerdict::Met:
                tell(Verdict::DrainOutflowMet);
                break;
            case calc::trench::OutflowVerdict::NotMet:
                tell(Verdict::DrainOutflowNotMet);
                break;
        }
    }
    result.completed = true;
}

}  // namespace mero::design
