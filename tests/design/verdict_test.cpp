// SPDX-License-Identifier: MIT
/// Codes, texts and kinds of the verdicts.
#include "design/verdict.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "design/verdict.h"

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
    EXPECT_STREQ(info(VerdictId::RainIntensitiesMissing).code, "rain_intensities_missing");
    EXPECT_STREQ(info(VerdictId::ShaftBottomTooClose).code, "shaft_bottom_too_close");
    EXPECT_STREQ(info(VerdictId::ErrorDivisionByZero).code, "runtime_error_11");
    for (const VerdictInfo& verdict : verdicts()) {
        EXPECT_EQ(&info(verdict.id), &verdict);
    }
}

TEST(Verdicts, OnlyErrorsHaveTheirTextElsewhere) {
    for (const VerdictInfo& verdict : verdicts()) {
        EXPECT_EQ(std::string(verdict.text).empty(), isRuntimeError(verdict.id)) << verdict.code;
    }
}

TEST(Verdicts, TheAreasAreComparedWithTwoDecimals) {
    // The area, then the length and the width of the ground plan.
    const Verdict sufficient{VerdictId::SwaleTrenchAreaSufficient, {1300.0F, 100.0F, 12.5F}};
    EXPECT_EQ(text(sufficient), "Navržená vsakovací plocha je dostatečná ( 1 250.00 < 1 300.00 ).");
    const Verdict insufficient{VerdictId::SwaleTrenchAreaInsufficient, {1200.0F, 100.0F, 12.5F}};
    EXPECT_EQ(text(insufficient), "Navržená vsakovací plocha je nedostatečná ( 1 250.00 > 1 200.00 ).");
}

TEST(Verdicts, TheOutflowsAreComparedWithoutAFullStop) {
    EXPECT_EQ(text({VerdictId::DrainOutflowNotMet, {12.345F, 15.0F, 0.0F}}),
              "Není splněna podmínka výstupního odtoku. ( 12.35 < 15.00 )");
    EXPECT_EQ(text({VerdictId::DrainOutflowMet, {12.345F, 10.0F, 0.0F}}),
              "Podmínka výstupního odtoku je splněna. ( 12.35 > 10.00 )");
}

TEST(Verdicts, AVerdictHasTheNumbersThatItSpeaksOf) {
    data::DesignNumbers numbers;
    numbers.txtVypObjNadrz = 12.0F;
    numbers.txtObjAkum = 15.5F;
    const Verdict verdict = design::verdict(VerdictId::TankVolumeTooSmall, numbers);
    ASSERT_EQ(subjects(verdict.id).size(), 2U);
    EXPECT_STREQ(subjects(verdict.id)[0].name, "tank_volume_m3");
    EXPECT_STREQ(subjects(verdict.id)[1].name, "storage_volume_m3");
    EXPECT_EQ(verdict.values[0], 12.0F);
    EXPECT_EQ(verdict.values[1], 15.5F);
}

TEST(Verdicts, EachInputCheckSpeaksOfOneNumber) {
    for (const VerdictInfo& verdict : verdicts()) {
        if (isInputCheck(verdict.id)) {
            ASSERT_EQ(subjects(verdict.id).size(), 1U) << verdict.code;
            EXPECT_NE(subjects(verdict.id)[0].stored, nullptr) << verdict.code;
        }
    }
}

TEST(Verdicts, InputChecksRunFromTheSwaleToTheSlope) {
    EXPECT_FALSE(isInputCheck(VerdictId::DesignRainMissing));
    EXPECT_TRUE(isInputCheck(VerdictId::SwaleFiltrationNotPositive));
    EXPECT_TRUE(isInputCheck(VerdictId::SideSlopeNegative));
    // The outer diameter is told in a box of its own.
    EXPECT_FALSE(isInputCheck(VerdictId::ShaftOuterDiameterTooSmall));
    EXPECT_FALSE(isInputCheck(VerdictId::ErrorOverflow));
}

TEST(Verdicts, ARuntimeErrorIsAVerdictAndBack) {
    for (const ErrorNumber error : {ErrorNumber::InvalidCall, ErrorNumber::Overflow,
                                    ErrorNumber::SubscriptOutOfRange, ErrorNumber::DivisionByZero}) {
        const VerdictId verdict = verdictOf(RuntimeError(error));
        EXPECT_TRUE(isRuntimeError(verdict));
        EXPECT_EQ(errorNumber(verdict), error);
        EXPECT_EQ(info(verdict).code,
                  "runtime_error_" + std::string(error == ErrorNumber::InvalidCall      ? "5"
                                                 : error == ErrorNumber::Overflow       ? "6"
                                                 : error == ErrorNumber::DivisionByZero ? "11"
                                                                                        : "9"));
    }
    EXPECT_FALSE(isRuntimeError(VerdictId::TankInfiltrationExceeded));
}

}  // namespace
}  // namespace mero::design
