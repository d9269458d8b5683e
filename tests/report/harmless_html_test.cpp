// SPDX-License-Identifier: MIT
/// The user's texts keep their harmless markup; the rest of it is text.
#include "report/harmless_html.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "report/html_report.h"
#include "report/sample_project.h"

namespace mero::report {
namespace {

using testing::HasSubstr;
using testing::Not;

std::string repeated(std::string_view text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i) {
        all += text;
    }
    return all;
}

ReportData described(const std::string& description) {
    ReportData project = test::sampleProject(2);
    project.texts.txtDetails = description;
    return project;
}

/// What becomes of a description.
std::string description(const std::string& text, PageUse use = PageUse::View) {
    const std::string html = harmlessHtml(htmlReport(described(text)), use);
    const std::string before = "<align=justify>";
    const std::size_t begin = html.find(before) + before.size();
    return html.substr(begin, html.find("</p>\r\n", begin) - begin);
}

TEST(HarmlessHtml, LeavesTheReportOfEveryTypeUnchanged) {
    for (int type = 0; type <= 6; ++type) {
        const std::string report = htmlReport(test::sampleProject(type));
        EXPECT_EQ(harmlessHtml(report, PageUse::View), report) << type;
        EXPECT_EQ(harmlessHtml(report, PageUse::Copy), report) << type;
    }
}

TEST(HarmlessHtml, KeepsSimpleMarkup) {
    for (const std::string text :
         {"a<br>b", "<b>a</b> <i>b</i> <u>c</u>", "m<sup>2</sup> h<sub>0</sub>",
          "<font color=red size=+1>a</font>", "<p align=center>a</p>", "<ul><li>a</li><li>b</li></ul>",
          "<h2>a</h2>", "&lt;b&gt; &alpha; &#8364; &amp;",
          "<table border=1><tr><th colspan=2>a</th></tr><tr><td>b</td><td>c</td></tr></table>"}) {
        EXPECT_EQ(description(text), text);
        EXPECT_EQ(description(text, PageUse::Copy), text);
    }
}

TEST(HarmlessHtml, OtherTagsAreText) {
    EXPECT_EQ(description("<script>a</script>"), "&lt;script>a&lt;/script>");
    EXPECT_EQ(description("<meta http-equiv=\"refresh\" content=\"0\">"),
              "&lt;meta http-equiv=\"refresh\" content=\"0\">");
    EXPECT_EQ(description("<!-- <b>a</b> -->"), "&lt;!-- <b>a</b> -->");
    EXPECT_EQ(description("<body onload=a><html><style>b"), "&lt;body onload=a>&lt;html>&lt;style>b");
    EXPECT_EQ(description("1 < 2 <"), "1 &lt; 2 &lt;");
}

TEST(HarmlessHtml, OtherAttributesGo) {
    EXPECT_EQ(description("<b onclick=a style=x:y id=q>a</b>"), "<b>a</b>");
    EXPECT_EQ(description("<table width=1000000000 border=1><tr><td colspan=100000000>a</td></tr></table>"),
              "<table border=1><tr><td>a</td></tr></table>");
    EXPECT_EQ(description("<font size=99>a</font>"), "<font>a</font>");
    EXPECT_EQ(description("<hr width=90% size=2>"), "<hr width=90% size=2>");
}

TEST(HarmlessHtml, PicturesOfTheFolderAreShownAndNotCopied) {
    EXPECT_EQ(description("<img src=Webs/a.png width=100>"), "<img src=Webs/a.png width=100>");
    for (const char* source : {"/proc/self/pagemap", "file:///etc/passwd", "http://a/b.png",
                               "data:image/gif,x", "\\\\host\\a.png", "//host/a.png"}) {
        EXPECT_THAT(description("<img src=" + std::string(source) + ">"), testing::StartsWith("&lt;img"))
            << source;
    }
    EXPECT_EQ(description("<img src=Webs/a.png>", PageUse::Copy), "&lt;img src=Webs/a.png>");
    EXPECT_EQ(description("<img onerror=a>"), "&lt;img onerror=a>");
}

TEST(HarmlessHtml, LinksOfTheViewLeadToTheWeb) {
    EXPECT_EQ(description("<a href=\"https://a.cz/b\">c</a>"), "<a href=\"https://a.cz/b\">c</a>");
    EXPECT_EQ(description("<a href=javascript:a>c</a>"), "<a>c</a>");
    EXPECT_EQ(description("<a href=/etc/passwd>c</a>"), "<a>c</a>");
    // Browsers look for the hosts of links.
    EXPECT_EQ(description("<a href=https://a.cz>c</a>", PageUse::Copy), "&lt;a href=https://a.cz>c&lt;/a>");
}

TEST(HarmlessHtml, WhatAFieldOpensItCloses) {
    EXPECT_EQ(description("<b><i>a"), "<b><i>a</i></b>");
    EXPECT_EQ(description("<table><tr><td>a"), "<table><tr><td>a</td></tr></table>");
    EXPECT_EQ(description("a</div></td></table>"), "a&lt;/div>&lt;/td>&lt;/table>");
    ReportData project = described("");
    project.texts.txtProjName = "Dům</TH></TR></table><div><b>";
    EXPECT_THAT(harmlessHtml(htmlReport(project), PageUse::View), HasSubstr("Dům</TH></TR></table>"));
    project.texts.txtProjName = "Dům</table><table><b>";
    EXPECT_THAT(harmlessHtml(htmlReport(project), PageUse::View),
                HasSubstr("Dům&lt;/table><table><tr><td>&lt;b></td></tr></table></TH><TD rowspan=4"));
}

TEST(HarmlessHtml, CellsBelongToRowsAndRowsToTables) {
    EXPECT_EQ(description("<td>a"), "&lt;td>a");
    EXPECT_EQ(description("<tr>a"), "&lt;tr>a");
    EXPECT_EQ(description("<table><td>a"), "<table><tr><td>&lt;td>a</td></tr></table>");
    EXPECT_EQ(description("<table><tr><b>a"), "<table><tr><td>&lt;b>a</td></tr></table>");
    EXPECT_EQ(description("<table><tr><td>a<td>b<tr><td>c"),
              "<table><tr><td>a<td>b<tr><td>c</td></tr></table>");
    EXPECT_EQ(description("<table><tr><td><b>a</td></b>"),
              "<table><tr><td><b>a</td><td>&lt;/b></td></tr></table>");
}

TEST(HarmlessHtml, TablesNestTwiceAndTheViewSaysThatOthersAreText) {
    const std::string html = description("<table><tr><td><table><tr><td><table>a");
    EXPECT_THAT(html, testing::StartsWith("<table><tr><td><table><tr><td>&lt;table>a</td></tr></table>"));
    EXPECT_THAT(html, HasSubstr("příliš mnoho vnořených značek"));
    const std::string copy = description("<table><tr><td><table><tr><td><table>a", PageUse::Copy);
    EXPECT_THAT(copy, HasSubstr("&lt;table>a"));
    EXPECT_THAT(copy, Not(HasSubstr("značek")));
}

TEST(HarmlessHtml, DepthAndWidthAreLimited) {
    const auto tags = [](const std::string& html, std::string_view tag) {
        std::size_t count = 0;
        for (std::size_t at = 0; (at = html.find(tag, at)) != std::string::npos; ++at) {
            ++count;
        }
        return count;
    };
    // The report's own block is open around the description.
    EXPECT_EQ(tags(description(repeated("<b>", 1000)), "<b>"), 39U);
    EXPECT_EQ(tags(description(repeated("<ul><li>", 1000)), "<ul>"), 5U);
    EXPECT_EQ(tags(description("<table><tr>" + repeated("<td>a", 50)), "<td>"), 20U);
    EXPECT_EQ(tags(description("<table><tr>" + repeated("<td colspan=10>a", 50)), "<td colspan=10>"), 2U);
    EXPECT_EQ(tags(description("<table>" + repeated("<tr><td rowspan=9>a", 50)), "<td rowspan=9>"), 20U - 1U);
    // One more of each is the logo with its cell.
    EXPECT_EQ(tags(description(repeated("<img src=a.png>", 50)), "<img"), 20U - 1U);
}

TEST(HarmlessHtml, ALongDescriptionIsCutInTheViewAndTheResultsStay) {
    const std::string note = "[… text je příliš dlouhý a zde zkrácený; soubor zprávy je úplný]";
    const std::string whole = repeated("ž", 30'000);
    EXPECT_EQ(description(whole), whole);
    EXPECT_EQ(description(whole + "ž"), whole + " <i>" + note + "</i>");
    EXPECT_EQ(description(whole + "ž", PageUse::Copy), whole + "ž");
    const std::string report = htmlReport(described(repeated("<b>a</b>", 100'000)));
    const std::string html = harmlessHtml(report, PageUse::View);
    EXPECT_LT(html.size(), 100'000U);
    EXPECT_THAT(html, HasSubstr(note));
    EXPECT_TRUE(html.ends_with(report.substr(report.find("<hr><u>Návrhový"))));
}

TEST(HarmlessHtml, AreasBeyondTheViewAreLeftOutAndTheResultsStay) {
    ReportData project = test::sampleProject(2);
    project.partial_areas.resize(20'000, {1, 1, "Asfalt"});
    const std::string report = htmlReport(project);
    const std::string html = harmlessHtml(report, PageUse::View);
    EXPECT_LT(html.size(), 1'000'000U);
    EXPECT_THAT(html, HasSubstr("</table><br>\r\n <i>[… text je příliš dlouhý"));
    const std::string_view results = "<table border=0><TR><TD valign=bottom width=200>Celková";
    EXPECT_TRUE(html.ends_with(report.substr(report.find(results))));
    EXPECT_EQ(harmlessHtml(report, PageUse::Copy), report);
}

TEST(HarmlessHtml, LettersOfOtherScriptsAndControlsAreNotLaidOut) {
    EXPECT_EQ(description("&#x627; &#3585; &#8364; &#x1F600; &#8238; &#99999999999;"),
              "&amp;#x627; &amp;#3585; &#8364; &amp;#x1F600; &amp;#8238; &amp;#99999999999;");
    EXPECT_EQ(description("a\x01z"), "a z");
}

TEST(HarmlessHtml, WhateverThePageIsItEnds) {
    for (const std::string page : {"", "<", "<html><body>", "<align=justify>", "<TH align=left width=450>a",
                                   "</table><br>\r\n", "<td width=250 align=left>"}) {
        EXPECT_FALSE(harmlessHtml(repeated(page, 1000), PageUse::View).empty() && !page.empty()) << page;
    }
    EXPECT_LT(harmlessHtml(repeated("<td>a</table><br>\r\n", 1'000'000), PageUse::View).size(), 3'000'000U);
}

}  // namespace
}  // namespace mero::report
