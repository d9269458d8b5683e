// SPDX-License-Identifier: MIT
/// The reference tables, row by row.
/// Some texts have a no-break space after a one-letter word, two blanks or other oddities. They are fixed,
/// because tests and the report's readers compare them.
#include "data/mod_default_data.h"

#include <array>
#include <utility>

// U+00A0 as an escape, so that an editor cannot replace it by a blank.
#define NBSP "\xC2\xA0"

namespace mero::data {
namespace {

struct Surface {
    const char* group;
    const char* description;
    float runoff_coefficient;
};

constexpr std::array<Surface, 19> kSurfaces{{
    {"šikmé střechy", "kov, sklo, břidlice, vláknocementová krytina", 0.95F},
    {"šikmé střechy", "pálená krytina, střešní lepenky", 0.90F},
    {"ploché střechy se sklonem do max 5 %", "kov, sklo, vláknocementová krytina", 0.95F},
    {"ploché střechy se sklonem do max 5 %", "střešní lepenky", 0.90F},
    {"ploché střechy se sklonem do max 5 %", "štěrk", 0.70F},
    {"zelené střechy se sklonem do max.25 %", "humusová vrstva < 10 cm", 0.50F},
    {"zelené střechy se sklonem do max.25 %", "humusová vrstva > 10 cm", 0.30F},
    {"ulice, cesty, náměstí (rovné)", "asfalt, bezesparý beton", 0.90F},
    {"ulice, cesty, náměstí (rovné)", "dlažba se zalitými sparami (spárovaná)", 0.75F},
    {"ulice, cesty, náměstí (rovné)", "pevný (hutněný) štěrkový koberec", 0.60F},
    {"ulice, cesty, náměstí (rovné)", "dlažba  nespárovaná", 0.50F},
    {"ulice, cesty, náměstí (rovné)", "nehutněný štěrkový koberec, štěrkem pokryté terasy", 0.30F},
    {"ulice, cesty, náměstí (rovné)",
     "Verbundstein zámková dlažba nespárovaná, dlažba z" NBSP "vsakovacích tvarovek", 0.25F},
    {"ulice, cesty, náměstí (rovné)", "trávníkové zpevňovací tvarovky", 0.15F},
    {"násypy, příkopy a bankety s" NBSP "odtokem do kanalizační sítě", "jílovitá půda", 0.50F},
    {"násypy, příkopy a bankety s" NBSP "odtokem do kanalizační sítě", "zahliněná písčitá půda", 0.40F},
    {"násypy, příkopy a bankety s" NBSP "odtokem do kanalizační sítě", "štěrková a písčitá půda", 0.30F},
    {"zahrady, louky a obdělávaná půda s" NBSP "možným odtokem do kanalizační sítě", "rovinný terén", 0.10F},
    {"zahrady, louky a obdělávaná půda s" NBSP "možným odtokem do kanalizační sítě", "prudce svažitý terén",
     0.20F},
}};

struct Station {
    const char* name;
    std::int16_t number;
};

// In alphabetical order of the names; the numbers are keys of the rain database, in no order.
constexpr std::array<Station, kStationCount> kStations{{
    {"Bakov nad Jizerou", 15},
    {"Banín - vodárna", 86},
    {"Bohumín", 51},
    {"Brno", 84},
    {"Bruntál", 48},
    {"Červená voda", 57},
    {"České Budějovice", 17},
    {"Čtyřicet lánů", 85},
    {"Drahany", 73},
    {"Držková", 75},
    {"Františkova myslivna", 55},
    {"Habartice", 53},
    {"Hamry", 6},
    {"Hodonín", 79},
    {"Hradec Králové", 4},
    {"Hřebeč", 59},
    {"Husinec (přehrada)", 23},
    {"Ivančice", 91},
    {"Jevíčko", 60},
    {"Jevišovice", 82},
    {"Jihlava", 88},
    {"Kamenice nad Lipou", 20},
    {"Kamýk nad Vltavou", 26},
    {"Káraný", 12},
    {"Karlovy Vary", 40},
    {"Kladno", 38},
    {"Klášterní Hradisko", 63},
    {"Klatovy", 30},
    {"Krásno nad Bečvou", 69},
    {"Křenov", 58},
    {"Kyjov", 92},
    {"Labská přehrada Těšňov", 2},
    {"Lanškroun", 56},
    {"Lenešice", 42},
    {"Letovice", 87},
    {"Lidečko", 65},
    {"Lipník nad Bečvou", 70},
    {"Litovel", 61},
    {"Luká", 62},
    {"Lysá hora", 49},
    {"Mariánské lázně", 29},
    {"Milovice", 11},
    {"Mimoň", 44},
    {"Mšeno", 16},
    {"Neředín", 64},
    {"Nezabudice", 33},
    {"Nová Ves (u Kolína)", 8},
    {"Nový Dvůr u Horažďovic", 22},
    {"Nový Jičín", 45},
    {"Opava", 47},
    {"Orlík", 25},
    {"Padrť", 32},
    {"Pěčín", 5},
    {"Petrovice", 34},
    {"Plzeň - Doudlevce", 31},
    {"Podbořany", 41},
    {"Poděbrady", 9},
    {"Police nad Metují", 3},
    {"Polička", 83},
    {"Potůčník", 54},
    {"Pozlovice (Údolní přehrada)", 78},
    {"Praha - Hostivař", 35},
    {"Praha - Podbaba (VÚV)", 36},
    {"Prostějov", 72},
    {"Průměr Ostrava", 50},
    {"Přerov", 71},
    {"Rejvíz", 46},
    {"Roudnice nad Labem", 43},
    {"Ruzyně", 37},
    {"Seč", 7},
    {"Sedlice", 28},
    {"Semčice", 10},
    {"Skalníkova Louka", 68},
    {"Slaný", 39},
    {"Souš (přehrada)", 13},
    {"Staré Podhradí", 52},
    {"Špindlerův mlýn", 1},
    {"Štěchovice", 27},
    {"Tábor", 21},
    {"Telč", 80},
    {"Třebíč", 89},
    {"Třeboň", 19},
    {"Turnov", 14},
    {"Týn nad Vltavou", 18},
    {"Uherské Hradiště", 77},
    {"Valašská Bystřice", 67},
    {"Velké Meziříčí", 90},
    {"Vodňany", 24},
    {"Vsetín", 66},
    {"Vyškov - Brňany", 74},
    {"Zlín", 76},
    {"Znojmo", 81},
}};

constexpr std::array<const char*, 7> kInfiltrationTypes{
    "[Vyber typ zasakování]",
    "Plošné vsakování",
    "Vsakování v průlezích",
    "Vsakování v kombinovaném objektu",
    "Vsakování rýhové a kombinace rýhy a drénu",
    "Šachtové vsakování",
    "Vsakovací nádrže",
};

constexpr std::array<float, kDurationCount> kDurations_min{5, 10, 15, 20, 30, 45, 60, 90, 120};
constexpr std::array<float, kPeriodicityCount> kPeriodicities{5, 2, 1, 0.5F, 0.2F, 0.1F, 0.05F};

struct Soil {
    const char* name;
    double filtration_m_s;
};

// The coefficients do not decrease steadily down the list; the order is that of the table.
constexpr std::array<Soil, 8> kSoils{{
    {"Jemný a střední štěrk", 7E-4},
    {"Písčitý štěrk", 4E-4},
    {"Hrubý písek", 1E-4},
    {"Střední písek", 2E-5},
    {"Jemný písek", 5E-5},
    {"Zasiltovaný písek", 1E-6},
    {"Silt", 5E-6},
    {"Zajílovaný silt", 1E-7},
}};

const std::vector<RoundShaft>& roundShafts() {
    static const std::vector<RoundShaft> kRows{
        {"RSA - Q.1 100/../12", 1.0F, 0.12F}, {"RSA - Q.1 100/../9", 1.0F, 0.09F},
        {"RSA - Q.2 100/..", 1.0F, 0.09F},    {"RSA - Q.1 120/..", 1.2F, 0.135F},
        {"RSA - Q.1 150/..", 1.5F, 0.15F},    {"RSB - Q 160/200", 1.6F, 0.22F},
        {"RSC - Q.1 200/..", 2.0F, 0.15F},    {"RSC - Q.1 250/..", 2.5F, 0.15F},
    };
    return kRows;
}

const std::vector<RectangularShaft>& rectangularShafts() {
    static const std::vector<RectangularShaft> kRows{
        {"RSD 240/190/..", 2.4F, 1.9F, 0.10F}, {"RSD 240/240/..", 2.4F, 2.4F, 0.10F},
        {"RSE 240/280/95", 2.4F, 2.8F, 0.10F}, {"RSE 240/330/95", 2.4F, 3.3F, 0.10F},
        {"RSE 240/380/95", 2.4F, 3.8F, 0.10F}, {"RSE 240/430/95", 2.4F, 4.3F, 0.15F},
        {"RSE 240/480/95", 2.4F, 4.8F, 0.15F}, {"RSE 240/530/95", 2.4F, 5.3F, 0.15F},
        {"RSE 240/580/95", 2.4F, 5.8F, 0.15F}, {"RSE 240/610/95", 2.4F, 6.1F, 0.15F},
    };
    return kRows;
}

void fillSurfaces(ReferenceTables& tables) {
    tables.PovrchSkupina.clear();
    tables.PovrchPopis.clear();
    tables.SoucOdtoku.clear();
    for (const Surface& surface : kSurfaces) {
        tables.PovrchSkupina.emplace_back(surface.group);
        tables.PovrchPopis.emplace_back(surface.description);
        tables.SoucOdtoku.push_back(surface.runoff_coefficient);
    }
}

void fillStations(ReferenceTables& tables) {
    tables.StaniceNazev.assign(1, "(Vlastní hodnoty)");
    tables.StaniceCislo = OneBasedList<std::int16_t>(kStations.size());
    for (int position = 1; position <= kStationCount; ++position) {
        const Station& station = kStations[static_cast<std::size_t>(position) - 1];
        tables.StaniceNazev.emplace_back(station.name);
        tables.StaniceCislo(position) = station.number;
    }
}

void fillSoils(ReferenceTables& tables) {
    tables.TypPudy.clear();
    tables.SoucFiltracePudy.clear();
    for (const Soil& soil : kSoils) {
        tables.TypPudy.emplace_back(soil.name);
        tables.SoucFiltracePudy.push_back(soil.filtration_m_s);
    }
}

}  // namespace

void LoadDefaultData(modPublicVariables& values) {
    fillSurfaces(values);
    values.TypyZasakovani.assign(kInfiltrationTypes.begin(), kInfiltrationTypes.end());
    values.DobaTrvani = kDurations_min;
    values.Periodicita = kPeriodicities;
    fillStations(values);
    fillSoils(values);
    values.SachtaKruhova = roundShafts();
    values.SachtaObdelnikova = rectangularShafts();
    values.txtSoucBezp = kOpeningInputs.txtSoucBezp;
    values.txtPorVyplne = kOpeningInputs.txtPorVyplne;
    values.txtMinPrusakDraha = kOpeningInputs.txtMinPrusakDraha;
    values.txtSachtyCount = kOpeningInputs.txtSachtyCount;
    values.txtPocetPotrubi = kOpeningPipes.txtPocetPotrubi;
}

}  // namespace mero::data
