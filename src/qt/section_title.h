// SPDX-License-Identifier: MIT
/// A title within a group of fields, followed by a line to the right edge.
#pragma once

#include <QLabel>

namespace mero::qt {

class SectionTitle : public QLabel {
  public:
    SectionTitle(const QString& text, QWidget& parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void colour();
    bool colouring_ = false;
};

}  // namespace mero::qt
