// SPDX-License-Identifier: MIT
/// The controls of the main window: tabs, input fields, the type choice, the six result panels.
/// What they hold when the window opens is set here; what they do is frmCalc's.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "data/facility_type.h"
#include "platform/controls/buttons.h"
#include "platform/controls/containers.h"
#include "platform/controls/control_array.h"
#include "platform/controls/drop_list.h"
#include "platform/controls/form.h"
#include "platform/controls/text_box.h"

namespace mero::forms {

/// The tabs of the main window in their order.
enum Tab { kTabInputs = 0, kTabDesign = 1, kTabTechnology = 2, kTabResults = 3 };

using data::FacilityType;

struct frmCalcControls : platform::Form {
    using BrowserView = platform::BrowserView;
    using Button = platform::Button;
    using CheckBox = platform::CheckBox;
    using DropList = platform::DropList;
    using Frame = platform::Frame;
    using Label = platform::Label;
    using OptionButton = platform::OptionButton;
    using Panel = platform::Panel;
    using TextBox = platform::TextBox;
    using UpDown = platform::UpDown;
    template <typename T>
    using ControlArray = platform::ControlArray<T>;

    frmCalcControls();

    platform::TabControl SSTab1{
        *this, "SSTab1", {"Základní informace", "Výpočet", "Popis technologie", "Výsledky"}};

    // Tab "Základní informace".
    Frame fraVstup{SSTab1.page(kTabInputs), "fraVstup", "Vstupní infromace"};
    TextBox txtProjName{fraVstup, "txtProjName"};
    TextBox txtProjektant{fraVstup, "txtProjektant"};
    TextBox txtMistoAkce{fraVstup, "txtMistoAkce"};
    TextBox txtInvestor{fraVstup, "txtInvestor"};
    TextBox txtDetails{fraVstup, "txtDetails"};
    TextBox txtTypPudyPodlozi{fraVstup, "txtTypPudyPodlozi"};
    TextBox txtHPV{fraVstup, "txtHPV"};
    TextBox txtOdvodNepPlocha{fraVstup, "txtOdvodNepPlocha"};
    TextBox txtSelIntDeste{fraVstup, "txtSelIntDeste"};
    TextBox txtSelDTrvDeste{fraVstup, "txtSelDTrvDeste"};
    TextBox txtOdtokDoVsak{fraVstup, "txtOdtokDoVsak"};
    TextBox txtSoucFiltrace{fraVstup, "txtSoucFiltrace"};
    ControlArray<Button> cmdEdit{"cmdEdit"};
    Label lblTime{SSTab1.page(kTabInputs), "lblTime", "01:00:00"};
    ControlArray<Label> lblOdkaz{"lblOdkaz"};

    // Tab "Výpočet": the choice of the type.
    Frame fraVyber{SSTab1.page(kTabDesign), "fraVyber", "Výběr typu vsakování"};
    ControlArray<OptionButton> optSelType{"optSelType"};
    DropList cboSelType{fraVyber, "cboSelType"};
    ControlArray<Panel> picResults{"picResults"};

    // Fields that stand on several result panels, by the type number.
    ControlArray<TextBox> txtSoucBezp{"txtSoucBezp"};
    ControlArray<TextBox> txtVsakPlocha{"txtVsakPlocha"};
    ControlArray<TextBox> txtObjAkum{"txtObjAkum"};
    ControlArray<TextBox> txtVyskaVzduti{"txtVyskaVzduti"};
    ControlArray<TextBox> txtDobaPrazdneni{"txtDobaPrazdneni"};
    ControlArray<TextBox> txtSoucFiltrPruleh{"txtSoucFiltrPruleh"};
    ControlArray<TextBox> txtPorVyplne{"txtPorVyplne"};
    ControlArray<TextBox> txtSirkaRyhy{"txtSirkaRyhy"};
    ControlArray<TextBox> txtVyskaRyhy{"txtVyskaRyhy"};
    ControlArray<TextBox> txtDelkaRyhy{"txtDelkaRyhy"};
    ControlArray<TextBox> txtHloubkaPrulehu{"txtHloubkaPrulehu"};
    ControlArray<TextBox> txtSirkaPrulehu{"txtSirkaPrulehu"};
    ControlArray<OptionButton> optSelTypPudy2{"optSelTypPudy2"};
    ControlArray<OptionButton> optSelTypPudy3{"optSelTypPudy3"};
    ControlArray<Button> cmdCalcul{"cmdCalcul"};

    // The sub-panels of overflow (3) and drain (4).
    ControlArray<CheckBox> chkSelPretok{"chkSelPretok"};
    ControlArray<Panel> picPretokSkrOdtok{"picPretokSkrOdtok"};
    ControlArray<TextBox> txtPocetPotrubi{"txtPocetPotrubi"};
    ControlArray<TextBox> txtPrumTroubVnej{"txtPrumTroubVnej"};
    ControlArray<TextBox> txtPrumTroubVnit{"txtPrumTroubVnit"};
    ControlArray<TextBox> txtSpecDrenOdtok{"txtSpecDrenOdtok"};
    ControlArray<TextBox> txtVystupPlocha{"txtVystupPlocha"};
    ControlArray<TextBox> txtVystupRychlost{"txtVystupRychlost"};
    ControlArray<Button> cmdOK{"cmdOK"};

    /// The storage coefficient of the trench with its pipes, shown on the trench's panel.
    ControlArray<TextBox> txtSoucAkum{"txtSoucAkum"};

    // Panel 5, shaft.
    Panel& picShaft;
    ControlArray<OptionButton> optSelTypSachty{"optSelTypSachty"};
    ControlArray<OptionButton> optSelTypPudy5{"optSelTypPudy5"};
    DropList cboTypSachty{picShaft, "cboTypSachty"};
    TextBox txtSachtyCount{picShaft, "txtSachtyCount"};
    UpDown updSacht{picShaft, "updSacht"};
    TextBox txtPrumerSachtyVnit{picShaft, "txtPrumerSachtyVnit"};
    TextBox txtPrumerSachtyVnej{picShaft, "txtPrumerSachtyVnej"};
    TextBox txtTloustkaSteny{picShaft, "txtTloustkaSteny"};
    TextBox txtMinPrusakDraha{picShaft, "txtMinPrusakDraha"};
    TextBox txtNezamrzHlPritok{picShaft, "txtNezamrzHlPritok"};
    TextBox txtVyskaPiskVrstvy{picShaft, "txtVyskaPiskVrstvy"};
    TextBox txtVyskaFiltrVrstvy{picShaft, "txtVyskaFiltrVrstvy"};
    TextBox txtHloubkaSachty{picShaft, "txtHloubkaSachty"};
    TextBox txtPotrHloubkaZahl{picShaft, "txtPotrHloubkaZahl"};

    // Panel 6, tank.
    Panel& picTank;
    TextBox txtSpecMeroIntenz{picTank, "txtSpecMeroIntenz"};
    TextBox txtDelkaDnaNadrz{picTank, "txtDelkaDnaNadrz"};
    TextBox txtSirkaDnaNadrz{picTank, "txtSirkaDnaNadrz"};
    TextBox txtHloubkaNadrz{picTank, "txtHloubkaNadrz"};
    TextBox txtSklonSvahuNadrz{picTank, "txtSklonSvahuNadrz"};
    CheckBox chkPredUsaz;
    TextBox txtVsakTok{picTank, "txtVsakTok"};
    TextBox txtVypObjNadrz{picTank, "txtVypObjNadrz"};

    // Tabs "Popis technologie" and "Výsledky".
    BrowserView wbShowPopisTech{SSTab1.page(kTabTechnology), "wbShowPopisTech"};
    BrowserView wbShowResults{SSTab1.page(kTabResults), "wbShowResults"};
    Button cmdSaveResults{SSTab1.page(kTabResults), "cmdSaveResults", "Uložit jako"};
    Button cmdPrint{SSTab1.page(kTabResults), "cmdPrint", "Tisk"};

    /// The text box of that name. @throws std::logic_error when the window has none
    [[nodiscard]] TextBox& textBox(const std::string& name) const;

  private:
    void addMembers();
    void addFields();
    void addField(std::string_view name, FacilityType type, platform::Control& container,
                  const std::string& text);
    void setInitialState();

    /// Boxes of the tables that no handler names.
    std::vector<std::unique_ptr<TextBox>> other_boxes_;
};

}  // namespace mero::forms
