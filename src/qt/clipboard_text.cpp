// SPDX-License-Identifier: MIT
/// Reads tables of HTML cell by cell, because their plain text has each cell on a line of its own.
#include "qt/clipboard_text.h"

#include <QApplication>
#include <QStringList>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>

namespace mero::qt {
namespace {

QString cellText(const QTextTableCell& cell) {
    QTextCursor cursor = cell.firstCursorPosition();
    cursor.setPosition(cell.lastCursorPosition().position(), QTextCursor::KeepAnchor);
    return cursor.selectedText().simplified();
}

QString tableText(const QTextTable& table) {
    QStringList rows;
    for (int row = 0; row < table.rows(); ++row) {
        QStringList cells;
        for (int column = 0; column < table.columns(); ++column) {
            cells.append(cellText(table.cellAt(row, column)));
        }
        rows.append(cells.join(QLatin1Char('\t')));
    }
    return rows.join(QLatin1Char('\n'));
}

QString htmlText(const QString& html) {
    QTextDocument document;
    document.setHtml(html);
    for (const QTextFrame* frame : document.rootFrame()->childFrames()) {
        if (const auto* table = qobject_cast<const QTextTable*>(frame)) {
            return tableText(*table);
        }
    }
    return document.toPlainText();
}

}  // namespace

QString textOf(const QMimeData& data) {
    return !data.hasText() && data.hasHtml() ? htmlText(data.html()) : data.text();
}

QString clipboardText(QClipboard::Mode mode) {
    const QMimeData* data = QApplication::clipboard()->mimeData(mode);
    return data == nullptr ? QString() : textOf(*data);
}

}  // namespace mero::qt
