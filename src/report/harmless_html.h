// SPDX-License-Identifier: MIT
/// Lets only harmless markup of a report through.
/// The description may hold markup, and the other texts are written as they stand. Here every tag that is not
/// on a short list, or that nests too deep, becomes text, so that the page fetches and runs nothing and no
/// text engine takes long over it. The report's own tags pass unchanged.
#pragma once

#include <string>
#include <string_view>

#include "report/markup_rules.h"

namespace mero::report {

/// The page with harmless markup only.
///
/// What a field opens, it closes: an open tag in the description changes nothing behind it. A page for the
/// view is cut where a text or a table is too long to be laid out at once, and says so there; a copy is never
/// cut.
/// @param html a report in UTF-8
[[nodiscard]] std::string harmlessHtml(std::string_view html, PageUse use);

}  // namespace mero::report
