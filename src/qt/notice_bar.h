// SPDX-License-Identifier: MIT
/// A line at a window's edge that confirms something and offers what to do with it. Nothing has to be closed.
#pragma once

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <functional>
#include <vector>

namespace mero::qt {

class NoticeBar : public QFrame {
  public:
    struct Offer {
        QString caption;
        std::function<void()> act;
    };

    /// Hidden until something is told.
    explicit NoticeBar(QWidget& parent);

    /// Shows the text in place of an earlier one. The focus stays where it is; a screen reader says the text.
    void tell(const QString& text, const std::vector<Offer>& offers);
    [[nodiscard]] QString text() const { return whole_; }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void elide();

    QHBoxLayout* row_;
    QLabel* text_;
    QString whole_;  ///< the label may show a part of it
    std::vector<QWidget*> offers_;
};

}  // namespace mero::qt
