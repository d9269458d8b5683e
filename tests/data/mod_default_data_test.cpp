// SPDX-License-Identifier: MIT
// Compares the reference tables with the lists in expected/, and checks the five default inputs.
// The lists were written independently and contain no-break spaces as characters.
#include "data/mod_default_data.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>
#include <string>
#include <vector>

#include "platform/numbers/number_text.h"
#include "support/errors.h"

namespace mero::data {
namespace {

using Fields = std::vector<std::string>;

/// The rows of a list after its header line.
std::vector<Fields> expected(const std::string& name) {
    std::ifstream file(std::string(MERO_EXPECTED_TABLES) + "/" + name + ".csv");
    EXPECT_TRUE(file.is_open()) << name;
    std::vector<Fields> rows;
    std::string line;
    std::getline(file, line);
    while (std::getline(file, line)) {
        Fields fields(1);
        for (const char c : line) {
            if (c == ';') {
                fields.emplace_back();
            } else {
                fields.back() += c;
            }
        }
        rows.push_back(std::move(fields));
    }
    return rows;
}

float single(const std::string& text) {
    return numbers::strictSingle(text);
}

struct DefaultDataTest : testing::Test {
    DefaultDataTest() { LoadDefaultData(values); }
    modPublicVariables values;
};

TEST_F(DefaultDataTest, Surfaces) {
    const auto rows = expected("surfaces");
    ASSERT_EQ(rows.size(), 19U);
    ASSERT_EQ(values.PovrchSkupina.size(), 19U);
    ASSERT_EQ(values.PovrchPopis.size(), 19U);
    ASSERT_EQ(values.SoucOdtoku.size(), 19U);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(values.PovrchSkupina[i], rows[i][1]) << i;
        EXPECT_EQ(values.PovrchPopis[i], rows[i][2]) << i;
        EXPECT_EQ(values.SoucOdtoku[i], single(rows[i][3])) << i;
    }
}

TEST_F(DefaultDataTest, NoBreakSpacesAndOtherOdditiesOfTheSurfaces) {
    EXPECT_NE(values.PovrchPopis[12],
              "Verbundstein zámková dlažba nespárovaná, dlažba z vsakovacích tvarovek");
    EXPECT_NE(values.PovrchPopis[12].find("dlažba z\xC2\xA0vsakovacích"), std::string::npos);
    for (const std::size_t row : {14U, 15U, 16U}) {
        EXPECT_NE(values.PovrchSkupina[row].find("bankety s\xC2\xA0odtokem"), std::string::npos) << row;
    }
    for (const std::size_t row : {17U, 18U}) {
        EXPECT_NE(values.PovrchSkupina[row].find("půda s\xC2\xA0možným"), std::string::npos) << row;
    }
    EXPECT_EQ(values.PovrchPopis[10], "dlažba  nespárovaná");
    EXPECT_EQ(values.PovrchSkupina[2].find('.'), std::string::npos);
    EXPECT_NE(values.PovrchSkupina[5].find("max.25 %"), std::string::npos);
    int no_break_spaces = 0;
    for (const auto* texts : {&values.PovrchSkupina, &values.PovrchPopis}) {
        for (const std::string& text : *texts) {
            no_break_spaces += text.find("\xC2\xA0") != std::string::npos ? 1 : 0;
        }
    }
    EXPECT_EQ(no_break_spaces, 6) << "groups of rows 14 to 18 and one description, none elsewhere";
}

TEST_F(DefaultDataTest, InfiltrationTypes) {
    const auto rows = expected("types");
    ASSERT_EQ(rows.size(), 7U);
    ASSERT_EQ(values.TypyZasakovani.size(), 7U);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(values.TypyZasakovani[i], rows[i][1]) << i;
    }
}

TEST_F(DefaultDataTest, DurationsAndPeriodicities) {
    const auto durations = expected("durations");
    ASSERT_EQ(durations.size(), values.DobaTrvani.size());
    for (std::size_t i = 0; i < durations.size(); ++i) {
        EXPECT_EQ(values.DobaTrvani[i], single(durations[i][1])) << i;
    }
    const auto periodicities = expected("periodicities");
    ASSERT_EQ(periodicities.size(), values.Periodicita.size());
    for (std::size_t i = 0; i < periodicities.size(); ++i) {
        EXPECT_EQ(values.Periodicita[i], single(periodicities[i][1])) << i;
    }
}

TEST_F(DefaultDataTest, StationsAndTheirNumbers) {
    const auto rows = expected("stations");
    ASSERT_EQ(rows.size(), 92U);
    ASSERT_EQ(values.StaniceNazev.size(), 93U);
    ASSERT_EQ(values.StaniceCislo.length(), 92);
    EXPECT_EQ(values.StaniceNazev[0], "(Vlastní hodnoty)");
    for (int position = 1; position <= 92; ++position) {
        const Fields& row = rows[static_cast<std::size_t>(position) - 1];
        ASSERT_EQ(row[0], numbers::general(position));
        EXPECT_EQ(values.StaniceNazev[static_cast<std::size_t>(position)], row[1]);
        EXPECT_EQ(values.StaniceCislo(position), numbers::strictInteger(row[2])) << row[1];
    }
}

TEST_F(DefaultDataTest, StationNumbersAreAPermutationAndOwnValuesHaveNone) {
    const std::set<std::int16_t> different(values.StaniceCislo.items().begin(),
                                           values.StaniceCislo.items().end());
    EXPECT_EQ(different.size(), 92U);
    EXPECT_EQ(*different.begin(), 1);
    EXPECT_EQ(*different.rbegin(), 92);
    EXPECT_EQ(values.StaniceCislo(1), 15);
    EXPECT_EQ(values.StaniceCislo(77), 1);
    EXPECT_EQ(test::errorNumberOf([&] { return values.StaniceCislo(0); }), 9);
    EXPECT_EQ(test::errorNumberOf([&] { return values.StaniceCislo(93); }), 9);
}

TEST_F(DefaultDataTest, Soils) {
    const auto rows = expected("soils");
    ASSERT_EQ(values.TypPudy.size(), rows.size());
    ASSERT_EQ(values.SoucFiltracePudy.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(values.TypPudy[i], rows[i][1]);
        EXPECT_EQ(values.SoucFiltracePudy[i], numbers::leadingNumber(rows[i][2])) << "in double precision";
    }
    EXPECT_GT(values.SoucFiltracePudy[4], values.SoucFiltracePudy[3]) << "fine sand above medium sand";
}

TEST_F(DefaultDataTest, RoundShafts) {
    const auto rows = expected("round_shafts");
    ASSERT_EQ(values.SachtaKruhova.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(values.SachtaKruhova[i].designation, rows[i][1]);
        EXPECT_EQ(values.SachtaKruhova[i].inner_diameter_m, single(rows[i][2])) << rows[i][1];
        EXPECT_EQ(values.SachtaKruhova[i].wall_m, single(rows[i][3])) << rows[i][1];
    }
}

TEST_F(DefaultDataTest, RectangularShafts) {
    const auto rows = expected("rectangular_shafts");
    ASSERT_EQ(values.SachtaObdelnikova.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(values.SachtaObdelnikova[i].designation, rows[i][1]);
        EXPECT_EQ(values.SachtaObdelnikova[i].side1_m, single(rows[i][2])) << rows[i][1];
        EXPECT_EQ(values.SachtaObdelnikova[i].side2_m, single(rows[i][3])) << rows[i][1];
        EXPECT_EQ(values.SachtaObdelnikova[i].wall_m, single(rows[i][4])) << rows[i][1];
    }
}

TEST_F(DefaultDataTest, DefaultInputs) {
    EXPECT_EQ(values.txtSoucBezp, 1.2F);
    EXPECT_EQ(values.txtPocetPotrubi, 1.0F);
    EXPECT_EQ(values.txtPorVyplne, 0.35F);
    EXPECT_EQ(values.txtMinPrusakDraha, 1.5F);
    EXPECT_EQ(values.txtSachtyCount, 1);
    EXPECT_EQ(expected("default_inputs").size(), 5U);
}

TEST_F(DefaultDataTest, EverythingElseStaysZeroAndEmpty) {
    EXPECT_EQ(values.txtSoucFiltrace, 0.0F);
    EXPECT_EQ(values.txtHPV, 0.0F);
    EXPECT_EQ(values.RedukovanaPlocha, 0.0F);
    EXPECT_EQ(values.VybranaIntenzita, 0.0F);
    EXPECT_EQ(values.VybranaStanice, "");
    EXPECT_EQ(values.txtProjName, "");
    EXPECT_EQ(values.CestaDatabaze, "");
    EXPECT_EQ(values.ResultsFilePath, "");
    EXPECT_TRUE(std::all_of(values.IntenzitaDeste.begin(), values.IntenzitaDeste.end(),
                            [](float intensity) { return intensity == 0; }));
}

TEST_F(DefaultDataTest, LoadingAgainWritesTheSameValues) {
    values.DobaTrvani[0] = 7;
    values.txtSoucBezp = 3;
    LoadDefaultData(values);
    EXPECT_EQ(values.DobaTrvani[0], 5.0F);
    EXPECT_EQ(values.txtSoucBezp, 1.2F);
    EXPECT_EQ(values.StaniceNazev.size(), 93U);
    EXPECT_EQ(values.SoucOdtoku.size(), 19U);
    EXPECT_EQ(values.TypPudy.size(), 8U);
    EXPECT_EQ(values.SachtaKruhova.size(), 8U);
}

TEST(PublicVariables, BeforeLoadingEverythingIsEmpty) {
    const modPublicVariables values;
    EXPECT_TRUE(values.StaniceNazev.empty());
    EXPECT_TRUE(values.TypyZasakovani.empty());
    EXPECT_EQ(values.txtSoucBezp, 0.0F);
    EXPECT_EQ(values.DilciPlocha.length(), 0);
}

TEST(OneBasedList, CountsFromOne) {
    OneBasedList<float> list(2);
    list(2) = 7;
    EXPECT_EQ(list.items(), (std::vector<float>{0, 7}));
    EXPECT_EQ(test::errorNumberOf([&] { return list(0); }), 9);
    EXPECT_EQ(test::errorNumberOf([&] { return list(3); }), 9);
    list.resize(3);
    EXPECT_EQ(list(3), 0.0F);
    list.resize(1);
    EXPECT_EQ(list.length(), 1);
}

}  // namespace
}  // namespace mero::data
