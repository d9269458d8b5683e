/// Infiltration tank.
/// Required storage, shape and proof of the infiltration flow, see the header.
#include "calc/tank.h"

#include "platform/numbers/checked.h"

namespace mero::calc::tank {

float infiltrationFlow(float specific_intensity_l_s_ha, float reduced_area_m2) {
    const double specific_intensity = specific_intensity_l_s_ha;
    const double area = reduced_area_m2;
    return numbers::toSingle(kRatePerIntensity * specific_intensity * area);
}

CriticalRain requiredStorage(const Balance& balance, RainTable rains) {
    const double reduced_area = balance.reduced_area_m2;
    const double infiltration_flow = balance.infiltration_flow_m3_s;
    const double safety_factor = balance.safety_factor;

    const double collected = kRatePerIntensity * reduced_area;
    return findCriticalRain<Rows::All>(rains, [=](const Rain& rain) {
        const double intensity = rain.intensity_l_s_ha;
        const double duration = rain.duration_min;
        return (collected * intensity - infiltration_flow) * duration * kSecondsPerMinute * safety_factor;
    });
}

float topSide(float bottom_m, float depth_m, float slope) {
    const double bottom = bottom_m;
    const double depth = depth_m;
    const double run = slope;
    return numbers::toSingle(2.0 * depth * run + bottom);
}

float volume(const Shape& shape) {
    const double bottom_length = shape.bottom_length_m;
    const double bottom_width = shape.bottom_width_m;
    const double top_length = shape.top_length_m;
    const double top_width = shape.top_width_m;
    const double depth = shape.depth_m;
    const double mean = numbers::squareRoot(top_length * bottom_length * bottom_width * top_width);
    return numbers::toSingle(depth / 3.0 * (top_length * top_width + bottom_length * bottom_width + mean));
}

double meanInfiltrationFlow(const Shape& shape, double effective_filtration_m_s) {
    const double bottom_length = shape.bottom_length_m;
    const double bottom_width = shape.bottom_width_m;
    const double top_length = shape.top_length_m;
    const double top_width = shape.top_width_m;
    const double bottom_flow = bottom_width * bottom_length * effective_filtration_m_s / 2.0;
    const double top_flow = top_width * top_length * effective_filtration_m_s / 2.0;
    return (bottom_flow + top_flow) / 2.0;
}

}  // namespace mero::calc::tank
