// SPDX-License-Identifier: MIT
/// The inputs of a design: what they are called in a project file and in the window, in which unit, where
/// they are stored and shown, and which type needs them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "design/facility.h"
#include "platform/numbers/typed_number.h"

namespace mero::design {

/// In the order of the project file.
enum class Input : std::uint8_t {
    Station,
    Periodicity,
    DesignDuration,
    Filtration,
    Groundwater,
    Type,
    SafetyFactor,
    Soil,
    SwaleFiltration,
    FillPorosity,
    TrenchWidth,
    TrenchHeight,
    OverflowPipeCount,
    OverflowOuterDiameter,
    OverflowInnerDiameter,
    ThrottledOutflow,
    DrainPipeCount,
    DrainOuterDiameter,
    DrainInnerDiameter,
    OutletArea,
    OutletVelocity,
    CatalogueShaft,
    Shape,
    Variant,
    ShaftCount,
    InnerDiameter,
    InnerWidth,
    InnerLength,
    WallThickness,
    SeepagePath,
    InletDepth,
    FilterLayer,
    SandLayer,
    SpecificInfiltration,
    BottomLength,
    BottomWidth,
    TankDepth,
    SideSlope,
    UpstreamSettling,
};

inline constexpr std::size_t kInputCount = static_cast<std::size_t>(Input::UpstreamSettling) + 1;

[[nodiscard]] constexpr std::size_t index(Input input) {
    return static_cast<std::size_t>(input);
}

enum class InputKind : std::uint8_t {
    Number,
    WholeNumber,
    Truth,
    Choice,       ///< one of a list of words
    Station,      ///< name or number of a rain-gauge station
    Periodicity,  ///< one of the seven periodicities
};

/// When a project file must give the value.
enum class Need : std::uint8_t {
    Optional,
    Always,
    WithSandLayer,
    WithoutRing,             ///< a shaft that is not of the catalogue
    RoundWithoutRing,        ///< the same, round
    RectangularWithoutRing,  ///< the same, rectangular
};

/// One value of a choice; its position in the list is what is stored.
struct Choice {
    const char* word = "";     ///< in a project file
    const char* caption = "";  ///< Czech, of its option
};

struct InputInfo {
    Input input = Input::Station;
    const char* path = "";  ///< in a project file: "facility.trench_width_m"
    InputKind kind = InputKind::Number;
    const char* caption = "";  ///< Czech, beside its box, with the colon that some captions end with
    const char* unit = "";     ///< "" for a pure number or a choice
    const char* note = "";     ///< English, for the schema of project files
    /// Name of the control, "#" for the number of the type: "txtSoucBezp(#)". "" where it is none of the
    /// main window, or a group of options.
    const char* box = "";
    /// Where the box stores a number; null for choices and whole numbers.
    float data::DesignNumbers::*stored = nullptr;
    /// Where a project keeps the number, the position of the choice, or the truth as 0 or 1. Null for the
    /// inputs of the site.
    void (*give)(Facility& facility, float value) = nullptr;
    float (*given)(const Facility& facility) = nullptr;
    Need need = Need::Optional;
    std::span<const Choice> choices{};
    const char* reported = nullptr;  ///< label in the results report, null where it is the caption
};

/// Captions of the check boxes that open the sub-panels.
inline constexpr const char* kOverflowCaption = "Přetok a škrcený odtok";
inline constexpr const char* kDrainCaption = "Drenáž";

/// An input on the panel of one type.
struct PanelInput {
    Input input = Input::Station;
    const char* caption = nullptr;  ///< where it differs from the input's
    bool opens_empty = false;       ///< the box opens without the text of its default
};

/// All inputs in their order.
[[nodiscard]] std::span<const InputInfo, kInputCount> inputs();
[[nodiscard]] const InputInfo& info(Input input);
/// The inputs of the type's panel from top to bottom, those of its sub-panel at the end.
[[nodiscard]] std::span<const PanelInput> panelInputs(FacilityType type);
/// Is it on the sub-panel of the overflow or of the drain?
[[nodiscard]] bool isOfSubPanel(Input input);
/// What its box takes from a person. Filtration coefficients may be typed with an exponent.
[[nodiscard]] numbers::NumberField fieldOf(Input input);
/// The text of the box when the window opens.
[[nodiscard]] std::string openingText(const PanelInput& input);

/// The caption without the colon at its end.
[[nodiscard]] std::string_view captionOf(Input input);
/// The label in the results report.
[[nodiscard]] std::string_view reportLabel(Input input);

}  // namespace mero::design
