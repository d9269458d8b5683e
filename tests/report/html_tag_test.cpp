// SPDX-License-Identifier: MIT
/// Tags are parsed like in browsers.
#include "report/html_tag.h"

#include <gtest/gtest.h>

namespace mero::report {
namespace {

TEST(HtmlTag, BeginsWithALetterASlashOrAnExclamationMark) {
    EXPECT_TRUE(HtmlTag::at("<b>x").has_value());
    EXPECT_TRUE(HtmlTag::at("</b>").has_value());
    EXPECT_TRUE(HtmlTag::at("<!-- x -->").has_value());
    for (const char* text : {"", "<", "<>", "< b>", "<5>", "x<b>", "<b"}) {
        EXPECT_FALSE(HtmlTag::at(text).has_value()) << text;
    }
}

TEST(HtmlTag, EndsAtTheFirstSign) {
    EXPECT_EQ(HtmlTag::at("<TD width=200>a</TD>")->text(), "<TD width=200>");
}

TEST(HtmlTag, HasANameInSmallLetters) {
    EXPECT_EQ(HtmlTag::at("<TABLE border=0>")->name(), "table");
    EXPECT_EQ(HtmlTag::at("</TD>")->name(), "td");
    EXPECT_EQ(HtmlTag::at("<align=justify>")->name(), "align=justify");
    EXPECT_EQ(HtmlTag::at("</>")->name(), "");
}

TEST(HtmlTag, FindsAttributesWithAndWithoutQuotes) {
    const std::string text = "<td data-width=1 width=200 align=\"left top\" valign='middle'>";
    const HtmlTag tag = *HtmlTag::at(text);
    EXPECT_EQ(tag.attribute("width"), "200");
    EXPECT_EQ(tag.attribute("align"), "left top");
    EXPECT_EQ(tag.attribute("valign"), "middle");
    EXPECT_EQ(tag.attribute("height"), "");
    EXPECT_EQ(HtmlTag::at("<td width=>")->attribute("width"), "");
    EXPECT_EQ(HtmlTag::at("<td width>")->attribute("width"), "");
}

}  // namespace
}  // namespace mero::report
