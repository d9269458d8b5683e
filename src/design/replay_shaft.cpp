// SPDX-License-Identifier: MIT
/// Infiltration shaft: shape or ring, dimensions, balance, design.
/// Each dimension box recomputes the diameters with what the others hold at that moment.
#include "calc/shaft.h"

#include "calc/shaft_geometry.h"
#include "design/shaft_catalogue.h"
#include "design/window_replay.h"

namespace mero::design {

void WindowReplay::runShaft() {
    setDiameters(0.0F, 0.0F);
    if (facility_->catalogue_row >= 0) {
        chooseRing();
    } else {
        enterShaftDimensions();
    }
    enterSafetyFactor([this] { calcShaftBalance(); });

    bool refused = refuse(safety_factor_ <= 0.0F, Verdict::SafetyFactorNotPositive);
    refused |= refuse(facility_->inlet_depth_m <= 0.0F, Verdict::InletDepthNotPositive);
    refused |= refuse(facility_->filter_layer_m <= 0.0F, Verdict::FilterLayerNotPositive);
    const float inner_m = value(Quantity::ShaftInnerDiameter);
    const float outer_m = value(Quantity::ShaftOuterDiameter);
    refused |= refuse(inner_m <= 0.0F, Verdict::InnerDiameterNotPositive);
    refused |= refuse(outer_m <= 0.0F, Verdict::OuterDiameterNotPositive);
    refused |= refuse(facility_->seepage_path_m <= 0.0F, Verdict::SeepagePathNotPositive);
    refused |=
        refuse(facility_->sand_layer && facility_->sand_layer_m <= 0.0F, Verdict::SandLayerNotPositive);
    if (refused || refuse(outer_m <= inner_m, Verdict::ShaftOuterDiameterTooSmall)) {
        return;
    }
    event([this] {
        calcShaftBalance();
        designShaft();
    });
}

void WindowReplay::setDiameters(float inner_m, float outer_m) {
    result_->show(Quantity::ShaftInnerDiameter, inner_m);
    result_->show(Quantity::ShaftOuterDiameter, outer_m);
}

void WindowReplay::chooseRing() {
    const CatalogueShaft& ring = shaftCatalogue()[static_cast<std::size_t>(facility_->catalogue_row)];
    shape_ = ring.shape;
    event([&] {
        // The row itself first; then the boxes show it with two decimals and store that back.
        if (shape_ == ShaftShape::Round) {
            result_->shaft_wall_m = ring.wall_m;
        } else {
            result_->shaft_side1_m = ring.side1_m;
            result_->shaft_side2_m = ring.side2_m;
            result_->shaft_wall_m = ring.wall_m;
        }
        setInnerSide(throughField2(ring.side1_m));
        if (shape_ == ShaftShape::Rectangular) {
            setInnerLength(throughField2(ring.side2_m));
        }
        setWall(throughField2(ring.wall_m));
    });
}

void WindowReplay::enterShaftDimensions() {
    shape_ = facility_->shape;
    event([this] {
        setInnerSide(shape_ == ShaftShape::Round ? facility_->inner_diameter_m : facility_->inner_width_m);
    });
    if (shape_ == ShaftShape::Rectangular) {
        event([this] { setInnerLength(facility_->inner_length_m); });
    }
    event([this] { setWall(facility_->wall_thickness_m); });
}

void WindowReplay::setInnerSide(float side_m) {
    result_->shaft_side1_m = side_m;
    if (shape_ == ShaftShape::Rectangular) {
        recomputeDiameters();
        return;
    }
    result_->show(Quantity::ShaftInnerDiameter, side_m);
    result_->show(Quantity::ShaftOuterDiameter,
                  calc::shaft_geometry::roundOuterDiameter(side_m, result_->shaft_wall_m));
}

void WindowReplay::setInnerLength(float length_m) {
    result_->shaft_side2_m = length_m;
    recomputeDiameters();
}

void WindowReplay::setWall(float wall_m) {
    result_->shaft_wall_m = wall_m;
    if (shape_ == ShaftShape::Rectangular) {
        recomputeDiameters();
        return;
    }
    result_->show(Quantity::ShaftOuterDiameter,
                  calc::shaft_geometry::roundOuterDiameter(value(Quantity::ShaftInnerDiameter), wall_m));
}

void WindowReplay::recomputeDiameters() {
    const DesignResult& result = *result_;
    result_->show(Quantity::ShaftInnerDiameter,
                  calc::shaft_geometry::equivalentInnerDiameter(result.shaft_side1_m, result.shaft_side2_m));
    result_->show(Quantity::ShaftOuterDiameter,
                  calc::shaft_geometry::equivalentOuterDiameter(result.shaft_side1_m, result.shaft_side2_m,
                                                                result.shaft_wall_m));
}

void WindowReplay::calcShaftBalance() {
    DesignResult& result = *result_;
    const calc::shaft::Balance balance = shaftBalance();
    const calc::CriticalRain level = calc::shaft::waterLevel(balance, site_->rains);
    pick(level);
    result.show(Quantity::WaterDepth, numbers::toSingle(level.maximum));
    const float level_m = value(Quantity::WaterDepth);

    const float area_m2 = calc::shaft::infiltrationArea(balance.shafts, level_m);
    result.show(Quantity::InfiltrationArea, area_m2, throughField2(area_m2));

    result.show(Quantity::ShaftDepth,
                calc::shaft::depth(level_m, {.inlet_depth_m = facility_->inlet_depth_m,
                                             .filter_layer_m = facility_->filter_layer_m,
                                             .sand_layer_m = facility_->sand_layer_m,
                                             .has_sand_layer = facility_->sand_layer}));

    const float embedding_m =
        calc::shaft::requiredEmbedding(facility_->inlet_depth_m, level_m, facility_->seepage_path_m);
    result.show(Quantity::RequiredGroundwaterDepth, embedding_m, throughField2(embedding_m));
}

void WindowReplay::designShaft() {
    DesignResult& result = *result_;
    const calc::shaft::Balance balance = shaftBalance();
    result.show(Quantity::StorageVolume,
                calc::shaft::storageVolume(balance, value(Quantity::InfiltrationArea), result.picked_rain));

    const float permeability_m_s =
        calc::shaft::requiredFilterPermeability(value(Quantity::WaterDepth), balance.shafts, filtration_m_s_);
    const float stored_back = throughScientificField(permeability_m_s);
    result.show(Quantity::RequiredFilterPermeability, permeability_m_s, stored_back);
    result.swale_filtration_m_s = stored_back;

    const float embedding_m = value(Quantity::RequiredGroundwaterDepth);
    if (calc::shaft::judgeGroundwater(site_->groundwater_depth_m, embedding_m) ==
        calc::shaft::GroundwaterVerdict::TooHigh) {
        tell(Verdict::ShaftGroundwaterTooHigh);
        return;
    }
    if (calc::shaft::judgeBottom(value(Quantity::ShaftDepth), embedding_m) ==
        calc::shaft::BottomVerdict::TooClose) {
        tell(Verdict::ShaftBottomTooClose);
        return;
    }
    switch (calc::shaft::judgeFilter(stored_back)) {
        case calc::shaft::FilterVerdict::Sufficient:
            tell(Verdict::ShaftFilterSufficient);
            break;
        case calc::shaft::FilterVerdict::TooPermeable:
            tell(Verdict::ShaftFilterTooPermeable);
            break;
    }
    result.completed = true;
}

calc::shaft::Balance WindowReplay::shaftBalance() const {
    return {.reduced_area_m2 = site_->reduced_area_m2,
            .filtration_m_s = filtration_m_s_,
            .safety_factor = safety_factor_,
            .shafts = {.count = facility_->shaft_count,
                       .outer_diameter_m = value(Quantity::ShaftOuterDiameter),
                       .inner_diameter_m = value(Quantity::ShaftInnerDiameter)}};
}

}  // namespace mero::design
