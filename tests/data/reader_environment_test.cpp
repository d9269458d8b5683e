// SPDX-License-Identifier: MIT
/// The reader's environment: everything but the variables that change the database library's results.
#include "data/reader_environment.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "data/rain_support.h"

namespace mero::data {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::Not;

/// Sets variables during the lifetime of the object.
class Variables {
  public:
    explicit Variables(std::vector<std::pair<const char*, const char*>> variables)
        : variables_(std::move(variables)) {
        for (const auto& [name, value] : variables_) {
            ::setenv(name, value, 1);
        }
    }
    Variables(const Variables&) = delete;
    Variables& operator=(const Variables&) = delete;
    ~Variables() {
        for (const auto& [name, value] : variables_) {
            ::unsetenv(name);
        }
    }

  private:
    std::vector<std::pair<const char*, const char*>> variables_;
};

TEST(ReaderEnvironment, LeavesOutTheLibrarysVariablesOnly) {
    const Variables variables(
        {{"MDBOPTS", "debug_row"}, {"MDBPATH", "/"}, {"MDBPATHS", "kept"}, {"MERO_X", "a=b"}});
    const std::vector<std::string> environment = readerEnvironment();
    EXPECT_THAT(environment, Not(Contains(HasSubstr("MDBOPTS"))));
    EXPECT_THAT(environment, Not(Contains("MDBPATH=/")));
    EXPECT_THAT(environment, Contains("MDBPATHS=kept"));
    EXPECT_THAT(environment, Contains("MERO_X=a=b"));
}

TEST(ReaderEnvironment, TheLibrarysVariablesChangeNoAnswer) {
    const Variables variables({{"MDBICONV", "UTF-16"},
                               {"MDB_JET3_CHARSET", "nonsense"},
                               {"MDBOPTS", "debug_like:debug_usage:debug_row:no_memo"},
                               {"MDBPATH", "/tmp"}});
    const auto outcome = test::read(MERO_RAIN_DATABASE);
    ASSERT_NE(outcome.table(), nullptr) << outcome.error()->description();
    EXPECT_TRUE(hasField(*outcome.table(), "doba"));
    EXPECT_EQ(outcome.table()->rows.size(), 9U);
    EXPECT_TRUE(hasField(*test::read(MERO_ODD_TABLES, 3).table(), "poznámka"));
}

TEST(ReaderEnvironment, ADecimalCommaOfTheMachineChangesNoAnswer) {
    const Variables variables({{"LC_ALL", "cs_CZ.UTF-8"}, {"LANG", "cs_CZ.UTF-8"}});
    const auto outcome = test::read(MERO_RAIN_DATABASE);
    ASSERT_NE(outcome.table(), nullptr) << outcome.error()->description();
    EXPECT_EQ(test::valueAt(*outcome.table(), 0, "5"), 115.5);
}

}  // namespace
}  // namespace mero::data
