// SPDX-License-Identifier: MIT
/// Nests tags within limits.
/// Qt lays out a table twice for each table around it, and follows the chain of open tags for many of its
/// steps.
#include "report/open_tags.h"

#include <algorithm>

namespace mero::report {
namespace {

constexpr std::size_t kDeepest = 40;
constexpr std::size_t kDeepestTables = 2;
constexpr std::size_t kDeepestLists = 5;
constexpr std::size_t kMostColumns = 20;
/// Of all cells that reach into the rows below, which have their own columns besides.
constexpr std::size_t kMostSpannedColumns = 20;

bool isOfTable(TagKind kind) {
    return kind == TagKind::Table || kind == TagKind::Row || kind == TagKind::Cell;
}

}  // namespace

std::size_t OpenTags::count(TagKind kind) const {
    return static_cast<std::size_t>(
        std::count_if(open_.begin(), open_.end(), [&](const Tag& tag) { return tag.kind == kind; }));
}

std::size_t OpenTags::innermost() const {
    std::size_t at = open_.size();
    while (at > 0 && !isOfTable(open_[at - 1].kind)) {
        --at;
    }
    return at;
}

bool OpenTags::outsideTables() const {
    return innermost() == 0;
}

Place OpenTags::endRow() {
    std::size_t at = innermost();
    while (at > floor_ && open_[at - 1].kind != TagKind::Table) {
        --at;
    }
    if (at <= floor_) {
        return Place::Misplaced;
    }
    open_.resize(at);
    return Place::Fits;
}

Place OpenTags::endCell(const StrictTag& tag) {
    std::size_t at = innermost();
    if (at > floor_ && open_[at - 1].kind == TagKind::Cell) {
        --at;
    }
    while (at > floor_ && !isOfTable(open_[at - 1].kind)) {
        --at;
    }
    if (at <= floor_ || open_[at - 1].kind != TagKind::Row) {
        return Place::Misplaced;
    }
    Tag& row = open_[at - 1];
    row.columns += columnsOf(tag);
    spanned_columns_ += spansRows(tag) ? columnsOf(tag) : 0U;
    if (row.columns > kMostColumns || (spansRows(tag) && spanned_columns_ > kMostSpannedColumns)) {
        return Place::TooDeep;
    }
    open_.resize(at);
    return Place::Fits;
}

void OpenTags::endParagraph() {
    std::size_t at = open_.size();
    while (at > floor_ && open_[at - 1].kind == TagKind::Inline) {
        --at;
    }
    if (at > floor_ && open_[at - 1].kind == TagKind::Paragraph) {
        open_.resize(at - 1);
    }
}

Place OpenTags::endBefore(const StrictTag& tag, TagKind kind) {
    if (kind == TagKind::Row) {
        return endRow();
    }
    if (kind == TagKind::Cell) {
        return endCell(tag);
    }
    const std::size_t at = innermost();
    if (at > 0 && open_[at - 1].kind != TagKind::Cell) {
        return Place::Misplaced;
    }
    if (kind == TagKind::Paragraph) {
        endParagraph();
    }
    if (kind == TagKind::Item && open_.size() > floor_ && open_.back().kind == TagKind::Item) {
        open_.pop_back();
    }
    const bool too_deep = (kind == TagKind::Table && count(kind) >= kDeepestTables) ||
                          (kind == TagKind::List && count(kind) >= kDeepestLists);
    return too_deep ? Place::TooDeep : Place::Fits;
}

Place OpenTags::open(const StrictTag& tag, TagKind kind) {
    const Place place = endBefore(tag, kind);
    if (place != Place::Fits || kind == TagKind::Empty || kind == TagKind::Rule || kind == TagKind::Picture) {
        return place;
    }
    if (open_.size() >= kDeepest) {
        return Place::TooDeep;
    }
    open_.push_back({tag.name(), kind});
    return Place::Fits;
}

bool OpenTags::close(const std::string& name, TagKind kind) {
    for (std::size_t at = open_.size(); at > floor_; --at) {
        const Tag& tag = open_[at - 1];
        if (tag.name == name) {
            open_.resize(at - 1);
            return true;
        }
        const bool fence = isOfTable(kind) ? tag.kind == TagKind::Table : isOfTable(tag.kind);
        if (fence) {
            return false;
        }
    }
    return false;
}

std::string OpenTags::openForText() {
    const std::size_t at = innermost();
    if (at <= floor_ || open_[at - 1].kind == TagKind::Cell) {
        return {};
    }
    std::string tags;
    if (open_[at - 1].kind == TagKind::Row && open_[at - 1].columns >= kMostColumns) {
        open_.resize(at - 1);
    }
    if (open_.back().kind != TagKind::Row) {
        open_.push_back({"tr", TagKind::Row});
        tags += "<tr>";
    }
    ++open_.back().columns;
    open_.push_back({"td", TagKind::Cell});
    return tags + "<td>";
}

std::string OpenTags::endField() {
    std::string closing;
    while (open_.size() > floor_) {
        closing += "</" + open_.back().name + ">";
        open_.pop_back();
    }
    floor_ = 0;
    return closing;
}

}  // namespace mero::report
