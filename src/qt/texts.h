// SPDX-License-Identifier: MIT
/// Converts between the forms' UTF-8 texts and Qt's strings.
#pragma once

#include <QByteArray>
#include <QString>
#include <string>

namespace mero::qt {

[[nodiscard]] inline QString shown(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

[[nodiscard]] inline std::string stored(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

/// A caption in which an ampersand is no mnemonic mark.
[[nodiscard]] inline QString captionText(const std::string& text) {
    return shown(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace mero::qt
