// SPDX-License-Identifier: MIT
/// The texts of a project: what they are called in a project file, in the window and in the report.
#pragma once

#include <cstdint>
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

[[nodiscard]] std::span<const TextInputInfo> textInputs();
[[nodiscard]] const TextInputInfo& info(TextInput input);
[[nodiscard]] std::string_view reportLabel(TextInput input);

}  // namespace mero::design
