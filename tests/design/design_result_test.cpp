// SPDX-License-Identifier: MIT
/// What a design leaves behind: boxes that show a number, stored values, messages in their order.
#include "design/design_result.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mero::design {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(DesignResult, NothingIsThereAtFirst) {
    const DesignResult result;
    for (const QuantityInfo& quantity : quantities()) {
        EXPECT_FALSE(result.has(quantity.quantity)) << quantity.name;
        EXPECT_EQ(result.value(quantity.quantity), 0.0F) << quantity.name;
    }
    EXPECT_THAT(result.verdicts.all(), IsEmpty());
    EXPECT_FALSE(result.firstError().has_value());
}

TEST(DesignResult, EveryBoxIsOnItsOwn) {
    DesignResult result;
    for (const QuantityInfo& quantity : quantities()) {
        result.show(quantity.quantity);
    }
    result.clear(Quantity::StorageVolume);
    for (const QuantityInfo& quantity : quantities()) {
        EXPECT_EQ(result.has(quantity.quantity), quantity.quantity != Quantity::StorageVolume)
            << quantity.name;
    }
}

TEST(DesignResult, ABoxMayStoreBackAnotherNumberThanItWasGiven) {
    DesignResult result;
    result.numbers.txtVsakPlocha = 428.6F;
    result.show(Quantity::InfiltrationArea, 428.57144F);
    EXPECT_EQ(result.written(Quantity::InfiltrationArea), 428.57144F);
    EXPECT_EQ(result.value(Quantity::InfiltrationArea), 428.6F);
    // An emptied box keeps what is stored.
    result.clear(Quantity::InfiltrationArea);
    EXPECT_EQ(result.value(Quantity::InfiltrationArea), 428.6F);
    EXPECT_FALSE(result.has(Quantity::InfiltrationArea));
    EXPECT_EQ(result.written(Quantity::InfiltrationArea), 428.6F);
}

TEST(DesignResult, TheFirstOfTheErrorsCounts) {
    DesignResult result;
    const auto add = [&](VerdictId id) { result.verdicts.add({.id = id, .values = {}}); };
    add(VerdictId::DrainedAreaMissing);
    EXPECT_FALSE(result.firstError().has_value());
    add(VerdictId::ErrorDivisionByZero);
    add(VerdictId::ErrorOverflow);
    EXPECT_EQ(result.firstError(), ErrorNumber::DivisionByZero);
    EXPECT_THAT(result.verdicts.all(), ElementsAre(VerdictId::DrainedAreaMissing,
                                                   VerdictId::ErrorDivisionByZero, VerdictId::ErrorOverflow));
}

TEST(DesignResult, AListThatIsFullRefusesOneMore) {
    VerdictList list;
    const Verdict verdict{.id = VerdictId::ErrorOverflow, .values = {}};
    for (std::size_t n = 0; n < VerdictList::kMost; ++n) {
        list.add(verdict);
    }
    EXPECT_THROW(list.add(verdict), std::length_error);
    EXPECT_EQ(list.all().size(), VerdictList::kMost);
}

}  // namespace
}  // namespace mero::design
