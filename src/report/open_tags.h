// SPDX-License-Identifier: MIT
/// The tags that are open at a place of a page.
/// Says whether another one may be opened or closed there, as browsers and Qt's text engine nest them.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "report/markup_rules.h"

namespace mero::report {

/// Whether a tag may stand where it does.
enum class Place { Fits, Misplaced, TooDeep };

class OpenTags {
  public:
    /// Opens a tag, which ends others as in a browser (a row ends the row before it).
    Place open(const StrictTag& tag, TagKind kind);
    /// Closes the tag and those within it. Nothing changes when no such tag is open in this cell.
    bool close(const std::string& name, TagKind kind);
    /// Columns of all cells so far that span rows: every later row may have them, too.
    [[nodiscard]] std::size_t spannedColumns() const { return spanned_columns_; }
    /// True outside every table.
    [[nodiscard]] bool outsideTables() const;
    /// Begins a field: until its end, only tags that it has opened can be closed.
    void beginField() { floor_ = open_.size(); }
    /// Makes a place for text: within a table, text outside the cells would be lost.
    /// @return the tags that this takes
    [[nodiscard]] std::string openForText();
    /// Closes what the field has opened.
    /// @return the closing tags
    [[nodiscard]] std::string endField();

  private:
    struct Tag {
        std::string name;
        TagKind kind = TagKind::Inline;
        /// Of a row.
        std::size_t columns = 0;
    };

    [[nodiscard]] std::size_t count(TagKind kind) const;
    /// Number of tags up to the innermost table, row or cell; 0 outside tables.
    [[nodiscard]] std::size_t innermost() const;
    Place endBefore(const StrictTag& tag, TagKind kind);
    Place endRow();
    Place endCell(const StrictTag& tag);
    void endParagraph();

    std::vector<Tag> open_;
    std::size_t floor_ = 0;
    std::size_t spanned_columns_ = 0;
};

}  // namespace mero::report
