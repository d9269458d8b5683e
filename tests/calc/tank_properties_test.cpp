// SPDX-License-Identifier: MIT
/// Properties of the tank design over random sites.
/// Compares with extended precision, and checks relations that hold for every site.
#include <gtest/gtest.h>

#include <cmath>

#include "calc/properties.h"
#include "calc/tank.h"

namespace mero::calc {
namespace {

using namespace test;

RC_GTEST_PROP(TankStorage, AgreesWithExtendedPrecision, ()) {
    const float reduced_area = area();
    const float specific = number(0.1, 50.0, 0.1);
    const float flow = tank::infiltrationFlow(specific, reduced_area);
    RC_ASSERT(storedNear(flow, 1e-7L * specific * reduced_area, 0.0L));

    const tank::Balance site{
        .reduced_area_m2 = reduced_area, .infiltration_flow_m3_s = flow, .safety_factor = safetyFactor()};
    const Table table = rains();
    const auto seconds = [&](const Rain& rain) {
        return static_cast<Exact>(rain.duration_min) * 60.0L * site.safety_factor;
    };
    const ExactSearch expected(
        table, false,
        [&](const Rain& rain) {
            return (1e-7L * reduced_area * rain.intensity_l_s_ha - flow) * seconds(rain);
        },
        [&](const Rain& rain) {
            return (1e-7L * reduced_area * rain.intensity_l_s_ha + flow) * seconds(rain);
        });
    expected.check(tank::requiredStorage(site, table));
}

tank::Shape tankShape(float depth, float slope) {
    const float bottom_length = number(1.0, 100.0, 0.1);
    const float bottom_width = number(1.0, 100.0, 0.1);
    return {.bottom_length_m = bottom_length,
            .bottom_width_m = bottom_width,
            .top_length_m = tank::topSide(bottom_length, depth, slope),
            .top_width_m = tank::topSide(bottom_width, depth, slope),
            .depth_m = depth};
}

RC_GTEST_PROP(TankShape, AgreesWithExtendedPrecision, ()) {
    const float depth = number(0.1, 5.0, 0.1);
    const float slope = number(0.0, 3.0, 0.25);
    const tank::Shape shape = tankShape(depth, slope);
    RC_ASSERT(storedNear(shape.top_width_m, 2.0L * depth * slope + shape.bottom_width_m, 0.0L));

    const Exact bottom = static_cast<Exact>(shape.bottom_length_m) * shape.bottom_width_m;
    const Exact top = static_cast<Exact>(shape.top_length_m) * shape.top_width_m;
    RC_ASSERT(storedNear(tank::volume(shape), depth / 3.0L * (bottom + top + std::sqrt(bottom * top)), 0.0L));

    const bool settled = *rc::gen::arbitrary<bool>();
    const float kf = filtration();
    const Exact coefficient = settled ? static_cast<Exact>(kf) : static_cast<Exact>(kf) / 5.0L;
    RC_ASSERT(near(tank::meanInfiltrationFlow(shape, tank::effectiveFiltration(kf, settled)),
                   (bottom + top) / 2.0L * coefficient / 2.0L, 0.0L, kDoubleArithmetic));
}

RC_GTEST_PROP(TankShape, HoldsMoreThanTheBottomAndLessThanTheTopWouldAlone, ()) {
    const float depth = number(0.1, 5.0, 0.1);
    const tank::Shape shape = tankShape(depth, number(0.25, 3.0, 0.25));
    const double bottom = static_cast<double>(shape.bottom_length_m) * shape.bottom_width_m;
    const double top = static_cast<double>(shape.top_length_m) * shape.top_width_m;
    const double held = tank::volume(shape);
    RC_ASSERT(held > bottom * depth);
    RC_ASSERT(held < top * depth);
}

}  // namespace
}  // namespace mero::calc
