// SPDX-License-Identifier: MIT
/// Reads files within limits.
#include "qt/document_files.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QSize>

namespace mero::qt {
namespace {

/// The path without links, "." and ".."; of what does not exist, without "." and "..".
QString resolved(const QString& path) {
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? QDir::cleanPath(QFileInfo(path).absoluteFilePath()) : canonical;
}

}  // namespace

std::optional<QByteArray> readRegularFile(const QString& path, qint64 most) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > most || !file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    QByteArray bytes = file.read(most + 1);
    return bytes.size() <= most ? std::optional(bytes) : std::nullopt;
}

bool isWithin(const QString& folder, const QString& path) {
    const QString target = resolved(path);
    for (const QString& place : {folder, folder + QStringLiteral("/Webs")}) {
        if (target.startsWith(resolved(place) + QLatin1Char('/'))) {
            return true;
        }
    }
    return false;
}

bool isShowablePicture(QByteArray bytes, qint64& pixels) {
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    const QByteArray format = reader.format();
    // A drawing can ask for any work at any size.
    if (format != "gif" && format != "png" && format != "jpeg" && format != "bmp") {
        return false;
    }
    // The size of the header; nothing is decoded yet.
    const QSize size = reader.size();
    const qint64 area = qint64{size.width()} * size.height();
    if (size.isEmpty() || area > pixels) {
        return false;
    }
    pixels -= area;
    return true;
}

}  // namespace mero::qt
