// SPDX-License-Identifier: MIT
/// The shipped description pages: complete, well nested, self-contained, with drawings of one style.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

#include "report/documents.h"

namespace mero::report {
namespace {

namespace fs = std::filesystem;

const fs::path kProgramFolder = MERO_SOURCE_FOLDER;

std::string contentOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::vector<std::smatch> matches(const std::string& text, const std::regex& pattern) {
    return {std::sregex_iterator(text.begin(), text.end(), pattern), std::sregex_iterator()};
}

/// A big-endian 32-bit number of a PNG header.
int numberAt(const std::string& bytes, std::size_t at) {
    int value = 0;
    for (std::size_t i = at; i < at + 4; ++i) {
        value = value * 256 + static_cast<unsigned char>(bytes.at(i));
    }
    return value;
}

struct Size {
    int width = 0;
    int height = 0;
};

Size pictureSize(const std::string& bytes) {
    if (bytes.starts_with("\x89PNG\r\n\x1A\n")) {
        return {numberAt(bytes, 16), numberAt(bytes, 20)};
    }
    if (bytes.starts_with("GIF8")) {
        const auto byte = [&bytes](std::size_t at) {
            return static_cast<int>(static_cast<unsigned char>(bytes.at(at)));
        };
        return {byte(6) + 256 * byte(7), byte(8) + 256 * byte(9)};
    }
    return {};
}

/// One test per infiltration type.
class DescriptionPage : public testing::TestWithParam<int> {
  protected:
    void SetUp() override {
        path_ = descriptionPagePath(kProgramFolder.string(), static_cast<data::FacilityType>(GetParam()));
        ASSERT_TRUE(fs::is_regular_file(path_)) << path_;
        html_ = contentOf(path_);
    }

    fs::path path_;
    std::string html_;
};

TEST_P(DescriptionPage, DeclaresItsCharacterSetFirst) {
    const std::size_t declared =
        html_.find("<meta http-equiv=\"Content-Type\" content=\"text/html; charset=utf-8\">");
    const auto first_letter_beyond_ascii = std::find_if(
        html_.begin(), html_.end(), [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
    ASSERT_NE(declared, std::string::npos);
    EXPECT_LT(declared, static_cast<std::size_t>(first_letter_beyond_ascii - html_.begin()));
    EXPECT_NE(html_.find("ů"), std::string::npos);
    EXPECT_EQ(html_.find("\xEF\xBF\xBD"), std::string::npos);
}

TEST_P(DescriptionPage, IsWellNested) {
    const std::array<std::string, 5> void_elements = {"meta", "br", "hr", "img", "!DOCTYPE"};
    std::vector<std::string> open;
    for (const auto& tag : matches(html_, std::regex("<(/?)(!?[A-Za-z0-9]+)[^<>]*>"))) {
        const std::string name = tag[2];
        if (std::find(void_elements.begin(), void_elements.end(), name) != void_elements.end()) {
            continue;
        }
        if (tag[1].length() == 0) {
            open.push_back(name);
            continue;
        }
        ASSERT_FALSE(open.empty()) << name;
        ASSERT_EQ(open.back(), name);
        open.pop_back();
    }
    EXPECT_TRUE(open.empty());
    EXPECT_EQ(std::count(html_.begin(), html_.end(), '<'), std::count(html_.begin(), html_.end(), '>'));
}

TEST_P(DescriptionPage, HasEveryPictureInItsTrueSize) {
    const auto pictures = matches(
        html_, std::regex("<img src=\"([^\"]+)\" width=\"(\\d+)\" height=\"(\\d+)\" alt=\"[^\"]+\">"));
    EXPECT_EQ(pictures.size(), matches(html_, std::regex("<img")).size());
    EXPECT_GE(pictures.size(), 2U);  // the logo and the section drawing
    for (const auto& picture : pictures) {
        const fs::path file = path_.parent_path() / picture[1].str();
        ASSERT_TRUE(fs::is_regular_file(file)) << file;
        const Size size = pictureSize(contentOf(file));
        EXPECT_EQ(std::to_string(size.width), picture[2]) << file;
        EXPECT_EQ(std::to_string(size.height), picture[3]) << file;
    }
}

TEST_P(DescriptionPage, ShowsTheSectionOfItsOwnType) {
    EXPECT_NE(html_.find("rez_0" + std::to_string(GetParam()) + ".png"), std::string::npos);
}

TEST_P(DescriptionPage, AsksForNothingOutside) {
    for (const std::string_view part : {"://", "src=\"/", "src=\"//", "href", "url(", "@import", "<script",
                                        "<iframe", "<link", "<object"}) {
        EXPECT_EQ(html_.find(part), std::string::npos) << part;
    }
}

TEST_P(DescriptionPage, KeepsToWhatEveryViewerDrawsAlike) {
    for (const std::string_view part :
         {"<svg", "<div", "position:", "float:", "display:", "<math", "px", "<!--", "class="}) {
        EXPECT_EQ(html_.find(part), std::string::npos) << part;
    }
}

TEST_P(DescriptionPage, TellsEverythingThatAnEngineerAsks) {
    for (const std::string heading :
         {"Kdy se hodí", "Z čeho se skládá", "Vzorový řez", "Vstupní údaje", "Jak program počítá",
          "Posouzení a hlášení", "Meze výpočtu", "Údržba"}) {
        EXPECT_NE(html_.find("<h2>" + heading + "</h2>"), std::string::npos) << heading;
    }
}

INSTANTIATE_TEST_SUITE_P(OfType, DescriptionPage, testing::Range(1, 7));

TEST(Logo, FitsTheReportsCell) {
    const std::string bytes = contentOf(kProgramFolder / "Webs" / "Desc_soubory" / "logo.gif");
    ASSERT_TRUE(bytes.starts_with("GIF8"));
    EXPECT_GT(pictureSize(bytes).width, 0);
    EXPECT_LE(pictureSize(bytes).width, 210);
    EXPECT_LE(pictureSize(bytes).height, 120);
}

TEST(DescriptionFolder, HoldsNothingThatNoPageShows) {
    std::string all_pages;
    for (int type = 1; type <= 6; ++type) {
        all_pages +=
            contentOf(descriptionPagePath(kProgramFolder.string(), static_cast<data::FacilityType>(type)));
    }
    for (const auto& entry : fs::directory_iterator(kProgramFolder / "Webs" / "Desc_soubory")) {
        EXPECT_NE(all_pages.find("Desc_soubory/" + entry.path().filename().string()), std::string::npos)
            << entry;
    }
}

}  // namespace
}  // namespace mero::report
