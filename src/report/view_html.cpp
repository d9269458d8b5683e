// SPDX-License-Identifier: MIT
/// Rewrites the report's tags for Qt's rich-text view.
/// That view has no blocks of fixed width, moves text after a rule in front of it, gives the paragraphs
/// around tables a height, and aligns cells to the top.
#include "report/view_html.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "report/code_page.h"
#include "report/harmless_html.h"
#include "report/html_tag.h"

namespace mero::report {
namespace {

/// Beginning of the report; its block is 650 px wide.
constexpr std::string_view kReportStart = "<html><body><div style=position:relative;width:650px";

/// Column widths in the report, and the width that a browser gives them within the block.
struct ColumnWidth {
    std::string_view asked;
    std::string_view given;
};
constexpr std::array kProjectColumns{ColumnWidth{"200", "148"}, ColumnWidth{"450", "288"},
                                     ColumnWidth{"210", "202"}};
/// A label has a part of the room of its value, which ends where it does in a browser: the view's face is
/// wider, and a label that is broken there need not be broken here.
constexpr std::array kLabelColumns{ColumnWidth{"200", "219"}, ColumnWidth{"250", "248"}};
constexpr std::array kValueColumns{ColumnWidth{"200", "177"}, ColumnWidth{"250", "248"}};
/// A browser adds padding and rule to the given width.
constexpr std::array kRuledColumns{ColumnWidth{"150", "153"}, ColumnWidth{"200", "203"},
                                   ColumnWidth{"250", "253"}};

constexpr std::string_view kPlainTable = "<table border=0 cellspacing=2 cellpadding=1";
constexpr std::string_view kRuledTable = "<table border=1 cellspacing=0 cellpadding=1";
constexpr std::string_view kRuledTableStyle =
    "border-collapse:collapse;border-style:solid;border-color:#000;";
/// The report's block; only rules and the description are as wide as it.
constexpr std::string_view kBlockBegin = "<table width=650 border=0 cellspacing=0 cellpadding=0><tr><td>";
constexpr std::string_view kBlockEnd = "</td></tr></table>";
constexpr std::string_view kRainUnit = " (l/s.ha)";
constexpr std::string_view kRainUnitBelow = "<br>(l/s.ha)";
constexpr std::string_view kParagraphGap = "margin-top:16px;";

constexpr std::array<std::string_view, 8> kTextTags{"u", "b", "i", "font", "sub", "sup", "a", "img"};

bool isBlank(std::string_view text) {
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

class Arranger {
  public:
    std::string arranged(std::string_view html) {
        while (!html.empty()) {
            if (const auto tag = HtmlTag::at(html)) {
                addTag(*tag);
                html.remove_prefix(tag->text().size());
            } else {
                const std::size_t end = std::min(html.find('<', 1), html.size());
                addText(html.substr(0, end));
                html.remove_prefix(end);
            }
        }
        endParagraph();
        return out_;
    }

  private:
    void addText(std::string_view text) {
        if (!in_table_ && !in_paragraph_) {
            if (isBlank(text)) {
                return;
            }
            beginParagraph();
        }
        addBreaks();
        if (text.front() == '<') {
            out_ += "&lt;";
            text.remove_prefix(1);
        }
        if (ruled_ && in_table_ && text.ends_with(kRainUnit)) {
            // The view would break the line within the unit.
            text.remove_suffix(kRainUnit.size());
            out_ += text;
            out_ += kRainUnitBelow;
            return;
        }
        out_ += text;
    }

    void addTag(const HtmlTag& tag) {
        const std::string_view name = tag.name();
        if (name == "table" && !tag.closes()) {
            beginTable(tag);
        } else if (name == "table") {
            out_ += tag.text();
            in_table_ = false;
        } else if (in_table_) {
            addTagInTable(tag);
        } else if (name == "hr") {
            endParagraph();
            gap_ = false;
            out_ += kBlockBegin;
            out_ += "<hr>";
            out_ += kBlockEnd;
        } else if (name == "p") {
            endParagraph();
            gap_ = !tag.closes();
        } else if (name == "br") {
            addBreak(tag);
        } else if (name == "align=justify") {
            beginDescription();
        } else if (name == "div") {
            endParagraph();
        } else {
            const bool is_text = std::find(kTextTags.begin(), kTextTags.end(), name) != kTextTags.end();
            if (is_text && !tag.closes() && !in_paragraph_) {
                beginParagraph();
            }
            if (in_paragraph_) {
                addBreaks();
            }
            out_ += tag.text();
        }
    }

    /// Writes the pending breaks. A break at the end of a paragraph only ends the line.
    void addBreaks() { out_ += std::exchange(breaks_, {}); }

    void addTagInTable(const HtmlTag& tag) {
        const bool is_cell = (tag.name() == "td" || tag.name() == "th") && !tag.closes();
        if (!is_cell) {
            out_ += tag.text();
            return;
        }
        std::string cell(tag.text());
        cell.pop_back();
        if (tag.attribute("valign").empty()) {
            cell += " valign=middle";
        }
        replaceWidth(cell, tag);
        // The logo is higher than the rows beside it: spanning all of them, it does not stretch any.
        replace(cell, "rowspan=4", "rowspan=5");
        out_ += cell + ">";
    }

    void replaceWidth(std::string& cell, const HtmlTag& tag) const {
        const std::string_view asked = tag.attribute("width");
        const auto fit = [&](const auto& columns) {
            for (const ColumnWidth& column : columns) {
                if (column.asked == asked) {
                    replace(cell, "width=" + std::string(asked), "width=" + std::string(column.given));
                    return;
                }
            }
        };
        if (tables_ == 1) {
            fit(kProjectColumns);
        } else if (ruled_) {
            fit(kRuledColumns);
        } else {
            fit(tag.name() == "td" ? kLabelColumns : kValueColumns);
        }
    }

    static void replace(std::string& text, std::string_view from, std::string_view to) {
        const std::size_t at = text.find(from);
        if (at != std::string::npos) {
            text.replace(at, from.size(), to);
        }
    }

    void beginTable(const HtmlTag& tag) {
        endParagraph();
        in_table_ = true;
        ++tables_;
        ruled_ = tag.attribute("border") == "1";
        out_ += ruled_ ? kRuledTable : kPlainTable;
        out_ += " style=\"";
        out_ += ruled_ ? kRuledTableStyle : "";
        out_ += gap_ ? kParagraphGap : "";
        out_ += "\">";
        gap_ = false;
    }

    void addBreak(const HtmlTag& tag) {
        if (in_paragraph_) {
            breaks_ += tag.text();
        } else {
            out_ += "<p style=\"margin:0\">&nbsp;</p>";
            gap_ = false;
        }
    }

    void beginParagraph() {
        in_paragraph_ = true;
        out_ += gap_ ? "<p style=\"margin-top:16px;margin-bottom:0\">" : "<p style=\"margin:0\">";
        gap_ = false;
    }

    /// The only text that is long enough to need the block's width.
    void beginDescription() {
        endParagraph();
        in_paragraph_ = true;
        in_description_ = true;
        out_ += kBlockBegin;
    }

    void endParagraph() {
        if (in_paragraph_) {
            out_ += in_description_ ? kBlockEnd : "</p>";
        }
        in_paragraph_ = false;
        in_description_ = false;
        breaks_.clear();
    }

    std::string out_;
    std::string breaks_;
    int tables_ = 0;
    bool in_table_ = false;
    bool ruled_ = false;
    bool in_paragraph_ = false;
    bool in_description_ = false;
    /// A paragraph has begun and has no content yet.
    bool gap_ = false;
};

}  // namespace

std::string arrangedForView(std::string_view html) {
    return html.starts_with(kReportStart) ? Arranger().arranged(html) : std::string(html);
}

std::string viewHtml(std::string_view bytes) {
    const std::string html = fromWindows1250(bytes);
    return html.starts_with(kReportStart) ? arrangedForView(harmlessHtml(html, PageUse::View)) : html;
}

}  // namespace mero::report
