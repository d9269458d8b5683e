// SPDX-License-Identifier: MIT
/// The two palettes: texts are legible.
#include "qt/palettes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "qt/look.h"

namespace mero::qt {
namespace {

/// Relative luminance of a colour, 0 for black and 1 for white.
double luminance(const QColor& colour) {
    const auto linear = [](double share) {
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

class Palettes : public testing::TestWithParam<bool> {
  protected:
    QPalette palette = GetParam() ? darkPalette() : lightPalette();
};

TEST_P(Palettes, AreAsDarkAsTheySay) {
    EXPECT_EQ(luminance(palette.color(QPalette::Window)) < 0.2, GetParam());
    EXPECT_EQ(luminance(palette.color(QPalette::Base)) < 0.2, GetParam());
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
