// SPDX-License-Identifier: MIT
/// The table of usual and plausible values. The manual prints the usual ones; a test compares them.
#include "design/input_guide.h"

namespace mero::design {
namespace {

// Input, meaning, usual values, least and most plausible value.
constexpr std::array<InputGuide, kInputCount> kGuide{{
    {Input::Station, "Dešťoměrná stanice, nebo vlastní hodnoty"},
    {Input::Periodicity, "Kolikrát za rok se déšť dosáhne nebo překročí", "0.2"},
    {Input::DesignDuration, "Doba trvání vybraného deště", "5 až 120"},
    {Input::Filtration, "Propustnost podloží, nejlépe ze vsakovací zkoušky", "1e-6 až 1e-3", 1e-7F, 1e-2F},
    {Input::Groundwater, "Nejvyšší hladina pod terénem; prázdné pole nebo 0 znamená „neznámá“", "1 až 10",
     0.2F, 100.0F},
    {Input::Type, "Zařízení, které se navrhuje"},
    {Input::SafetyFactor, "Násobí dobu, po kterou se voda hromadí", "1.0 až 1.5", 1.0F, 3.0F},
    {Input::Soil, "Písek: vsakovací plocha je desetina odvodňované plochy; slit: pětina"},
    {Input::SwaleFiltration, "Propustnost humusové vrstvy průlehu", "1e-5 až 1e-4", 1e-7F, 1e-2F},
    {Input::FillPorosity, "Podíl dutin ve výplni", "0.30 až 0.40", 0.2F, 0.95F},
    {Input::TrenchWidth, "Střední šířka rýhy", "0.5 až 3", 0.2F, 6.0F},
    {Input::TrenchHeight, "Výška výplně", "0.3 až 2", 0.2F, 4.0F},
    {Input::OverflowPipeCount, "Trouby vedle sebe v rýze", "1 až 2", 1.0F, 10.0F},
    {Input::OverflowOuterDiameter, "Podle výrobce", "110 až 400", 40.0F, 1500.0F},
    {Input::OverflowInnerDiameter, "Podle výrobce", "100 až 350", 40.0F, 1500.0F},
    {Input::ThrottledOutflow, "Odtok povolený z hektaru odvodňované plochy", "1 až 10", 0.1F, 100.0F},
    {Input::DrainPipeCount, "Trouby vedle sebe v rýze", "1 až 2", 1.0F, 10.0F},
    {Input::DrainOuterDiameter, "Podle výrobce", "110 až 400", 40.0F, 1500.0F},
    {Input::DrainInnerDiameter, "Podle výrobce", "100 až 350", 40.0F, 1500.0F},
    {Input::OutletArea, "Plocha otvorů na metr trouby, podle výrobce", "20 až 150", 1.0F, 1000.0F},
    {Input::OutletVelocity, "Rychlost, kterou smí voda otvory vytékat", "0.01 až 0.1", 0.001F, 1.0F},
    {Input::CatalogueShaft, "Vyplní tvar a rozměry"},
    {Input::Shape, "Volba vymaže rozměry a naplní katalog"},
    {Input::Variant, "Typ A: pod filtrem je podloží; typ B: vrstva písku nebo jemného štěrku"},
    {Input::ShaftCount, "Celé číslo", "1", 1.0F, 20.0F},
    {Input::InnerDiameter, "Vnitřní průměr kruhové šachty, nebo první vnitřní rozměr pravoúhlé", "0.8 až 2.5",
     0.3F, 10.0F},
    {Input::InnerWidth, "První vnitřní rozměr pravoúhlé šachty", "0.8 až 2.5", 0.3F, 10.0F},
    {Input::InnerLength, "Druhý vnitřní rozměr pravoúhlé šachty", "1.9 až 6.1", 0.3F, 20.0F},
    {Input::WallThickness, "Tloušťka stěny", "0.09 až 0.22", 0.02F, 0.6F},
    {Input::SeepagePath, "Nejmenší svislá vzdálenost od povrchu filtru k hladině podzemní vody", "1.0 až 2.0",
     0.5F, 10.0F},
    {Input::InletDepth, "Hloubka přítoku pod terénem", "0.8 až 1.2", 0.2F, 5.0F},
    {Input::FilterLayer, "Filtr na dně", "0.3 až 1.0", 0.1F, 3.0F},
    {Input::SandLayer, "Pod filtrem, jen u typu B", "0.3 až 0.5", 0.1F, 3.0F},
    {Input::SpecificInfiltration, "Kolik nádrž trvale vsakuje z hektaru odvodňované plochy", "2 až 20", 0.1F,
     200.0F},
    {Input::BottomLength, "Délka dna", "5 až 100", 1.0F, 1000.0F},
    {Input::BottomWidth, "Šířka dna", "3 až 50", 1.0F, 500.0F},
    {Input::TankDepth, "Hloubka vody ode dna k maximální hladině", "0.3 až 2", 0.1F, 6.0F},
    {Input::SideSlope, "Vodorovná délka na metr výšky; 0 jsou svislé stěny", "2 až 4", 0.3F, 10.0F},
    {Input::UpstreamSettling, "Dno si zachová propustnost podloží; bez něj se počítá s pětinou"},
}};

constexpr bool inOrder() {
    for (std::size_t i = 0; i < kGuide.size(); ++i) {
        if (index(kGuide[i].input) != i) {
            return false;
        }
    }
    return true;
}
static_assert(inOrder(), "an input's guide is found by its number");

}  // namespace

const InputGuide& guide(Input input) {
    return kGuide[index(input)];
}

std::string explanation(const PanelInput& input) {
    const InputInfo& row = info(input.input);
    const InputGuide& about = guide(input.input);
    std::string text = about.meaning;
    if (*row.unit != '\0') {
        text += std::string("\nJednotka: ") + row.unit;
    }
    if (*about.usual != '\0') {
        text += std::string("\nObvykle: ") + about.usual;
    }
    if (row.kind == InputKind::Number || row.kind == InputKind::WholeNumber) {
        const std::string opening = openingText(input);
        text += "\nVýchozí: " + (opening.empty() ? "prázdné" : opening);
    }
    return text;
}

bool isImplausible(Input input, float value) {
    const InputGuide& row = guide(input);
    return value != 0.0F && row.least < row.most && (value < row.least || value > row.most);
}

}  // namespace mero::design
