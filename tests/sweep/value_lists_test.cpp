// SPDX-License-Identifier: MIT
/// Ranges of numbers: their ends, their steps, and the ranges that are refused.
#include "sweep/value_lists.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace mero::sweep {
namespace {

using ::testing::DoubleEq;
using ::testing::ElementsAre;
using ::testing::Pointwise;

std::vector<double> numbersOf(const std::string& text) {
    return numberRange(text).value().numbers;
}

std::string errorOf(const std::string& text) {
    try {
        static_cast<void>(numberRange(text));
    } catch (const std::invalid_argument& error) {
        return error.what();
    }
    return "";
}

TEST(Split, KeepsEmptyParts) {
    EXPECT_THAT(split("a,,b", ','), ElementsAre("a", "", "b"));
    EXPECT_THAT(split(",", ','), ElementsAre("", ""));
    EXPECT_THAT(split("", ','), ElementsAre(""));
    EXPECT_THAT(split("a:b,c", ','), ElementsAre("a:b", "c"));
}

TEST(NumberRange, APlainTextIsNone) {
    EXPECT_FALSE(numberRange("1").has_value());
    EXPECT_FALSE(numberRange("1,2").has_value());
    EXPECT_FALSE(numberRange("").has_value());
    EXPECT_FALSE(numberRange("x").has_value());
}

TEST(NumberRange, StepsRunUpAndDown) {
    EXPECT_THAT(numbersOf("1:4:1"), ElementsAre(1.0, 2.0, 3.0, 4.0));
    EXPECT_THAT(numbersOf("5:1:-2"), ElementsAre(5.0, 3.0, 1.0));
    EXPECT_THAT(numbersOf("-1:1:1"), ElementsAre(-1.0, 0.0, 1.0));
    EXPECT_THAT(numbersOf("2:2:-1"), ElementsAre(2.0));
    EXPECT_FALSE(numberRange("1:4:1")->logarithmic);
}

TEST(NumberRange, AStepThatMissesTheEndStopsBeforeIt) {
    EXPECT_THAT(numbersOf("0:1:0.4"), Pointwise(DoubleEq(), {0.0, 0.4, 0.8}));
    // 0.3 / 0.1 is less than 3 in binary; the end is meant all the same.
    EXPECT_THAT(numbersOf("0:0.3:0.1"), Pointwise(DoubleEq(), {0.0, 0.1, 0.2, 0.3}));
}

TEST(NumberRange, RatiosAreConstantAndTheEndIsExact) {
    const NumberRange range = numberRange("log:1:100:3").value();
    EXPECT_TRUE(range.logarithmic);
    EXPECT_THAT(range.numbers, Pointwise(DoubleEq(), {1.0, 10.0, 100.0}));
    EXPECT_EQ(numbersOf("log:1e-6:1e-3:20").back(), 1e-3);
    EXPECT_THAT(numbersOf("log:4:1:3"), Pointwise(DoubleEq(), {4.0, 2.0, 1.0}));
    EXPECT_THAT(numbersOf("log:1:2:2"), ElementsAre(1.0, 2.0));
}

TEST(NumberRange, HasAtMostAHundredThousandValues) {
    EXPECT_EQ(numbersOf("1:100000:1").size(), 100000U);
    EXPECT_EQ(errorOf("0:100000:1"), "expected at most 100000 values");
    EXPECT_EQ(errorOf("0:1e12:1e-12"), "expected at most 100000 values");
    EXPECT_EQ(numbersOf("log:1:2:100000").size(), 100000U);
    constexpr const char* kCount = "expected a count from 2 to 100000 at the end of a logarithmic range";
    EXPECT_EQ(errorOf("log:1:2:100001"), kCount);
    EXPECT_EQ(errorOf("log:1:2:1"), kCount);
    EXPECT_EQ(errorOf("log:1:2:2.5"), kCount);
}

TEST(NumberRange, WhatLeadsNowhereIsRefused) {
    constexpr const char* kStep = "expected a step that leads from the first value to the last";
    EXPECT_EQ(errorOf("1:2:0"), kStep);
    EXPECT_EQ(errorOf("1:2:-1"), kStep);
    EXPECT_EQ(errorOf("2:1:1"), kStep);
    constexpr const char* kPositive = "expected a logarithmic range between numbers greater than 0";
    EXPECT_EQ(errorOf("log:0:1:5"), kPositive);
    EXPECT_EQ(errorOf("log:1:-1:5"), kPositive);
}

TEST(NumberRange, PartsAreCountedAndMustBeNumbers) {
    EXPECT_EQ(errorOf("1:2"), "expected a range FROM:TO:STEP");
    EXPECT_EQ(errorOf("1:2:3:4"), "expected a range FROM:TO:STEP");
    EXPECT_EQ(errorOf("log"), "expected log:FROM:TO:COUNT");
    EXPECT_EQ(errorOf("log:1:2"), "expected log:FROM:TO:COUNT");
    EXPECT_EQ(errorOf("1:x:2"), "expected a number, not \"x\"");
    EXPECT_EQ(errorOf("1::2"), "expected a number, not \"\"");
    EXPECT_EQ(errorOf("1,5:2:1"), "expected a number, not \"1,5\"");
}

}  // namespace
}  // namespace mero::sweep
