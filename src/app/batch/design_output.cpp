// SPDX-License-Identifier: MIT
/// Formats the results. The table has the captions and decimals of the window's panels.
/// The JSON has the stored numbers in their shortest text.
#include "app/batch/design_output.h"

#include <algorithm>
#include <vector>

#include "automation/json_line.h"
#include "design/messages.h"
#include "project/fields.h"
#include "project/project.h"

namespace mero::app {
namespace {

using automation::JsonLine;

/// Number of characters of a UTF-8 text.
std::size_t width(const std::string& text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
        constexpr unsigned kLead = 0xC0U;
        constexpr unsigned kContinuation = 0x80U;
        return (static_cast<unsigned char>(c) & kLead) != kContinuation;
    }));
}

std::string padded(const std::string& text, std::size_t columns) {
    return text + std::string(columns > width(text) ? columns - width(text) : 0, ' ');
}

std::string rightAligned(const std::string& text, std::size_t columns) {
    return std::string(columns > width(text) ? columns - width(text) : 0, ' ') + text;
}

const char* sign(design::Severity severity) {
    switch (severity) {
        case design::Severity::Information:
            return "  + ";
        case design::Severity::Warning:
            return "  ! ";
        case design::Severity::Refusal:
            break;
    }
    return "  x ";
}

const char* nameOf(design::Severity severity) {
    switch (severity) {
        case design::Severity::Information:
            return "information";
        case design::Severity::Warning:
            return "warning";
        case design::Severity::Refusal:
            break;
    }
    return "error";
}

std::string typeName(design::FacilityType type) {
    const std::size_t position = static_cast<std::size_t>(type) - 1;
    return project::choices(*project::findField("facility.type"))[position];
}

/// The lines of a message that holds several.
std::vector<std::string> linesOf(std::string text) {
    std::vector<std::string> lines;
    for (std::size_t end = text.find("\r\n"); end != std::string::npos; end = text.find("\r\n")) {
        lines.push_back(text.substr(0, end));
        text.erase(0, end + 2);
    }
    if (!text.empty()) {
        lines.push_back(text);
    }
    return lines;
}

std::string messageLines(const design::DesignResult& result) {
    std::string text;
    for (const design::Message& message : design::messages(result.verdicts.all())) {
        for (const std::string& line : linesOf(message.text)) {
            text += sign(message.severity) + line;
            text += message.error_number == 0 ? "\n" : " (" + automation::json(message.error_number) + ")\n";
        }
    }
    return text;
}

/// The inputs and results that the verdict speaks of, with their values.
std::string subjectsJson(const design::Verdict& verdict) {
    JsonLine about;
    const auto subjects = design::subjects(verdict.id);
    for (std::size_t i = 0; i < subjects.size(); ++i) {
        about.add(subjects[i].name, verdict.values[i]);
    }
    return about.text();
}

}  // namespace

std::string resultTable(const project::Project& project, const design::DesignResult& result) {
    constexpr std::size_t kValueColumns = 12;
    const design::FacilityType type = project.inputs.facility.type;
    std::size_t label_columns = 0;
    for (const design::QuantityInfo& quantity : design::quantities()) {
        if (design::belongsTo(quantity.quantity, type)) {
            label_columns = std::max(label_columns, width(design::captionOf(quantity.quantity, type)));
        }
    }
    std::string text = project.texts.txtProjName.empty() ? "" : project.texts.txtProjName + "\n";
    text += project::reference().TypyZasakovani[static_cast<std::size_t>(type)] + "\n\n";
    for (const design::QuantityInfo& quantity : design::quantities()) {
        if (design::belongsTo(quantity.quantity, type)) {
            const std::string value =
                result.has(quantity.quantity)
                    ? design::boxText(quantity.quantity, type, result.written(quantity.quantity))
                    : "-";
            text += "  " + padded(design::captionOf(quantity.quantity, type), label_columns) +
                    rightAligned(value, kValueColumns) + (*quantity.unit == '\0' ? "" : " ") + quantity.unit +
                    "\n";
        }
    }
    const std::string told = messageLines(result);
    return told.empty() ? text : text + "\n" + told;
}

std::string resultJson(const project::Project& project, const design::DesignResult& result) {
    const design::FacilityType type = project.inputs.facility.type;
    JsonLine results;
    for (const design::QuantityInfo& quantity : design::quantities()) {
        if (design::belongsTo(quantity.quantity, type)) {
            results.addJson(quantity.name, result.has(quantity.quantity)
                                               ? automation::json(result.value(quantity.quantity))
                                               : "null");
        }
    }
    std::vector<std::string> told;
    for (const design::Verdict& verdict : result.verdicts.all()) {
        const design::VerdictInfo& row = design::info(verdict.id);
        told.push_back(JsonLine()
                           .add("code", row.code)
                           .add("severity", nameOf(row.severity))
                           .add("text", design::text(verdict))
                           .addJson("about", subjectsJson(verdict))
                           .text());
    }
    JsonLine line;
    line.add("project", project.texts.txtProjName)
        .add("type", typeName(type))
        .add("completed", result.completed)
        .addJson("results", results.text())
        .addJson("verdicts", automation::jsonArray(told));
    return line.text() + "\n";
}

}  // namespace mero::app
