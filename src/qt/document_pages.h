// SPDX-License-Identifier: MIT
/// A document on paper: the pages of the print preview, of the printer and of a PDF file are all painted
/// here.
#pragma once

#include <QPageLayout>
#include <QPagedPaintDevice>

#include "qt/local_document.h"

namespace mero::qt {

/// A4 upright with margins of 15 mm.
[[nodiscard]] QPageLayout paperLayout();

/// Paints the pages, numbered at their foot, one after another; only those that the device's page ranges ask
/// for. Lines and rows of tables are not cut (see pageBreaks). On paper too narrow for the document
/// everything is made smaller. The document is laid out for the device and serves no other purpose
/// afterwards.
/// @return how many pages the whole document has
int paintPages(LocalDocument& document, QPagedPaintDevice& device);

}  // namespace mero::qt
