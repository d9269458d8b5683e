// SPDX-License-Identifier: MIT
/// Rewrites the report so that Qt's rich-text view renders it like a browser.
/// Only the shown text is rewritten; the file is not changed.
#pragma once

#include <string>
#include <string_view>

namespace mero::report {

/// Converts a page in windows-1250 to UTF-8 for the view and the printed pages. A report keeps only harmless
/// markup (see harmlessHtml) and is rewritten (see arrangedForView); other pages are not.
[[nodiscard]] std::string viewHtml(std::string_view bytes);

/// A report with the same content, rewritten so that a rich-text view places its rules, gaps, column widths
/// and borders like a browser places the original's. A text that is not a report is returned unchanged.
[[nodiscard]] std::string arrangedForView(std::string_view html);

}  // namespace mero::report
