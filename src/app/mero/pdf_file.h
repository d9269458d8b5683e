// SPDX-License-Identifier: MIT
/// A document as a PDF file: the pages of the print preview, with selectable text and its fonts inside.
#pragma once

#include <string>

#include "platform/desk.h"
#include "qt/local_document.h"

namespace mero::app {

/// Writes the file, in place of whatever is there. Asks for no printer.
/// @param decode see LocalDocument
[[nodiscard]] platform::PdfResult makePdfFile(const std::string& document_path,
                                              const std::string& target_path, const qt::Decoder& decode);

}  // namespace mero::app
