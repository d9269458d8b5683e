// SPDX-License-Identifier: MIT
/// Only tags that every reader reads alike are tags.
#include "report/strict_tag.h"

#include <gtest/gtest.h>

namespace mero::report {
namespace {

TEST(StrictTag, HasANameAndAttributes) {
    const auto tag = StrictTag::at("<TD valign=bottom width=\"200\" nowrap COLSPAN='3' >x");
    ASSERT_TRUE(tag.has_value());
    EXPECT_EQ(tag->text(), "<TD valign=bottom width=\"200\" nowrap COLSPAN='3' >");
    EXPECT_EQ(tag->name(), "td");
    EXPECT_EQ(tag->writtenName(), "TD");
    EXPECT_FALSE(tag->closes());
    ASSERT_EQ(tag->attributes().size(), 4U);
    EXPECT_EQ(tag->attributes()[0].value, "bottom");
    EXPECT_EQ(tag->attributes()[1].text, "width=\"200\"");
    EXPECT_EQ(tag->attributes()[1].value, "200");
    EXPECT_EQ(tag->attributes()[2].value, "");
    EXPECT_EQ(tag->attributes()[3].name, "colspan");
    EXPECT_EQ(tag->attributes()[3].value, "3");
}

TEST(StrictTag, ClosesOrIsEmpty) {
    EXPECT_TRUE(StrictTag::at("</TABLE >")->closes());
    EXPECT_EQ(StrictTag::at("<br/>x")->text(), "<br/>");
    EXPECT_EQ(StrictTag::at("<br />")->name(), "br");
}

TEST(StrictTag, EverythingElseIsText) {
    for (const char* text : {"",
                             "<",
                             "<>",
                             "< b>",
                             "<5>",
                             "</>",
                             "x<b>",
                             "<b",
                             "<b x",
                             "<!-- x -->",
                             "<!doctype html>",
                             "<?x?>",
                             "<b/ x>",
                             "<b x=\"y>",
                             "<b x=\"a>b\">",
                             "<b x=a\"b>",
                             "<b x=`a`>",
                             "<b x=\"&quot;\">",
                             "<b x='<'>",
                             "<b =x>",
                             "<b x = y>",
                             "<b <i>",
                             "</b x>",
                             "</b/>",
                             "<b x=\"a\"y=\"b\">",
                             "<align=justify>",
                             "<b\0>",
                             "<b:c>",
                             "<svg/onload=a>"}) {
        EXPECT_FALSE(StrictTag::at(text).has_value()) << text;
    }
}

TEST(StrictTag, HasAtMost512Bytes) {
    const auto tagOf = [](std::size_t size) { return "<b" + std::string(size - 3, ' ') + ">"; };
    EXPECT_TRUE(StrictTag::at(tagOf(512)).has_value());
    EXPECT_FALSE(StrictTag::at(tagOf(513)).has_value());
}

}  // namespace
}  // namespace mero::report
