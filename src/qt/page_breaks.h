// SPDX-License-Identifier: MIT
/// Where a document is cut into pages: between lines and between the rows of tables, never through them.
#pragma once

#include <QTextDocument>
#include <vector>

namespace mero::qt {

/// Beginnings of the pages and the document's end, from its top, in the document's own units.
///
/// A line, a table's row and a picture stay whole unless they are higher than a page; a heading stays with
/// what follows it, a text before a table with the table's first row.
/// @param document laid out in one piece, without pages
[[nodiscard]] std::vector<qreal> pageBreaks(const QTextDocument& document, qreal page_height);

}  // namespace mero::qt
