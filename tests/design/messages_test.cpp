// SPDX-License-Identifier: MIT
/// The message boxes of a design: numbers in texts, checks that share a box, errors with their number.
#include "design/messages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mero::design {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

DesignResult told(std::initializer_list<Verdict> verdicts) {
    DesignResult result;
    for (const Verdict verdict : verdicts) {
        result.verdicts.add(verdict);
    }
    return result;
}

TEST(Messages, NothingToldIsNoBox) {
    EXPECT_THAT(messages(DesignResult()), IsEmpty());
}

TEST(Messages, TheAreasAreComparedWithTwoDecimals) {
    DesignResult result;
    result.store(Quantity::TrenchLength, 100.0F);
    result.store(Quantity::SwaleWidth, 12.5F);
    result.store(Quantity::InfiltrationArea, 1300.0F);
    EXPECT_EQ(verdictText(result, Verdict::SwaleTrenchAreaSufficient),
              "Navržená vsakovací plocha je dostatečná ( 1 250.00 < 1 300.00 ).");
    EXPECT_EQ(verdictText(result, Verdict::SwaleTrenchAreaInsufficient),
              "Navržená vsakovací plocha je nedostatečná ( 1 250.00 > 1 300.00 ).");
}

TEST(Messages, TheOutflowsAreComparedWithoutAFullStop) {
    DesignResult result;
    result.store(Quantity::DrainOutflow, 12.345F);
    result.store(Quantity::DrainInflow, 15.0F);
    EXPECT_EQ(verdictText(result, Verdict::DrainOutflowNotMet),
              "Není splněna podmínka výstupního odtoku. ( 12.35 < 15.00 )");
    EXPECT_EQ(verdictText(result, Verdict::DrainOutflowMet),
              "Podmínka výstupního odtoku je splněna. ( 12.35 > 15.00 )");
}

TEST(Messages, ChecksThatFollowEachOtherShareABox) {
    const auto boxes = messages(told({Verdict::SafetyFactorNotPositive, Verdict::TrenchWidthNotPositive,
                                      Verdict::ShaftOuterDiameterTooSmall, Verdict::SideSlopeNegative}));
    ASSERT_THAT(boxes, SizeIs(3));
    EXPECT_EQ(boxes[0].text,
              "Součinitel bezpečnosti je menší nebo roven nule.\r\nŠířka rýhy je menší nebo rovna nule.\r\n");
    EXPECT_EQ(boxes[0].severity, Severity::Refusal);
    EXPECT_EQ(boxes[1].text, info(Verdict::ShaftOuterDiameterTooSmall).text);
    EXPECT_EQ(boxes[2].text, std::string(info(Verdict::SideSlopeNegative).text) + "\r\n");
}

TEST(Messages, EachVerdictHasItsIconAndTitle) {
    const auto boxes = messages(told({Verdict::DesignRainMissing, Verdict::DrainedAreaMissing}));
    ASSERT_THAT(boxes, SizeIs(2));
    EXPECT_EQ(boxes[0], (Message{"Intenzita návrhového deště není zadána", Severity::Warning, true, 0}));
    EXPECT_EQ(boxes[1], (Message{"Zadejte nepropustnou odvodňovanou plochu", Severity::Refusal, false, 0}));
}

TEST(Messages, ARuntimeErrorCarriesItsNumber) {
    const auto boxes = messages(told({Verdict::ErrorDivisionByZero, Verdict::ErrorOverflow}));
    ASSERT_THAT(boxes, SizeIs(2));
    EXPECT_EQ(boxes[0].text, "Dělení nulou");
    EXPECT_EQ(boxes[0].error_number, 11);
    EXPECT_EQ(boxes[1].text, "Přetečení: hodnota je mimo rozsah");
    EXPECT_EQ(boxes[1].error_number, 6);
    EXPECT_EQ(boxes[1].severity, Severity::Refusal);
}

}  // namespace
}  // namespace mero::design
