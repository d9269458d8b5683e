// SPDX-License-Identifier: MIT
/// The report rewritten for the view: the same content, with correct rules, gaps and columns.
#include "report/view_html.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "report/html_report.h"
#include "report/sample_project.h"

namespace mero::report {
namespace {

using testing::HasSubstr;
using testing::Not;

const std::string kStart = "<html><body><div style=position:relative;width:650px;height:350px>";
const std::string kRule =
    "<table width=650 border=0 cellspacing=0 cellpadding=0><tr><td><hr></td></tr></table>";

std::string arranged(const std::string& body) {
    const std::string html = arrangedForView(kStart + body);
    const std::string head = "<html><body>";
    EXPECT_TRUE(html.starts_with(head));
    return html.substr(head.size());
}

TEST(ArrangedForView, LeavesOtherPagesAlone) {
    for (const std::string page : {"", "<", "<p>x", "<html><body><hr>text</body></html>"}) {
        EXPECT_EQ(arrangedForView(page), page);
    }
}

TEST(ArrangedForView, TextBehindARuleIsAParagraphOfItsOwn) {
    EXPECT_EQ(arranged("<hr><u>a</u> b"), kRule + "<p style=\"margin:0\"><u>a</u> b</p>");
}

TEST(ArrangedForView, ATableInAParagraphStandsUnderTheParagraphsGap) {
    const std::string html = arranged("<u>a</u><p><table border=0><TR><TD>1</TD></TR></table>");
    EXPECT_THAT(html, HasSubstr("<u>a</u></p><table"));
    EXPECT_THAT(html, HasSubstr("margin-top:16px;\"><TR>"));
}

TEST(ArrangedForView, ABreakBehindATableIsAnEmptyLine) {
    EXPECT_THAT(arranged("<table border=0></table><br><hr>"),
                HasSubstr("</table><p style=\"margin:0\">&nbsp;</p>" + kRule));
}

TEST(ArrangedForView, TheDescriptionIsAsWideAsTheReport) {
    EXPECT_EQ(arranged("<u>Detailní popis</u><br><align=justify>a<br>b</p>\r\n<hr>"),
              "<p style=\"margin:0\"><u>Detailní popis</u></p>"
              "<table width=650 border=0 cellspacing=0 cellpadding=0><tr><td>a<br>b</td></tr></table>" +
                  kRule);
}

TEST(ArrangedForView, ALabelTakesRoomFromItsValueWhichEndsWhereItDid) {
    const std::string html = arranged(
        "<table></table><table border=0><TR><TD valign=bottom width=200>Investor</TD>"
        "<TH valign=bottom align=right width=200>1</TH><TH width=250>m</TH></TR></table>");
    EXPECT_THAT(html, HasSubstr("<TD valign=bottom width=219>Investor"));
    // 219 + 177 are the 198 + 198 that a browser gives.
    EXPECT_THAT(html, HasSubstr("<TH valign=bottom align=right width=177>1"));
}

TEST(ArrangedForView, AUnitInAHeadingStandsBelowItsWords) {
    EXPECT_THAT(arranged("<table border=1><tr><th width=150>Intenzita deště (l/s.ha)</th></tr></table>"),
                HasSubstr("Intenzita deště<br>(l/s.ha)</th>"));
}

TEST(ArrangedForView, RuledTablesHaveThinBlackLines) {
    EXPECT_THAT(
        arranged("<table border=1 style=border-collapse:collapse><tr><td width=150>5</td></tr></table>"),
        HasSubstr("border-collapse:collapse;border-style:solid;border-color:#000;"));
}

TEST(ArrangedForView, CellsStandInTheMiddleUnlessTheySayOtherwise) {
    const std::string html = arranged("<table border=0><TR><TD>a</TD><TH valign=bottom>b</TH></TR></table>");
    EXPECT_THAT(html, HasSubstr("<TD valign=middle>a"));
    EXPECT_THAT(html, HasSubstr("<TH valign=bottom>b"));
}

TEST(ArrangedForView, ARuleInATableStaysThere) {
    EXPECT_THAT(arranged("<table border=0><TR><TD valign=bottom colspan=3><hr></TD></tr></table>"),
                HasSubstr("colspan=3><hr></TD>"));
}

TEST(ArrangedForView, ALoneLessThanSignIsText) {
    EXPECT_EQ(arranged("<hr>d < 5 mm <5"), kRule + "<p style=\"margin:0\">d &lt; 5 mm &lt;5</p>");
}

TEST(ArrangedForView, MarkupThatEndsNowhereIsShownAsText) {
    EXPECT_EQ(arranged("<hr>a <b"), kRule + "<p style=\"margin:0\">a &lt;b</p>");
}

TEST(ViewHtml, IsDecoded) {
    EXPECT_EQ(viewHtml("\x9Elu\x9D"), "žluť");
}

/// Everything between tags, without blanks and line ends.
std::string content(std::string_view html) {
    std::string text;
    bool in_tag = false;
    for (const char c : html) {
        in_tag = in_tag || c == '<';
        if (!in_tag && c != ' ' && c != '\r' && c != '\n') {
            text += c;
        }
        in_tag = in_tag && c != '>';
    }
    for (std::size_t at; (at = text.find("&nbsp;")) != std::string::npos;) {
        text.erase(at, 6);
    }
    return text;
}

TEST(ViewHtml, EveryTypesReportKeepsItsContentInItsOrder) {
    for (int type = 0; type <= 6; ++type) {
        ReportData data = test::sampleProject(type);
        data.texts.txtDetails = "první<br>druhý";
        const std::string report = htmlReport(data);
        const std::string shown = arrangedForView(report);
        EXPECT_EQ(content(shown), content(report)) << type;
        EXPECT_THAT(shown, HasSubstr("src=Webs\\Desc_soubory\\logo.gif")) << type;
        EXPECT_THAT(shown, Not(HasSubstr("<div"))) << type;
    }
}

}  // namespace
}  // namespace mero::report
