// SPDX-License-Identifier: MIT
/// Joins the two catalogues once.
/// The list never changes after that, so all threads read it.
#include "design/shaft_catalogue.h"

#include <algorithm>
#include <vector>

#include "data/mod_default_data.h"
#include "data/mod_public_variables.h"

namespace mero::design {

std::span<const CatalogueShaft> shaftCatalogue() {
    static const std::vector<CatalogueShaft> kShafts = [] {
        data::modPublicVariables tables;
        data::LoadDefaultData(tables);
        std::vector<CatalogueShaft> shafts;
        for (const data::RoundShaft& row : tables.SachtaKruhova) {
            shafts.push_back(
                {data::ShaftShape::Round, row.designation, row.inner_diameter_m, 0.0F, row.wall_m});
        }
        for (const data::RectangularShaft& row : tables.SachtaObdelnikova) {
            shafts.push_back(
                {data::ShaftShape::Rectangular, row.designation, row.side1_m, row.side2_m, row.wall_m});
        }
        return shafts;
    }();
    return kShafts;
}

std::span<const CatalogueShaft> shaftCatalogue(data::ShaftShape shape) {
    const auto all = shaftCatalogue();
    const auto rectangular = std::ranges::find(all, data::ShaftShape::Rectangular, &CatalogueShaft::shape);
    return shape == data::ShaftShape::Round ? std::span(all.begin(), rectangular)
                                            : std::span(rectangular, all.end());
}

}  // namespace mero::design
