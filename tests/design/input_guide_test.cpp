// SPDX-License-Identifier: MIT
/// Limits of plausible values.
#include "design/input_guide.h"

#include <gtest/gtest.h>

namespace mero::design {
namespace {

TEST(InputGuide, LimitsAreIncludedAndZeroIsNoValue) {
    EXPECT_FALSE(isImplausible(Input::Filtration, 1e-7F));
    EXPECT_FALSE(isImplausible(Input::Filtration, 1e-2F));
    EXPECT_TRUE(isImplausible(Input::Filtration, 9.9e-8F));
    EXPECT_TRUE(isImplausible(Input::Filtration, 1.1e-2F));
    EXPECT_FALSE(isImplausible(Input::FillPorosity, 0.2F));
    EXPECT_FALSE(isImplausible(Input::FillPorosity, 0.95F));
    EXPECT_TRUE(isImplausible(Input::FillPorosity, 0.96F));
    EXPECT_TRUE(isImplausible(Input::FillPorosity, 35.0F));
    EXPECT_FALSE(isImplausible(Input::FillPorosity, 0.0F));
    EXPECT_TRUE(isImplausible(Input::TankDepth, -1.0F));
}

TEST(InputGuide, ChoicesHaveNoLimits) {
    EXPECT_FALSE(isImplausible(Input::Soil, 1.0F));
}

TEST(InputGuide, TheExplanationSaysMeaningUnitUsualValuesAndDefault) {
    EXPECT_EQ(explanation({Input::SafetyFactor}),
              "Násobí dobu, po kterou se voda hromadí\nObvykle: 1.0 až 1.5\nVýchozí: 1.2");
    EXPECT_EQ(explanation({Input::TrenchWidth}),
              "Střední šířka rýhy\nJednotka: m\nObvykle: 0.5 až 3\nVýchozí: prázdné");
    EXPECT_EQ(explanation({Input::Shape}), "Volba vymaže rozměry a naplní katalog");
}

TEST(InputGuide, EachInputThatAPanelAsksForIsExplained) {
    for (const FacilityType type : kFacilityTypes) {
        for (const PanelInput& row : panelInputs(type)) {
            EXPECT_STRNE(guide(row.input).meaning, "") << info(row.input).path;
        }
    }
}

TEST(InputGuide, EachNumberHasLimitsAroundItsUsualValues) {
    for (const InputInfo& row : inputs()) {
        const bool number = row.kind == InputKind::Number || row.kind == InputKind::WholeNumber;
        if (number && row.input != Input::DesignDuration) {
            EXPECT_LT(guide(row.input).least, guide(row.input).most) << row.path;
            EXPECT_STRNE(guide(row.input).usual, "") << row.path;
        }
    }
}

}  // namespace
}  // namespace mero::design
