// SPDX-License-Identifier: MIT
/// Estimated text widths, and texts, numbers and colours as SVG writes them.
#include "picture/svg_text.h"

#include <gtest/gtest.h>

namespace mero::picture {
namespace {

TEST(SvgText, WidthsGrowWithTheFontAndAreLargerForBoldTexts) {
    const TextSizes sizes = svgTextSizes(10.0);
    // A blank 0.318, a digit 0.636, "m" 0.974 font sizes.
    EXPECT_NEAR(sizes.width("1 m"), 10 * (0.636 + 0.318 + 0.974), 1e-9);
    EXPECT_NEAR(svgTextSizes(20.0).width("1 m"), 2 * sizes.width("1 m"), 1e-9);
    EXPECT_GT(sizes.width("1 m", Emphasis::Strong), 1.1 * sizes.width("1 m"));
    EXPECT_EQ(sizes.width(""), 0.0);
    EXPECT_EQ(svgTextSizes(13.0).line_height, 16.0);
}

TEST(SvgText, ACharacterCountsOnceHoweverManyBytesItHas) {
    const TextSizes sizes = svgTextSizes(10.0);
    EXPECT_NEAR(sizes.width("ř"), 7.0, 1e-9);
    EXPECT_NEAR(sizes.width("≥"), 10.0, 1e-9);
}

TEST(SvgText, ReservedCharactersBecomeEntities) {
    EXPECT_EQ(xmlText("a<b>&\"ž\""), "a&lt;b&gt;&amp;&quot;ž&quot;");
    EXPECT_EQ(xmlText("a\x01\nb"), "ab") << "no control characters";
}

TEST(SvgText, NumbersHaveTwoDecimalsAndNoGrouping) {
    EXPECT_EQ(svgNumber(1.005), "1.01");
    EXPECT_EQ(svgNumber(-12345.5), "-12345.50");
}

TEST(SvgText, ColoursAreHexadecimal) {
    EXPECT_EQ(svgColour(0x1f4e9c), "#1f4e9c");
    EXPECT_EQ(svgColour(0x00000a), "#00000a");
}

}  // namespace
}  // namespace mero::picture
