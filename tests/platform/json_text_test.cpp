// SPDX-License-Identifier: MIT
/// JSON strings of any bytes, by hand and against the JSON library.
#include "platform/json_text.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace mero::platform::test {
namespace {

std::string byLibrary(const std::string& text) {
    constexpr int kOneLine = -1;
    return nlohmann::json(text).dump(kOneLine, ' ', false, nlohmann::json::error_handler_t::replace);
}

/// Compares on every text of `length` bytes from a list.
void compareAll(const std::vector<unsigned char>& bytes, std::size_t length, const std::string& begin = {}) {
    if (begin.size() == length) {
        ASSERT_EQ(jsonText(begin), byLibrary(begin));
        return;
    }
    for (const unsigned char byte : bytes) {
        compareAll(bytes, length, begin + static_cast<char>(byte));
        if (testing::Test::HasFatalFailure()) {
            return;
        }
    }
}

TEST(JsonText, QuotesAndEscapes) {
    EXPECT_EQ(jsonText(""), R"("")");
    EXPECT_EQ(jsonText("Jáma č. 1"), R"("Jáma č. 1")");
    EXPECT_EQ(jsonText("a\"b\\c/d"), R"("a\"b\\c/d")");
    EXPECT_EQ(jsonText("\b\t\n\f\r"), R"("\b\t\n\f\r")");
    EXPECT_EQ(jsonText(std::string_view("\0\x1f\x7f", 3)), "\"\\u0000\\u001f\x7f\"");
}

TEST(JsonText, ReplacesWhatIsNoUtf8) {
    EXPECT_EQ(jsonText("\xFF"), "\"\uFFFD\"");
    EXPECT_EQ(jsonText("\xE2\x82"), "\"\uFFFD\"") << "the beginning of one character";
    EXPECT_EQ(jsonText("\xE2\x82\x22"), "\"\uFFFD\\\"\"") << "the quote behind it stays";
    EXPECT_EQ(jsonText("\xED\xA0\x80"), "\"\uFFFD\uFFFD\uFFFD\"") << "a surrogate";
}

TEST(JsonText, WritesWhatTheLibraryWrites) {
    std::vector<unsigned char> all(256);
    for (std::size_t i = 0; i < all.size(); ++i) {
        all[i] = static_cast<unsigned char>(i);
    }
    compareAll(all, 1);
    compareAll(all, 2);
    // Both sides of each limit in the table of UTF-8.
    compareAll({'a', '"', 0x80, 0x8F, 0x90, 0x9F, 0xA0, 0xBF, 0xC1, 0xC2, 0xE0, 0xE1, 0xED, 0xF0, 0xF4, 0xF5},
               4);
}

}  // namespace
}  // namespace mero::platform::test
