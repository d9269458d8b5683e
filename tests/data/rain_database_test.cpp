// SPDX-License-Identifier: MIT
/// Reading stations from the shipped rain database, and the errors when that fails.
/// Expected intensities are computed by hand from the formula of the demonstration values.
#include "data/rain_database.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <array>
#include <filesystem>

#include "data/rain_support.h"
#include "support/unprivileged.h"

namespace mero::data {
namespace {

using test::contentOf;
using test::read;
using test::TemporaryFolder;
using test::valueAt;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr std::array kDurations{5, 10, 15, 20, 30, 45, 60, 90, 120};

/// One column of a table, as the program stores it.
std::vector<float> column(const StationTable& table, const std::string& field) {
    std::vector<float> values;
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        values.push_back(static_cast<float>(valueAt(table, row, field).value()));
    }
    return values;
}

TEST(RainDatabase, ReadsBrnoWhole) {
    const auto outcome = read(MERO_RAIN_DATABASE, 84);
    ASSERT_NE(outcome.table(), nullptr) << outcome.error()->description();
    const StationTable& brno = *outcome.table();
    EXPECT_THAT(brno.columns, ElementsAre("doba", "5", "2", "1", "05", "02", "01", "005"));
    ASSERT_EQ(brno.rows.size(), kDurations.size());
    for (std::size_t row = 0; row < kDurations.size(); ++row) {
        EXPECT_EQ(valueAt(brno, row, "doba"), kDurations.at(row));
    }
    // 142 * 38 / (t + 9) * 0.631 = 3404.876 / (t + 9)
    EXPECT_THAT(column(brno, "1"),
                ElementsAre(243.2F, 179.2F, 141.9F, 117.4F, 87.3F, 63.1F, 49.3F, 34.4F, 26.4F));
    // 142 * 38 / (t + 9) * (20^(1/4) - 0.369) = 5396 / (t + 9) * 1.7457425
    EXPECT_THAT(column(brno, "005"),
                ElementsAre(672.9F, 495.8F, 392.5F, 324.8F, 241.5F, 174.4F, 136.5F, 95.2F, 73.0F));
    // 5396 / (t + 9) * (5^(-1/4) - 0.369) = 5396 / (t + 9) * 0.29974
    EXPECT_THAT(column(brno, "5"),
                ElementsAre(115.5F, 85.1F, 67.4F, 55.8F, 41.5F, 30.0F, 23.4F, 16.3F, 12.5F));
}

TEST(RainDatabase, AStationMayHave004InPlaceOf005) {
    const auto outcome = read(MERO_RAIN_DATABASE, 3);
    ASSERT_NE(outcome.table(), nullptr) << outcome.error()->description();
    const StationTable& table = *outcome.table();
    EXPECT_FALSE(hasField(table, "005"));
    EXPECT_TRUE(hasField(table, "004"));
    // 101.5 * 38 / 24 * (25^(1/4) - 0.369) = 160.7083 * 1.8670680 = 300.053
    EXPECT_FLOAT_EQ(static_cast<float>(valueAt(table, 2, "004").value()), 300.1F);
}

TEST(RainDatabase, EveryStationIsThere) {
    for (std::int16_t station = 1; station <= 92; ++station) {
        const auto outcome = read(MERO_RAIN_DATABASE, station);
        ASSERT_NE(outcome.table(), nullptr) << outcome.error()->description();
        EXPECT_EQ(outcome.table()->rows.size(), 9U) << station;
        EXPECT_NE(hasField(*outcome.table(), "005"), hasField(*outcome.table(), "004")) << station;
    }
}

TEST(RainDatabase, TheFileThatShipsIsMarkedAsDemonstration) {
    EXPECT_TRUE(read(MERO_RAIN_DATABASE).table()->demonstration);
}

TEST(RainDatabase, FieldsAreFoundInAnyCase) {
    StationTable table;
    table.columns = {"Doba", "005"};
    EXPECT_EQ(columnIndex(table, "DOBA"), 0U);
    EXPECT_EQ(columnIndex(table, "005"), 1U);
    EXPECT_EQ(columnIndex(table, "05"), std::nullopt);
    EXPECT_EQ(columnIndex(table, ""), std::nullopt);
}

TEST(RainDatabase, TablesAreNamedByThePlainNumber) {
    EXPECT_EQ(tableName(15), "List15");
    EXPECT_EQ(tableName(1), "List1");
    EXPECT_EQ(tableName(32767), "List32767");
}

TEST(RainDatabase, AMissingTableEndsTheProgramAndIsNamed) {
    const auto outcome = read(MERO_RAIN_DATABASE, 93);
    ASSERT_NE(outcome.error(), nullptr);
    EXPECT_EQ(outcome.errorNumber(), kTableNotFound);
    EXPECT_TRUE(outcome.error()->endsProgram());
    EXPECT_EQ(outcome.error()->description(),
              "V databázi dešťů „" + std::string(MERO_RAIN_DATABASE) + "“ chybí tabulka List93");
    EXPECT_EQ(read(MERO_RAIN_DATABASE, 0).errorNumber(), kTableNotFound);
    EXPECT_EQ(read(MERO_RAIN_DATABASE, -84).errorNumber(), kTableNotFound);
}

TEST(RainDatabase, AMissingFileEndsTheProgramAndIsNamed) {
    const TemporaryFolder folder;
    const auto outcome = read(folder.file("mero.mdb"));
    ASSERT_NE(outcome.error(), nullptr);
    EXPECT_TRUE(outcome.error()->is(ErrorNumber::FileNotFound));
    EXPECT_TRUE(outcome.error()->endsProgram());
    EXPECT_EQ(outcome.error()->description(),
              "Databáze dešťů „" + folder.file("mero.mdb") + "“ nebyla nalezena (tabulka List84)");
}

TEST(RainDatabase, AnEmptyPathIsAMissingFile) {
    EXPECT_TRUE(read("").error()->is(ErrorNumber::FileNotFound));
}

TEST(RainDatabase, BlanksAndDiacriticsInThePathAreTaken) {
    const TemporaryFolder folder;
    const std::string place = folder.file("Dešťové údaje; $(rm) 'x' \"y\"");
    std::filesystem::create_directory(place);
    std::filesystem::copy_file(MERO_RAIN_DATABASE, place + "/můj mero.mdb");
    EXPECT_NE(read(place + "/můj mero.mdb").table(), nullptr);
}

TEST(RainDatabase, AFileNameThatLooksLikeAnOptionIsTaken) {
    const TemporaryFolder folder;
    const auto here = std::filesystem::current_path();
    std::filesystem::copy_file(MERO_RAIN_DATABASE, folder.file("-h"));
    std::filesystem::current_path(folder.file(""));
    const auto outcome = read("-h");
    std::filesystem::current_path(here);
    EXPECT_NE(outcome.table(), nullptr);
}

TEST(RainDatabase, ABackslashJoinsFolderAndFile) {
    const TemporaryFolder folder;
    std::filesystem::copy_file(MERO_RAIN_DATABASE, folder.file("mero.mdb"));
    EXPECT_NE(read(folder.file("\\mero.mdb")).table(), nullptr);
    std::filesystem::rename(folder.file("mero.mdb"), folder.file("a\\mero.mdb"));
    EXPECT_NE(read(folder.file("a\\mero.mdb")).table(), nullptr) << "a name may hold a backslash";
    const auto outcome = read(folder.file("b\\mero.mdb"));
    EXPECT_THAT(outcome.error()->description(), HasSubstr("b\\mero.mdb"));
}

TEST(RainDatabase, WhatIsNoDatabaseCannotBeOpened) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.file("folder.mdb"));
    ASSERT_EQ(::mkfifo(folder.file("pipe.mdb").c_str(), 0600), 0);
    const std::array paths{
        folder.file("folder.mdb"),
        folder.file("pipe.mdb"),
        folder.write("empty.mdb", ""),
        folder.write("text.mdb", "doba;5;2;1\n5;1;2;3\n"),
        folder.write("long.mdb", std::string(100000, 'x')),
        folder.write("zeros.mdb", std::string(100000, '\0')),
    };
    for (const std::string& path : paths) {
        const auto outcome = read(path);
        ASSERT_NE(outcome.error(), nullptr) << path;
        EXPECT_EQ(outcome.errorNumber(), kCannotOpenDatabase) << path;
        EXPECT_TRUE(outcome.error()->endsProgram());
        EXPECT_EQ(outcome.error()->description(),
                  "Databázi dešťů „" + path + "“ nelze otevřít (tabulka List84)");
    }
}

enum class Outcome { Came, Refused, Otherwise };

/// Result when an ordinary user reads Brno from the file.
Outcome readUnprivileged(const std::string& path) {
    return mero::test::unprivileged([&] {
        try {
            static_cast<void>(MdbRainDatabase().read(84, path));
            return Outcome::Came;
        } catch (const RuntimeError& error) {
            return error.number() == kCannotOpenDatabase ? Outcome::Refused : Outcome::Otherwise;
        }
    });
}

TEST(RainDatabase, AnUnreadableFileCannotBeOpened) {
    namespace fs = std::filesystem;
    const TemporaryFolder folder;
    const std::string path = folder.write("mero.mdb", contentOf(MERO_RAIN_DATABASE));
    fs::permissions(fs::path(path).parent_path(), fs::perms(0755));

    fs::permissions(path, fs::perms(0644));
    EXPECT_EQ(readUnprivileged(path), Outcome::Came);
    fs::permissions(path, fs::perms::none);
    EXPECT_EQ(readUnprivileged(path), Outcome::Refused);
}

/// A table of the durations 5, 10 and 15 min with the intensities of one periodicity.
StationTable stationOf(std::vector<StationTable::Value> intensities, const std::string& field = "02") {
    StationTable table;
    table.columns = {"doba", field};
    double duration = 0.0;
    for (const StationTable::Value& intensity : intensities) {
        table.rows.push_back({duration += 5.0, intensity});
    }
    return table;
}

TEST(RainDatabase, IntensitiesFallWithTheDurationAndAreNotNegative) {
    EXPECT_TRUE(arePlausible(stationOf({434.1, 319.9, 253.2})));
    EXPECT_TRUE(arePlausible(stationOf({253.2, 253.2, 253.2}))) << "rounded to the same";
    EXPECT_TRUE(arePlausible(stationOf({0.0, 0.0, 0.0}))) << "a station without data";
    EXPECT_FALSE(arePlausible(stationOf({434.1, -319.9, 253.2})));
    EXPECT_FALSE(arePlausible(stationOf({434.1, 319.9, 320.0})));
    EXPECT_FALSE(arePlausible(stationOf({434.1, 319.9, 320.0}, "004")));
    EXPECT_TRUE(arePlausible(stationOf({1.0, 2.0, 3.0}, "rok"))) << "no field of intensities";
}

TEST(RainDatabase, WhatIsNoNumberIsNotCompared) {
    EXPECT_TRUE(arePlausible(stationOf({434.1, std::nullopt, 253.2})));
    EXPECT_FALSE(arePlausible(stationOf({253.2, std::nullopt, 434.1})));
}

TEST(RainDatabase, AStationWithAFlippedSignEndsTheProgram) {
    const TemporaryFolder folder;
    std::string content = contentOf(MERO_RAIN_DATABASE);
    // Brno's first row: 5 min, then 115.5 as Single.
    const std::size_t at = content.find(std::string("\x05\x00\x00\x00\xe7\x42", 6));
    ASSERT_NE(at, std::string::npos);
    content[at + 5] = '\xc2';
    const auto outcome = read(folder.write("mero.mdb", content));
    ASSERT_NE(outcome.error(), nullptr);
    EXPECT_EQ(outcome.errorNumber(), kReadFailed);
    EXPECT_TRUE(outcome.error()->endsProgram());
    EXPECT_THAT(outcome.error()->description(), HasSubstr("intenzity nejsou kladné a klesající"));
}

TEST(RainDatabase, AFileThatMayOnlyBeReadIsEnough) {
    const TemporaryFolder folder;
    const std::string path = folder.write("mero.mdb", contentOf(MERO_RAIN_DATABASE));
    std::filesystem::permissions(path, std::filesystem::perms::owner_read);
    EXPECT_NE(read(path).table(), nullptr);
    EXPECT_EQ(contentOf(path), contentOf(MERO_RAIN_DATABASE));
}

}  // namespace
}  // namespace mero::data
