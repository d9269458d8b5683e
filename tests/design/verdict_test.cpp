// SPDX-License-Identifier: MIT
/// Codes, texts and kinds of the verdicts.
#include "design/verdict.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>

namespace mero::design {
namespace {

TEST(Verdicts, CodesAreWordsAndDifferFromEachOther) {
    std::set<std::string> codes;
    for (const VerdictInfo& verdict : verdicts()) {
        EXPECT_THAT(verdict.code, ::testing::MatchesRegex("[a-z0-9_]+"));
        EXPECT_TRUE(codes.insert(verdict.code).second) << verdict.code;
    }
}

TEST(Verdicts, AreFoundByTheirNumber) {
    EXPECT_STREQ(info(Verdict::RainIntensitiesMissing).code, "rain_intensities_missing");
    EXPECT_STREQ(info(Verdict::ShaftBottomTooClose).code, "shaft_bottom_too_close");
    EXPECT_STREQ(info(Verdict::ErrorDivisionByZero).code, "runtime_error_11");
    for (const VerdictInfo& verdict : verdicts()) {
        EXPECT_EQ(&info(verdict.verdict), &verdict);
    }
}

TEST(Verdicts, OnlyTextsWithNumbersAndErrorsStandElsewhere) {
    for (const VerdictInfo& verdict : verdicts()) {
        const bool elsewhere =
            isRuntimeError(verdict.verdict) || verdict.verdict == Verdict::SwaleTrenchAreaSufficient ||
            verdict.verdict == Verdict::SwaleTrenchAreaInsufficient ||
            verdict.verdict == Verdict::DrainOutflowMet || verdict.verdict == Verdict::DrainOutflowNotMet;
        EXPECT_EQ(std::string(verdict.text).empty(), elsewhere) << verdict.code;
    }
}

TEST(Verdicts, InputChecksRunFromTheSwaleToTheSlope) {
    EXPECT_FALSE(isInputCheck(Verdict::DesignRainMissing));
    EXPECT_TRUE(isInputCheck(Verdict::SwaleFiltrationNotPositive));
    EXPECT_TRUE(isInputCheck(Verdict::SideSlopeNegative));
    // The outer diameter is told in a box of its own.
    EXPECT_FALSE(isInputCheck(Verdict::ShaftOuterDiameterTooSmall));
    EXPECT_FALSE(isInputCheck(Verdict::ErrorOverflow));
}

TEST(Verdicts, ARuntimeErrorIsAVerdictAndBack) {
    for (const ErrorNumber error : {ErrorNumber::InvalidCall, ErrorNumber::Overflow,
                                    ErrorNumber::SubscriptOutOfRange, ErrorNumber::DivisionByZero}) {
        const Verdict verdict = verdictOf(RuntimeError(error));
        EXPECT_TRUE(isRuntimeError(verdict));
        EXPECT_EQ(errorNumber(verdict), error);
        EXPECT_EQ(info(verdict).code,
                  "runtime_error_" + std::string(error == ErrorNumber::InvalidCall      ? "5"
                                                 : error == ErrorNumber::Overflow       ? "6"
                                                 : error == ErrorNumber::DivisionByZero ? "11"
                                                                                        : "9"));
    }
    EXPECT_FALSE(isRuntimeError(Verdict::TankInfiltrationExceeded));
}

}  // namespace
}  // namespace mero::design
