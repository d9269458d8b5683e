// SPDX-License-Identifier: MIT
/// Files that a shown page may read: regular ones in its folder, of bounded size.
/// A page can refer to any path, and a device or a file of the system may have no end.
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

namespace mero::qt {

/// The bytes of a regular file. Reads no more than `most` bytes, whatever size the system gives for the file.
/// @return nothing when the file is missing, unreadable, longer, a folder, a pipe or a device
[[nodiscard]] std::optional<QByteArray> readRegularFile(const QString& path, qint64 most);

/// True when a path lies in a folder or in the folder "Webs" there, after links and ".." are resolved.
/// A file that does not exist is looked for by its path alone.
[[nodiscard]] bool isWithin(const QString& folder, const QString& path);

/// True when the bytes are a picture of a usual kind that is small enough to be shown.
/// @param pixels what may still be shown; reduced by the picture's
[[nodiscard]] bool isShowablePicture(QByteArray bytes, qint64& pixels);

}  // namespace mero::qt
