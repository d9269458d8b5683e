// SPDX-License-Identifier: MIT
/// Files of measured rain: what is read, what is told, what is refused.
#include "rain/measured_series.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace mero::rain {
namespace {

constexpr const char* kInstituteHead = "STATION,ELEMENT,DT,VALUE,FLAG,QUALITY\n";

std::string institute(std::initializer_list<const char*> rows) {
    std::string text = kInstituteHead;
    for (const char* row : rows) {
        text += std::string("0-20000-0-11406,SRA10M,") + row + "\n";
    }
    return text;
}

bool tells(const SeriesNotes& notes, const std::string& sentence) {
    const auto sentences = notes.sentences();
    return std::ranges::find(sentences, sentence) != sentences.end();
}

std::string refusal(const std::string& text) {
    SeriesReader reader;
    try {
        reader.add(text, "a.csv");
        static_cast<void>(reader.finish());
    } catch (const std::invalid_argument& error) {
        return error.what();
    }
    return "";
}

TEST(MeasuredSeries, ReadsTheInstitutesFiles) {
    SeriesReader reader;
    reader.add(institute({"2024-05-01T00:00:00Z,0.0,,0", "2024-05-01T00:10:00Z,1.2,,0",
                          "2024-05-01T00:20:00Z,0.3,,0"}),
               "may.csv");
    const MeasuredSeries series = reader.finish();
    EXPECT_EQ(series.interval_min, 10);
    EXPECT_EQ(series.depths_mm, (std::vector<float>{0.0F, 1.2F, 0.3F}));
    EXPECT_TRUE(reader.notes().sentences().empty());
}

TEST(MeasuredSeries, JoinsFilesInAnyOrder) {
    SeriesReader reader;
    reader.add(institute({"2024-05-01T00:20:00Z,3,,0", "2024-05-01T00:30:00Z,4,,0"}), "b.csv");
    reader.add(institute({"2024-05-01T00:00:00Z,1,,0", "2024-05-01T00:10:00Z,2,,0"}), "a.csv");
    EXPECT_EQ(reader.finish().depths_mm, (std::vector<float>{1, 2, 3, 4}));
    EXPECT_EQ(reader.notes().files, 2);
}

TEST(MeasuredSeries, ReadsMomentsAndDepthsOfOtherFiles) {
    for (const char* text :
         {"čas;úhrn [mm]\n1.5.2024 00:00;0,2\n1.5.2024 00:05;1,4\n",
          "datum;čas;mm\n2024-05-01;00:00;0,2\n2024-05-01;00:05;1,4\n",
          "2024-05-01 00:00,0.2\n2024-05-01 00:05,1.4\n", "2024-05-01 00:00 0.2\n2024-05-01 00:05 1.4\n",
          "\"moment\",\"teplota\",\"úhrn mm\"\n\"2024-05-01 00:00\",\"12.5\",\"0.2\"\n"
          "\"2024-05-01 00:05\",\"12.4\",\"1.4\"\n",
          "# stanice Lhota\nčas\túhrn (mm)\n202405010000\t0,2\n202405010005\t1,4\n"}) {
        SeriesReader reader;
        reader.add(text, "a.csv");
        const MeasuredSeries series = reader.finish();
        EXPECT_EQ(series.interval_min, 5) << text;
        EXPECT_EQ(series.depths_mm, (std::vector<float>{0.2F, 1.4F})) << text;
    }
}

TEST(MeasuredSeries, AGapIsMissingAndTold) {
    SeriesReader reader;
    reader.add(institute({"2024-05-01T00:00:00Z,1,,0", "2024-05-01T00:10:00Z,1,,0",
                          "2024-05-01T01:20:00Z,1,,0", "2024-05-01T01:30:00Z,1,,0"}),
               "a.csv");
    const MeasuredSeries series = reader.finish();
    ASSERT_EQ(series.depths_mm.size(), 10U);
    EXPECT_TRUE(std::isnan(series.depths_mm[2]));
    EXPECT_EQ(reader.notes().gaps, 1);
    EXPECT_EQ(reader.notes().missing_intervals, 6);
    EXPECT_TRUE(tells(reader.notes(), "Mezery: 1, chybí 6 intervalů, nejdelší mezera 1.0 h."));
}

TEST(MeasuredSeries, UnlistedIntervalsAreDryOnlyWhenAPersonSaysSo) {
    const std::string text =
        institute({"2024-05-01T00:00:00Z,1,,0", "2024-05-01T00:10:00Z,1,,0", "2024-05-01T00:40:00Z,1,,0"});
    SeriesReader reader;
    reader.add(text, "a.csv");
    EXPECT_EQ(reader.finish(Unlisted::Dry).depths_mm, (std::vector<float>{1, 1, 0, 0, 1}));
}

TEST(MeasuredSeries, DoubtfulValuesAreMissingAndTold) {
    SeriesReader reader;
    reader.add(
        institute({"2024-05-01T00:00:00Z,1,,0", "2024-05-01T00:10:00Z,,,0", "2024-05-01T00:20:00Z,-0.1,,0",
                   "2024-05-01T00:30:00Z,999,,0", "2024-05-01T00:40:00Z,2,A,1"}),
        "a.csv");
    const MeasuredSeries series = reader.finish();
    EXPECT_TRUE(std::isnan(series.depths_mm[1]));
    EXPECT_TRUE(std::isnan(series.depths_mm[2]));
    EXPECT_TRUE(std::isnan(series.depths_mm[3]));
    EXPECT_EQ(series.depths_mm[4], 2.0F);
    EXPECT_TRUE(tells(reader.notes(), "Řádky bez hodnoty, vzaty jako chybějící: 1."));
    EXPECT_TRUE(tells(reader.notes(), "Záporné hodnoty, vzaty jako chybějící: 1."));
    EXPECT_TRUE(tells(reader.notes(),
                      "Hodnoty nad 200 mm za interval, vzaty jako chybějící; zkontrolujte jednotky: 1."));
    EXPECT_TRUE(tells(reader.notes(), "Příznak „A“: 1."));
    EXPECT_TRUE(tells(reader.notes(), "Příznak „1“: 1."));
}

TEST(MeasuredSeries, TwiceTheSameMomentIsNeverSummed) {
    SeriesReader reader;
    reader.add(institute({"2024-05-01T00:00:00Z,1,,0", "2024-05-01T00:00:00Z,1,,0",
                          "2024-05-01T00:10:00Z,2,,0", "2024-05-01T00:10:00Z,5,,0"}),
               "a.csv");
    EXPECT_EQ(reader.finish().depths_mm, (std::vector<float>{1, 2}));
    EXPECT_EQ(reader.notes().same_twice, 1);
    EXPECT_EQ(reader.notes().different_twice, 1);
}

TEST(MeasuredSeries, TheHourThatSummerTimeRepeatsIsTold) {
    SeriesReader reader;
    reader.add("čas;mm\n27.10.2024 02:00;1\n27.10.2024 02:30;2\n27.10.2024 02:00;3\n27.10.2024 02:30;4\n",
               "a.csv");
    static_cast<void>(reader.finish());
    EXPECT_EQ(reader.notes().in_repeated_hour, 2);
    EXPECT_TRUE(tells(reader.notes(), "Okamžiky neuvádějí časové pásmo."));
}

TEST(MeasuredSeries, RefusesAGrowingSum) {
    std::string text = "čas;mm\n";
    for (int minute = 10; minute < 60; ++minute) {
        text += "2024-05-01 00:" + std::to_string(minute) + ";" + std::to_string(minute - 10) + "\n";
    }
    EXPECT_EQ(refusal(text), "hodnoty jsou zřejmě narůstající součet, ne úhrny za interval");
}

TEST(MeasuredSeries, RefusesWithFileAndLine) {
    EXPECT_EQ(refusal(institute({"2024-05-01T00:00:00Z,1,,0", "2024-05-01T00:10:00Z,x,,0"})),
              "a.csv, řádek 3: „x“ není číslo");
    EXPECT_EQ(refusal(institute({"2024-05-01T00:00:00Z,1,,0", "včera,1,,0"})),
              "a.csv, řádek 3: není okamžik");
    EXPECT_EQ(refusal(std::string(kInstituteHead) + "1,T,2024-05-01T00:00:00Z,12.5,,0\n"),
              "a.csv, řádek 2: prvek „T“ není SRA10M");
    EXPECT_EQ(refusal("čas;a;b\n2024-05-01 00:00;1;2\n"),
              "a.csv: více sloupců s čísly: záhlaví musí říci, který je úhrn v mm");
    EXPECT_EQ(refusal("čas;mm/h\n2024-05-01 00:00;1\n"),
              "a.csv: řada má být v mm za interval, ne v intenzitách");
    EXPECT_EQ(refusal("ahoj\n"), "a.csv: nenalezen sloupec s datem a časem");
    EXPECT_EQ(refusal(""), "a.csv: nenalezen sloupec s datem a časem");
}

TEST(MeasuredSeries, ARefusedFileLeavesWhatWasThere) {
    SeriesReader reader;
    reader.add(institute({"2024-05-01T00:00:00Z,1,,0", "2024-05-01T00:10:00Z,2,,0"}), "a.csv");
    EXPECT_THROW(reader.add(institute({"2024-05-01T00:20:00Z,9,,0", "x,1,,0"}), "b.csv"),
                 std::invalid_argument);
    EXPECT_EQ(reader.finish().depths_mm, (std::vector<float>{1, 2}));
    EXPECT_EQ(reader.notes().rows, 2);
}

}  // namespace
}  // namespace mero::rain
