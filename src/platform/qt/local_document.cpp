/// Loading of local documents.
/// The report and the description pages join folders by backslashes and declare no character set.
#include "platform/qt/local_document.h"

#include <QFile>
#include <QFileInfo>
#include <QUrl>
#include <QVariant>
#include <algorithm>
#include <utility>

#include "platform/qt/texts.h"

namespace mero::qt {
namespace {

/// No report and no description page comes near; a file that somebody put there by mistake may.
constexpr qint64 kLargestFile = 32LL << 20;
/// A character set is declared in the head of a page.
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

QString errorPage(const QString& path) {
    return QStringLiteral(
               "<html><body><h3>Stránku nelze zobrazit</h3>"
               "<p>Soubor <b>%1</b> neexistuje nebo jej nelze přečíst.</p></body></html>")
        .arg(path.toHtmlEscaped());
}

}  // namespace

LocalDocument::LocalDocument(Decoder decode, QObject* parent)
    : QTextDocument(parent), decode_(std::move(decode)) {
    setUndoRedoEnabled(false);
}

void LocalDocument::load(const QString& path) {
    path_ = path;
    clear();
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > kLargestFile || !file.open(QIODevice::ReadOnly)) {
        setHtml(errorPage(path));
        return;
    }
    const QByteArray bytes = file.readAll();
    if (declaresUtf8(bytes)) {
        setHtml(QString::fromUtf8(bytes));
    } else {
        setHtml(shown(decode_({bytes.constData(), static_cast<std::size_t>(bytes.size())})));
    }
}

void LocalDocument::printFitted(QPagedPaintDevice& paper, const QSizeF& page_size) {
    // Tables of a fixed width may stick out of the text's width; the page is then made as wide as they are,
    // and a document with pages of its own is scaled to the paper.
    setTextWidth(page_size.width());
    const double width = std::max(page_size.width(), size().width());
    setPageSize({width, width * page_size.height() / page_size.width()});
    print(&paper);
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
