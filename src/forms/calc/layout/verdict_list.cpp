// SPDX-License-Identifier: MIT
/// Lines of the list. Long ones are wrapped, so the height depends on the width.
#include "forms/calc/layout/verdict_list.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QStyledItemDelegate>
#include <algorithm>
#include <utility>

#include "qt/look.h"
#include "qt/texts.h"

namespace mero::forms {
namespace {

constexpr int kLeastCharacters = 24;

int padding(const QWidget& widget) {
    return qt::gap(widget) / 3;
}

/// A line is as high as its wrapped text.
class WrappedLines : public QStyledItemDelegate {
  public:
    explicit WrappedLines(QListWidget& list) : QStyledItemDelegate(&list), list_(&list) {}

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override {
        const int frame = 2 * (list_->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1);
        const int width = list_->viewport()->width();
        const QRect room(0, 0, std::max(1, width - frame), QWIDGETSIZE_MAX);
        const int height =
            option.fontMetrics.boundingRect(room, Qt::TextWordWrap, index.data().toString()).height();
        return {width, height + 2 * padding(*list_)};
    }

  private:
    QListWidget* list_;
};

}  // namespace

VerdictList::VerdictList(QWidget& parent, std::function<void(const Judgement&)> lead)
    : QListWidget(&parent), lead_(std::move(lead)) {
    setObjectName(QStringLiteral("judgements"));
    setAccessibleName(QStringLiteral("Posouzení"));
    setToolTip(
        QStringLiteral("Klepnutí nebo Enter vede k poli, kterého se řádek týká; Ctrl+C zkopíruje vše."));
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    setWordWrap(true);
    setTextElideMode(Qt::ElideNone);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setItemDelegate(new WrappedLines(*this));
    const auto follow = [this](const QListWidgetItem* item) {
        const auto at = static_cast<std::size_t>(row(item));
        if (at < judgements_.size()) {
            // The list may change before the field has the focus.
            const Judgement judgement = judgements_[at];
            lead_(judgement);
        }
    };
    connect(this, &QListWidget::itemClicked, this, follow);
}

void VerdictList::show(const std::vector<Judgement>& judgements) {
    QStringList lines;
    for (const Judgement& judgement : judgements) {
        lines += qt::shown(line(judgement));
    }
    judgements_ = judgements;
    QStringList before;
    for (int i = 0; i < count(); ++i) {
        before += item(i)->text();
    }
    if (lines == before) {
        return;
    }
    const int at = currentRow();
    clear();
    addItems(lines);
    setCurrentRow(std::min(at, count() - 1), QItemSelectionModel::NoUpdate);
    fitHeight();
}

QString VerdictList::allText() const {
    QString text;
    for (int i = 0; i < count(); ++i) {
        text += item(i)->text() + QLatin1Char('\n');
    }
    return text;
}

QSize VerdictList::sizeHint() const {
    int height = 0;
    for (int i = 0; i < count(); ++i) {
        height += sizeHintForRow(i);
    }
    return {qt::textWidth(*this, kLeastCharacters), height + 2 * frameWidth()};
}

QSize VerdictList::minimumSizeHint() const {
    return sizeHint();
}

void VerdictList::fitHeight() {
    scheduleDelayedItemsLayout();
    setFixedHeight(sizeHint().height());
}

void VerdictList::resizeEvent(QResizeEvent* event) {
    QListWidget::resizeEvent(event);
    if (event->size().width() != event->oldSize().width()) {
        fitHeight();
    }
}

void VerdictList::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        QApplication::clipboard()->setText(allText());
        return;
    }
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && currentItem() != nullptr) {
        emit itemClicked(currentItem());
        return;
    }
    QListWidget::keyPressEvent(event);
}

void VerdictList::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu(this);
    QAction* copy = menu.addAction(QStringLiteral("Kopírovat posouzení"));
    copy->setEnabled(count() > 0);
    if (menu.exec(event->globalPos()) == copy) {
        QApplication::clipboard()->setText(allText());
    }
}

}  // namespace mero::forms
