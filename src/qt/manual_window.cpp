// SPDX-License-Identifier: MIT
/// Places are found in the document: chapters are headings, rows are the first cells of tables.
#include "qt/manual_window.h"

#include <QFile>
#include <QImageReader>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "qt/look.h"
#include "qt/spoken.h"

namespace mero::qt {
namespace {

constexpr int kWidthCharacters = 120;
constexpr int kHeightLines = 42;
/// How much of the text's colour the lines of tables have.
constexpr double kLineShare = 0.4;
/// Share of the window's width that a picture may take.
constexpr double kPictureShare = 0.9;

QString manualText(const QString& folder) {
    QFile file(folder + QLatin1String("/prirucka.md"));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};  // built without the documents
    }
    // Comments are marks for the manual's test.
    return QString::fromUtf8(file.readAll()).remove(QRegularExpression(QStringLiteral("<!--.*?-->")));
}

bool isHeading(const QTextBlock& block) {
    return block.blockFormat().headingLevel() > 0;
}

/// The heading whose number is this one: "4.1 Základní informace", "9. Zpráva o výsledcích".
QTextBlock chapterOf(const QTextDocument& document, const QString& number) {
    for (QTextBlock block = document.begin(); block.isValid() && !number.isEmpty(); block = block.next()) {
        const QString text = block.text();
        if (isHeading(block) &&
            (text.startsWith(number + QLatin1Char(' ')) || text.startsWith(number + QLatin1String(". ")))) {
            return block;
        }
    }
    return {};
}

/// The first cell of a row in the chapter with exactly this text.
QTextBlock rowOf(const QTextBlock& chapter, const QString& text) {
    for (QTextBlock block = chapter.next(); block.isValid() && !isHeading(block) && !text.isEmpty();
         block = block.next()) {
        if (block.text() == text) {
            QTextCursor cursor(block);
            const QTextTable* table = cursor.currentTable();
            if (table != nullptr && table->cellAt(cursor).column() == 0) {
                return block;
            }
        }
    }
    return {};
}

/// A heading as the fragments of links name it: "9. Zpráva o výsledcích" is "9-zpráva-o-výsledcích".
QString fragmentOf(const QString& heading) {
    QString name;
    for (const QChar each : heading.toLower()) {
        if (each.isLetterOrNumber() || each == QLatin1Char('-')) {
            name += each;
        } else if (each.isSpace()) {
            name += QLatin1Char('-');
        }
    }
    return name;
}

/// Tables with one thin line between cells.
void arrangeTables(QTextDocument& document, const QPalette& palette, int padding) {
    for (QTextFrame* frame : document.rootFrame()->childFrames()) {
        if (auto* table = qobject_cast<QTextTable*>(frame)) {
            QTextTableFormat format = table->format();
            format.setBorder(1);
            format.setBorderBrush(
                mixed(palette.color(QPalette::Base), palette.color(QPalette::Text), kLineShare));
            format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
            format.setBorderCollapse(true);
            format.setCellSpacing(0);
            format.setCellPadding(padding);
            format.setTopMargin(padding);
            format.setBottomMargin(2 * padding);
            table->setFormat(format);
        }
    }
}

/// Room above headings, and pictures no wider than the text.
void arrangeBlocks(QTextDocument& document, const QString& folder, int room, int width) {
    QTextCursor cursor(&document);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        cursor.setPosition(block.position());
        if (isHeading(block)) {
            QTextBlockFormat format = block.blockFormat();
            format.setTopMargin(room);
            cursor.setBlockFormat(format);
        }
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            QTextImageFormat image = it.fragment().charFormat().toImageFormat();
            if (!image.isValid()) {
                continue;
            }
            const QSize size = QImageReader(folder + QLatin1Char('/') + image.name()).size();
            image.setWidth(std::min(size.width(), width));
            cursor.setPosition(it.fragment().position());
            cursor.setPosition(it.fragment().position() + it.fragment().length(), QTextCursor::KeepAnchor);
            cursor.setCharFormat(image);
            break;  // a picture stands alone in its paragraph
        }
    }
}

}  // namespace

ManualWindow::ManualWindow(const QString& folder, std::function<void(const QString&)> open_address)
    : QWidget(nullptr, Qt::Window), open_address_(std::move(open_address)), text_(new QTextBrowser(this)) {
    setObjectName(QStringLiteral("manual"));
    setWindowTitle(QStringLiteral("MERO – příručka"));
    auto* column = new QVBoxLayout(this);
    auto* row = new QHBoxLayout;
    auto* caption = new QLabel(QStringLiteral("&Hledat v příručce:"), this);
    search_ = new QLineEdit(this);
    search_->setClearButtonEnabled(true);
    caption->setBuddy(search_);
    describe(*search_, QStringLiteral("Hledat v příručce"));
    row->addWidget(caption);
    row->addWidget(search_, 1);
    column->addLayout(row);
    column->addWidget(text_, 1);
    describe(*text_, QStringLiteral("Příručka"));
    text_->setOpenLinks(false);
    text_->setSearchPaths({folder});
    text_->document()->setMarkdown(manualText(folder));
    text_->document()->setUndoRedoEnabled(false);
    arrangeTables(*text_->document(), palette(), gap(*this) / 2);
    connect(text_, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) { followLink(link); });
    connect(search_, &QLineEdit::returnPressed, this, [this] { findNext(); });
    const QSize wanted(textWidth(*this, kWidthCharacters), fontMetrics().height() * kHeightLines);
    resize(wanted.boundedTo(screen()->availableGeometry().size() * 9 / 10));
    arrangeBlocks(*text_->document(), folder, 2 * gap(*this), qRound(width() * kPictureShare));
}

bool ManualWindow::has(const ManualPlace& place) const {
    const QTextBlock chapter = chapterOf(*text_->document(), place.chapter);
    return chapter.isValid() && (place.row.isEmpty() || rowOf(chapter, place.row).isValid());
}

void ManualWindow::openAt(const ManualPlace& place) {
    show();
    raise();
    activateWindow();
    text_->setFocus();
    const QTextBlock chapter = chapterOf(*text_->document(), place.chapter);
    const QTextBlock row = chapter.isValid() ? rowOf(chapter, place.row) : QTextBlock();
    showBlock(row.isValid() ? row : chapter.isValid() ? chapter : text_->document()->begin());
    QList<QTextEdit::ExtraSelection> marks;
    if (row.isValid()) {
        QTextCursor cursor(row);
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        QTextCharFormat format;
        format.setBackground(palette().highlight());
        format.setForeground(palette().highlightedText());
        marks.push_back({cursor, format});
    }
    text_->setExtraSelections(marks);
}

void ManualWindow::showBlock(const QTextBlock& block) {
    text_->setTextCursor(QTextCursor(block));
    // Not at the very top: the head of the row's table may be seen above it.
    const int lines = isHeading(block) ? 0 : 4;
    const QRect place = text_->cursorRect();
    text_->verticalScrollBar()->setValue(text_->verticalScrollBar()->value() + place.top() -
                                         lines * fontMetrics().height());
}

void ManualWindow::followLink(const QUrl& link) {
    if (!link.scheme().isEmpty()) {
        open_address_(link.toString(QUrl::FullyEncoded));
        return;
    }
    const QString wanted = link.fragment(QUrl::FullyDecoded);
    for (QTextBlock block = text_->document()->begin(); block.isValid(); block = block.next()) {
        if (isHeading(block) && !wanted.isEmpty() && fragmentOf(block.text()) == wanted) {
            showBlock(block);
            return;
        }
    }
}

void ManualWindow::findNext() {
    if (!text_->find(search_->text())) {
        text_->moveCursor(QTextCursor::Start);
        text_->find(search_->text());
    }
}

void ManualWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
    } else if (event->key() == Qt::Key_F3 || event->matches(QKeySequence::FindNext)) {
        findNext();
    } else if (event->matches(QKeySequence::Find)) {
        search_->setFocus(Qt::ShortcutFocusReason);
    } else {
        QWidget::keyPressEvent(event);
    }
}

}  // namespace mero::qt
