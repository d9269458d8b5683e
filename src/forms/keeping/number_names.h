// SPDX-License-Identifier: MIT
/// The names under which project files keep the stored numbers, each that of its member.
#pragma once

#include <array>

#include "data/design_numbers.h"

namespace mero::forms {

struct NamedNumber {
    const char* name;
    float data::DesignNumbers::*stored;
};

/// All but the number of shafts, which is no Single.
inline constexpr auto kNamedNumbers = [] {
    using N = data::DesignNumbers;
    return std::to_array<NamedNumber>({
        {"RedukovanaPlocha", &N::RedukovanaPlocha},
        {"VybranaIntenzita", &N::VybranaIntenzita},
        {"VybranaDoba", &N::VybranaDoba},
        {"txtHPV", &N::txtHPV},
        {"txtOdtokDoVsak", &N::txtOdtokDoVsak},
        {"txtSoucFiltrace", &N::txtSoucFiltrace},
        {"txtSoucBezp", &N::txtSoucBezp},
        {"txtSoucFiltrPruleh", &N::txtSoucFiltrPruleh},
        {"txtPorVyplne", &N::txtPorVyplne},
        {"txtSirkaRyhy", &N::txtSirkaRyhy},
        {"txtVyskaRyhy", &N::txtVyskaRyhy},
        {"txtPrumerSachtyVnej", &N::txtPrumerSachtyVnej},
        {"txtTloustkaSteny", &N::txtTloustkaSteny},
        {"txtMinPrusakDraha", &N::txtMinPrusakDraha},
        {"txtNezamrzHlPritok", &N::txtNezamrzHlPritok},
        {"txtVyskaPiskVrstvy", &N::txtVyskaPiskVrstvy},
        {"txtVyskaFiltrVrstvy", &N::txtVyskaFiltrVrstvy},
        {"txtSpecMeroIntenz", &N::txtSpecMeroIntenz},
        {"txtDelkaDnaNadrz", &N::txtDelkaDnaNadrz},
        {"txtSirkaDnaNadrz", &N::txtSirkaDnaNadrz},
        {"txtHloubkaNadrz", &N::txtHloubkaNadrz},
        {"txtSklonSvahuNadrz", &N::txtSklonSvahuNadrz},
        {"txtPocetPotrubi", &N::txtPocetPotrubi},
        {"txtPrumTroubVnej", &N::txtPrumTroubVnej},
        {"txtPrumTroubVnit", &N::txtPrumTroubVnit},
        {"txtSpecDrenOdtok", &N::txtSpecDrenOdtok},
        {"txtVystupPlocha", &N::txtVystupPlocha},
        {"txtVystupRychlost", &N::txtVystupRychlost},
        {"txtVsakPlocha", &N::txtVsakPlocha},
        {"txtObjAkum", &N::txtObjAkum},
        {"txtVyskaVzduti", &N::txtVyskaVzduti},
        {"txtDobaPrazdneni", &N::txtDobaPrazdneni},
        {"txtDelkaRyhy", &N::txtDelkaRyhy},
        {"txtHloubkaPrulehu", &N::txtHloubkaPrulehu},
        {"txtSirkaPrulehu", &N::txtSirkaPrulehu},
        {"txtHloubkaSachty", &N::txtHloubkaSachty},
        {"txtPotrHloubkaZahl", &N::txtPotrHloubkaZahl},
        {"txtVsakTok", &N::txtVsakTok},
        {"txtVypObjNadrz", &N::txtVypObjNadrz},
        {"tank_top_length_m", &N::tank_top_length_m},
        {"tank_top_width_m", &N::tank_top_width_m},
        {"s_RR", &N::s_RR},
        {"Q_dr", &N::Q_dr},
        {"drain_inflow_l_s", &N::drain_inflow_l_s},
        {"drain_outflow_l_s", &N::drain_outflow_l_s},
        {"txtPrumerSachtyVnit", &N::txtPrumerSachtyVnit},
        {"shaft_side1_m", &N::shaft_side1_m},
        {"D_i", &N::D_i},
        {"D_a", &N::D_a},
    });
}();
// The number of shafts takes the room of one Single.
static_assert(sizeof(data::DesignNumbers) == (kNamedNumbers.size() + 1) * sizeof(float),
              "every stored number has a name");

}  // namespace mero::forms
