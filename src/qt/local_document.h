// SPDX-License-Identifier: MIT
/// A local HTML document: decoded, with its pictures, and nothing else. It loads nothing from the network.
/// Text without a font of its own stands in 12 pt, as in browsers, on the screen and on paper.
#pragma once

#include <QTextDocument>
#include <functional>
#include <string>
#include <string_view>

namespace mero::qt {

/// UTF-8 text of the bytes of a file that declares no character set.
using Decoder = std::function<std::string(std::string_view bytes)>;

class LocalDocument : public QTextDocument {
  public:
    explicit LocalDocument(Decoder decode, QObject* parent = nullptr);

    /// Loads a file; one that is missing or cannot be read gives a page that says so and names it.
    /// @return false for that page
    bool load(const QString& path);
    /// The file that was loaded last, empty before.
    [[nodiscard]] const QString& path() const { return path_; }
    /// Local path that a reference of the document leads to; empty for everything that is not local.
    [[nodiscard]] QString resolve(const QUrl& reference) const;

  protected:
    QVariant loadResource(int type, const QUrl& name) override;

  private:
    Decoder decode_;
    QString path_;
};

}  // namespace mero::qt
