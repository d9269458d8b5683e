// SPDX-License-Identifier: MIT
/// The two palettes: texts are legible.
#include "qt/palettes.h"

#include <gtest/gtest.h>

#include "qt/contrast.h"
#include "qt/look.h"

namespace mero::qt {
namespace {

class Palettes : public testing::TestWithParam<bool> {
  protected:
    QPalette palette = GetParam() ? darkPalette() : lightPalette();
};

TEST_P(Palettes, AreAsDarkAsTheySay) {
    for (const auto role : {QPalette::Window, QPalette::Base}) {
        EXPECT_EQ(contrast(palette.color(role), Qt::black) < contrast(palette.color(role), Qt::white),
                  GetParam());
    }
}

TEST_P(Palettes, TextsCanBeReadAlsoWhereDisabled) {
    using Role = QPalette::ColorRole;
    const std::pair<Role, Role> pairs[] = {{QPalette::WindowText, QPalette::Window},
                                           {QPalette::Text, QPalette::Base},
                                           {QPalette::Text, QPalette::AlternateBase},
                                           {QPalette::ButtonText, QPalette::Button},
                                           {QPalette::ToolTipText, QPalette::ToolTipBase}};
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (const auto& [ink, ground] : pairs) {
            EXPECT_GE(contrast(palette.color(group, ink), palette.color(group, ground)), 4.5)
                << ink << " on " << ground << ", group " << group;
        }
    }
    EXPECT_GE(contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)), 4.5);
    EXPECT_GE(contrast(palette.color(QPalette::Link), palette.color(QPalette::Window)), 4.5);
}

TEST_P(Palettes, TheFocusStandsOutInFields) {
    EXPECT_GE(contrast(palette.color(QPalette::Highlight), palette.color(QPalette::Base)), 3);
}

INSTANTIATE_TEST_SUITE_P(LightAndDark, Palettes, testing::Bool());

}  // namespace
}  // namespace mero::qt
