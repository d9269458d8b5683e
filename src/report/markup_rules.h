// SPDX-License-Identifier: MIT
/// Which tags and attributes a report may hold, and how they may nest.
/// Everything that the program itself writes is among them; whatever could fetch, run or hide something is
/// not.
#pragma once

#include <cstddef>
#include <string_view>

#include "report/strict_tag.h"

namespace mero::report {

/// What becomes of the filtered page.
enum class PageUse {
    /// Shown or printed by the program: pictures of the program's folder and links are possible.
    View,
    /// Kept in a file for any browser: refers to nothing but the logo.
    Copy,
};

enum class TagKind { Inline, Block, Paragraph, List, Item, Table, Row, Cell, Empty, Rule, Picture };

struct TagRule {
    std::string_view name;
    TagKind kind;
};

/// The logo as the report refers to it.
inline constexpr std::string_view kLogoReference = "src=Webs\\Desc_soubory\\logo.gif";

/// The rule of a tag; null when it must not stand in a page.
[[nodiscard]] const TagRule* ruleOf(std::string_view name, PageUse use);

/// True when an attribute may stand in a tag. Numbers are small enough for any text engine.
[[nodiscard]] bool isAllowed(const StrictTag::Attribute& attribute, PageUse use);

/// A picture's tag is of no use without the source; that of a copy is the logo.
[[nodiscard]] bool hasAllowedSource(const StrictTag& tag, PageUse use);

/// Columns that a cell takes, at least 1.
[[nodiscard]] std::size_t columnsOf(const StrictTag& tag);

/// True when a cell takes more than one row.
[[nodiscard]] bool spansRows(const StrictTag& tag);

}  // namespace mero::report
