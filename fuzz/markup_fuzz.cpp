// SPDX-License-Identifier: MIT
/// Descriptions of arbitrary bytes: only harmless tags are left, they are nested within the limits, and the
/// rest of the report is unchanged.
#include <cstdint>
#include <string>
#include <string_view>

#include "report/code_page.h"
#include "report/harmless_html.h"
#include "report/html_report.h"
#include "report/view_html.h"
#include "support/described.h"
#include "support/require.h"

namespace {

using mero::fuzz::require;
namespace report = mero::report;
using report::PageUse;

constexpr std::string_view kDescription = "<align=justify>";
constexpr std::string_view kBehind = "</p>\r\n<hr>";
constexpr std::size_t kLargestView = 600'000;
constexpr std::size_t kLongest = 10'000;

/// Every tag is allowed with all of its attributes.
void checkTags(std::string_view html, PageUse use) {
    int tables = 0;
    for (std::size_t at = 0; (at = html.find('<', at)) != std::string_view::npos; ++at) {
        const auto tag = report::StrictTag::at(html.substr(at));
        require(tag.has_value(), "every tag is a strict one");
        require(report::ruleOf(tag->name(), use) != nullptr, "every tag is allowed");
        for (const auto& attribute : tag->attributes()) {
            require(report::isAllowed(attribute, use), "every attribute is allowed");
        }
        if (tag->name() == "table") {
            tables += tag->closes() ? -1 : 1;
            require(tables >= 0 && tables <= 2, "tables nest twice");
        }
    }
    require(tables == 0, "every table is closed");
}

void checkUse(const std::string& page, PageUse use) {
    const std::string html = report::harmlessHtml(page, use);
    const std::size_t begin = html.find(kDescription);
    const std::size_t end = html.find(kBehind, begin);
    require(begin != std::string::npos && end != std::string::npos, "the description has its frame");
    require(html.substr(0, begin) == page.substr(0, begin), "what stands before is unchanged");
    require(html.substr(end) == page.substr(page.find(kBehind, begin)), "what stands behind is unchanged");
    checkTags(std::string_view(html).substr(begin + kDescription.size(), end - begin - kDescription.size()),
              use);
    require(report::harmlessHtml(html, use) == html || use == PageUse::View,
            "harmless markup stays as it is");
    require(html.size() < kLargestView || use == PageUse::Copy, "the view is small");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string input(data, data + size);
    report::ReportData project;
    project.texts.txtProjName = "Dům";
    // As the page is read: every byte is a letter, and the report has made a tag of each line end.
    project.texts.txtDetails =
        report::withBreakTags(report::fromWindows1250(mero::fuzz::repeatedInput(input, kLongest)));
    if (project.texts.txtDetails.empty()) {
        return 0;
    }
    const std::string page = report::htmlReport(project);
    checkUse(page, PageUse::View);
    checkUse(page, PageUse::Copy);
    static_cast<void>(report::viewHtml(report::toWindows1250(page)));
    static_cast<void>(report::harmlessHtml(input, PageUse::View));
    return 0;
}
