// SPDX-License-Identifier: MIT
/// Writes a document as a PDF file: the pages of the print preview, with selectable text and embedded fonts.
#pragma once

#include <string>

#include "platform/desk.h"
#include "qt/local_document.h"

namespace mero::app {

/// Writes the file and replaces an existing one. Does not look for a printer.
/// @param decode see LocalDocument
/// @param page_note line at the foot of each page, "" for none
[[nodiscard]] platform::PdfResult makePdfFile(const std::string& document_path,
                                              const std::string& target_path, const qt::Decoder& decode,
                                              const std::string& page_note = "");

}  // namespace mero::app
