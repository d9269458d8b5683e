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
        result.show(quantity.quantity, static_cast<float>(quantity.quantity) + 1.0F);
    }
    result.clear(Quantity::StorageVolume);
    for (const QuantityInfo& quantity : quantities()) {
        EXPECT_EQ(result.has(quantity.quantity), quantity.quantity != Quantity::StorageVolume)
            << quantity.name;
        EXPECT_EQ(result.value(quantity.quantity), static_cast<float>(quantity.quantity) + 1.0F);
    }
}

TEST(DesignResult, ABoxMayStoreBackAnotherNumberThanItWasGiven) {
    DesignResult result;
    result.show(Quantity::InfiltrationArea, 428.57144F, 428.6F);
    EXPECT_EQ(result.written(Quantity::InfiltrationArea), 428.57144F);
    EXPECT_EQ(result.value(Quantity::InfiltrationArea), 428.6F);
    // An emptied box keeps what is stored; storing shows nothing.
    result.clear(Quantity::InfiltrationArea);
    EXPECT_EQ(result.value(Quantity::InfiltrationArea), 428.6F);
    result.store(Quantity::InfiltrationArea, 0.0F);
    EXPECT_EQ(result.value(Quantity::InfiltrationArea), 0.0F);
    EXPECT_FALSE(result.has(Quantity::InfiltrationArea));
}

TEST(DesignResult, TheFirstOfTheErrorsCounts) {
    DesignResult result;
    result.verdicts.add(Verdict::DrainedAreaMissing);
    EXPECT_FALSE(result.firstError().has_value());
    result.verdicts.add(Verdict::ErrorDivisionByZero);
    result.verdicts.add(Verdict::ErrorOverflow);
    EXPECT_EQ(result.firstError(), ErrorNumber::DivisionByZero);
    EXPECT_THAT(result.verdicts.all(), ElementsAre(Verdict::DrainedAreaMissing, Verdict::ErrorDivisionByZero,
                                                   Verdict::ErrorOverflow));
}

}  // namespace
}  // namespace mero::design
