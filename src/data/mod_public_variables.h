// SPDX-License-Identifier: MIT
/// modPublicVariables: the shared values of one running program, the project record among them.
/// One object is created per program and handed to the forms by reference.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "data/design_numbers.h"
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

    friend bool operator==(const OneBasedList&, const OneBasedList&) = default;

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

/// The design rain: the table for the calculation, the last station read, the choices.
struct RainValues {
    std::array<std::array<float, kDurationCount>, kPeriodicityCount> IntenzitaStanice{};  ///< [l/s.ha]
    std::array<std::int16_t, kDurationCount> DobaStanice{};                               ///< [min]
    std::array<float, kDurationCount> IntenzitaDeste{};                                   ///< [l/s.ha]
    std::string VybranaStanice;      ///< "" before any choice
    std::string VybranaPeriodicita;  ///< "" before any choice

    friend bool operator==(const RainValues&, const RainValues&) = default;
};

/// The drained area. The three lists always have the same length, the last position being a spare slot.
struct DrainedAreaValues {
    OneBasedList<float> DilciPlocha;         ///< partial areas [m2]
    OneBasedList<float> OdtokovySoucinitel;  ///< their runoff coefficients [-]
    OneBasedList<std::string> TypPovrchu;    ///< their surfaces

    friend bool operator==(const DrainedAreaValues&, const DrainedAreaValues&) = default;
};

/// The texts of the main window, each named after the box that holds it.
struct ProjectTexts {
    std::string txtProjName;
    std::string txtProjektant;
    std::string txtMistoAkce;
    std::string txtInvestor;
    std::string txtDetails;
    std::string txtTypPudyPodlozi;

    friend bool operator==(const ProjectTexts&, const ProjectTexts&) = default;
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
                            ProjectTexts,
                            DesignNumbers,
                            FilePaths {};

}  // namespace mero::data
