// SPDX-License-Identifier: MIT
/// The panels of the other types that the document gives values for are filled in before the chosen one's.
#include "forms/keeping/entered_state.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "design/input.h"
#include "forms/keeping/enter_project.h"
#include "forms/keeping/quiet_program.h"
#include "platform/numbers/runtime_error.h"
#include "project/read_project.h"

namespace mero::forms {
namespace {

using design::Input;
using project::Project;

std::string text(const project::Remark& remark) {
    const auto reason = [&] {
        switch (remark.fault) {
            case project::Fault::UnknownName:
                return "neznámé jméno, hodnota nebyla převzata.";
            case project::Fault::WrongValue:
                return "hodnotu nelze převzít.";
            case project::Fault::Missing:
                return "hodnota chybí.";
            case project::Fault::Conflict:
                return "hodnota neodpovídá ostatním, nebyla převzata.";
        }
        return "";
    };
    return remark.path + ": " + reason();
}

class Given {
  public:
    explicit Given(const Project& project) : project_(&project) {}
    [[nodiscard]] bool operator()(std::string_view path) const {
        return std::ranges::find(project_->given, path) != project_->given.end();
    }
    [[nodiscard]] bool operator()(Input input) const { return (*this)(design::info(input).path); }

  private:
    const Project* project_;
};

bool isOnPanel(Input input, FacilityType type) {
    const auto panel = design::panelInputs(type);
    return std::ranges::find(panel, input, &design::PanelInput::input) != panel.end();
}

/// Has the document a value for the panel that the chosen type's panel does not have?
bool needsPanel(FacilityType type, FacilityType chosen, const Given& given) {
    return type != chosen &&
           std::ranges::any_of(design::panelInputs(type), [&](const design::PanelInput& row) {
               return given(row.input) && !isOnPanel(row.input, chosen);
           });
}

/// A station whose table cannot be read would end the program.
void checkStation(Project& project, const ProjectSource& source, const std::string& database_path,
                  std::vector<std::string>& remarks) {
    project::RainChoice& rain = project.inputs.rain;
    if (rain.station == 0) {
        return;
    }
    try {
        static_cast<void>(
            source.rain_database.read(project::reference().StaniceCislo(rain.station), database_path));
    } catch (const RuntimeError&) {
        rain.station = 0;
        std::erase(project.given, design::info(Input::Station).path);
        remarks.emplace_back("rain.station: deště stanice nelze přečíst z databáze dešťů.");
    }
}

}  // namespace

WindowState enteredState(const nlohmann::json& document, const ProjectSource& source,
                         std::vector<std::string>& remarks) {
    std::vector<project::Remark> not_taken;
    Project project = project::readLeniently(document, not_taken);
    for (const project::Remark& remark : not_taken) {
        remarks.push_back(text(remark));
    }
    QuietProgram quiet(source.rain_database, source.folder);
    Program& program = quiet.program();
    checkStation(project, source, program.window().databasePath(), remarks);
    const Given given(project);
    ProjectEntry entry(program, [&given](std::string_view path) { return given(path); });
    entry.enterSite(project);
    const FacilityType chosen = project.inputs.facility.type;
    if (!given(Input::Type)) {
        for (const design::InputInfo& input : design::inputs()) {
            if (input.given != nullptr && given(input.input)) {
                remarks.push_back(std::string(input.path) + ": bez typu zařízení nelze převzít.");
            }
        }
    } else {
        for (const FacilityType type : data::kFacilityTypes) {
            if (needsPanel(type, chosen, given)) {
                design::Facility of_type = project.inputs.facility;
                of_type.type = type;
                entry.enterFacility(of_type);
            }
        }
        entry.enterFacility(project.inputs.facility);
        if (program.window().SelectedType != chosen || !program.window().picResults[chosen].visible()) {
            remarks.emplace_back(
                "facility.type: typ nelze zvolit, chybí odvodňovaná plocha nebo součinitel filtrace.");
        }
    }
    return stateOf(program);
}

}  // namespace mero::forms
