// SPDX-License-Identifier: MIT
/// The one table of texts: what they are called in a project file, in the window and in the report.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <string_view>

#include "data/mod_public_variables.h"

namespace mero::design {

enum class TextInput : std::uint8_t { ProjectName, Designer, Investor, Place, Description, Subsoil };

struct TextInputInfo {
    TextInput input = TextInput::ProjectName;
    const char* path = "";     ///< in a project file: "project.name"
    const char* caption = "";  ///< Czech, beside its box, with the colon that some captions end with
    const char* note = "";     ///< English, for the schema of project files
    const char* box = "";
    std::string data::ProjectTexts::*stored = nullptr;
    bool several_lines = false;
    const char* reported = nullptr;  ///< label in the results report, null where it is the caption
};

namespace table {

using data::ProjectTexts;

// "Detilní" is the caption that scripts, tests and the manual name.
inline constexpr std::array<TextInputInfo, 6> kTexts{{
    {TextInput::ProjectName, "project.name", "Název projektu:", "name of the project", "txtProjName",
     &ProjectTexts::txtProjName},
    {TextInput::Designer, "project.designer", "Řešitel projektu:", "who designs it", "txtProjektant",
     &ProjectTexts::txtProjektant, false, "Projektant"},
    {TextInput::Investor, "project.investor", "Investor:", "for whom", "txtInvestor",
     &ProjectTexts::txtInvestor},
    {TextInput::Place, "project.site", "Místo akce:", "where", "txtMistoAkce", &ProjectTexts::txtMistoAkce},
    {TextInput::Description, "project.description", "Detilní popis:", "several lines are possible",
     "txtDetails", &ProjectTexts::txtDetails, true, "Detailní popis"},
    {TextInput::Subsoil, "subsoil.description", "Typ nesoudržné horniny", "kind of soil, for the report",
     "txtTypPudyPodlozi", &ProjectTexts::txtTypPudyPodlozi},
}};
static_assert(std::ranges::adjacent_find(kTexts, std::ranges::greater_equal(), &TextInputInfo::input) ==
                  kTexts.end(),
              "a text is found by its number");

}  // namespace table

[[nodiscard]] constexpr std::span<const TextInputInfo> textInputs() {
    return table::kTexts;
}
[[nodiscard]] constexpr const TextInputInfo& info(TextInput input) {
    return table::kTexts[static_cast<std::size_t>(input)];
}
/// The label in the results report.
[[nodiscard]] constexpr std::string_view reportLabel(TextInput input) {
    std::string_view label = info(input).reported == nullptr ? info(input).caption : info(input).reported;
    return label.substr(0, label.find(':'));
}

}  // namespace mero::design
