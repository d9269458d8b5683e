// SPDX-License-Identifier: MIT
/// Names that stand twice and documents that are too deep are found without storing the values.
#include "project/name_scan.h"

#include <gtest/gtest.h>

#include <string>

namespace mero::project {
namespace {

std::string repeated(const std::string& text, int count) {
    std::string all;
    for (int i = 0; i < count; ++i) {
        all += text;
    }
    return all;
}

TEST(NameScan, FindsTheFirstNameThatStandsTwiceInOneObject) {
    EXPECT_EQ(NameScan(R"({"a": {"b": [1, {"c": 2, "c": 3}]}, "a": 4})").doubled(), "a.b.c");
    EXPECT_EQ(NameScan(R"({"a": {"x": 1}, "b": {"x": 1}, "c": [{"x": 1}, {"x": 1}]})").doubled(), "");
    EXPECT_EQ(NameScan(R"({"a": 1, "\u0061": 2})").doubled(), "a");
}

TEST(NameScan, EndsAtASyntaxError) {
    EXPECT_EQ(NameScan(R"({"a": 1,, "a": 2})").doubled(), "");
    EXPECT_EQ(NameScan("").doubled(), "");
    EXPECT_EQ(NameScan(R"({"a": 1, "a": 1e999})").doubled(), "a");
}

TEST(NameScan, SaysWhatIsTooDeep) {
    EXPECT_FALSE(NameScan(repeated("[", 100) + repeated("]", 100)).tooDeep());
    EXPECT_TRUE(NameScan(repeated("[", 101) + repeated("]", 101)).tooDeep());
    EXPECT_TRUE(NameScan(repeated(R"({"a":)", 10000000)).tooDeep());
    EXPECT_FALSE(NameScan("[" + repeated("[],", 1000) + "[]]").tooDeep()) << "beside each other";
}

}  // namespace
}  // namespace mero::project
