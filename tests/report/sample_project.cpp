// SPDX-License-Identifier: MIT
/// Values of the sample project. Some are chosen to show rounding: 0.135 m of wall is written as 0.14.
#include "report/sample_project.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace mero::report::test {
namespace {

constexpr std::array<std::string_view, 7> kTypeNames = {
    "[Vyber typ zasakování]",
    "Plošné vsakování",
    "Vsakování v průlezích",
    "Vsakování v kombinovaném objektu",
    "Vsakování rýhové a kombinace rýhy a drénu",
    "Šachtové vsakování",
    "Vsakovací nádrže",
};

void fillSwaleAndTrench(ReportData& data) {
    data.swale.soil_caption = data.infiltration_type == 3 ? "Slit a písek, slit" : "Písek střední až jemný";
    data.swale.filtration_m_s = 1e-4F;
    data.swale.emptying_time_h = 7.2F;
    data.swale.width_m = 0.8F;
    data.swale.depth_m = 0.305F;
    data.trench = {.fill_porosity = 0.35F, .width_m = 0.8F, .height_m = 1.045F, .length_m = 61.3F};
    data.pipes.inner_diameter_mm = 188;
    data.pipes.outer_diameter_mm = 200;
    data.pipes.count = 2;
    data.pipes.throttled_outflow_lsha = 1.5F;
    data.pipes.outlet_area_cm2_per_m = 180;
    data.pipes.outlet_velocity_m_s = 0.25F;
}

void fillShaft(ShaftValues& shaft) {
    shaft.count = 3;
    shaft.ring = "RSA - Q.1 120/..";
    shaft.inflow_depth_m = 0.8F;
    shaft.inner_diameter_m = 1.2F;
    shaft.side1_m = 2.4F;
    shaft.side2_m = 1.9F;
    shaft.wall_thickness_m = 0.135F;
    shaft.filter_layer_m = 0.5F;
    shaft.sand_layer_m = 0.3F;
    shaft.required_depth_m = 1.56F;
    shaft.min_groundwater_depth_m = 2.56F;
    shaft.required_filtration_m_s = 8.3e-5F;
}

void fillTank(TankValues& tank) {
    tank.specific_infiltration_lsha = 2;
    tank.bottom_length_m = 20;
    tank.bottom_width_m = 12.5F;
    tank.depth_m = 1;
    tank.side_slope = 2.5F;
    tank.infiltration_flow_m3_s = 0.025F;
    tank.volume_by_dimensions_m3 = 1234.5F;
}

}  // namespace

ReportData sampleProject(int infiltration_type) {
    ReportData data;
    data.project_name = "Nákupní centrum Žďár";
    data.designer = "Ing. Jiří Šťastný";
    data.investor = "Město Žďár nad Sázavou";
    data.site = "Brněnská ulice";
    data.infiltration_type = infiltration_type;
    data.infiltration_type_name = kTypeNames.at(static_cast<std::size_t>(infiltration_type));
    data.rain = {.station = "Telč",
                 .periodicity = "0.2",
                 .durations_min = {5, 10, 15, 20, 30, 45, 60, 90, 120},
                 .intensities_lsha = {315, 212, 161.5F, 131.2F, 96.3F, 69, 54.1F, 38.25F, 0.75F},
                 .chosen_duration_min = 15};
    data.partial_areas = {{850, 0.95F, "kov, sklo, břidlice, vláknocementová krytina"},
                          {120.5F, 0.9F, "asfalt, bezesparý beton"},
                          {1234567, 0.3F, "humusová vrstva > 10 cm"}};
    data.drained_area_m2 = 1250;
    data.subsoil_filtration_m_s = 2e-5F;
    data.subsoil = "Střední písek";
    data.groundwater_depth_m = 4.5F;
    data.safety_factor = 1.2F;
    data.infiltration_area_m2 = 428.6F;
    data.storage_volume_m3 = 33.7F;
    data.water_depth_m = 0.26F;
    fillSwaleAndTrench(data);
    fillShaft(data.shaft);
    fillTank(data.tank);
    data.date = "3.4.2026";
    data.time = "14:05";
    return data;
}

}  // namespace mero::report::test
