// SPDX-License-Identifier: MIT
/// modPublicVariables: the shared values of one running program, the project record among them.
/// One object is created per program and handed to the forms by reference.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/numbers/runtime_error.h"

namespace mero::data {

inline constexpr int kDurationCount = 9;
inline constexpr int kPeriodicityCount = 7;
inline constexpr int kStationCount = 92;

/// A row of the round shaft-ring catalogue.
struct RoundShaft {
    std::string designation;
    float inner_diameter_m = 0;
    float wall_m = 0;
};

/// A row of the rectangular shaft catalogue.
struct RectangularShaft {
    std::string designation;
    float side1_m = 0;
    float side2_m = 0;
    float wall_m = 0;
};

/// A list whose positions start at 1, as the forms count rows.
template <typename T>
class OneBasedList {
  public:
    OneBasedList() = default;
    explicit OneBasedList(std::size_t length) : items_(length) {}

    /// @throws RuntimeError SubscriptOutOfRange outside 1 to the length
    [[nodiscard]] T& operator()(int position) { return items_[checkedIndex(position)]; }
    [[nodiscard]] const T& operator()(int position) const { return items_[checkedIndex(position)]; }
    [[nodiscard]] int length() const { return static_cast<int>(items_.size()); }
    void resize(int length) { items_.resize(static_cast<std::size_t>(length)); }
    [[nodiscard]] const std::vector<T>& items() const { return items_; }

  private:
    [[nodiscard]] std::size_t checkedIndex(int position) const {
        if (position < 1 || position > length()) {
            throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
        }
        return static_cast<std::size_t>(position) - 1;
    }

    std::vector<T> items_;
};

/// The reference tables. They are filled once by LoadDefaultData; only `DobaTrvani` is ever edited.
struct ReferenceTables {
    std::vector<std::string> PovrchSkupina;              ///< surface group, 19 rows
    std::vector<std::string> PovrchPopis;                ///< surface description
    std::vector<float> SoucOdtoku;                       ///< runoff coefficient [-]
    std::vector<std::string> TypyZasakovani;             ///< infiltration types, position 0 is the prompt
    std::array<float, kDurationCount> DobaTrvani{};      ///< rain durations [min]
    std::array<float, kPeriodicityCount> Periodicita{};  ///< rain events per year
    std::vector<std::string> StaniceNazev;               ///< rain-gauge stations, position 0 means own values
    OneBasedList<std::int16_t> StaniceCislo;             ///< database numbers of the stations 1 to 92
    std::vector<std::string> TypPudy;                    ///< soils
    std::vector<double> SoucFiltracePudy;                ///< filtration coefficients of the soils [m/s]
    std::vector<RoundShaft> SachtaKruhova;
    std::vector<RectangularShaft> SachtaObdelnikova;
};

/// The design rain: the table for the calculation, the last station read, the choices and the picked row.
struct RainValues {
    std::array<std::array<float, kDurationCount>, kPeriodicityCount> IntenzitaStanice{};  ///< [l/s.ha]
    std::array<std::int16_t, kDurationCount> DobaStanice{};                               ///< [min]
    std::array<float, kDurationCount> IntenzitaDeste{};                                   ///< [l/s.ha]
    std::string VybranaStanice;      ///< "" before any choice
    std::string VybranaPeriodicita;  ///< "" before any choice
    float VybranaIntenzita = 0;      ///< design rain intensity [l/s.ha], 0: none picked
    float VybranaDoba = 0;           ///< design rain duration [min], 0: none picked
};

/// The drained area. The three lists always have the same length, the last position being a spare slot.
struct DrainedAreaValues {
    OneBasedList<float> DilciPlocha;         ///< partial areas [m2]
    OneBasedList<float> OdtokovySoucinitel;  ///< their runoff coefficients [-]
    OneBasedList<std::string> TypPovrchu;    ///< their surfaces
    float RedukovanaPlocha = 0;              ///< reduced area [m2]
};

/// The values behind the boxes of the main window, each named after the box that feeds or shows it.
struct ProjectRecord {
    std::string txtProjName;
    std::string txtProjektant;
    std::string txtMistoAkce;
    std::string txtInvestor;
    std::string txtDetails;
    std::string txtTypPudyPodlozi;

    float txtHPV = 0;              ///< groundwater level below the surface [m], 0: not given
    float txtOdtokDoVsak = 0;      ///< inflow into the facility [l/s]
    float txtSoucFiltrace = 0;     ///< filtration coefficient of the subsoil [m/s]
    float txtSoucBezp = 0;         ///< safety factor [-]
    float txtSoucFiltrPruleh = 0;  ///< filtration coefficient of the swale, or of the shaft's filter [m/s]
    float txtPorVyplne = 0;        ///< porosity of the trench fill [-]
    float txtSirkaRyhy = 0;        ///< trench width [m]
    float txtVyskaRyhy = 0;        ///< trench height [m]
    float txtPrumTroubVnej = 0;    ///< outer pipe diameter [mm]
    float txtPrumTroubVnit = 0;    ///< inner pipe diameter [mm]
    float txtPocetPotrubi = 0;     ///< number of pipes
    float txtSpecDrenOdtok = 0;    ///< throttled outflow [l/s.ha]
    float txtVystupPlocha = 0;     ///< outlet openings of the pipe [cm2/m]
    float txtVystupRychlost = 0;   ///< outlet velocity [m/s]
    std::int16_t txtSachtyCount = 0;
    float txtMinPrusakDraha = 0;    ///< minimum seepage path [m]
    float txtNezamrzHlPritok = 0;   ///< frost-free depth of the inlet [m]
    float txtVyskaPiskVrstvy = 0;   ///< sand layer of the shaft [m]
    float txtVyskaFiltrVrstvy = 0;  ///< filter layer of the shaft [m]
    float txtPotrHloubkaZahl = 0;   ///< groundwater depth that the shaft needs [m]
    float txtSpecMeroIntenz = 0;    ///< specific infiltration intensity of the tank [l/s.ha]
    float txtDelkaDnaNadrz = 0;     ///< tank bottom length [m]
    float txtSirkaDnaNadrz = 0;     ///< tank bottom width [m]
    float txtHloubkaNadrz = 0;      ///< tank depth [m]
    float txtSklonSvahuNadrz = 0;   ///< tank side slope, the n of 1 : n
    float txtVsakPlocha = 0;        ///< infiltration area [m2]

    float txtPrumerSachtyVnit = 0;  ///< the box's own value: inner diameter or first inner side [m]
    float shaft_side1_m = 0;        ///< first inner side of a rectangular shaft; outlives an emptied box [m]
    float txtPrumerSachtyVnej = 0;  ///< second inner side [m]
    float txtTloustkaSteny = 0;     ///< wall thickness [m]
    float D_i = 0;                  ///< inner, or equivalent inner, diameter of the shaft [m]
    float D_a = 0;                  ///< outer, or equivalent outer, diameter of the shaft [m]
};

/// Results that are kept between the steps of a design; no box feeds them.
struct DesignResults {
    float txtObjAkum = 0;         ///< storage volume [m3]
    float txtVyskaVzduti = 0;     ///< water depth in the swale, level rise in the shaft [m]
    float txtDobaPrazdneni = 0;   ///< emptying time [h]
    float txtDelkaRyhy = 0;       ///< trench length [m]
    float txtHloubkaPrulehu = 0;  ///< swale depth of the combined object [m]
    float txtSirkaPrulehu = 0;    ///< swale width of the combined object [m]
    float txtHloubkaSachty = 0;   ///< shaft depth [m]
    float txtVsakTok = 0;         ///< infiltration flow of the tank [m3/s]
    float txtVypObjNadrz = 0;     ///< geometric volume of the tank [m3]
    float tank_top_length_m = 0;
    float tank_top_width_m = 0;
    float s_RR = 0;              ///< storage coefficient of the trench with its pipes [-]
    float Q_dr = 0;              ///< throttled outflow of the combined object [m3/s]
    float drain_inflow_l_s = 0;  ///< inflow of the trench, compared with the drain outflow
    float drain_outflow_l_s = 0;
};

/// Where the program's files are. Full paths with the platform's separator.
struct FilePaths {
    std::string CestaDatabaze;    ///< rain database, "" before the first dialog was opened
    std::string ResultsFilePath;  ///< report file, "" before the results tab was entered
    std::string ResultsFileName;  ///< bare name of the report file, for the message that it is locked
};

/// All shared values of one running program.
struct modPublicVariables : ReferenceTables,
                            RainValues,
                            DrainedAreaValues,
                            ProjectRecord,
                            DesignResults,
                            FilePaths {};

}  // namespace mero::data
