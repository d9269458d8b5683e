// SPDX-License-Identifier: MIT
/// Loads local documents.
/// The report and the description pages use backslashes in paths and declare no character set.
#include "qt/local_document.h"

#include <QFileInfo>
#include <QFont>
#include <QTextBlock>
#include <QTextCursor>
#include <QUrl>
#include <QVariant>
#include <algorithm>
#include <utility>
#include <vector>

#include "qt/document_files.h"
#include "qt/missing_page.h"
#include "qt/texts.h"

namespace mero::qt {
namespace {

/// Far above the size of any report or description page; protects against a wrong file in their place.
constexpr qint64 kLargestFile = 32LL << 20;
constexpr qint64 kLargestPicture = 8LL << 20;
/// Pixels of all pictures of a page; four times a large screen.
constexpr qint64 kMostPixels = 32LL << 20;
/// The declaration of a character set is looked for in these bytes at the page's beginning.
constexpr qsizetype kHeadBytes = 2048;

bool declaresUtf8(const QByteArray& bytes) {
    if (bytes.startsWith("\xEF\xBB\xBF")) {
        return true;
    }
    const QByteArray head = bytes.left(kHeadBytes).toLower();
    const qsizetype at = head.indexOf("charset=");
    const qsizetype body = head.indexOf("<body");
    // What stands in the body is text, as in a report, which has no head.
    if (at < 0 || (body >= 0 && body < at)) {
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
    cursor.beginEditBlock();
    for (const Piece& piece : pieces) {
        cursor.setPosition(piece.begin);
        cursor.setPosition(piece.end, QTextCursor::KeepAnchor);
        cursor.setCharFormat(piece.format);
    }
    cursor.endEditBlock();
}

}  // namespace

LocalDocument::LocalDocument(Decoder decode, QObject* parent)
    : QTextDocument(parent), decode_(std::move(decode)) {
    setUndoRedoEnabled(false);
    setDefaultFont(standardFont());
    setDocumentMargin(kBrowserMargin);
}

bool LocalDocument::load(const QString& path) {
    folder_ = QFileInfo(path).absolutePath();
    return show(path);
}

bool LocalDocument::follow(const QUrl& reference) {
    const QString path = resolve(reference);
    if (path.isEmpty() || QFileInfo(path) == QFileInfo(path_)) {
        return false;
    }
    show(path);
    return true;
}

bool LocalDocument::show(const QString& path) {
    path_ = path;
    pixels_ = kMostPixels;
    clear();
    const auto bytes = readRegularFile(path, kLargestFile);
    if (!bytes) {
        setHtml(missingPage(path));
        return false;
    }
    if (declaresUtf8(*bytes)) {
        setHtml(QString::fromUtf8(*bytes));
    } else {
        setHtml(shown(decode_({bytes->constData(), static_cast<std::size_t>(bytes->size())})));
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
    if (!QFileInfo(path).isAbsolute()) {
        path = QFileInfo(path_).absolutePath() + QLatin1Char('/') + path;
    }
    return isWithin(folder_, path) ? path : QString();
}

QVariant LocalDocument::loadResource(int type, const QUrl& name) {
    if (name.scheme() == QLatin1String("data")) {
        return QTextDocument::loadResource(type, name);
    }
    const QString path = resolve(name);
    if (type != QTextDocument::ImageResource || path.isEmpty()) {
        return {};
    }
    const auto bytes = readRegularFile(path, kLargestPicture);
    return bytes && isShowablePicture(*bytes, pixels_) ? QVariant(*bytes) : QVariant();
}

}  // namespace mero::qt
