// SPDX-License-Identifier: MIT
/// The tabs of the main window, the report and the description pages.
/// The report is rebuilt from the current values whenever the results tab is entered.
#include "design/messages.h"
#include "forms/calc/frm_calc.h"
#include "forms/calc/report_data.h"
#include "platform/files/same_file.h"
#include "platform/files/whole_file.h"
#include "report/code_page.h"
#include "report/documents.h"
#include "report/html_report.h"
#include "report/report_file.h"
#include "report/saved_copy.h"

namespace mero::forms {
void frmCalc::SSTab1_Click(int PreviousTab) {
    switch (SSTab1.position()) {
        case kTabDesign:
            removeReport(values_->ResultsFilePath);
            break;
        case kTabTechnology:
            enterTechnologyTab(PreviousTab);
            break;
        case kTabResults:
            enterResultsTab(PreviousTab);
            break;
        default:
            break;
    }
}

void frmCalc::refuseTab(int previous_tab) {
    SSTab1.setPosition(previous_tab);
    desk_->showMessage(design::box(design::VerdictId::TechnologyNotChosen));
}

void frmCalc::enterTechnologyTab(int previous_tab) {
    wbShowPopisTech.hide();
    if (SelectedType == FacilityType::None) {
        refuseTab(previous_tab);
        return;
    }
    const std::string page = report::descriptionPagePath(folder_, SelectedType);
    wbShowPopisTech.navigate(page);
    desk_->navigated(wbShowPopisTech.name(), page);
    wbShowPopisTech.show();
}

void frmCalc::enterResultsTab(int previous_tab) {
    wbShowResults.hide();
    cmdSaveResults.hide();
    cmdPrint.hide();
    cmdPrint.setEnabled(true);
    if (SelectedType == FacilityType::None) {
        refuseTab(previous_tab);
        return;
    }
    values_->ResultsFilePath = report::reportPath(folder_, values_->txtProjName);
    BuildResultsHtml();
    wbShowResults.navigate(values_->ResultsFilePath);
    desk_->navigated(wbShowResults.name(), values_->ResultsFilePath);
    wbShowResults.show();
    cmdSaveResults.show();
    cmdPrint.show();
}

void frmCalc::BuildResultsHtml() {
    shown_report_.clear();
    if (values_->ResultsFilePath.empty()) {
        return;
    }
    // The description keeps the tags from now on.
    values_->txtDetails = report::withBreakTags(values_->txtDetails);
    const std::string html = report::htmlReport(reportData(*this, clock_->now()));
    const report::WriteResult result = writeReport(html);
    if (result == report::WriteResult::PermissionDenied) {
        values_->ResultsFileName = report::bareFileName(values_->ResultsFilePath);
        error("Soubor " + values_->ResultsFileName + " je otevřený jinou aplikací.");
    } else if (result == report::WriteResult::Written) {
        shown_report_ = html;
    }
}

report::WriteResult frmCalc::writeReport(const std::string& html) {
    if (!report::isDirectlyIn(folder_, values_->ResultsFilePath)) {
        return report::WriteResult::Failed;
    }
    const report::WriteResult result = report::writeReport(values_->ResultsFilePath, html);
    if (result == report::WriteResult::Written) {
        written_reports_.insert(values_->ResultsFilePath);
    }
    return result;
}

void frmCalc::removeReport(const std::string& path) {
    if (report::isDirectlyIn(folder_, path)) {
        report::removeReport(path);
    }
    written_reports_.erase(path);
}

bool frmCalc::keepReport() {
    const std::string& path = values_->ResultsFilePath;
    return shown_report_.empty() || report::holdsReport(path, shown_report_) ||
           writeReport(shown_report_) == report::WriteResult::Written;
}

void frmCalc::cmdSaveResults_Click() {
    cmdSaveResults.setEnabled(false);
    if (const auto path = desk_->askSavePath(values_->ResultsFilePath + ".html")) {
        saveResults(*path);
    }
    cmdSaveResults.setEnabled(true);
}

void frmCalc::saveResults(const std::string& path) {
    const std::string failed = "Zprávu se nepodařilo uložit do souboru " + path + ".";
    if (report::isProgramFile(folder_, path) || platform::isSameFile(path, values_->ResultsFilePath)) {
        error(failed + " Tento soubor program sám používá.");
        return;
    }
    if (!report::isDirectlyIn(folder_, values_->ResultsFilePath)) {
        error(failed);
        return;
    }
    auto pdf = platform::PdfResult::Made;
    bool saved = false;
    desk_->setPageNote(intDialog.demonstrationNote());
    if (report::isPdfPath(path)) {
        saved = keepReport() && platform::replaceWhole(path, [&](const std::string& fresh_path) {
                    pdf = desk_->makePdf(values_->ResultsFilePath, fresh_path);
                    return pdf == platform::PdfResult::Made;
                });
    } else if (!shown_report_.empty()) {
        // As the code page has it, also what it lacks.
        saved =
            report::saveCopyOf(report::fromWindows1250(report::toWindows1250(shown_report_)), folder_, path);
    } else {
        saved = report::saveCopy(values_->ResultsFilePath, folder_, path);
    }
    if (saved) {
        desk_->saved(path);
        return;
    }
    const char* reason =
        pdf == platform::PdfResult::NoMeans ? " Soubor PDF vytváří okenní program mero, který zde není." : "";
    error(failed + reason);
}

void frmCalc::cmdPrint_Click() {
    static_cast<void>(keepReport());
    desk_->setPageNote(intDialog.demonstrationNote());
    desk_->openPrintPreview(values_->ResultsFilePath);
}

}  // namespace mero::forms
