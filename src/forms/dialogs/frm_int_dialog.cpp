// SPDX-License-Identifier: MIT
/// The design-rain dialog's handlers.
/// Selecting an entry by code counts as the user's choice; opening and editing rely on that.
#include "forms/dialogs/frm_int_dialog.h"

#include <utility>

#include "design/messages.h"
#include "design/site.h"
#include "design/station_rain.h"
#include "platform/numbers/checked.h"
#include "platform/numbers/number_text.h"

namespace mero::forms {
namespace {

constexpr int kDurationColumn = 0;
constexpr int kIntensityColumn = 1;
constexpr int kChoiceColumn = 2;

constexpr const char* kHelp =
    "Nápověda:\r\n"
    "U plošného vsakování (vsakování \r\n"
    "bez akumulace) volte dobu trvání \r\n"
    "deště t=10 min.\r\n"
    "Pro velké a málo sklonité připojované \r\n"
    "plochy může být doba zvýšena na t=15 \r\n"
    "min.\r\n"
    "Periodicitu volte p=0,2\r\n";

constexpr const char* kDemonstrationNote =
    "Hodnoty databáze dešťů jsou ukázkové. Nahraďte je údaji dešťoměrné stanice.";

std::size_t row0(int row) {
    return static_cast<std::size_t>(row) - 1;
}

}  // namespace

frmIntDialog::frmIntDialog(platform::Form& main, platform::Desk& desk, data::modPublicVariables& values,
                           data::RainDatabase& database, Target target)
    : Dialog("frmIntDialog", "Intenzity trvání deště", main, desk),
      txtHelp(*this, "txtHelp", kHelp),
      lblDemo(*this, "lblDemo", kDemonstrationNote),
      values_(&values),
      database_(&database),
      target_(std::move(target)) {
    cboSelStanice.clicked = [this] { cboSelStanice_Click(); };
    cboSelPeriod.clicked = [this] { cboSelPeriod_Click(); };
    fgIntDeste.cell_changed = [this](platform::GridCell left) {
        editor_.close();
        if (left.column == kChoiceColumn && fgIntDeste.hasDataCell(left)) {
            fgIntDeste.setMark(left, false);
        }
    };
    fgIntDeste.clicked = [this] { fgIntDeste_Click(); };
    txtSChange.changed = [this] { txtSChange_Change(); };
    cmdOK.clicked = [this] { cmdOK_Click(); };
    cmdEdit.clicked = [this] { cmdEdit_Click(); };
    cmdCloseHelp.clicked = [this] { cmdCloseHelp_Click(); };
    txtHelp.setMultiLine(true);
    cmdCloseHelp_Click();
    lblDemo.hide();
}

void frmIntDialog::Form_Load() {
    main().setEnabled(false);
    cmdOK.setEnabled(false);
    editor_.close();
    cmdCloseHelp_Click();
    lblDemo.setVisible(demonstration_.inUse(*values_));

    cboSelStanice.clear();
    for (const std::string& station : values_->StaniceNazev) {
        cboSelStanice.add(station);
    }
    cboSelPeriod.clear();
    for (const float periodicity : values_->Periodicita) {
        cboSelPeriod.add(numbers::general(periodicity));
    }
    if (values_->VybranaStanice.empty()) {
        cboSelStanice.select(0);
    } else {
        cboSelStanice.selectText(std::string(values_->VybranaStanice));
    }
    if (!values_->VybranaPeriodicita.empty()) {
        cboSelPeriod.selectText(std::string(values_->VybranaPeriodicita));
    }
    buildGrid();
}

void frmIntDialog::buildGrid() {
    editor_.close();
    fgIntDeste.build("td [min]|<i (t,p) [l/s.ha]|<Výběr", {0.35, 0.35, 0.3});
    for (int row = 1; row <= data::kDurationCount; ++row) {
        fgIntDeste.addRow({numbers::general(values_->DobaTrvani[row0(row)]),
                           numbers::general(values_->IntenzitaDeste[row0(row)])});
    }
    fgIntDeste.alignColumn(kDurationColumn, platform::Alignment::Centre);
    fgIntDeste.alignColumn(kIntensityColumn, platform::Alignment::Centre);
}

void frmIntDialog::cboSelStanice_Click() {
    values_->VybranaStanice = cboSelStanice.text();
    const int position = cboSelStanice.position();
    if (position < 1) {
        return;
    }
    ReadStationTable(values_->StaniceCislo(position), values_->CestaDatabaze);
    if (!values_->VybranaPeriodicita.empty()) {
        cboSelPeriod.selectText(std::string(values_->VybranaPeriodicita));
    }
}

void frmIntDialog::cboSelPeriod_Click() {
    values_->VybranaPeriodicita = cboSelPeriod.text();
    const int position = cboSelPeriod.position();
    if (cboSelStanice.position() >= 1 && position < data::kPeriodicityCount) {
        demonstration_.tableTaken(*values_);
        values_->IntenzitaDeste = values_->IntenzitaStanice[static_cast<std::size_t>(position)];
    }
    lblDemo.setVisible(lblDemo.visible() || demonstration_.inUse(*values_));
    buildGrid();
    cmdOK.setEnabled(true);
}

void frmIntDialog::fgIntDeste_Click() {
    editor_.close();
    const platform::GridCell mouse = fgIntDeste.mouse();
    const platform::GridCell cell = fgIntDeste.current();
    if (mouse.column == kChoiceColumn) {
        fgIntDeste.setMark({mouse.row, kChoiceColumn}, true);
        values_->VybranaIntenzita = values_->IntenzitaDeste[row0(mouse.row)];
        values_->VybranaDoba = values_->DobaTrvani[row0(mouse.row)];
    } else if (mouse.column == kDurationColumn) {
        editor_.open(numbers::general(values_->DobaTrvani[row0(cell.row)]));
    } else {
        editor_.open(numbers::fixed(values_->IntenzitaDeste[row0(cell.row)], 1));
    }
}

void frmIntDialog::txtSChange_Change() {
    // Typing means own values; the choice of position 0 only stores its text.
    cboSelStanice.select(0);
    const platform::GridCell cell = editor_.cell();
    const float value = numbers::toSingle(numbers::leadingNumber(txtSChange.text()));
    if (cell.column == kDurationColumn) {
        demonstration_.durationTyped(*values_);
        values_->DobaTrvani[row0(cell.row)] = value;
        fgIntDeste.setText(cell, numbers::fixed(value, 0));
    } else if (cell.column == kIntensityColumn) {
        demonstration_.intensityTyped(*values_, row0(cell.row));
        values_->IntenzitaDeste[row0(cell.row)] = value;
        lblDemo.setVisible(demonstration_.inUse(*values_));
        fgIntDeste.setText(cell, numbers::fixed(value, 1));
    }
}

void frmIntDialog::ReadStationTable(std::int16_t station_number, const std::string& database_path) {
    const data::StationTable table = database_->read(station_number, database_path);
    demonstration_.stationRead(table.demonstration);
    lblDemo.setVisible(table.demonstration || demonstration_.inUse(*values_));
    design::readStation(table, values_->IntenzitaStanice, values_->DobaStanice);
}

void frmIntDialog::cmdOK_Click() {
    switch (design::confirmRain(rains())) {
        case design::RainConfirmation::Accepted:
            break;
        case design::RainConfirmation::NoIntensities:
            desk().showMessage(design::box(design::VerdictId::RainIntensitiesMissing));
            return;
        case design::RainConfirmation::Overflow:
            throw RuntimeError(ErrorNumber::Overflow);
    }
    if (values_->VybranaIntenzita > 0) {
        target_.txtSelIntDeste.setText(numbers::general(values_->VybranaIntenzita));
        if (values_->VybranaDoba > 0) {
            target_.txtSelDTrvDeste.setText(numbers::general(values_->VybranaDoba));
        }
    }
    target_.RebuildCalc();
    Unload();
}

std::array<calc::Rain, calc::kRainRows> frmIntDialog::rains() const {
    std::array<calc::Rain, calc::kRainRows> rows;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        rows[row] = {values_->DobaTrvani[row], values_->IntenzitaDeste[row]};
    }
    return rows;
}

calc::Rain frmIntDialog::pickedRain() const {
    return {values_->VybranaDoba, values_->VybranaIntenzita};
}

std::string frmIntDialog::demonstrationNote() const {
    return demonstration_.inUse(*values_) ? lblDemo.text() : "";
}

void frmIntDialog::cmdEdit_Click() {
    txtHelp.show();
    cmdCloseHelp.show();
}

void frmIntDialog::cmdCloseHelp_Click() {
    txtHelp.hide();
    cmdCloseHelp.hide();
}

}  // namespace mero::forms
