// SPDX-License-Identifier: MIT
/// Loads local documents.
/// The report and the description pages use backslashes in paths and declare no character set.
#include "qt/local_document.h"

#include <QFile>
#include <QFileInfo>
#include <QFont>
#include <QTextBlock>
#include <QTextCursor>
#include <QUrl>
#include <QVariant>
#include <algorithm>
#include <utility>
#include <vector>

#include "qt/missing_page.h"
#include "qt/texts.h"

namespace mero::qt {
namespace {

/// Far above the size of any report or description page; protects against a wrong file in their place.
constexpr qint64 kLargestFile = 32LL << 20;
/// The declaration of a character set is looked for in these bytes at the page's beginning.
constexpr qsizetype kHeadBytes = 2048;

bool declaresUtf8(const QByteArray& bytes) {
    if (bytes.startsWith("\xEF\xBB\xBF")) {
        return true;
    }
    const QByteArray head = bytes.left(kHeadBytes).toLower();
    const qsizetype at = head.indexOf("charset=");
    if (at < 0) {
        return false;
    }
    QByteArray name = head.mid(at + 8).trimmed();
    if (name.startsWith('"') || name.startsWith('\'')) {
        name.remove(0, 1);
    }
    return name.startsWith("utf-8");
}

/// The margin that browsers give a page that sets none.
constexpr qreal kBrowserMargin = 8;

/// The same font on the screen and on paper, so that lines break at the same places. The 12 pt of browsers
/// are those of a narrow face with serifs; this one takes the same width with 10 pt.
QFont standardFont() {
    constexpr qreal kPoints = 10;
    QFont font(QStringList{QStringLiteral("DejaVu Sans"), QStringLiteral("Arial")});
    font.setStyleHint(QFont::SansSerif);
    font.setPointSizeF(kPoints);
    // A tiny letter spacing prevents ligatures, so that words copied from a PDF file can be searched for.
    constexpr qreal kNextToNothing = 1.0 / 64;
    font.setLetterSpacing(QFont::AbsoluteSpacing, kNextToNothing);
    return font;
}

/// Removes the relative size of headings, which would override the size set by the page.
void keepGivenSizes(QTextDocument& document) {
    struct Piece {
        int begin;
        int end;
        QTextCharFormat format;
    };
    std::vector<Piece> pieces;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            QTextCharFormat format = fragment.charFormat();
            if (format.hasProperty(QTextFormat::FontPointSize) &&
                format.hasProperty(QTextFormat::FontSizeAdjustment)) {
                format.clearProperty(QTextFormat::FontSizeAdjustment);
                pieces.push_back({fragment.position(), fragment.position() + fragment.length(), format});
            }
        }
    }
    QTextCursor cursor(&document);
    for (const Piece& piece : pieces) {
        cursor.setPosition(piece.begin);
        cursor.setPosition(piece.end, QTextCursor::KeepAnchor);
        cursor.setCharFormat(piece.format);
    }
}

}  // namespace

LocalDocument::LocalDocument(Decoder decode, QObject* parent)
    : QTextDocument(parent), decode_(std::move(decode)) {
    setUndoRedoEnabled(false);
    setDefaultFont(standardFont());
    setDocumentMargin(kBrowserMargin);
}

bool LocalDocument::load(const QString& path) {
    path_ = path;
    clear();
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > kLargestFile || !file.open(QIODevice::ReadOnly)) {
        setHtml(missingPage(path));
        return false;
    }
    const QByteArray bytes = file.readAll();
    if (declaresUtf8(bytes)) {
        setHtml(QString::fromUtf8(bytes));
    } else {
        setHtml(shown(decode_({bytes.constData(), static_cast<std::size_t>(bytes.size())})));
    }
    keepGivenSizes(*this);
    return true;
}

QString LocalDocument::resolve(const QUrl& reference) const {
    if (!reference.scheme().isEmpty() && !reference.isLocalFile()) {
        return {};
    }
    QUrl bare = reference;
    bare.setFragment(QString());
    QString path = bare.isLocalFile() ? bare.toLocalFile() : QUrl::fromPercentEncoding(bare.toEncoded());
    path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (path.isEmpty() || path.startsWith(QLatin1String("//"))) {
        return {};
    }
    return QFileInfo(path).isAbsolute() ? path : QFileInfo(path_).absolutePath() + QLatin1Char('/') + path;
}

QVariant LocalDocument::loadResource(int type, const QUrl& name) {
    if (name.scheme() == QLatin1String("data")) {
        return QTextDocument::loadResource(type, name);
    }
    const QString path = resolve(name);
    QFile file(path);
    if (type != QTextDocument::ImageResource || path.isEmpty() || !QFileInfo(path).isFile() ||
        file.size() > kLargestFile || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return file.readAll();
}

}  // namespace mero::qt
