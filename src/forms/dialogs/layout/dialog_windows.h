// SPDX-License-Identifier: MIT
/// The windows of the three input dialogs.
#pragma once

#include "forms/dialogs/frm_coef_dialog.h"
#include "forms/dialogs/frm_dialog.h"
#include "forms/dialogs/frm_int_dialog.h"
#include "qt/form_window.h"
#include "qt/grid_view.h"

namespace mero::forms {

/// The design rain: station, periodicity, the table of intensities, help.
class RainWindow : public qt::FormWindow {
  public:
    RainWindow(qt::WidgetKit& kit, frmIntDialog& form, FormWindow& owner)
        : FormWindow(kit, form, &owner), form_(&form) {}

  protected:
    void build(QWidget& content) override;

  private:
    QWidget& buildTable(QWidget& parent);
    QWidget& buildHelp(QWidget& parent);

    frmIntDialog* form_;
};

/// The drained area: the surfaces, the entry of a partial area, the table of entries.
class AreaWindow : public qt::FormWindow {
  public:
    AreaWindow(qt::WidgetKit& kit, frmDialog& form, FormWindow& owner)
        : FormWindow(kit, form, &owner), form_(&form) {}

  protected:
    void build(QWidget& content) override;

  private:
    QWidget& buildEntry(QWidget& parent);
    QWidget& buildEntries(QWidget& parent);
    /// Lets blocks of cells be pasted as new areas.
    void takeBlocks(qt::GridView& entries);
    /// Enters an area as a person does; the texts are those of the entries' columns.
    bool enterArea(qt::GridView& entries, const std::vector<QString>& texts);
    QWidget& buildFoot(QWidget& parent);

    frmDialog* form_;
};

/// The soil: the table of filtration coefficients.
class SoilWindow : public qt::FormWindow {
  public:
    SoilWindow(qt::WidgetKit& kit, frmCoefDialog& form, FormWindow& owner)
        : FormWindow(kit, form, &owner), form_(&form) {}

  protected:
    void build(QWidget& content) override;

  private:
    frmCoefDialog* form_;
};

}  // namespace mero::forms
