// SPDX-License-Identifier: MIT
/// The main window: the tab control with its four tabs, and the windows of the three dialogs.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "forms/calc/frm_calc.h"
#include "qt/document_view.h"
#include "qt/form_window.h"
#include "qt/manual_window.h"
#include "qt/menu_bar.h"
#include "qt/notice_bar.h"
#include "qt/widget_kit.h"

namespace mero::forms {

class CalcWindow : public qt::FormWindow {
  public:
    CalcWindow(qt::WidgetKit& kit, frmCalc& form, qt::DocumentServices services);
    ~CalcWindow() override;
    CalcWindow(const CalcWindow&) = delete;
    CalcWindow& operator=(const CalcWindow&) = delete;
    CalcWindow(CalcWindow&&) = delete;
    CalcWindow& operator=(CalcWindow&&) = delete;

    /// After a message was closed: puts the focus into the field that it is about, once the event is over. A
    /// guard that asks for the site leads to the first tab.
    void returnToField(const platform::Message& message);

    /// Confirms that a file was saved and offers to open it.
    void tellSaved(const std::string& path);
    /// Says a line at the lower edge; it goes when another tab is chosen.
    void tell(const QString& text, const std::vector<qt::NoticeBar::Offer>& offers);
    /// A line above the tabs that stays until it is closed or an offer is taken. Null before the window
    /// opens.
    [[nodiscard]] qt::NoticeBar* lastingNotice() const { return lasting_notice_; }

    /// Places the window before it is shown; false when it has no place to give.
    std::function<bool(QWidget& window)> place;

    /// Sets the menus above the tabs, before the window is opened. Undo is theirs from then on.
    void setMenus(std::vector<qt::Menu> menus);
    /// Opens the manual at the field with the focus.
    void showHelp() { showHelp(*form_, *this); }

  protected:
    void build(QWidget& content) override;

  private:
    void addHelp();
    void showHelp(const platform::Form& form, const QWidget& window);

    frmCalc* form_;
    qt::DocumentServices services_;
    std::unique_ptr<qt::FormWindow> rain_window_;
    std::unique_ptr<qt::FormWindow> area_window_;
    std::unique_ptr<qt::FormWindow> soil_window_;
    std::vector<qt::Menu> menus_;
    // Made with the content.
    qt::NoticeBar* notice_ = nullptr;
    qt::NoticeBar* lasting_notice_ = nullptr;
    std::unique_ptr<qt::ManualWindow> manual_;  ///< made when it is first asked for
};

}  // namespace mero::forms
