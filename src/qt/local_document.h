// SPDX-License-Identifier: MIT
/// Loads and decodes a local HTML document with its pictures. It loads nothing from the network and nothing
/// from outside the document's folder.
/// Text without a font size is about as wide as in browsers, on the screen and on paper.
#pragma once

#include <QTextDocument>
#include <functional>
#include <string>
#include <string_view>

namespace mero::qt {

/// Converts the bytes of a file that declares no character set to UTF-8.
using Decoder = std::function<std::string(std::string_view bytes)>;

class LocalDocument : public QTextDocument {
  public:
    explicit LocalDocument(Decoder decode, QObject* parent = nullptr);

    /// Loads a file. If it is missing or unreadable, the document is a page that says so and names the file.
    /// @return false in that case
    bool load(const QString& path);
    /// Loads the page that a link of the document leads to. Does nothing if it is this one or outside the
    /// folder of the page that was loaded.
    /// @return true when another page was loaded
    bool follow(const QUrl& reference);
    /// The file that was loaded last, empty before.
    [[nodiscard]] const QString& path() const { return path_; }
    /// Local path of a reference in the document; empty if the target is not in the folder of the page that
    /// was loaded.
    [[nodiscard]] QString resolve(const QUrl& reference) const;

  protected:
    QVariant loadResource(int type, const QUrl& name) override;

  private:
    bool show(const QString& path);

    Decoder decode_;
    QString folder_;
    QString path_;
    qint64 pixels_ = 0;
};

}  // namespace mero::qt
