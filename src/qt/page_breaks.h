// SPDX-License-Identifier: MIT
/// Splits a document into pages: between lines and between the rows of tables, never through them.
#pragma once

#include <QTextDocument>
#include <vector>

namespace mero::qt {

/// Tops of the pages and the document's end, from the document's top and in its units.
///
/// A line, a table row, a table without rules and a picture are not split unless they are higher than a page.
/// A heading stays on the page of the following line, a text before a table on the page of the table's first
/// row.
/// @param document laid out without pages
[[nodiscard]] std::vector<qreal> pageBreaks(const QTextDocument& document, qreal page_height);

}  // namespace mero::qt
