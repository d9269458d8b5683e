// SPDX-License-Identifier: MIT
/// A form as a top-level window. It is built when it is first shown.
#pragma once

#include <QPointer>
#include <QPushButton>
#include <QWidget>

#include "platform/controls/form.h"
#include "qt/widget_kit.h"

namespace mero::qt {

class FormWindow : public QWidget {
  public:
    /// @param owner the window that this one stays on top of, null for the main window
    FormWindow(WidgetKit& kit, platform::Form& form, FormWindow* owner);

  protected:
    /// Adds the widgets to `content`, which is disabled while the form is.
    virtual void build(QWidget& content) = 0;

    /// Sets the button that Enter presses when the field with the focus does not use the key.
    void confirmWith(QPushButton& button);
    /// Resizes a dialog to its content's preferred size, as far as the screen allows.
    void fitContent();
    /// Screen size available for the window's content: without the window manager's frame.
    [[nodiscard]] QSize roomOnScreen() const;

    [[nodiscard]] WidgetKit& kit() const { return *kit_; }

    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void showForm();
    void hideForm();
    void setFormEnabled(bool enabled);
    /// Moves the dialog to its offset from the owner, or nearer so that the whole window is on the screen.
    void placeOverOwner();
    /// Moves a dialog so that all of it is on the screen, as far as it fits.
    void moveOntoScreen(QPoint wanted);

    WidgetKit* kit_;
    platform::Form* form_;
    FormWindow* owner_;
    QWidget* content_ = nullptr;
    QPointer<QPushButton> confirm_;
    QPointer<QWidget> focus_before_disabling_;
};

}  // namespace mero::qt
