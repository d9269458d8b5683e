// SPDX-License-Identifier: MIT
/// The message boxes of verdicts: checks that share a box, errors with their number, ids.
#include "design/messages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mero::design {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

std::vector<Message> boxesOf(std::initializer_list<VerdictId> ids) {
    std::vector<Verdict> verdicts;
    for (const VerdictId id : ids) {
        verdicts.push_back({.id = id, .values = {}});
    }
    return messages(verdicts);
}

TEST(Messages, NoVerdictIsNoBox) {
    EXPECT_THAT(boxesOf({}), IsEmpty());
}

TEST(Messages, ChecksThatFollowEachOtherShareABox) {
    const auto boxes = boxesOf({VerdictId::SafetyFactorNotPositive, VerdictId::TrenchWidthNotPositive,
                                VerdictId::ShaftOuterDiameterTooSmall, VerdictId::SideSlopeNegative});
    ASSERT_THAT(boxes, SizeIs(3));
    EXPECT_EQ(boxes[0].text,
              "Součinitel bezpečnosti je menší nebo roven nule.\r\nŠířka rýhy je menší nebo rovna nule.\r\n");
    EXPECT_EQ(boxes[0].severity, Severity::Refusal);
    EXPECT_EQ(boxes[1].text, info(VerdictId::ShaftOuterDiameterTooSmall).text);
    EXPECT_EQ(boxes[2].text, std::string(info(VerdictId::SideSlopeNegative).text) + "\r\n");
}

TEST(Messages, EachVerdictHasItsIconAndTitle) {
    const auto boxes = boxesOf({VerdictId::DesignRainMissing, VerdictId::DrainedAreaMissing});
    ASSERT_THAT(boxes, SizeIs(2));
    EXPECT_EQ(box(boxes[0]), (platform::Message{"Intenzita návrhového deště není zadána",
                                                platform::MessageIcon::Exclamation, "Chyba"}));
    EXPECT_EQ(box(boxes[1]), (platform::Message{"Zadejte nepropustnou odvodňovanou plochu",
                                                platform::MessageIcon::Critical}));
}

TEST(Messages, ARuntimeErrorCarriesItsNumber) {
    const auto boxes = boxesOf({VerdictId::ErrorDivisionByZero, VerdictId::ErrorOverflow});
    ASSERT_THAT(boxes, SizeIs(2));
    EXPECT_EQ(boxes[0].text, "Dělení nulou");
    EXPECT_EQ(boxes[0].error_number, 11);
    EXPECT_EQ(boxes[1].text, "Přetečení: hodnota je mimo rozsah");
    EXPECT_EQ(boxes[1].error_number, 6);
    EXPECT_EQ(boxes[1].severity, Severity::Refusal);
}

TEST(Messages, AnIdGoesThroughTheDeskAndBack) {
    for (const VerdictInfo& verdict : verdicts()) {
        EXPECT_EQ(verdictId(box(verdict.id).id), verdict.id) << verdict.code;
    }
    EXPECT_FALSE(verdictId(platform::MessageId::None).has_value());
    EXPECT_FALSE(verdictId(static_cast<platform::MessageId>(kVerdictCount + 1)).has_value());
}

TEST(Messages, ABoxOfSeveralChecksHasTheIdOfTheFirst) {
    const auto boxes = boxesOf({VerdictId::TrenchHeightNotPositive, VerdictId::TrenchWidthNotPositive});
    ASSERT_THAT(boxes, SizeIs(1));
    EXPECT_EQ(boxes[0].id, VerdictId::TrenchHeightNotPositive);
}

}  // namespace
}  // namespace mero::design
