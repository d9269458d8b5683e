// SPDX-License-Identifier: MIT
/// The list "Posouzení": what the last calculation judged, and what it did not.
#pragma once

#include <QListWidget>
#include <functional>
#include <vector>

#include "forms/calc/judgements.h"

namespace mero::forms {

/// A list as high as its lines. Ctrl+C and the context menu copy all of them.
class VerdictList : public QListWidget {
  public:
    /// @param lead called with the judgement of the line that was clicked, or chosen by Enter
    VerdictList(QWidget& parent, std::function<void(const Judgement&)> lead);

    /// Shows these; the current line stays, where there is one.
    void show(const std::vector<Judgement>& judgements);
    [[nodiscard]] QString allText() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void fitHeight();

    std::function<void(const Judgement&)> lead_;
    std::vector<Judgement> judgements_;
};

}  // namespace mero::forms
