// SPDX-License-Identifier: MIT
/// Filters a page from its beginning to its end.
/// The fields that the user fills are found by the fixed texts around them; each has a limit of its own, so
/// that a long description leaves the results behind it whole.
#include "report/harmless_html.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <optional>
#include <utility>

#include "report/harmless_text.h"
#include "report/open_tags.h"

namespace mero::report {
namespace {

constexpr std::string_view kStart = "<html><body>";
constexpr std::string_view kEnd = "</body><html>";
constexpr std::string_view kLongestTail = "</body></html>\r\n\r\n";
/// The end of the drained areas, the only table without a fixed length.
constexpr std::string_view kEndOfAreas = "</table><br>\r\n";
constexpr std::string_view kCutNote =
    " <i>[… text je příliš dlouhý a zde zkrácený; soubor zprávy je úplný]</i>";
constexpr std::string_view kDeepNote =
    " <i>[příliš mnoho vnořených značek; jsou zde zobrazeny jako text]</i>";

/// What stands around a field that the user fills.
struct Frame {
    std::string_view before;
    std::array<std::string_view, 3> after;
    std::size_t most_weight;
};

/// A tag weighs as many letters of a description as take the same time to lay out.
constexpr std::size_t kDescriptionWeight = 60'000;
/// All but the description. Its letters weigh more: a page has many short texts, and is as long as its areas.
constexpr std::size_t kPageWeight = 2'000'000;
constexpr std::size_t kPageLetterWeight = 20;
/// 2,000 letters.
constexpr std::size_t kCellWeight = 40'000;
/// For what stands behind the drained areas.
constexpr std::size_t kReserve = 300'000;
/// Of a column that a cell of an earlier row may fill, in each later row.
constexpr std::size_t kSpannedWeight = 20;
constexpr std::size_t kUnlimited = std::numeric_limits<std::size_t>::max();

constexpr Frame kDescription{"<align=justify>", {"</p>\r\n"}, kDescriptionWeight};
constexpr Frame kProjectCell{
    "<TH align=left width=450>",
    {"</TH></TR><TR><TD width=200>", "</TH><TD rowspan=4 width=210>", "</TH></TR></table>"},
    kCellWeight};
constexpr Frame kSurfaceCell{"<td width=250 align=left>", {"</td></tr>\r\n"}, kCellWeight};
/// Name, designer, investor, place, type.
constexpr int kProjectCells = 5;
constexpr int kMostPictures = 20;

std::size_t weightOf(TagKind kind) {
    constexpr std::size_t kInlineWeight = 10;
    constexpr std::size_t kBlockWeight = 40;
    constexpr std::size_t kCellTagWeight = 100;
    constexpr std::size_t kRuleWeight = 500;
    switch (kind) {
        case TagKind::Inline:
            return kInlineWeight;
        case TagKind::Block:
        case TagKind::Paragraph:
        case TagKind::List:
        case TagKind::Item:
        case TagKind::Row:
        case TagKind::Empty:
        case TagKind::Picture:
            return kBlockWeight;
        case TagKind::Table:
        case TagKind::Cell:
            return kCellTagWeight;
        case TagKind::Rule:
            return kRuleWeight;
    }
    return kCellTagWeight;
}

class Filter {
  public:
    Filter(std::string_view html, PageUse use)
        : rest_(html), use_(use), room_(use == PageUse::View ? kPageWeight : kUnlimited) {}

    std::string filtered() {
        if (rest_.starts_with(kStart)) {
            pass(kStart.size());
        }
        while (!rest_.empty()) {
            if (rest_.front() != '<' || !addField()) {
                addPiece();
            }
        }
        if (deep_ && isLimited()) {
            out_ += kDeepNote;
        }
        return out_;
    }

  private:
    void pass(std::size_t size) {
        out_ += rest_.substr(0, size);
        rest_.remove_prefix(size);
    }

    /// Filters a whole field if one begins here.
    bool addField() {
        if (descriptions_ > 0 && rest_.starts_with(kDescription.before)) {
            --descriptions_;
            pass(kDescription.before.size());
            // What the description weighs is not taken from the page.
            const std::size_t room = std::exchange(room_, isLimited() ? kDescriptionWeight : kUnlimited);
            letter_weight_ = 1;
            addContent(kDescription);
            letter_weight_ = kPageLetterWeight;
            room_ = room;
            return true;
        }
        const bool project = cells_ > 0 && rest_.starts_with(kProjectCell.before);
        if (!project && !rest_.starts_with(kSurfaceCell.before)) {
            return false;
        }
        cells_ -= project ? 1 : 0;
        const std::size_t reserve = reserve_;
        addPiece();
        if (reserve_ != reserve) {
            return true;
        }
        addContent(project ? kProjectCell : kSurfaceCell);
        return true;
    }

    [[nodiscard]] std::size_t endOf(const Frame& frame) const {
        std::size_t end = rest_.size();
        for (const std::string_view after : frame.after) {
            end = after.empty() ? end : std::min(end, rest_.find(after));
        }
        return end;
    }

    void addContent(const Frame& frame) {
        const std::string_view content = rest_.substr(0, endOf(frame));
        const std::string_view behind = rest_.substr(content.size());
        const std::size_t room = isLimited() ? std::min(room_, frame.most_weight) : room_;
        const std::size_t left = room_ - room;
        const bool deep = std::exchange(deep_, false);
        open_.beginField();
        in_field_ = true;
        room_ = room;
        rest_ = content;
        while (!rest_.empty()) {
            addPiece();
        }
        in_field_ = false;
        room_ += left;
        rest_ = behind;
        out_ += open_.endField();
        out_ += std::exchange(cut_, false) ? kCutNote : "";
        out_ += std::exchange(deep_, deep) && isLimited() ? kDeepNote : "";
    }

    [[nodiscard]] bool isLimited() const { return use_ == PageUse::View; }

    /// Adds a tag, or the text up to the next "<".
    void addPiece() {
        if (rest_.front() == '<' && (isEnd() || addTag())) {
            return;
        }
        const std::size_t end = std::min(rest_.find('<', 1), rest_.size());
        const std::size_t most = isLimited() ? room_ / letter_weight_ : kUnlimited;
        const std::string_view text = wholeLetters(rest_.substr(0, end), most);
        rest_.remove_prefix(text.size());
        room_ -= isLimited() ? text.size() * letter_weight_ : 0;
        if (in_field_ && text.find_first_not_of(" \t\r\n") != std::string_view::npos) {
            addCellForText();
        }
        addHarmlessText(out_, text, use_);
        if (text.size() < end) {
            cut();
        }
    }

    void addCellForText() {
        const std::string tags = open_.openForText();
        out_ += tags;
        if (!tags.empty()) {
            spend(weight(TagKind::Cell));
        }
    }

    [[nodiscard]] std::size_t weight(TagKind kind) const {
        const bool row = kind == TagKind::Row || kind == TagKind::Cell;
        return weightOf(kind) + (row ? kSpannedWeight * open_.spannedColumns() : 0);
    }

    /// The page's last tags.
    bool isEnd() {
        if (in_field_ || rest_.size() > kLongestTail.size() || !rest_.starts_with(kEnd)) {
            return false;
        }
        pass(kEnd.size());
        return true;
    }

    bool addTag() {
        const auto tag = StrictTag::at(rest_);
        const TagRule* rule = tag ? ruleOf(tag->name(), use_) : nullptr;
        if (rule == nullptr || !mayStand(*tag, rule->kind)) {
            return false;
        }
        rest_.remove_prefix(tag->text().size());
        write(*tag);
        if (!tag->closes()) {
            spend(weight(rule->kind));
        }
        return true;
    }

    bool mayStand(const StrictTag& tag, TagKind kind) {
        if (tag.closes()) {
            // The report ends its description by the end of a paragraph that has not begun.
            return open_.close(tag.name(), kind) || (kind == TagKind::Paragraph && open_.outsideTables());
        }
        if (kind == TagKind::Picture && (pictures_ == 0 || !hasAllowedSource(tag, use_))) {
            return false;
        }
        const Place place = open_.open(tag, kind);
        deep_ = deep_ || place == Place::TooDeep;
        pictures_ -= kind == TagKind::Picture ? 1 : 0;
        return place == Place::Fits;
    }

    void write(const StrictTag& tag) {
        out_ += tag.closes() ? "</" : "<";
        // Pictures have one way of writing, for those who look for the logo.
        const bool picture = tag.name() == "img";
        out_ += picture ? std::string_view(tag.name()) : tag.writtenName();
        for (const StrictTag::Attribute& attribute : tag.attributes()) {
            if (isAllowed(attribute, use_)) {
                out_ += ' ';
                out_ += attribute.name == "src" && use_ == PageUse::Copy ? kLogoReference : attribute.text;
            }
        }
        out_ += '>';
    }

    /// Takes a tag's weight from what is left; cuts the field or the page behind it when that is not enough.
    void spend(std::size_t weight) {
        if (!isLimited()) {
            return;
        }
        if (weight > room_) {
            room_ = 0;
            cut();
            return;
        }
        room_ -= weight;
    }

    /// Leaves out the rest of the field, of the drained areas, or of the page.
    void cut() {
        if (in_field_) {
            rest_ = {};
            cut_ = true;
            return;
        }
        const std::size_t end = rest_.rfind(kEndOfAreas);
        room_ = std::exchange(reserve_, 0);
        if (end != std::string_view::npos && room_ > 0) {
            rest_.remove_prefix(end + kEndOfAreas.size());
            open_.close("table", TagKind::Table);
            out_ += kEndOfAreas;
        } else {
            rest_ = {};
        }
        out_ += kCutNote;
    }

    std::string_view rest_;
    PageUse use_;
    std::string out_;
    OpenTags open_;
    std::size_t room_;
    std::size_t reserve_ = kReserve;
    std::size_t letter_weight_ = kPageLetterWeight;
    int descriptions_ = 1;
    int cells_ = kProjectCells;
    int pictures_ = kMostPictures;
    bool in_field_ = false;
    /// A part of the field was left out.
    bool cut_ = false;
    /// A tag became text because of a limit.
    bool deep_ = false;
};

}  // namespace

std::string harmlessHtml(std::string_view html, PageUse use) {
    return Filter(html, use).filtered();
}

}  // namespace mero::report
