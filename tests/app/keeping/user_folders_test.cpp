// SPDX-License-Identifier: MIT
/// Where files for the user are kept, by the environment.
#include "app/keeping/user_folders.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>

namespace mero::app {
namespace {

class UserFolders : public testing::Test {
  protected:
    void SetUp() override {
        ::unsetenv("XDG_CONFIG_HOME");
        ::unsetenv("XDG_DATA_HOME");
        ::unsetenv("HOME");
    }
};

TEST_F(UserFolders, AreBelowTheHome) {
    ::setenv("HOME", "/home/jana", 1);
    EXPECT_EQ(preferencesFile(), "/home/jana/.config/mero/mero.json");
    EXPECT_EQ(recoveryFolder(), "/home/jana/.local/share/mero/recovery");
}

TEST_F(UserFolders, FollowTheBaseDirectories) {
    ::setenv("HOME", "/home/jana", 1);
    ::setenv("XDG_CONFIG_HOME", "/config", 1);
    ::setenv("XDG_DATA_HOME", "/data", 1);
    EXPECT_EQ(preferencesFile(), "/config/mero/mero.json");
    EXPECT_EQ(recoveryFolder(), "/data/mero/recovery");
}

TEST_F(UserFolders, AreNoneWithoutAnAbsoluteHome) {
    EXPECT_EQ(preferencesFile(), "");
    EXPECT_EQ(recoveryFolder(), "");
    ::setenv("HOME", "home/jana", 1);
    ::setenv("XDG_CONFIG_HOME", "config", 1);
    ::setenv("XDG_DATA_HOME", "", 1);
    EXPECT_EQ(preferencesFile(), "");
    EXPECT_EQ(recoveryFolder(), "");
}

}  // namespace
}  // namespace mero::app
