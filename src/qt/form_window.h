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
    /// Puts the widgets into `content`, which is disabled while the form is.
    virtual void build(QWidget& content) = 0;

    /// The button that Enter presses where the field with the focus has no use for it.
    void confirmWith(QPushButton& button);
    /// Makes a dialog as large as its content wants to be, as far as the screen allows.
    void fitContent();
    /// What of the screen is there for the window's content: all but the window manager's frame.
    [[nodiscard]] QSize roomOnScreen() const;

    [[nodiscard]] WidgetKit& kit() const { return *kit_; }

    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void showForm();
    void hideForm();
    void setFormEnabled(bool enabled);
    /// Where the owner's form places its dialogs, moved so that the whole window is on the screen.
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
