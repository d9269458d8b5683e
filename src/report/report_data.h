// SPDX-License-Identifier: MIT
/// What the results report reads: plain values, texts in UTF-8, every number in the unit of its name.
/// The comments name the box of the window that a value is shown in.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace mero::report {

/// One line of the drained-area list.
struct PartialArea {
    float area_m2 = 0;
    float runoff_coefficient = 0;
    std::string surface;
};

/// The nine rains and the chosen one.
struct RainValues {
    std::string station;                      ///< VybranaStanice
    std::string periodicity;                  ///< VybranaPeriodicita
    std::array<float, 9> durations_min{};     ///< DobaTrvani
    std::array<float, 9> intensities_lsha{};  ///< IntenzitaDeste, l/(s.ha)
    float chosen_duration_min = 0;            ///< VybranaDoba; 0 when none is chosen
};

/// The swale of types 2 and 3.
struct SwaleValues {
    std::string soil_caption;   ///< caption of optSelTypPudy2 or optSelTypPudy3 (SoilVariant)
    float filtration_m_s = 0;   ///< txtSoucFiltrPruleh
    float emptying_time_h = 0;  ///< txtDobaPrazdneni
    float width_m = 0;          ///< txtSirkaPrulehu
    float depth_m = 0;          ///< txtHloubkaPrulehu
};

/// The trench of types 3 and 4.
struct TrenchValues {
    float fill_porosity = 0;  ///< txtPorVyplne
    float width_m = 0;        ///< txtSirkaRyhy
    float height_m = 0;       ///< txtVyskaRyhy
    float length_m = 0;       ///< txtDelkaRyhy
};

/// The pipes in the trench of types 3 and 4.
struct PipeValues {
    bool throttled_overflow = false;   ///< chkSelPretok(3)
    bool drain = false;                ///< chkSelPretok(4)
    float inner_diameter_mm = 0;       ///< txtPrumTroubVnit
    float outer_diameter_mm = 0;       ///< txtPrumTroubVnej
    float count = 0;                   ///< txtPocetPotrubi
    float throttled_outflow_lsha = 0;  ///< txtSpecDrenOdtok, l/(s.ha)
    float outlet_area_cm2_per_m = 0;   ///< txtVystupPlocha
    float outlet_velocity_m_s = 0;     ///< txtVystupRychlost
};

/// The shaft of type 5.
struct ShaftValues {
    int shape = 0;                      ///< ShaftShape: 0 round, 1 rectangular
    bool sand_layer = false;            ///< SoilVariant is 1 ("typ B")
    int count = 0;                      ///< txtSachtyCount
    std::string ring;                   ///< text of cboTypSachty as shown
    float inflow_depth_m = 0;           ///< txtNezamrzHlPritok
    float inner_diameter_m = 0;         ///< txtPrumerSachtyVnit of a round shaft
    float side1_m = 0;                  ///< txtPrumerSachtyVnit of a rectangular shaft
    float side2_m = 0;                  ///< txtPrumerSachtyVnej of a rectangular shaft
    float wall_thickness_m = 0;         ///< txtTloustkaSteny
    float filter_layer_m = 0;           ///< txtVyskaFiltrVrstvy
    float sand_layer_m = 0;             ///< txtVyskaPiskVrstvy
    float required_depth_m = 0;         ///< txtHloubkaSachty
    float min_groundwater_depth_m = 0;  ///< txtPotrHloubkaZahl
    float required_filtration_m_s = 0;  ///< txtSoucFiltrPruleh(5)
};

/// The tank of type 6.
struct TankValues {
    bool upstream_settling = false;        ///< chkPredUsaz
    float specific_infiltration_lsha = 0;  ///< txtSpecMeroIntenz, l/(s.ha)
    float bottom_length_m = 0;             ///< txtDelkaDnaNadrz
    float bottom_width_m = 0;              ///< txtSirkaDnaNadrz
    float depth_m = 0;                     ///< txtHloubkaNadrz
    float side_slope = 0;                  ///< txtSklonSvahuNadrz, the n of 1 : n
    float infiltration_flow_m3_s = 0;      ///< txtVsakTok
    float volume_by_dimensions_m3 = 0;     ///< txtVypObjNadrz
};

/// Everything that one report shows. Every number must be finite.
struct ReportData {
    std::string project_name;  ///< txtProjName
    std::string designer;      ///< txtProjektant
    std::string investor;      ///< txtInvestor
    std::string site;          ///< txtMistoAkce
    std::string description;   ///< txtDetails, line breaks already replaced by "<br>"

    int infiltration_type = 0;           ///< SelectedType; outside 1 to 6 the report has no type section
    std::string infiltration_type_name;  ///< TypyZasakovani(SelectedType)

    RainValues rain;
    std::vector<PartialArea> partial_areas;  ///< the entries, without the spare last slot

    float drained_area_m2 = 0;         ///< txtOdvodNepPlocha
    float subsoil_filtration_m_s = 0;  ///< txtSoucFiltrace
    std::string subsoil;               ///< txtTypPudyPodlozi
    float groundwater_depth_m = 0;     ///< txtHPV
    float safety_factor = 0;           ///< txtSoucBezp

    float infiltration_area_m2 = 0;  ///< txtVsakPlocha
    float storage_volume_m3 = 0;     ///< txtObjAkum
    float water_depth_m = 0;         ///< txtVyskaVzduti, of the swale (2) or the shaft (5)

    SwaleValues swale;
    TrenchValues trench;
    PipeValues pipes;
    ShaftValues shaft;
    TankValues tank;

    std::string date;  ///< date of the calculation in the regional short format
    std::string time;  ///< its time in the regional short format
};

}  // namespace mero::report
