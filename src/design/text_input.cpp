// SPDX-License-Identifier: MIT
/// The one table of texts.
/// "Detilní" is the caption that scripts, tests and the manual name.
#include "design/text_input.h"

#include <array>

namespace mero::design {
namespace {

using data::ProjectTexts;

constexpr std::array<TextInputInfo, 6> kTexts{{
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

constexpr bool textsInOrder() {
    for (std::size_t i = 0; i < kTexts.size(); ++i) {
        if (static_cast<std::size_t>(kTexts[i].input) != i) {
            return false;
        }
    }
    return true;
}
static_assert(textsInOrder(), "a text is found by its number");

}  // namespace

std::span<const TextInputInfo> textInputs() {
    return kTexts;
}

const TextInputInfo& info(TextInput input) {
    return kTexts[static_cast<std::size_t>(input)];
}

std::string_view reportLabel(TextInput input) {
    const TextInputInfo& row = info(input);
    std::string_view label = row.reported == nullptr ? row.caption : row.reported;
    if (label.ends_with(':')) {
        label.remove_suffix(1);
    }
    return label;
}

}  // namespace mero::design
