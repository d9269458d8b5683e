// SPDX-License-Identifier: MIT
/// The user manual in a window of its own. It opens at a chapter and, in it, at a row of a table.
#pragma once

#include <QLineEdit>
#include <QString>
#include <QTextBrowser>
#include <QWidget>
#include <functional>

namespace mero::qt {

/// A place in the manual: the number of a chapter ("4.1"), and the first cell of a row in it, or nothing.
struct ManualPlace {
    QString chapter;
    QString row = {};
};

class ManualWindow : public QWidget {
  public:
    /// @param folder       where prirucka.md and its pictures are, also a folder of resources
    /// @param open_address called with a web address that was clicked
    ManualWindow(const QString& folder, std::function<void(const QString&)> open_address);

    /// Shows the window with the place at its top; the row is marked. An unknown place is the beginning.
    void openAt(const ManualPlace& place);
    /// True when the manual has the chapter, and the row in it.
    [[nodiscard]] bool has(const ManualPlace& place) const;

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void followLink(const QUrl& link);
    void findNext();
    void showBlock(const QTextBlock& block);

    std::function<void(const QString&)> open_address_;
    QTextBrowser* text_;
    QLineEdit* search_;
};

}  // namespace mero::qt
