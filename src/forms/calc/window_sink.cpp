// SPDX-License-Identifier: MIT
/// Writes results and verdicts of the design procedures into the main window.
#include "forms/calc/window_sink.h"

#include <vector>

#include "design/input.h"
#include "design/messages.h"
#include "design/verdict.h"
#include "forms/calc/frm_calc.h"
#include "forms/calc/result_state.h"

namespace mero::forms {

int selectedOption(const platform::ControlArray<platform::OptionButton>& options) {
    constexpr int kNoneSelected = -1;
    if (options[0].selected()) {
        return 0;
    }
    return options[1].selected() ? 1 : kNoneSelected;
}

ResultBoxes::ResultBoxes(const frmCalcControls& form) {
    for (const FacilityType type : data::kFacilityTypes) {
        for (const design::ResultBox& row : design::resultBoxes(type)) {
            boxes_[data::index(type)][design::index(row.quantity)] =
                &form.textBox(design::controlName(row.box, type));
        }
    }
}

data::DesignNumbers& WindowSink::numbers() {
    return *form_->values_;
}

std::array<calc::Rain, calc::kRainRows> WindowSink::rains() const {
    return form_->intDialog.rains();
}

int WindowSink::soilOption() const {
    return selectedOption(type_ == FacilityType::Swale ? form_->optSelTypPudy2 : form_->optSelTypPudy3);
}

bool WindowSink::hasSandLayer() const {
    return !form_->optSelTypPudy5[0].selected();
}

bool WindowSink::upstreamSettling() const {
    return form_->chkPredUsaz.checked();
}

bool WindowSink::pipesTicked() const {
    return form_->chkSelPretok[type_].checked();
}

float WindowSink::show(design::Quantity quantity, float value) {
    float& stored = form_->values_->*design::info(quantity).stored;
    stored = value;
    if (platform::TextBox* box = form_->result_boxes_.box(quantity, type_)) {
        box->setText(design::boxText(quantity, type_, value));
    }
    return stored;
}

void WindowSink::clear(design::Quantity quantity) {
    if (platform::TextBox* box = form_->result_boxes_.box(quantity, type_)) {
        const char* text = design::resultBox(quantity, type_)->cleared_text;
        box->setText(text == nullptr ? "" : text);
    }
}

void WindowSink::tell(design::VerdictId id) {
    tellTogether({&id, 1});
}

void WindowSink::tellTogether(std::span<const design::VerdictId> ids) {
    std::vector<design::Verdict> verdicts;
    for (const design::VerdictId id : ids) {
        verdicts.push_back(design::verdict(id, numbers()));
        form_->record_.tell(type_, verdicts.back());
    }
    for (const design::Message& message : design::messages(verdicts)) {
        form_->desk_->showMessage(design::box(message));
    }
}

void WindowSink::clearResults() {
    form_->ClearTypeResults();
}

void WindowSink::closePipes(bool kept) {
    if (kept) {
        form_->picPretokSkrOdtok[type_].hide();
    } else {
        form_->chkSelPretok[type_].setChecked(false);
    }
}

void WindowSink::abandonType() {
    form_->hideResultPanels();
    form_->optSelType[form_->TypeGroup].setSelected(false);
    form_->optSelType[form_->TypeGroup].setSelected(true);
}

void WindowSink::complete() {
    if (design::isLive(type_)) {
        form_->record_.end(type_, CalculationEnd::Done, calculationState(*form_, type_));
    }
}

}  // namespace mero::forms
