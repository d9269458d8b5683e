// SPDX-License-Identifier: MIT
/// The checks per type as tables, in the order of their lines.
/// Gender and wording of the texts differ from check to check; they are what users know.
#include "forms/calc/input_checks.h"

#include <array>
#include <span>

#include "forms/calc/frm_calc_controls.h"

namespace mero::forms {
namespace {

using Values = data::modPublicVariables;

enum class Fails { AtZeroOrBelow, BelowZero };

struct Check {
    float Values::*input = nullptr;
    const char* text = "";
    Fails fails = Fails::AtZeroOrBelow;
    bool only_with_sand_layer = false;
};

constexpr const char* kSafety = "Součinitel bezpečnosti je menší nebo roven nule.";
constexpr const char* kPorosity = "Pórovitost výplně je menší nebo rovna nule.";
constexpr const char* kTrenchHeight = "Výška rýhy je menší nebo rovna nule.";
constexpr const char* kTrenchWidth = "Šířka rýhy je menší nebo rovna nule.";

constexpr std::array<Check, 5> kSwaleTrenchChecks{{
    {&Values::txtSoucFiltrPruleh, "Součinitel filtrace průlehu je menší nebo rovna nule."},
    {&Values::txtSoucBezp, kSafety},
    {&Values::txtPorVyplne, kPorosity},
    {&Values::txtVyskaRyhy, kTrenchHeight},
    {&Values::txtSirkaRyhy, kTrenchWidth},
}};

constexpr std::array<Check, 3> kTrenchChecks{{
    {&Values::txtVyskaRyhy, kTrenchHeight},
    {&Values::txtSirkaRyhy, kTrenchWidth},
    {&Values::txtPorVyplne, kPorosity},
}};

constexpr std::array<Check, 7> kShaftChecks{{
    {&Values::txtSoucBezp, kSafety},
    {&Values::txtNezamrzHlPritok, "Nezámrzná hloubka přítoku je menší nebo rovna nule."},
    {&Values::txtVyskaFiltrVrstvy, "Výška filtrační vrstvy je menší nebo rovna nule."},
    {&Values::D_i, "Vnitřní průměr šachty je menší nebo rovna nule."},
    {&Values::D_a, "Vnější průměr šachty je menší nebo rovna nule."},
    {&Values::txtMinPrusakDraha, "Minimální průsaková dráha je menší nebo rovna nule."},
    {&Values::txtVyskaPiskVrstvy, "Výška pískové vrstvy je menší nebo rovna nule.", Fails::AtZeroOrBelow,
     true},
}};

constexpr std::array<Check, 5> kTankChecks{{
    {&Values::txtSpecMeroIntenz, "Specifická vsakovací intenzita je menší nebo rovna nule."},
    {&Values::txtDelkaDnaNadrz, "Délka dna nádrže je menší nebo rovna nule."},
    {&Values::txtSirkaDnaNadrz, "Šířka dna nádrže je menší nebo rovna nule."},
    {&Values::txtHloubkaNadrz, "Hloubka nádrže je menší nebo rovna nule."},
    {&Values::txtSklonSvahuNadrz, "Sklon svahů nádrže je menší než nula.", Fails::BelowZero},
}};

std::span<const Check> checksOf(int type) {
    switch (type) {
        case kSwaleTrench:
            return kSwaleTrenchChecks;
        case kTrench:
            return kTrenchChecks;
        case kShaft:
            return kShaftChecks;
        case kTank:
            return kTankChecks;
        default:
            return {};
    }
}

}  // namespace

std::string failedChecks(int type, const data::modPublicVariables& values, bool sand_layer) {
    std::string failed;
    for (const Check& check : checksOf(type)) {
        if (check.only_with_sand_layer && !sand_layer) {
            continue;
        }
        const float value = values.*check.input;
        const bool fails = check.fails == Fails::BelowZero ? value < 0 : value <= 0;
        if (fails) {
            failed += check.text;
            failed += "\r\n";
        }
    }
    return failed;
}

}  // namespace mero::forms
