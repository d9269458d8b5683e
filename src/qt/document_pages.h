// SPDX-License-Identifier: MIT
/// Paints a document on pages, for the print preview, the printer and PDF files.
#pragma once

#include <QPageLayout>
#include <QPagedPaintDevice>

#include "qt/local_document.h"

namespace mero::qt {

/// A4 portrait with margins of 15 mm.
[[nodiscard]] QPageLayout paperLayout();

/// Paints the pages in the device's page ranges, each with its number, and the note if there is one, at the
/// foot; from the second page on the document's first value, the project's name in a report, stands there
/// too. Lines and rows of tables are not cut (see pageBreaks). What is a little longer than a page is reduced
/// to one. On paper too narrow for the document everything is reduced. The document is laid out for the
/// device and must not be used for anything else afterwards.
/// @return number of pages of the whole document
int paintPages(LocalDocument& document, QPagedPaintDevice& device, const QString& note = {});

}  // namespace mero::qt
