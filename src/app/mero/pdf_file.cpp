// SPDX-License-Identifier: MIT
/// Paints the pages into memory and then writes the file.
/// QPdfWriter does not report failed writes, so the file is written separately.
#include "app/mero/pdf_file.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QPdfWriter>

#include "qt/document_pages.h"
#include "qt/texts.h"

namespace mero::app {

using platform::PdfResult;

PdfResult makePdfFile(const std::string& document_path, const std::string& target_path,
                      const qt::Decoder& decode, const std::string& page_note) {
    constexpr int kDotsPerInch = 600;
    const QString path = qt::shown(document_path);
    qt::LocalDocument document(decode);
    if (!document.load(path)) {
        return PdfResult::Failed;
    }
    QBuffer pages;
    pages.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&pages);
        writer.setResolution(kDotsPerInch);
        writer.setPageLayout(qt::paperLayout());
        writer.setCreator(QString::fromLatin1(platform::kApplicationTitle));
        writer.setTitle(QFileInfo(path).fileName());
        qt::paintPages(document, writer, qt::shown(page_note));
    }
    QFile file(qt::shown(target_path));
    const bool written = file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
                         file.write(pages.data()) == pages.size() && file.flush();
    file.close();
    return written && file.error() == QFileDevice::NoError ? PdfResult::Made : PdfResult::Failed;
}

}  // namespace mero::app
