// SPDX-License-Identifier: MIT
/// Damaged copies of the rain database: the answer is the table or an error, in time, never fewer rows, and
/// the mark of demonstration values is never lost.
/// The file has no checksums, so a flipped bit inside a stored value, a name or a type cannot be detected;
/// the test then only checks that the table has all its rows and fields.
#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <random>

#include "data/rain_support.h"
#include "data/station_file.h"

namespace mero::data {
namespace {

using test::contentOf;
using test::kReadLimit;
using test::Outcome;
using test::TemporaryFolder;

constexpr std::size_t kPage = 4096;
constexpr std::uint32_t kSeed = 20261120;

/// The pages of a table in the file, found by the bytes of its first row.
struct Places {
    std::size_t data_page = 0;
    std::size_t header_page = 0;
    std::size_t map_page = 0;
};

std::uint32_t wordAt(const std::string& file, std::size_t at) {
    std::uint32_t word = 0;
    std::memcpy(&word, file.data() + at, sizeof word);
    return word;
}

/// Brno's rows are the only ones with 5 min and 115.5; the page names its table's header, the header its map.
Places placesOfBrno(const std::string& file) {
    const std::string first_row("\x05\x00\x00\x00\xe7\x42", 6);
    Places places;
    places.data_page = file.find(first_row) / kPage;
    places.header_page = wordAt(file, places.data_page * kPage + 4);
    places.map_page = wordAt(file, places.header_page * kPage + 55) >> 8U;
    return places;
}

class RainDamage : public ::testing::Test {
  protected:
    [[nodiscard]] Outcome readDamaged(const std::string& content) const {
        return test::read(folder_.write("mero.mdb", content));
    }

    /// Expects an error that ends the program, or all rows and fields of the table; in time.
    void expectWholeOrError(const Outcome& outcome, const std::string& what) const {
        EXPECT_LT(outcome.took, kReadLimit) << what;
        if (outcome.error() != nullptr) {
            EXPECT_TRUE(outcome.error()->endsProgram()) << what;
            return;
        }
        EXPECT_EQ(outcome.table()->rows.size(), whole_.rows.size()) << what;
        EXPECT_EQ(outcome.table()->columns.size(), whole_.columns.size()) << what;
        EXPECT_TRUE(outcome.table()->demonstration) << what;
    }

    const std::string file_ = contentOf(MERO_RAIN_DATABASE);
    const StationTable whole_ = *test::read(MERO_RAIN_DATABASE).table();
    TemporaryFolder folder_;
};

TEST_F(RainDamage, AFileThatIsCutGivesNothing) {
    const std::size_t pages = file_.size() / kPage;
    std::vector<std::size_t> kept{pages - 3, pages - 2, pages - 1};
    for (std::size_t page = 0; page < pages; page += 11) {
        kept.push_back(page);
    }
    for (const std::size_t page : kept) {
        for (const std::size_t extra : {std::size_t{0}, std::size_t{1}, kPage / 2, kPage - 1}) {
            const Outcome outcome = readDamaged(file_.substr(0, page * kPage + extra));
            ASSERT_NE(outcome.error(), nullptr) << "cut after page " << page << " and " << extra;
            EXPECT_TRUE(outcome.error()->endsProgram());
        }
    }
}

TEST_F(RainDamage, NoiseInPlaceOfAPageGivesTheTableOrAnError) {
    std::mt19937 random(kSeed);
    const Places brno = placesOfBrno(file_);
    for (const std::size_t page : {std::size_t{0}, std::size_t{1}, std::size_t{2}, std::size_t{3},
                                   std::size_t{4}, brno.data_page, brno.header_page, brno.map_page}) {
        std::string damaged = file_;
        for (std::size_t at = page * kPage; at < (page + 1) * kPage; ++at) {
            damaged[at] = static_cast<char>(random());
        }
        expectWholeOrError(readDamaged(damaged), "noise in page " + std::to_string(page));
    }
}

TEST_F(RainDamage, NoiseIsAnError) {
    std::mt19937 random(kSeed);
    std::string noise(100 * kPage, '\0');
    for (char& byte : noise) {
        byte = static_cast<char>(random());
    }
    EXPECT_NE(readDamaged(noise).error(), nullptr);
    noise.replace(0, kPage, file_, 0, kPage);  // the header of a database
    EXPECT_NE(readDamaged(noise).error(), nullptr);
}

TEST_F(RainDamage, FlippedBitsGiveTheTableOrAnError) {
    std::mt19937 random(kSeed);
    const Places brno = placesOfBrno(file_);
    const std::array pages{std::size_t{0}, std::size_t{2},   std::size_t{3},  brno.data_page,
                           brno.map_page,  brno.header_page, brno.header_page};
    for (int round = 0; round < 400; ++round) {
        std::string damaged = file_;
        std::string what;
        for (auto flips = 1 + random() % 3; flips > 0; --flips) {
            const std::size_t page = pages.at(random() % pages.size());
            // The structure of a header is at its front.
            const std::size_t at = random() % (page == brno.header_page ? 400 : kPage);
            const auto bit = random() % 8;
            damaged[page * kPage + at] =
                static_cast<char>(static_cast<unsigned char>(damaged[page * kPage + at]) ^
                                  static_cast<unsigned char>(1U << bit));
            what += " page " + std::to_string(page) + " byte " + std::to_string(at) + " bit " +
                    std::to_string(bit);
        }
        expectWholeOrError(readDamaged(damaged), "flipped" + what);
    }
}

TEST_F(RainDamage, AForgedLengthOfAPropertyIsNoMatter) {
    // A property in the catalogue has a length of 1.5 GB. Properties are not read.
    const std::string property("K\0e\0e\0p\0L\0o\0c\0a\0l\0\x16\0\0\0", 22);
    std::string damaged = contentOf(MERO_ODD_TABLES);
    const std::size_t at = damaged.find(property);
    ASSERT_NE(at, std::string::npos);
    damaged[at + property.size() - 1] = '\x5b';
    const StationTable table =
        stationTable({reinterpret_cast<const std::uint8_t*>(damaged.data()), damaged.size()}, "List1");
    EXPECT_EQ(table.rows.size(), 12U);
}

TEST_F(RainDamage, AMarkUnderAnotherNameIsStillTheMark) {
    std::string damaged = file_;
    const std::string name(
        "\xff\xfe"
        "Demo");
    const std::string wide_name("D\0e\0m\0o\0", 8);
    std::size_t changed = 0;
    for (const std::string& text : {name, wide_name}) {
        for (std::size_t at = damaged.find(text); at != std::string::npos; at = damaged.find(text, at + 1)) {
            damaged[at + text.find('D')] = 'F';
            ++changed;
        }
    }
    ASSERT_GT(changed, 0U);
    const Outcome outcome = readDamaged(damaged);
    ASSERT_NE(outcome.table(), nullptr) << outcome.error()->description();
    EXPECT_TRUE(outcome.table()->demonstration);
}

TEST_F(RainDamage, ATableThatTakesAnothersPlaceIsNoticed) {
    // The catalog's entry of Brno is changed to the table whose header is four pages later.
    const Places brno = placesOfBrno(file_);
    const std::string name("L\0i\0s\0t\0008\0004\0", 12);
    const std::string narrow_name("\xff\xfeList84");
    std::size_t changed = 0;
    std::string damaged = file_;
    for (const std::string& text : {name, narrow_name}) {
        for (std::size_t at = damaged.find(text); at != std::string::npos; at = damaged.find(text, at + 1)) {
            const std::size_t row = at - at % kPage;
            for (std::size_t id = at > row + 64 ? at - 64 : row; id + 4 <= at; ++id) {
                if (wordAt(damaged, id) == brno.header_page) {
                    damaged[id] = static_cast<char>(damaged[id] + 4);
                    ++changed;
                }
            }
        }
    }
    ASSERT_GT(changed, 0U);
    EXPECT_EQ(readDamaged(damaged).errorNumber(), kReadFailed);
}

}  // namespace
}  // namespace mero::data
