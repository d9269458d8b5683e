// SPDX-License-Identifier: MIT
/// Infiltration tank.
/// Its boxes are written when all of its numbers are known.
#include "calc/tank.h"

#include "design/window_replay.h"

namespace mero::design {

void WindowReplay::runTank() {
    enterSafetyFactor([] {});
    bool refused =
        refuse(facility_->specific_infiltration_l_s_ha <= 0.0F, Verdict::SpecificInfiltrationNotPositive);
    refused |= refuse(facility_->bottom_length_m <= 0.0F, Verdict::BottomLengthNotPositive);
    refused |= refuse(facility_->bottom_width_m <= 0.0F, Verdict::BottomWidthNotPositive);
    refused |= refuse(facility_->tank_depth_m <= 0.0F, Verdict::TankDepthNotPositive);
    refused |= refuse(facility_->side_slope < 0.0F, Verdict::SideSlopeNegative);
    if (!refused) {
        event([this] { designTank(); });
    }
}

void WindowReplay::designTank() {
    DesignResult& result = *result_;
    result.store(
        Quantity::InfiltrationFlow,
        calc::tank::infiltrationFlow(facility_->specific_infiltration_l_s_ha, site_->reduced_area_m2));
    const calc::CriticalRain storage =
        calc::tank::requiredStorage({.reduced_area_m2 = site_->reduced_area_m2,
                                     .infiltration_flow_m3_s = value(Quantity::InfiltrationFlow),
                                     .safety_factor = safety_factor_},
                                    site_->rains);
    pick(storage);
    result.store(Quantity::StorageVolume, numbers::toSingle(storage.maximum));

    const float depth_m = facility_->tank_depth_m;
    const float slope = facility_->side_slope;
    result.show(Quantity::TankTopLength, calc::tank::topSide(facility_->bottom_length_m, depth_m, slope));
    result.show(Quantity::TankTopWidth, calc::tank::topSide(facility_->bottom_width_m, depth_m, slope));
    const calc::tank::Shape shape{.bottom_length_m = facility_->bottom_length_m,
                                  .bottom_width_m = facility_->bottom_width_m,
                                  .top_length_m = value(Quantity::TankTopLength),
                                  .top_width_m = value(Quantity::TankTopWidth),
                                  .depth_m = depth_m};
    result.store(Quantity::TankVolume, calc::tank::volume(shape));
    for (const Quantity shown : {Quantity::InfiltrationFlow, Quantity::StorageVolume, Quantity::TankVolume}) {
        result.show(shown, value(shown));
    }

    if (calc::tank::judgeVolume(value(Quantity::TankVolume), value(Quantity::StorageVolume)) ==
        calc::tank::VolumeVerdict::TooSmall) {
        tell(Verdict::TankVolumeTooSmall);
        return;
    }
    tell(Verdict::TankVolumeSufficient);
    const double filtration_m_s =
        calc::tank::effectiveFiltration(filtration_m_s_, facility_->upstream_settling);
    switch (calc::tank::judgeInfiltration(calc::tank::meanInfiltrationFlow(shape, filtration_m_s),
                                          value(Quantity::InfiltrationFlow))) {
        case calc::tank::InfiltrationVerdict::Proven:
            tell(Verdict::TankInfiltrationProven);
            break;
        case calc::tank::InfiltrationVerdict::Exceeded:
            tell(Verdict::TankInfiltrationExceeded);
            break;
    }
    result.completed = true;
}

}  // namespace mero::design
