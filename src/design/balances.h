// SPDX-License-Identifier: MIT
/// What the balance of each type depends on, taken from the stored numbers: the calculation and the charts
/// that show it use the same values.
#pragma once

#include "calc/shaft.h"
#include "calc/swale.h"
#include "calc/swale_trench.h"
#include "calc/tank.h"
#include "calc/trench.h"
#include "data/design_numbers.h"

namespace mero::design {

/// @param filtration_m_s coefficient of the layer that the swale soaks into
[[nodiscard]] inline calc::swale::Balance swaleBalance(const data::DesignNumbers& values,
                                                       float filtration_m_s) {
    return {.reduced_area_m2 = values.RedukovanaPlocha,
            .infiltration_area_m2 = values.txtVsakPlocha,
            .filtration_m_s = filtration_m_s,
            .safety_factor = values.txtSoucBezp};
}

[[nodiscard]] inline calc::TrenchSection trenchSection(const data::DesignNumbers& values) {
    return {.width_m = values.txtSirkaRyhy,
            .height_m = values.txtVyskaRyhy,
            .storage_coefficient = values.s_RR,
            .filtration_m_s = values.txtSoucFiltrace};
}

[[nodiscard]] inline calc::swale_trench::Balance swaleTrenchBalance(const data::DesignNumbers& values) {
    return {.reduced_area_m2 = values.RedukovanaPlocha,
            .infiltration_area_m2 = values.txtVsakPlocha,
            .throttled_m3_s = values.Q_dr,
            .swale_volume_m3 = values.txtObjAkum,
            .safety_factor = values.txtSoucBezp,
            .trench = trenchSection(values)};
}

[[nodiscard]] inline calc::trench::Balance trenchBalance(const data::DesignNumbers& values) {
    return {.reduced_area_m2 = values.RedukovanaPlocha,
            .safety_factor = values.txtSoucBezp,
            .section = trenchSection(values)};
}

[[nodiscard]] inline calc::shaft::Balance shaftBalance(const data::DesignNumbers& values) {
    return {
        .reduced_area_m2 = values.RedukovanaPlocha,
        .filtration_m_s = values.txtSoucFiltrace,
        .safety_factor = values.txtSoucBezp,
        .shafts = {
            .count = values.txtSachtyCount, .outer_diameter_m = values.D_a, .inner_diameter_m = values.D_i}};
}

/// @param infiltration_flow_m3_s what calc::tank::infiltrationFlow gives
[[nodiscard]] inline calc::tank::Balance tankBalance(const data::DesignNumbers& values,
                                                     float infiltration_flow_m3_s) {
    return {.reduced_area_m2 = values.RedukovanaPlocha,
            .infiltration_flow_m3_s = infiltration_flow_m3_s,
            .safety_factor = values.txtSoucBezp};
}

}  // namespace mero::design
