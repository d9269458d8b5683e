// SPDX-License-Identifier: MIT
/// The report as a rich-text view has to be told it, so that it looks as in a browser.
/// Only what is shown is arranged; the file keeps its bytes.
#pragma once

#include <string>
#include <string_view>

namespace mero::report {

/// Text in UTF-8 of a page in windows-1250 for the view and the printed pages. A report is arranged (see
/// arrangedForView); every other page stays as it is.
[[nodiscard]] std::string viewHtml(std::string_view bytes);

/// A report with the same content whose rules, gaps, column widths and borders a rich-text view places as a
/// browser places the original's. A text that is no report comes back unchanged.
[[nodiscard]] std::string arrangedForView(std::string_view html);

}  // namespace mero::report
