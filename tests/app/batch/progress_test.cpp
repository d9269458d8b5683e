// SPDX-License-Identifier: MIT
/// The progress line of a sweep.
#include "app/batch/progress.h"

#include <gtest/gtest.h>

namespace mero::app {
namespace {

TEST(ProgressLine, TellsRowsShareRateAndTimeLeft) {
    EXPECT_EQ(progressLine(250000, 1000000, 0.5),
              "250 000 of 1 000 000 rows (25 %), 500 000 rows/s, 2 s left");
    EXPECT_EQ(progressLine(0, 10, 0.0), "0 of 10 rows (0 %)");
    EXPECT_EQ(progressLine(0, 0, 1.0), "0 of 0 rows");
}

}  // namespace
}  // namespace mero::app
