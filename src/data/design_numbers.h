// SPDX-License-Identifier: MIT
/// The numbers that a design reads and writes, each named after the box of the window that feeds or shows it.
/// The window keeps them among its shared values; a design without a window has them in its result.
#pragma once

#include <cstdint>

namespace mero::data {

/// What all types share.
struct SiteNumbers {
    float RedukovanaPlocha = 0;  ///< reduced drained area [m2]
    float VybranaIntenzita = 0;  ///< design rain intensity [l/(s.ha)], 0: none picked
    float VybranaDoba = 0;       ///< design rain duration [min], 0: none picked
    float txtHPV = 0;            ///< groundwater level below the surface [m], 0: not given
    float txtOdtokDoVsak = 0;    ///< inflow into the facility [l/s]
    float txtSoucFiltrace = 0;   ///< filtration coefficient of the subsoil [m/s]

    friend bool operator==(const SiteNumbers&, const SiteNumbers&) = default;
};

/// Inputs of the six panels.
struct FacilityInputs {
    float txtSoucBezp = 0;         ///< safety factor [-]
    float txtSoucFiltrPruleh = 0;  ///< filtration coefficient of the swale, or of the shaft's filter [m/s]
    float txtPorVyplne = 0;        ///< porosity of the trench fill [-]
    float txtSirkaRyhy = 0;        ///< trench width [m]
    float txtVyskaRyhy = 0;        ///< trench height [m]
    std::int16_t txtSachtyCount = 0;
    float txtPrumerSachtyVnej = 0;  ///< second inner side of a rectangular shaft [m]
    float txtTloustkaSteny = 0;     ///< wall thickness [m]
    float txtMinPrusakDraha = 0;    ///< minimum seepage path [m]
    float txtNezamrzHlPritok = 0;   ///< frost-free depth of the inlet [m]
    float txtVyskaPiskVrstvy = 0;   ///< sand layer of the shaft [m]
    float txtVyskaFiltrVrstvy = 0;  ///< filter layer of the shaft [m]
    float txtSpecMeroIntenz = 0;    ///< specific infiltration intensity of the tank [l/(s.ha)]
    float txtDelkaDnaNadrz = 0;     ///< tank bottom length [m]
    float txtSirkaDnaNadrz = 0;     ///< tank bottom width [m]
    float txtHloubkaNadrz = 0;      ///< tank depth [m]
    float txtSklonSvahuNadrz = 0;   ///< tank side slope, the n of 1 : n

    friend bool operator==(const FacilityInputs&, const FacilityInputs&) = default;
};

/// Pipes in the fill of a trench: the sub-panel of the overflow (combined object) or of the drain (trench).
struct PipeInputs {
    float txtPocetPotrubi = 0;    ///< number of pipes
    float txtPrumTroubVnej = 0;   ///< outer pipe diameter [mm]
    float txtPrumTroubVnit = 0;   ///< inner pipe diameter [mm]
    float txtSpecDrenOdtok = 0;   ///< throttled outflow [l/(s.ha)]
    float txtVystupPlocha = 0;    ///< outlet openings of the pipe [cm2/m]
    float txtVystupRychlost = 0;  ///< outlet velocity [m/s]

    friend bool operator==(const PipeInputs&, const PipeInputs&) = default;
};

/// The inputs that the window opens with; all others open as 0.
inline constexpr FacilityInputs kOpeningInputs{
    .txtSoucBezp = 1.2F, .txtPorVyplne = 0.35F, .txtSachtyCount = 1, .txtMinPrusakDraha = 1.5F};
inline constexpr PipeInputs kOpeningPipes{.txtPocetPotrubi = 1};

/// Results, and what is kept between the steps of a design.
struct DesignResults {
    float txtVsakPlocha = 0;       ///< infiltration area [m2]
    float txtObjAkum = 0;          ///< storage volume [m3]
    float txtVyskaVzduti = 0;      ///< water depth in the swale, level rise in the shaft [m]
    float txtDobaPrazdneni = 0;    ///< emptying time [h]
    float txtDelkaRyhy = 0;        ///< trench length [m]
    float txtHloubkaPrulehu = 0;   ///< swale depth of the combined object [m]
    float txtSirkaPrulehu = 0;     ///< swale width of the combined object [m]
    float txtHloubkaSachty = 0;    ///< shaft depth [m]
    float txtPotrHloubkaZahl = 0;  ///< groundwater depth that the shaft needs [m]
    float txtVsakTok = 0;          ///< infiltration flow of the tank [m3/s]
    float txtVypObjNadrz = 0;      ///< geometric volume of the tank [m3]
    float tank_top_length_m = 0;
    float tank_top_width_m = 0;
    float s_RR = 0;              ///< storage coefficient of the trench with its pipes [-]
    float Q_dr = 0;              ///< throttled outflow of the combined object [m3/s]
    float drain_inflow_l_s = 0;  ///< inflow of the trench, compared with the drain outflow
    float drain_outflow_l_s = 0;
    float txtPrumerSachtyVnit = 0;  ///< the box's own value: inner diameter or first inner side [m]
    float shaft_side1_m = 0;        ///< first inner side of a rectangular shaft; outlives an emptied box [m]
    float D_i = 0;                  ///< inner, or equivalent inner, diameter of the shaft [m]
    float D_a = 0;                  ///< outer, or equivalent outer, diameter of the shaft [m]

    friend bool operator==(const DesignResults&, const DesignResults&) = default;
};

struct DesignNumbers : SiteNumbers, FacilityInputs, PipeInputs, DesignResults {
    friend bool operator==(const DesignNumbers&, const DesignNumbers&) = default;
};

}  // namespace mero::data
